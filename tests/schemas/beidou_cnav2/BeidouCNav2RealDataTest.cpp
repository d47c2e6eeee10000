// Real B2a messages (types 10, 11, 30 and 40) against values decoded by independent
// decoders. The listing multiplies angles by pi, so with units text "pi" it shows
// radians, like the ground truth. Where the listing shows something other than the
// physical value, the check converts the ground truth:
// - the ephemeris carries the semi-major axis as a difference from its reference,
//   27906100 m for MEO and 42162200 m for IGSO and GEO satellites (by SatType);
// - message 30's group delays list as raw counts of 2^-34 s;
// - the "top" of "SISAIoc" lists as its raw count of 300 s.

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

TEST(BeidouCNav2RealData, MessagesMatchIndependentDecoders) {
    // Ground-truth field -> path below "Message type N data/".
    const std::map<std::string, std::string> values = {
        {"Adot", "Ephemeris I/dA"},
        {"dn0", "Ephemeris I/deltaN0"},
        {"dn0dot", "Ephemeris I/dDeltaN0"},
        {"M0", "Ephemeris I/M0"},
        {"e", "Ephemeris I/e"},
        {"omega", "Ephemeris I/w"},
        {"OMEGA0", "Ephemeris II/Omega0"},
        {"i0", "Ephemeris II/i0"},
        {"OMEGAdot", "Ephemeris II/dOmega"},  // broadcast whole, not as a difference
        {"IDOT", "Ephemeris II/di0"},
        {"Cis", "Ephemeris II/Cis"},
        {"Cic", "Ephemeris II/Cic"},
        {"Crs", "Ephemeris II/Crs"},
        {"Crc", "Ephemeris II/Crc"},
        {"Cus", "Ephemeris II/Cus"},
        {"Cuc", "Ephemeris II/Cuc"},
        {"a0", "Clock correction parameters/a0"},
        {"a1", "Clock correction parameters/a1"},
        {"a2", "Clock correction parameters/a2"}};
    const std::map<std::string, std::string> integers = {
        {"WN", "WN"},
        {"IODE", "IODE"},
        {"IODC", "IODC"},
        {"HS", "HS"},
        {"SISAI_OE", "SISAIoe"},
        {"toe", "Ephemeris I/toe"},
        {"SatType", "Ephemeris I/SatType"},
        {"toc", "Clock correction parameters/toc"}};
    const std::map<std::string, std::string> groupDelays = {
        {"TGD_B2ap", "TGDB2ap"}, {"ISC_B2ad", "ISCB2ad"}, {"TGD_B1Cp", "TGDB1Cp"}};

    std::map<int, int> perType;
    for (const auto& m : ZeltNavMsg::Testing::loadRealData("beidou_cnav2.tsv")) {
        ASSERT_EQ(m.hex.size(), 72U) << m.where;
        const auto lines = ZeltNavMsg::Testing::parseTreeListing(
            NavMessageDecoder::Decode(MessageFormat::BeidouCNav2, 0, 0, m.hex));
        // The page column holds the message type.
        expectTreeInteger(lines, "MesType", m.page, m.where);
        const std::string msg = "Message type " + std::to_string(m.page) + " data/";
        for (const auto& [key, text] : m.truth) {
            const double v = std::atof(text.c_str());
            if (values.contains(key)) {
                expectTreeValue(lines, msg + values.at(key), v, m.where);
            } else if (integers.contains(key)) {
                expectTreeInteger(lines, msg + integers.at(key), std::llround(v), m.where);
            } else if (groupDelays.contains(key)) {
                expectTreeInteger(lines, msg + groupDelays.at(key), std::llround(std::ldexp(v, 34)),
                                  m.where);
            } else if (key == "top") {
                expectTreeInteger(lines, msg + "SISAIoc/top", std::llround(v / 300.0), m.where);
            } else if (key == "SOW") {
                expectTreeInteger(lines, "SOW", std::llround(v), m.where);
            } else if (key == "A") {
                const auto satType = m.number("SatType");
                ASSERT_TRUE(satType.has_value()) << m.where;
                const double reference =
                    *satType == kSatTypeMeo ? kReferenceAMeo : kReferenceAGeoIgso;
                expectTreeValue(lines, msg + "Ephemeris I/deltaA", v - reference, m.where);
            } else {
                ADD_FAILURE() << m.where << ": no check for ground-truth field " << key;
            }
        }
        ++perType[m.page];
    }
    EXPECT_EQ(perType, (std::map<int, int>{{10, 16}, {11, 16}, {30, 16}, {40, 16}}));
}

}  // namespace
