// The records carry the checks, and read a damaged BeiDou subframe as a receiver does:
// one flipped bit in a codeword gives the undamaged message's records, with one
// Corrected check that names the bit.

#include <gtest/gtest.h>

#include <string>

#include "support/RealData.h"
#include "zeltnavmsg/DecodedMessage.h"

namespace ZeltNavMsg {
namespace {

std::string flipped(const std::string& hex, int bit) {
    std::string out = hex;
    const auto digit = static_cast<std::size_t>(bit / 4);
    const int value = std::stoi(out.substr(digit, 1), nullptr, 16) ^ (8 >> (bit % 4));
    out[digit] = "0123456789abcdef"[value];
    return out;
}

TEST(RecordChecks, OneDamagedBitOfABeidouCodewordIsCorrectedInTheRecords) {
    int messages = 0;
    for (const auto& [format, file] : {std::pair{MessageFormat::BeidouD1, "beidou_d1.tsv"},
                                       {MessageFormat::BeidouD2, "beidou_d2.tsv"}}) {
        for (const Testing::RealMessage& r : Testing::loadRealData(file)) {
            if (++messages % 8 != 0) {
                continue;  // every eighth message, every bit of it
            }
            const DecodedMessage intact =
                NavMessageDecoder::DecodeFields(format, r.subframe, r.page, r.hex);
            ASSERT_TRUE(intact.ok()) << r.where;
            ASSERT_EQ(intact.checks().size(), 19U) << r.where;
            for (int bit = 15; bit < 300; ++bit) {  // the first 15 bits are not protected
                const std::string damaged = flipped(r.hex, bit);
                const DecodedMessage m =
                    NavMessageDecoder::DecodeFields(format, r.subframe, r.page, damaged);
                EXPECT_FALSE(m.ok());
                int corrected = 0;
                for (const CheckResult& c : m.checks()) {
                    if (c.status != CheckStatus::Pass) {
                        EXPECT_EQ(c.status, CheckStatus::Corrected) << r.where << " bit " << bit;
                        EXPECT_EQ(c.correctedBit, bit) << r.where;
                        ++corrected;
                    }
                }
                EXPECT_EQ(corrected, 1) << r.where << " bit " << bit;
                ASSERT_EQ(m.fields().size(), intact.fields().size());
                for (std::size_t i = 0; i < m.fields().size(); ++i) {
                    EXPECT_EQ(m.fields()[i].raw(), intact.fields()[i].raw())
                        << r.where << " bit " << bit << ": " << m.fields()[i].path();
                }
            }
        }
    }
    EXPECT_GT(messages, 200);
}

}  // namespace
}  // namespace ZeltNavMsg
