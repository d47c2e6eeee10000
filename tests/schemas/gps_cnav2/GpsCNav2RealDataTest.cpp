// Real L1C frames (GPS and QZSS, same structure) against values decoded by
// independent decoders. The listing multiplies angles by pi, so with units text "pi"
// it shows radians, like the ground truth. The ephemeris carries the semi-major axis
// and the node rate as differences from their reference values (the semi-major axis
// reference is QZSS's own for J satellites); the checks convert the ground truth.

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
using ZeltNavMsg::Testing::TreeLine;

constexpr double kPi = 3.1415926535898;
constexpr double kReferenceAGps = 26559710.0;   // m
constexpr double kReferenceAQzss = 42164200.0;  // m
constexpr double kReferenceOmegaDot = -2.6e-9;  // semicircles/s

using Lines = std::multimap<std::string, TreeLine>;

const TreeLine* only(const Lines& lines, const std::string& path, const std::string& where) {
    if (lines.count(path) != 1) {
        ADD_FAILURE() << where << ": expected one line " << path << ", found " << lines.count(path);
        return nullptr;
    }
    return &lines.find(path)->second;
}

void expectValue(const Lines& lines, const std::string& path, double truth,
                 const std::string& where) {
    if (const TreeLine* line = only(lines, path, where)) {
        EXPECT_TRUE(ZeltNavMsg::Testing::sameToSixDigits(std::stod(line->value), truth))
            << where << " " << path << ": printed " << line->value << ", truth " << truth;
    }
}

void expectInteger(const Lines& lines, const std::string& path, long long truth,
                   const std::string& where) {
    if (const TreeLine* line = only(lines, path, where)) {
        EXPECT_EQ(line->value, std::to_string(truth)) << where << " " << path;
    }
}

TEST(GpsCNav2RealData, FramesMatchIndependentDecoders) {
    const std::string eph = "Subframe 2/Ephemeris/";
    const std::string clk = "Subframe 2/ClockCorrectionParameters/";
    const std::map<std::string, std::string> same = {{"Adot", eph + "dA"},
                                                     {"dn0", eph + "deltaN0"},
                                                     {"dn0dot", eph + "dDeltaN0"},
                                                     {"M0", eph + "M0"},
                                                     {"e", eph + "e"},
                                                     {"omega", eph + "w"},
                                                     {"OMEGA0", eph + "Omega0"},
                                                     {"i0", eph + "i0"},
                                                     {"IDOT", eph + "di0"},
                                                     {"Cis", eph + "Cis"},
                                                     {"Cic", eph + "Cic"},
                                                     {"Crs", eph + "Crs"},
                                                     {"Crc", eph + "Crc"},
                                                     {"Cus", eph + "Cus"},
                                                     {"Cuc", eph + "Cuc"},
                                                     {"af0", clk + "af0"},
                                                     {"af1", clk + "af1"},
                                                     {"af2", clk + "af2"},
                                                     {"TGD", "Subframe 2/TGDB2ap"},
                                                     {"ISC_L1CD", "Subframe 2/ISCL1Cd"},
                                                     {"ISC_L1CP", "Subframe 2/ISCL1Cp"}};
    const std::map<std::string, std::string> integers = {{"toe", eph + "toe"},
                                                         {"top", "Subframe 2/top"},
                                                         {"L1Chealth", "Subframe 2/L1C health"},
                                                         {"URA_ED", "Subframe 2/URAedINDEX"},
                                                         {"WN", "Subframe 2/WN"},
                                                         {"ITOW", "Subframe 2/ITOW"},
                                                         {"TOI", "Subframe 1/TOI"}};
    int messages = 0;
    for (const auto& m : ZeltNavMsg::Testing::loadRealData("gps_cnav2.tsv")) {
        ASSERT_EQ(m.hex.size(), 221U) << m.where;
        const Lines lines = ZeltNavMsg::Testing::parseTreeListing(
            NavMessageDecoder::Decode(MessageFormat::GpsCNav2, 0, 0, m.hex));
        for (const auto& [key, text] : m.truth) {
            const double v = std::atof(text.c_str());
            if (same.contains(key)) {
                expectValue(lines, same.at(key), v, m.where);
            } else if (integers.contains(key)) {
                expectInteger(lines, integers.at(key), std::llround(v), m.where);
            } else if (key == "A") {
                const double reference =
                    m.satellite.starts_with("J") ? kReferenceAQzss : kReferenceAGps;
                expectValue(lines, eph + "deltaA", v - reference, m.where);
            } else if (key == "OMEGAdot") {
                expectValue(lines, eph + "dOmega", v - kReferenceOmegaDot * kPi, m.where);
            } else if (key == "WNop") {
                expectInteger(lines, "Subframe 2/WNop", std::llround(v) % 256,
                              m.where);  // 8-bit week
            } else {
                ADD_FAILURE() << m.where << ": no check for ground-truth field " << key;
            }
        }
        ++messages;
    }
    EXPECT_EQ(messages, 48);
}

}  // namespace
