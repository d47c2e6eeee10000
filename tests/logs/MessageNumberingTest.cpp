#include "zeltnavmsg/SubframeAndPage.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "support/RealData.h"

namespace ZeltNavMsg::Testing {
namespace {

// The subframe and page columns of every real broadcast came from the data's sources;
// the bits alone give the same.
TEST(MessageNumbering, RealDataColumnsFromTheBits) {
    const struct {
        const char* file;
        MessageFormat format;
    } kTables[] = {
        {"gps_lnav.tsv", MessageFormat::GpsLNav},
        {"qzss_lnav.tsv", MessageFormat::QzssLNav},
        {"beidou_d1.tsv", MessageFormat::BeidouD1},
        {"beidou_d2.tsv", MessageFormat::BeidouD2},
        {"gps_cnav2.tsv", MessageFormat::GpsCNav2},
        {"beidou_cnav1.tsv", MessageFormat::BeidouCNav1},
        {"beidou_cnav2.tsv", MessageFormat::BeidouCNav2},
        {"irnss.tsv", MessageFormat::Irnss},
    };
    std::size_t lines = 0;
    for (const auto& table : kTables) {
        for (const RealMessage& m : loadRealData(table.file)) {
            const SubframeAndPage got = MessageNumbering::GetSubframeAndPage(table.format, m.hex);
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

}  // namespace
}  // namespace ZeltNavMsg::Testing
