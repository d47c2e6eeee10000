#include "zeltnavmsg/SubframeAndPage.h"

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>

#include "legacy/BeidouD1Interface.h"
#include "legacy/GpsL1caInterface.h"
#include "support/RealData.h"
#include "support/SupportedFormats.h"

namespace ZeltNavMsg::Testing {
namespace {

// The subframe and page columns of every real broadcast came from the data's sources;
// the bits alone give the same.
TEST(MessageNumbering, RealDataColumnsFromTheBits) {
    std::size_t lines = 0;
    for (const SupportedFormat& row : kSupportedFormats) {
        for (const RealMessage& m : loadRealData(row.realDataFile)) {
            const SubframeAndPage got = MessageNumbering::GetSubframeAndPage(row.format, m.hex);
            EXPECT_EQ(got.subframe, m.subframe) << m.where;
            EXPECT_EQ(got.page, m.page) << m.where;
            ++lines;
        }
    }
    EXPECT_EQ(lines, 558U);
}

TEST(MessageNumbering, RefusesWhatDecodeRefuses) {
    EXPECT_THROW(MessageNumbering::GetSubframeAndPage(MessageFormat::GpsLNav, "8b0x"),
                 DecodingError);
    EXPECT_THROW(MessageNumbering::GetSubframeAndPage(MessageFormat::GpsLNav, " \t"),
                 std::out_of_range);
    EXPECT_THROW(MessageNumbering::GetSubframeAndPage(MessageFormat::GalileoINav, "00"),
                 DecodingError);
}

// Bits the input does not reach read as zero: a TLM alone is subframe 0; B-CNAV2 PRN 45
// and MesType 30 (101101 011110) are all a frame needs for its page.
TEST(MessageNumbering, MissingBitsReadAsZero) {
    EXPECT_EQ(MessageNumbering::GetSubframeAndPage(MessageFormat::GpsLNav, "8b").subframe, 0);
    EXPECT_EQ(MessageNumbering::GetSubframeAndPage(MessageFormat::BeidouCNav2, "b5e").page, 30);
}

// The numbering decodes only the words its entries lie in: each word, decoded alone,
// is what the coder's whole-subframe decode leaves there (BeiDou corrections included).
TEST(MessageNumbering, WordDecodedAloneAsInTheWholeSubframe) {
    using Legacy::SubframeCoder;
    std::mt19937 random(13);
    for (const Legacy::SubframeIf* signal :
         {static_cast<const Legacy::SubframeIf*>(&Legacy::GPS_L1CA_Interface),
          static_cast<const Legacy::SubframeIf*>(&Legacy::BEIDOU_D1_Interface)}) {
        const SubframeCoder& coder = signal->GetCoder();
        for (int trial = 0; trial < 200; ++trial) {
            Legacy::subframe_t received;
            received.bitCount = 300;
            for (std::uint8_t& byte : received.data) {
                byte = static_cast<std::uint8_t>(random());
            }
            Legacy::subframe_t decoded = received;
            (void)coder.Decode(decoded);
            for (std::int32_t w = 0; w < 10; ++w) {
                ASSERT_EQ(coder.DecodedWord(received, w),
                          SubframeCoder::ReadWord(decoded, SubframeCoder::kWordBits * w + 1))
                    << "word " << w;
            }
        }
    }
}

}  // namespace
}  // namespace ZeltNavMsg::Testing
