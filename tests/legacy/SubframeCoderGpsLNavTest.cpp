// The LNAV word coder against real broadcasts (whose parity satellites computed)
// and against its own inverse.

#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "api/HexInput.h"
#include "legacy/SubframeCoderGpsLNav.h"
#include "support/RealData.h"

namespace {

using ZeltNavMsg::Legacy::subframe_t;
using ZeltNavMsg::Legacy::SubframeCoder;
using ZeltNavMsg::Legacy::SubframeCoderGpsLNav;

const SubframeCoderGpsLNav kCoder{0};

subframe_t recordFromHex(const std::string& hex) {
    subframe_t sf;
    sf.bitCount = static_cast<std::int32_t>(hex.size() * 4);
    ZeltNavMsg::Detail::hexDigitsToBytes(hex, sf.data, sizeof sf.data);
    return sf;
}

// Decoding strips the inversions; encoding the result must rebuild every received
// word, parity included: word 1 starts from D29* = D30* = 0, which the previous
// subframe's word 10 guarantees, and the t bits of words 2 and 10 come out as sent.
TEST(SubframeCoderGpsLNav, EncodeRebuildsRealSubframes) {
    int count = 0;
    for (const char* file : {"gps_lnav.tsv", "qzss_lnav.tsv"}) {
        for (const auto& m : ZeltNavMsg::Testing::loadRealData(file)) {
            const subframe_t received = recordFromHex(m.hex);
            subframe_t sf = received;
            EXPECT_FALSE(kCoder.Decode(sf)) << m.where;
            EXPECT_FALSE(kCoder.Encode(sf)) << m.where;
            for (int w = 0; w < 10; ++w) {
                EXPECT_EQ(SubframeCoder::ReadWord(sf, 30 * w + 1),
                          SubframeCoder::ReadWord(received, 30 * w + 1))
                    << m.where << " word " << w + 1;
            }
            ++count;
        }
    }
    EXPECT_EQ(count, 168);
}

// Encode then Decode returns the data bits, except the two t bits that words 2 and 10
// give up to zero their last parity bits, which must then be 0.
TEST(SubframeCoderGpsLNav, DecodeInvertsEncode) {
    std::mt19937 random(7);
    for (int trial = 0; trial < 200; ++trial) {
        subframe_t sf;
        sf.bitCount = 300;
        for (int w = 0; w < 10; ++w) {
            SubframeCoder::WriteWord(sf, 30 * w + 1, random() & 0x3FFFFFC0U);
        }
        const subframe_t original = sf;
        kCoder.Encode(sf);
        for (int w : {1, 9}) {
            EXPECT_EQ(SubframeCoder::ReadWord(sf, 30 * w + 1) & 3U, 0U) << "word " << w + 1;
        }
        kCoder.Decode(sf);
        for (int w = 0; w < 10; ++w) {
            const std::uint32_t mask = (w == 1 || w == 9) ? 0x3FFFFF00U : 0x3FFFFFC0U;
            EXPECT_EQ(SubframeCoder::ReadWord(sf, 30 * w + 1) & mask,
                      SubframeCoder::ReadWord(original, 30 * w + 1) & mask)
                << "trial " << trial << " word " << w + 1;
        }
    }
}

TEST(SubframeCoderGpsLNav, DecodeUsesReceivedPredecessor) {
    subframe_t sf;
    sf.bitCount = 300;
    SubframeCoder::WriteWord(sf, 1, 0x00000001U);   // D30 = 1: invert word 2
    SubframeCoder::WriteWord(sf, 31, 0x00000001U);  // received D30 = 1: invert word 3 too
    SubframeCoder::WriteWord(sf, 61, 0x00000000U);
    kCoder.Decode(sf);
    EXPECT_EQ(SubframeCoder::ReadWord(sf, 1), 0x00000001U);
    EXPECT_EQ(SubframeCoder::ReadWord(sf, 31), 0x3FFFFFC1U);
    EXPECT_EQ(SubframeCoder::ReadWord(sf, 61), 0x3FFFFFC0U);
    EXPECT_EQ(SubframeCoder::ReadWord(sf, 91), 0x00000000U);
}

TEST(SubframeCoder, WriteWordRefusesWordsPastTheRecord) {
    subframe_t sf;
    sf.layoutId = 3;
    sf.bitCount = 59;
    std::memset(sf.data, 0xA5, sizeof sf.data);
    const subframe_t before = sf;
    testing::internal::CaptureStderr();
    EXPECT_FALSE(SubframeCoder::WriteWord(sf, 1, 0x3FFFFFFFU));
    EXPECT_TRUE(SubframeCoder::WriteWord(sf, 31, 0));
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "The data does not fit in the subframe 3: data 61, sf-length 60.\n");
    EXPECT_EQ(sf.data[3] & 0xFC, 0xFC);                           // bits 1-30 written
    EXPECT_EQ(std::memcmp(sf.data + 4, before.data + 4, 34), 0);  // nothing else touched
    EXPECT_EQ(sf.data[3] & 0x03, before.data[3] & 0x03);
}

TEST(SubframeCoder, ShortRecordReportsEveryWordThatDoesNotFit) {
    subframe_t sf;
    sf.bitCount = 240;  // words 9 and 10 do not fit
    testing::internal::CaptureStderr();
    EXPECT_TRUE(kCoder.Decode(sf));
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "The data does not fit in the subframe 0: data 271, sf-length 241.\n"
              "The data does not fit in the subframe 0: data 301, sf-length 241.\n");
}

}  // namespace
