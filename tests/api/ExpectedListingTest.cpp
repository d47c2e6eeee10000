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
        int frameBits;  // 0 for legacy subframes
    } formats[] = {
        {"gps_lnav", MessageFormat::GpsLNav, 2, 0},
        {"beidou_d1", MessageFormat::BeidouD1, 1, 0},
        {"beidou_d2", MessageFormat::BeidouD2, 2, 0},
        {"gps_cnav2", MessageFormat::GpsCNav2, 13, 883},
        {"beidou_cnav1", MessageFormat::BeidouCNav1, 10, 878},
        {"beidou_cnav2", MessageFormat::BeidouCNav2, 14, 288},
        {"irnss", MessageFormat::Irnss, 22, 292},
    };
    for (const auto& f : formats) {
        const auto decodeLines = [&](const std::string& hex, int subframe, int page) {
            const std::string text =
                ZeltNavMsg::NavMessageDecoder::Decode(f.format, subframe, page, hex);
            // Legacy text ends with the line end of its last line, tree text without one.
            EXPECT_EQ(text.ends_with("\r\n"), f.frameBits == 0);
            return splitLines(text);
        };
        std::size_t files = 0;
        for (const auto& file : std::filesystem::directory_iterator(
                 std::filesystem::path(ZELTNAVMSG_TEST_DATA_DIR) / "listings" / f.dir)) {
            const std::string name = file.path().stem().string();
            SCOPED_TRACE(std::string(f.dir) + "/" + name);
            // Legacy files are named subframe-S[-page-P].
            int subframe = 0;
            int page = 0;
            if (f.frameBits == 0) {
                ASSERT_GE(std::sscanf(name.c_str(), "subframe-%d-page-%d", &subframe, &page), 1);
            }
            const ExpectedListing listing =
                loadExpectedListing(std::string(f.dir) + "/" + name + ".txt");
            expectSameLines(decodeLines(listing.hex, subframe, page), listing.lines);
            ++files;
        }
        EXPECT_EQ(files, f.files) << f.dir;
        if (f.frameBits != 0) {
            // One digit lists the whole frame with the missing bits zero; the bits of the
            // last digit past the frame are not part of it.
            const std::string dir = f.dir;
            EXPECT_EQ(decodeLines("0", 0, 0), loadExpectedListing(dir + "/all-zero.txt").lines);
            EXPECT_EQ(
                decodeLines(std::string(static_cast<std::size_t>(f.frameBits + 3) / 4, 'F'), 0, 0),
                loadExpectedListing(dir + "/all-ones.txt").lines);
        }
    }
}

}  // namespace
