// Real GPS and QZSS L1 C/A subframes against independent decoders. The listing prints
// semicircles for radians, raw counts for AODO and the ERDs, and the almanac's
// inclination as its offset from 0.3 semicircles: each check converts the ground truth.

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "support/RealData.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using namespace ZeltNavMsg::Testing;
using ZeltNavMsg::MessageFormat;

const auto kSame = namePairs(
    "TGD tgd toc toc af2 af2 af1 af1 af0 af0 Crs crs Cuc cuc Cus cus Cic cic Cis cis Crc crc "
    "e e toe toe toa toa A0 A0 A1 A1 tot tot alpha0 alfa0 alpha1 alfa1 alpha2 alfa2 "
    "alpha3 alfa3 beta0 beta0 beta1 beta1 beta2 beta2 beta3 beta3");
const auto kSemicircles =
    namePairs("dn deltan M0 m0 OMEGA0 omega0 omega w OMEGAdot omegadot IDOT idot");
const auto kIntegers = namePairs(
    "WN wn L2code cap URA ura SVhealth sv_health IODC iodc IODE iode fit fit health sv_health "
    "WNt wnt dtLS dtls WNLSF wnlsf DN dn dtLSF dtlsf AI AI WNa wna");

// Code points of a UTF-8 string (the text page's characters are Latin-1 bytes).
std::vector<unsigned> codePoints(const std::string& utf8) {
    std::vector<unsigned> result;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto c = static_cast<unsigned char>(utf8[i]);
        result.push_back(
            c < 0x80 ? c : ((c & 0x1FU) << 6) | (static_cast<unsigned char>(utf8[++i]) & 0x3FU));
    }
    return result;
}

// Returns false when the listing does not carry the block the ground truth describes
// (a QZSS page whose layout, chosen by page number, is not what its SV ID marks).
bool checkTruth(const RealMessage& m, const Listing& lines) {
    const bool almanac = m.truth.contains("almSV");
    if ((almanac && !lines.contains("sqrta")) ||
        (m.truth.contains("alpha0") && !lines.contains("alfa0"))) {
        return false;
    }
    const std::string& w = m.where;
    for (const auto& [key, text] : m.truth) {
        const double v = std::atof(text.c_str());
        if (kSame.contains(key)) {
            expectValue(lines, kSame.at(key), v, w);
        } else if (kSemicircles.contains(key)) {
            expectValue(lines, kSemicircles.at(key), v / kPi, w);
        } else if (kIntegers.contains(key)) {
            expectInteger(lines, kIntegers.at(key), std::llround(v), w);
        } else if (key == "i0") {
            expectValue(lines, almanac ? "delta_i" : "i0", v / kPi - (almanac ? 0.3 : 0.0), w);
        } else if (key == "sqrtA") {
            expectValue(lines, almanac ? "sqrta" : "asqrt", v, w);
        } else if (key == "TOW") {
            EXPECT_EQ(std::llround(v) % 6, 0) << w;  // the count is of 6-second subframes
            expectInteger(lines, "tow_count", std::llround(v) / 6, w);
        } else if (key == "AODO") {
            expectInteger(lines, "aodo", std::llround(v / 900.0), w);
        } else if (key == "almSV") {
            expectInteger(lines, "sv_id", std::stoll(text.substr(1)), w);
        } else if (key == "ERD1" || key == "ERD2") {
            // Signed 6-bit codes of 0.3 m, printed as unsigned raw codes.
            expectInteger(lines, key, std::lround(v / 0.3) & 0x3F, w);
        } else if (key.starts_with("ERD")) {
            // From ERD3 on the ground truth's numbering drifts from the broadcast layout
            // at every word boundary, so only the first two are comparable.
        } else if (key.starts_with("ASconfig_G")) {
            expectInteger(lines, "asv" + std::to_string(std::stoi(key.substr(10))), std::llround(v),
                          w);
        } else if (key.starts_with("health_G")) {
            expectInteger(lines, "svh" + std::to_string(std::stoi(key.substr(8))), std::llround(v),
                          w);
        } else if (key == "text") {
            const std::vector<unsigned> chars = codePoints(text.substr(1, text.size() - 2));
            EXPECT_EQ(chars.size(), 22U) << w;
            for (std::size_t i = 0; i < chars.size(); ++i) {
                expectInteger(lines, (i < 9 ? "ch0" : "ch") + std::to_string(i + 1), chars[i], w);
            }
        } else {
            ADD_FAILURE() << w << ": no check for ground-truth field " << key;
        }
    }
    return true;
}

// QZSS pages take their layout from the page number, not from the SV ID that marks
// their content: 17 of its messages print another layout than their bits carry.
TEST(LNavRealData, SubframesMatchIndependentDecoders) {
    for (const auto& [format, file, checked, otherLayout] :
         {std::tuple{MessageFormat::GpsLNav, "gps_lnav.tsv", 102, 0},
          {MessageFormat::QzssLNav, "qzss_lnav.tsv", 49, 17}}) {
        int counts[2] = {0, 0};
        for (const RealMessage& m : loadRealData(file)) {
            ASSERT_EQ(m.hex.size(), 75U) << m.where;
            const std::string text =
                ZeltNavMsg::NavMessageDecoder::Decode(format, m.subframe, m.page, m.hex);
            ++counts[checkTruth(m, parseListing(text)) ? 0 : 1];
        }
        EXPECT_EQ(counts[0], checked) << file;
        EXPECT_EQ(counts[1], otherLayout) << file;
    }
}

}  // namespace
