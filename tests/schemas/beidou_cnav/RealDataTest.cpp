// Real B1C frames (subframe 3 pages 1-4 and an unknown page) and B2a messages (types
// 10, 11, 30 and 40) against values decoded by independent decoders. The listing
// multiplies angles by pi, so with units text "pi" it shows radians, like the ground
// truth. Where the listing shows something other than the physical value, the check
// converts the ground truth, never the listing:
// - the ephemeris carries the semi-major axis as a difference from its reference,
//   27906100 m for MEO and 42162200 m for IGSO and GEO satellites (by SatType);
//   the node rate is broadcast whole, not as a difference;
// - B1C "SOH" is given as its raw count of 18 s; the frame carries the seconds of
//   week only as HOW x 3600 s + SOH;
// - B2a message 30's group delays list as raw counts of 2^-34 s and the "top" of
//   "SISAIoc" as its raw count of 300 s.

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <sstream>
#include <string>

#include "support/RealData.h"
#include "support/TreeChecks.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using ZeltNavMsg::MessageFormat;
using ZeltNavMsg::Testing::expectTreeValue;
using ZeltNavMsg::Testing::RealMessage;
using Lines = std::multimap<std::string, ZeltNavMsg::Testing::TreeLine>;
using Paths = std::map<std::string, std::string>;  // ground-truth name -> listing path

// Ground-truth name and listing name, pair by pair, of the shared blocks' fields.
constexpr const char* kEphemerisI =
    "toe toe SatType SatType A deltaA Adot dA dn0 deltaN0 dn0dot dDeltaN0 M0 M0 e e omega w";
constexpr const char* kEphemerisII =
    "OMEGA0 Omega0 i0 i0 OMEGAdot dOmega IDOT di0 Cis Cis Cic Cic Crs Crs Crc Crc Cus Cus Cuc Cuc";
constexpr const char* kClock = "toc toc a0 a0 a1 a1 a2 a2";

// Adds `prefix` + listing name for every pair of `pairs`.
void addPaths(Paths& paths, const std::string& prefix, const char* pairs) {
    std::istringstream words(pairs);
    std::string key;
    std::string name;
    while (words >> key >> name) {
        paths[key] = prefix + name;
    }
}

Paths blockPaths(const std::string& ephemerisI, const std::string& ephemerisII,
                 const std::string& clock) {
    Paths paths;
    addPaths(paths, ephemerisI, kEphemerisI);
    addPaths(paths, ephemerisII, kEphemerisII);
    addPaths(paths, clock, kClock);
    return paths;
}

// Every ground-truth field of `m` is checked at its path, after `factors` (printed =
// truth x factor) and the semi-major axis reference; a field without a path fails.
void expectTruth(const RealMessage& m, const Lines& lines, const Paths& paths,
                 const std::map<std::string, double>& factors) {
    for (const auto& [key, text] : m.truth) {
        if (!paths.contains(key)) {
            ADD_FAILURE() << m.where << ": no check for ground-truth field " << key;
            continue;
        }
        double truth = std::atof(text.c_str());
        if (key == "A") {
            truth -= m.number("SatType") == 3 ? 27906100.0 : 42162200.0;  // MEO : IGSO, GEO
        }
        if (factors.contains(key)) {
            truth *= factors.at(key);
        }
        expectTreeValue(lines, paths.at(key), truth, m.where);
    }
}

long long printed(const Lines& lines, const std::string& path) {
    return lines.count(path) == 1 ? std::stoll(lines.find(path)->second.value) : -1;
}

TEST(BeidouCNavRealData, CNav1FramesMatchIndependentDecoders) {
    Paths paths = blockPaths("Subframe 2/EphemerisI/", "Subframe 2/EphemerisII/",
                             "Subframe 2/ClockCorrectionParameters/");
    addPaths(
        paths, "Subframe 2/",
        "WN WN HOW HOW IODC IODC IODE IODE TGD_B2ap TGDB2ap ISC_B1Cd ISCB1Cd TGD_B1Cp TGDB1Cp");
    addPaths(paths, "Subframe 1/", "SOH SOH");
    std::map<int, int> perPage;
    for (RealMessage m : ZeltNavMsg::Testing::loadRealData("beidou_cnav1.tsv")) {
        ASSERT_EQ(m.hex.size(), 220U) << m.where;
        const Lines lines = ZeltNavMsg::Testing::parseTreeListing(
            ZeltNavMsg::NavMessageDecoder::Decode(MessageFormat::BeidouCNav1, 0, 0, m.hex));
        // The page column holds the page number; "HS" is a field of the page.
        expectTreeValue(lines, "Subframe 3/Page ID", m.page, m.where);
        Paths here = paths;
        here["HS"] = "Subframe 3/Page " + std::to_string(m.page) + "/HS";
        if (m.truth.contains("SOW")) {
            EXPECT_EQ(printed(lines, "Subframe 2/HOW") * 3600 + printed(lines, "Subframe 1/SOH"),
                      std::stoll(m.truth.at("SOW")))
                << m.where;
            m.truth.erase("SOW");
        }
        if (m.page < 1 || m.page > 4) {  // no layout: subframe 3 lists Page ID and CRC only
            int subframe3 = 0;
            for (const auto& line : lines) {
                subframe3 += line.first.starts_with("Subframe 3/") ? 1 : 0;
            }
            EXPECT_EQ(subframe3, 2) << m.where;
        }
        expectTruth(m, lines, here, {{"SOH", 18.0}});
        ++perPage[m.page];
    }
    EXPECT_EQ(perPage, (std::map<int, int>{{1, 12}, {2, 8}, {3, 10}, {4, 8}, {60, 7}}));
}

TEST(BeidouCNavRealData, CNav2MessagesMatchIndependentDecoders) {
    const std::map<std::string, double> factors = {{"TGD_B2ap", std::ldexp(1.0, 34)},
                                                   {"ISC_B2ad", std::ldexp(1.0, 34)},
                                                   {"TGD_B1Cp", std::ldexp(1.0, 34)},
                                                   {"top", 1.0 / 300.0}};
    std::map<int, int> perType;
    for (const RealMessage& m : ZeltNavMsg::Testing::loadRealData("beidou_cnav2.tsv")) {
        ASSERT_EQ(m.hex.size(), 72U) << m.where;
        const Lines lines = ZeltNavMsg::Testing::parseTreeListing(
            ZeltNavMsg::NavMessageDecoder::Decode(MessageFormat::BeidouCNav2, 0, 0, m.hex));
        // The page column holds the message type.
        expectTreeValue(lines, "MesType", m.page, m.where);
        const std::string msg = "Message type " + std::to_string(m.page) + " data/";
        Paths paths = blockPaths(msg + "Ephemeris I/", msg + "Ephemeris II/",
                                 msg + "Clock correction parameters/");
        addPaths(paths, msg,
                 "WN WN IODE IODE IODC IODC HS HS TGD_B2ap TGDB2ap ISC_B2ad ISCB2ad "
                 "TGD_B1Cp TGDB1Cp SISAI_OE SISAIoe top SISAIoc/top");
        paths["SOW"] = "SOW";
        expectTruth(m, lines, paths, factors);
        ++perType[m.page];
    }
    EXPECT_EQ(perType, (std::map<int, int>{{10, 16}, {11, 16}, {30, 16}, {40, 16}}));
}

}  // namespace
