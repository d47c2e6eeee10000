// Real B1C frames (subframe 3 pages 1-4 and an unknown page) against values decoded
// by independent decoders. The listing multiplies angles by pi, so with units text
// "pi" it shows radians, like the ground truth. Where the listing shows something
// other than the physical value, the check converts the ground truth:
// - the ephemeris carries the semi-major axis as a difference from its reference,
//   27906100 m for MEO and 42162200 m for IGSO and GEO satellites (by SatType);
// - "SOH" is given as its raw count of 18 s, and the seconds of week, which the frame
//   does not carry as one field, are HOW x 3600 s + SOH.

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <string>

#include "support/RealData.h"
#include "support/TreeChecks.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using ZeltNavMsg::MessageFormat;
using ZeltNavMsg::NavMessageDecoder;
using ZeltNavMsg::Testing::expectTreeInteger;
using ZeltNavMsg::Testing::expectTreeValue;

constexpr double kReferenceAMeo = 27906100.0;      // m
constexpr double kReferenceAGeoIgso = 42162200.0;  // m
constexpr int kSatTypeMeo = 3;

long long printedInteger(const std::multimap<std::string, ZeltNavMsg::Testing::TreeLine>& lines,
                         const std::string& path) {
    return lines.count(path) == 1 ? std::stoll(lines.find(path)->second.value) : -1;
}

TEST(BeidouCNav1RealData, FramesMatchIndependentDecoders) {
    const std::string eph1 = "Subframe 2/EphemerisI/";
    const std::string eph2 = "Subframe 2/EphemerisII/";
    const std::string clk = "Subframe 2/ClockCorrectionParameters/";
    const std::map<std::string, std::string> values = {
        {"Adot", eph1 + "dA"},
        {"dn0", eph1 + "deltaN0"},
        {"dn0dot", eph1 + "dDeltaN0"},
        {"M0", eph1 + "M0"},
        {"e", eph1 + "e"},
        {"omega", eph1 + "w"},
        {"OMEGA0", eph2 + "Omega0"},
        {"i0", eph2 + "i0"},
        {"OMEGAdot", eph2 + "dOmega"},  // broadcast whole, not as a difference
        {"IDOT", eph2 + "di0"},
        {"Cis", eph2 + "Cis"},
        {"Cic", eph2 + "Cic"},
        {"Crs", eph2 + "Crs"},
        {"Crc", eph2 + "Crc"},
        {"Cus", eph2 + "Cus"},
        {"Cuc", eph2 + "Cuc"},
        {"a0", clk + "a0"},
        {"a1", clk + "a1"},
        {"a2", clk + "a2"},
        {"TGD_B2ap", "Subframe 2/TGDB2ap"},
        {"ISC_B1Cd", "Subframe 2/ISCB1Cd"},
        {"TGD_B1Cp", "Subframe 2/TGDB1Cp"}};
    const std::map<std::string, std::string> integers = {
        {"WN", "Subframe 2/WN"},     {"HOW", "Subframe 2/HOW"}, {"IODC", "Subframe 2/IODC"},
        {"IODE", "Subframe 2/IODE"}, {"toe", eph1 + "toe"},     {"SatType", eph1 + "SatType"},
        {"toc", clk + "toc"}};
    std::map<int, int> perPage;
    for (const auto& m : ZeltNavMsg::Testing::loadRealData("beidou_cnav1.tsv")) {
        ASSERT_EQ(m.hex.size(), 220U) << m.where;
        const auto lines = ZeltNavMsg::Testing::parseTreeListing(
            NavMessageDecoder::Decode(MessageFormat::BeidouCNav1, 0, 0, m.hex));
        // The page column holds the page number.
        expectTreeInteger(lines, "Subframe 3/Page ID", m.page, m.where);
        const std::string page = "Subframe 3/Page " + std::to_string(m.page) + "/";
        if (m.page < 1 || m.page > 4) {
            // No page layout: nothing below subframe 3 but its page number and CRC.
            int subframe3Lines = 0;
            for (const auto& [path, line] : lines) {
                subframe3Lines += path.starts_with("Subframe 3/") ? 1 : 0;
            }
            EXPECT_EQ(subframe3Lines, 2) << m.where;
        }
        for (const auto& [key, text] : m.truth) {
            const double v = std::atof(text.c_str());
            if (values.contains(key)) {
                expectTreeValue(lines, values.at(key), v, m.where);
            } else if (integers.contains(key)) {
                expectTreeInteger(lines, integers.at(key), std::llround(v), m.where);
            } else if (key == "HS") {
                expectTreeInteger(lines, page + "HS", std::llround(v), m.where);
            } else if (key == "SOH") {
                expectTreeInteger(lines, "Subframe 1/SOH", 18 * std::llround(v), m.where);
            } else if (key == "SOW") {
                EXPECT_EQ(printedInteger(lines, "Subframe 2/HOW") * 3600 +
                              printedInteger(lines, "Subframe 1/SOH"),
                          std::llround(v))
                    << m.where;
            } else if (key == "A") {
                const auto satType = m.number("SatType");
                ASSERT_TRUE(satType.has_value()) << m.where;
                const double reference =
                    *satType == kSatTypeMeo ? kReferenceAMeo : kReferenceAGeoIgso;
                expectTreeValue(lines, eph1 + "deltaA", v - reference, m.where);
            } else {
                ADD_FAILURE() << m.where << ": no check for ground-truth field " << key;
            }
        }
        ++perPage[m.page];
    }
    EXPECT_EQ(perPage, (std::map<int, int>{{1, 12}, {2, 8}, {3, 10}, {4, 8}, {60, 7}}));
}

}  // namespace
