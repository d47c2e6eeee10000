// Every format's listings against the expected ones worked out by hand from the field
// tables and layouts (tests/data/listings, see the README there), line by line.

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "support/RealData.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using namespace ZeltNavMsg::Testing;
using ZeltNavMsg::MessageFormat;

TEST(ExpectedListing, EveryFile) {
    const struct {
        const char* dir;
        MessageFormat format;
        std::size_t files;
        bool legacy;  // 300-bit subframes
    } formats[] = {
        {"gps_lnav", MessageFormat::GpsLNav, 2, true},
        {"beidou_d1", MessageFormat::BeidouD1, 1, true},
        {"beidou_d2", MessageFormat::BeidouD2, 2, true},
        {"gps_cnav2", MessageFormat::GpsCNav2, 13, false},
        {"beidou_cnav1", MessageFormat::BeidouCNav1, 10, false},
        {"beidou_cnav2", MessageFormat::BeidouCNav2, 14, false},
        {"irnss", MessageFormat::Irnss, 22, false},
    };
    for (const auto& f : formats) {
        std::size_t files = 0;
        for (const auto& file : std::filesystem::directory_iterator(
                 std::filesystem::path(ZELTNAVMSG_TEST_DATA_DIR) / "listings" / f.dir)) {
            const std::string name = file.path().stem().string();
            SCOPED_TRACE(std::string(f.dir) + "/" + name);
            // Legacy files are named subframe-S[-page-P].
            int subframe = 0;
            int page = 0;
            if (f.legacy) {
                ASSERT_GE(std::sscanf(name.c_str(), "subframe-%d-page-%d", &subframe, &page), 1);
            }
            const ExpectedListing listing =
                loadExpectedListing(std::string(f.dir) + "/" + name + ".txt");
            const std::string text =
                ZeltNavMsg::NavMessageDecoder::Decode(f.format, subframe, page, listing.hex);
            // Legacy text ends with the line end of its last line, tree text without one.
            EXPECT_EQ(text.ends_with("\r\n"), f.legacy);
            expectSameLines(splitLines(text), listing.lines);
            ++files;
        }
        EXPECT_EQ(files, f.files) << f.dir;
    }
}

}  // namespace
