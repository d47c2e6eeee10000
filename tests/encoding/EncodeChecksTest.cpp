// Protection on purpose and by mistake: recomputed check bits always pass; kept ones make
// the decoder's checks report exactly the word, codeword or block whose bit changed.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/CheckVerdict.h"
#include "support/SupportedFormats.h"
#include "zeltnavmsg/MessageEncoder.h"

namespace ZeltNavMsg {
namespace {

bool covers(const CheckResult& check, std::int32_t bit) {
    for (const BitSegment& s : check.bits) {
        if (bit >= s.first && bit < s.first + s.count) {
            return true;
        }
    }
    return false;
}

// In each real sample, each data field's last bit changed: kept check bits fail the one
// check that covers it (BCH corrects it there), recomputed ones pass and carry the change.
TEST(EncodeChecks, AChangedBitFailsExactlyItsCheckUnlessRecomputed) {
    for (const Testing::SupportedFormat& row : Testing::kSupportedFormats) {
        const DecodedMessage sample =
            NavMessageDecoder::DecodeFields(row.format, row.subframe, row.page, row.sampleHex);
        ASSERT_TRUE(sample.ok()) << row.name;
        for (const DecodedField& f : sample.fields()) {
            if (f.role() != FieldRole::Data) {
                continue;
            }
            SCOPED_TRACE(std::string(row.name) + " " + std::string(f.path()));
            const std::int32_t bit = f.bits().back().first + f.bits().back().count - 1;
            MessageEncoder encoder(row.format, row.subframe, row.page, row.sampleHex);
            encoder.setRaw(f.info(), f.raw() ^ 1U);

            const DecodedMessage kept = NavMessageDecoder::DecodeFields(
                row.format, row.subframe, row.page, encoder.hex(CheckBits::Keep));
            std::string expected;
            for (const CheckResult& c : kept.checks()) {
                if (covers(c, bit)) {
                    expected += std::string(c.name) +
                                (row.format == MessageFormat::BeidouD1 ||
                                         row.format == MessageFormat::BeidouD2
                                     ? " corrected at " + std::to_string(bit)
                                     : " failed") +
                                "; ";
                }
            }
            EXPECT_EQ(Testing::failedChecks(kept), expected);

            const DecodedMessage recomputed =
                NavMessageDecoder::DecodeFields(row.format, row.subframe, row.page, encoder.hex());
            EXPECT_EQ(Testing::failedChecks(recomputed), "");
            const DecodedField* changed = recomputed.find(f.path());
            ASSERT_NE(changed, nullptr);
            EXPECT_EQ(changed->raw(), f.raw() ^ 1U);
        }
    }
}

// A codeword received with one error starts corrected; Keep gives the error back.
TEST(EncodeChecks, ADamagedBeidouCodewordIsCorrectedOrKept) {
    const Testing::SupportedFormat& d1 = *Testing::findSupported(MessageFormat::BeidouD1);
    std::string damaged(d1.sampleHex);
    const int digit = damaged[40] <= '9' ? damaged[40] - '0' : damaged[40] - 'a' + 10;
    damaged[40] = "0123456789abcdef"[digit ^ 1];  // bit 163
    MessageEncoder encoder(MessageFormat::BeidouD1, d1.subframe, d1.page, damaged);
    EXPECT_EQ(encoder.hex(), d1.sampleHex);
    EXPECT_EQ(encoder.hex(CheckBits::Keep), damaged);
    EXPECT_EQ(Testing::failedChecks(NavMessageDecoder::DecodeFields(
                  MessageFormat::BeidouD1, d1.subframe, d1.page, encoder.hex(CheckBits::Keep))),
              "word 6 BCH 2 corrected at 163; ");
    // Set, the damaged bit is the caller's: kept as set.
    for (const DecodedField& f : encoder.message().fields()) {
        if (f.role() == FieldRole::Data && covers({"", f.bits()}, 163)) {
            encoder.setRaw(f.info(), f.raw());
            break;
        }
    }
    EXPECT_EQ(encoder.hex(CheckBits::Keep), d1.sampleHex);
}

}  // namespace
}  // namespace ZeltNavMsg
