// Real L1C frames (GPS and QZSS) against independent decoders. Angles print in radians
// (pi-scaled, units "pi"); the semi-major axis (QZSS has its own reference) and the node
// rate are broadcast as differences from reference values: the checks convert the truth.

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "support/RealData.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using namespace ZeltNavMsg::Testing;

const std::string kEph = "Subframe 2/Ephemeris/";

TEST(GpsCNav2RealData, FramesMatchIndependentDecoders) {
    auto same = namePairs(
        "Adot dA dn0 deltaN0 dn0dot dDeltaN0 M0 M0 e e omega w OMEGA0 Omega0 i0 i0 IDOT di0 "
        "Cis Cis Cic Cic Crs Crs Crc Crc Cus Cus Cuc Cuc A deltaA OMEGAdot dOmega",
        kEph);
    same.merge(namePairs("af0 af0 af1 af1 af2 af2", "Subframe 2/ClockCorrectionParameters/"));
    same.merge(namePairs("TGD TGDB2ap ISC_L1CD ISCL1Cd ISC_L1CP ISCL1Cp", "Subframe 2/"));
    auto integers = namePairs("toe toe", kEph);
    integers.merge(namePairs("top top URA_ED URAedINDEX WN WN ITOW ITOW WNop WNop", "Subframe 2/"));
    integers["L1Chealth"] = "Subframe 2/L1C health";
    integers["TOI"] = "Subframe 1/TOI";
    int messages = 0;
    for (const RealMessage& m : loadRealData("gps_cnav2.tsv")) {
        ASSERT_EQ(m.hex.size(), 221U) << m.where;
        const Listing lines = decodeFrame(ZeltNavMsg::MessageFormat::GpsCNav2, m.hex);
        for (const auto& [key, text] : m.truth) {
            double v = std::atof(text.c_str());
            if (key == "A") {
                v -= m.satellite.starts_with("J") ? 42164200.0 : 26559710.0;
            } else if (key == "OMEGAdot") {
                v -= -2.6e-9 * kPi;
            } else if (key == "WNop") {
                v = std::fmod(v, 256.0);  // an 8-bit week
            }
            if (same.contains(key)) {
                expectValue(lines, same.at(key), v, m.where);
            } else if (integers.contains(key)) {
                expectInteger(lines, integers.at(key), std::llround(v), m.where);
            } else {
                ADD_FAILURE() << m.where << ": no check for ground-truth field " << key;
            }
        }
        ++messages;
    }
    EXPECT_EQ(messages, 48);
}

}  // namespace
