// Real B1C frames (pages 1-4 and an unknown page) and B2a messages (types 10, 11, 30,
// 40) against independent decoders. Angles print in radians (pi-scaled, units "pi").
// Where the listing shows something else, the check converts the ground truth:
// - the semi-major axis is a difference from 27906100 m (MEO) or 42162200 m (IGSO, GEO);
// - B1C "SOH" is a raw count of 18 s; the seconds of week are HOW x 3600 s + SOH;
// - B2a message 30's group delays are raw counts of 2^-34 s, "SISAIoc/top" of 300 s.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <string>

#include "support/RealData.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using namespace ZeltNavMsg::Testing;
using ZeltNavMsg::MessageFormat;
using Paths = std::map<std::string, std::string>;  // ground-truth name -> listing path

Paths blockPaths(const std::string& ephemerisI, const std::string& ephemerisII,
                 const std::string& clock) {
    Paths paths = namePairs(
        "toe toe SatType SatType A deltaA Adot dA dn0 deltaN0 dn0dot dDeltaN0 M0 M0 e e omega w",
        ephemerisI);
    paths.merge(
        namePairs("OMEGA0 Omega0 i0 i0 OMEGAdot dOmega IDOT di0 Cis Cis Cic Cic Crs Crs "
                  "Crc Crc Cus Cus Cuc Cuc",
                  ephemerisII));
    paths.merge(namePairs("toc toc a0 a0 a1 a1 a2 a2", clock));
    return paths;
}

// Every ground-truth field at its path, after `factors` (printed = truth x factor) and
// the semi-major axis reference; a field without a path fails.
void expectTruth(const RealMessage& m, const Listing& lines, const Paths& paths,
                 const std::map<std::string, double>& factors) {
    for (const auto& [key, text] : m.truth) {
        if (!paths.contains(key)) {
            ADD_FAILURE() << m.where << ": no check for ground-truth field " << key;
            continue;
        }
        double truth = std::atof(text.c_str());
        if (key == "A") {
            truth -= std::stod(m.truth.at("SatType")) == 3 ? 27906100.0 : 42162200.0;
        }
        truth *= factors.contains(key) ? factors.at(key) : 1.0;
        expectValue(lines, paths.at(key), truth, m.where);
    }
}

TEST(BeidouCNavRealData, CNav1FramesMatchIndependentDecoders) {
    Paths paths = blockPaths("Subframe 2/EphemerisI/", "Subframe 2/EphemerisII/",
                             "Subframe 2/ClockCorrectionParameters/");
    paths.merge(namePairs(
        "WN WN HOW HOW IODC IODC IODE IODE TGD_B2ap TGDB2ap ISC_B1Cd ISCB1Cd TGD_B1Cp TGDB1Cp",
        "Subframe 2/"));
    paths["SOH"] = "Subframe 1/SOH";
    std::map<int, int> perPage;
    for (RealMessage m : loadRealData("beidou_cnav1.tsv")) {
        ASSERT_EQ(m.hex.size(), 220U) << m.where;
        const Listing lines = decodeFrame(MessageFormat::BeidouCNav1, m.hex);
        // The page column holds the page number; "HS" is a field of the page.
        expectValue(lines, "Subframe 3/Page ID", m.page, m.where);
        paths["HS"] = "Subframe 3/Page " + std::to_string(m.page) + "/HS";
        if (m.truth.contains("SOW")) {
            const auto* how = onlyLine(lines, "Subframe 2/HOW", m.where);
            const auto* soh = onlyLine(lines, "Subframe 1/SOH", m.where);
            ASSERT_TRUE(how && soh);
            EXPECT_EQ(std::stoll(how->value) * 3600 + std::stoll(soh->value),
                      std::stoll(m.truth.at("SOW")))
                << m.where;
            m.truth.erase("SOW");
        }
        if (m.page < 1 || m.page > 4) {  // no layout: subframe 3 lists Page ID and CRC only
            EXPECT_EQ(
                std::count_if(lines.begin(), lines.end(),
                              [](const auto& l) { return l.first.starts_with("Subframe 3/"); }),
                2)
                << m.where;
        }
        expectTruth(m, lines, paths, {{"SOH", 18.0}});
        ++perPage[m.page];
    }
    EXPECT_EQ(perPage, (std::map<int, int>{{1, 12}, {2, 8}, {3, 10}, {4, 8}, {60, 7}}));
}

TEST(BeidouCNavRealData, CNav2MessagesMatchIndependentDecoders) {
    const double rawDelay = std::ldexp(1.0, 34);
    const std::map<std::string, double> factors = {
        {"TGD_B2ap", rawDelay}, {"ISC_B2ad", rawDelay}, {"TGD_B1Cp", rawDelay}, {"top", 1 / 300.0}};
    std::map<int, int> perType;
    for (const RealMessage& m : loadRealData("beidou_cnav2.tsv")) {
        ASSERT_EQ(m.hex.size(), 72U) << m.where;
        const Listing lines = decodeFrame(MessageFormat::BeidouCNav2, m.hex);
        expectValue(lines, "MesType", m.page, m.where);  // the page column holds the type
        const std::string msg = "Message type " + std::to_string(m.page) + " data/";
        Paths paths = blockPaths(msg + "Ephemeris I/", msg + "Ephemeris II/",
                                 msg + "Clock correction parameters/");
        paths.merge(
            namePairs("WN WN IODE IODE IODC IODC HS HS TGD_B2ap TGDB2ap ISC_B2ad ISCB2ad "
                      "TGD_B1Cp TGDB1Cp SISAI_OE SISAIoe top SISAIoc/top",
                      msg));
        paths["SOW"] = "SOW";
        expectTruth(m, lines, paths, factors);
        ++perType[m.page];
    }
    EXPECT_EQ(perType, (std::map<int, int>{{10, 16}, {11, 16}, {30, 16}, {40, 16}}));
}

}  // namespace
