// Decode, encode and compare: real broadcasts come back bit for bit (parity, BCH and CRC
// included), and generated values of every layout come back within half an LSB.

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <random>
#include <string>

#include "records/LayoutCases.h"
#include "support/RealData.h"
#include "support/SupportedFormats.h"
#include "zeltnavmsg/MessageEncoder.h"

namespace ZeltNavMsg {
namespace {

// What hex() writes for a message given as `hex`: its first digits, lower case.
std::string broadcastDigits(std::string hex, std::int32_t bits) {
    std::transform(hex.begin(), hex.end(), hex.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return hex.substr(0, static_cast<std::size_t>(bits + 3) / 4);
}

// A record's value set back by value, wider fields (beyond a double's 53 bits) by raw.
void setLikeRecord(MessageEncoder& encoder, const DecodedField& f, double value) {
    if (f.bitCount() > 53) {
        encoder.setRaw(f.info(), f.raw());
    } else {
        encoder.set(f.info(), value);
    }
}

TEST(EncodeRoundTrip, RealMessagesComeBackBitForBit) {
    for (const Testing::SupportedFormat& row : Testing::kSupportedFormats) {
        for (const Testing::RealMessage& m : Testing::loadRealData(row.realDataFile)) {
            SCOPED_TRACE(m.where);
            const DecodedMessage decoded =
                NavMessageDecoder::DecodeFields(row.format, m.subframe, m.page, m.hex);
            const std::string expected = broadcastDigits(m.hex, row.frameBits);
            ASSERT_EQ(expected.size(), static_cast<std::size_t>(row.frameBits + 3) / 4);

            EXPECT_EQ(MessageEncoder(decoded).hex(), expected);
            MessageEncoder byValue(row.format, m.subframe, m.page);
            for (const DecodedField& f : decoded.fields()) {
                // The encoder's rule reads the raw bits as the records do.
                EXPECT_EQ(MessageEncoder::valueOf(f.info(), f.raw()), f.value()) << f.path();
                if (f.role() != FieldRole::Word) {
                    setLikeRecord(byValue, f, f.value());
                }
            }
            EXPECT_EQ(byValue.hex(), expected);
            const MessageEncoder fromHex(row.format, m.subframe, m.page, m.hex);
            EXPECT_EQ(fromHex.hex(CheckBits::Recompute), expected);
            EXPECT_EQ(fromHex.hex(CheckBits::Keep), expected);
        }
    }
}

// Random bits of every layout, their values moved by up to 0.45 LSB, encoded from zeros:
// every value decodes back to within half an LSB of the value set, and every check passes.
TEST(EncodeRoundTrip, GeneratedRecordsOfEveryLayoutWithinHalfAnLsb) {
    std::mt19937 rng(15);
    std::uniform_real_distribution<double> nudge(-0.45, 0.45);
    for (const Testing::LayoutCase& c : Testing::layoutCases(&rng)) {
        const DecodedMessage original =
            NavMessageDecoder::DecodeFields(c.format, c.subframe, c.page, c.hex);
        SCOPED_TRACE(std::string(original.layout()));
        MessageEncoder encoder(c.format, c.subframe, c.page);
        std::vector<double> given;
        for (const DecodedField& f : original.fields()) {
            const double lsb = std::abs(MessageEncoder::valueOf(f.info(), 1));
            given.push_back(f.value() + nudge(rng) * lsb);
            if (f.role() != FieldRole::Word) {
                setLikeRecord(encoder, f, given.back());
            }
        }
        const DecodedMessage back =
            NavMessageDecoder::DecodeFields(c.format, c.subframe, c.page, encoder.hex());
        ASSERT_EQ(back.layout(), original.layout());
        ASSERT_EQ(back.fields().size(), original.fields().size());
        EXPECT_TRUE(back.ok());
        for (std::size_t i = 0; i < back.fields().size(); ++i) {
            const DecodedField& f = back.fields()[i];
            if (f.role() == FieldRole::Word || f.role() == FieldRole::Check) {
                continue;  // made by the encoder
            }
            if (f.bitCount() > 53) {
                EXPECT_EQ(f.raw(), original.fields()[i].raw()) << f.path();
                continue;
            }
            const double lsb = std::abs(MessageEncoder::valueOf(f.info(), 1));
            EXPECT_LE(std::abs(f.value() - given[i]), 0.5 * lsb * (1 + 1e-9)) << f.path();
        }
    }
}

}  // namespace
}  // namespace ZeltNavMsg
