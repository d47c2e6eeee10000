// Subframes as satellites broadcast them: four subframes 1 against the raw values
// published with them, and the logged subframe 2 against values decoded by
// independent decoders. IRNSS angles print in semicircles (units text "pi"), so the
// ground truth in radians is divided by pi.

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <map>
#include <string>
#include <utility>

#include "support/RealData.h"
#include "support/TreeChecks.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using ZeltNavMsg::MessageFormat;
using ZeltNavMsg::NavMessageDecoder;
using ZeltNavMsg::Testing::sameToSixDigits;
using ZeltNavMsg::Testing::TreeLine;

constexpr double kPi = 3.1415926535898;
const std::string kData = "Subframe specific data/";

using Lines = std::multimap<std::string, TreeLine>;

Lines decode(const std::string& hex) {
    return ZeltNavMsg::Testing::parseTreeListing(
        NavMessageDecoder::Decode(MessageFormat::Irnss, 0, 0, hex));
}

const TreeLine* only(const Lines& lines, const std::string& path) {
    if (lines.count(path) != 1) {
        ADD_FAILURE() << "expected one line " << path << ", found " << lines.count(path);
        return nullptr;
    }
    return &lines.find(path)->second;
}

struct LiveSubframe {
    int prn;
    const char* hex;
    int ura;
};

// GPS week 1943, 159168 s; the 262 published bits and 30 zero bits for CRC and tail.
const LiveSubframe kLive[] = {
    {7, "8B19E883971A005BF4880009AB3F400EAC0AF84F7541BEFFF78018E6D7E1DFACD00000000", 0},
    {2, "8B19E883970E8FC3F8500009AB3F00087F0AF8415E4232800F7FD9EB8650B7B6300000000", 0},
    {6, "8B19E88397B3E73401600009AB3F0012370AF84F550327C032800AD1D9DA3392600000000", 0},
    {5, "8B19E88397036703FF1C0049AB3FC009B10AF84FE7E3773FFD7FD6D8F5FDDC41800000000", 1},
};

TEST(IrnssBroadcast, LiveSubframes1SharedFields) {
    for (const LiveSubframe& sf : kLive) {
        SCOPED_TRACE("PRN " + std::to_string(sf.prn));
        const Lines lines = decode(sf.hex);
        const std::map<std::string, std::string> values = {{"TLM", "139"},
                                                           {"TOWC", "13265"},
                                                           {"Alert", "0"},
                                                           {"Autonav", "0"},
                                                           {"Subframe ID", "0"},
                                                           {kData + "week", "919"},
                                                           {kData + "toc", "158400"},
                                                           {kData + "IODEC", "10"},
                                                           {kData + "L5 Flag", "0"},
                                                           {kData + "S Flag", "0"},
                                                           {kData + "URA", std::to_string(sf.ura)}};
        for (const auto& [path, value] : values) {
            if (const TreeLine* line = only(lines, path)) {
                EXPECT_EQ(line->value, value) << path;
            }
        }
    }
}

// Every raw value published for PRN 7: the raw hex read back as a
// two's-complement number of the field's width, and the value it prints.
TEST(IrnssBroadcast, LiveSubframe1RawValues) {
    struct Raw {
        const char* name;
        int width;
        int pow2;
        std::int64_t raw;
    };
    const Raw fields[] = {
        {"af0", 22, -31, 426006}, {"af1", 16, -43, -734},    {"af2", 8, -55, 0},
        {"TGD", 8, -31, -3},      {"deltaN", 22, -41, 3756}, {"Cuc", 15, -28, -1110},
        {"Cus", 15, -28, 1787},   {"Cic", 15, -28, -17},     {"Cis", 15, -28, 24},
        {"Crc", 15, -4, -3221},   {"Crs", 15, -4, -1929},    {"IDOT", 14, -43, -1331}};
    const Lines lines = decode(kLive[0].hex);
    for (const Raw& f : fields) {
        const TreeLine* line = only(lines, kData + f.name);
        if (line == nullptr) {
            continue;
        }
        auto raw = static_cast<std::int64_t>(std::stoull(line->rawHex, nullptr, 16));
        if ((raw >> (f.width - 1)) != 0) {
            raw -= std::int64_t{1} << f.width;
        }
        EXPECT_EQ(raw, f.raw) << f.name;
        EXPECT_TRUE(sameToSixDigits(std::stod(line->value), std::ldexp(f.raw, f.pow2)))
            << f.name << ": " << line->value;
    }
}

TEST(IrnssBroadcast, LoggedSubframe2MatchesIndependentDecoders) {
    // Ground-truth name -> printed path and the divisor to the printed unit (angles
    // are given in radians).
    const std::map<std::string, std::pair<std::string, double>> checks = {
        {"M0", {kData + "M0", kPi}},
        {"OMEGA0", {kData + "Omega0", kPi}},
        {"omega", {kData + "omega", kPi}},
        {"OMEGAdot", {kData + "omegaDot", kPi}},
        {"i0", {kData + "i0", kPi}},
        {"e", {kData + "e", 1.0}},
        {"sqrtA", {kData + "sqrtA", 1.0}},
        {"toe", {kData + "toe", 1.0}},
        {"TOWC", {"TOWC", 1.0}}};
    int messages = 0;
    for (const auto& m : ZeltNavMsg::Testing::loadRealData("irnss.tsv")) {
        SCOPED_TRACE(m.where);
        ASSERT_EQ(m.hex.size(), 73U);
        const Lines lines = decode(m.hex);
        if (const TreeLine* id = only(lines, "Subframe ID")) {
            EXPECT_EQ(id->value, std::to_string(m.subframe - 1));  // the file counts from 1
        }
        for (const auto& [key, text] : m.truth) {
            if (!checks.contains(key)) {
                ADD_FAILURE() << "no check for ground-truth field " << key;
                continue;
            }
            const auto& [path, divisor] = checks.at(key);
            const double truth = std::stod(text) / divisor;
            if (const TreeLine* line = only(lines, path)) {
                EXPECT_TRUE(sameToSixDigits(std::stod(line->value), truth))
                    << key << ": printed " << line->value << ", truth " << truth;
            }
        }
        ++messages;
    }
    EXPECT_EQ(messages, 1);
}

}  // namespace
