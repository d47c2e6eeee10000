// Broadcast subframes: four live subframes 1 against the raw values published with
// them, and the logged subframe 2 against independent decoders (angles in radians,
// printed in semicircles).

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <string>

#include "support/RealData.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using namespace ZeltNavMsg::Testing;

const std::string kData = "Subframe specific data/";

// GPS week 1943, 159168 s; the 262 published bits and 30 zero bits for CRC and tail.
const struct {
    int prn;
    const char* hex;
    int ura;
} kLive[] = {
    {7, "8B19E883971A005BF4880009AB3F400EAC0AF84F7541BEFFF78018E6D7E1DFACD00000000", 0},
    {2, "8B19E883970E8FC3F8500009AB3F00087F0AF8415E4232800F7FD9EB8650B7B6300000000", 0},
    {6, "8B19E88397B3E73401600009AB3F0012370AF84F550327C032800AD1D9DA3392600000000", 0},
    {5, "8B19E88397036703FF1C0049AB3FC009B10AF84FE7E3773FFD7FD6D8F5FDDC41800000000", 1},
};

// The values the four share, and every raw value published for PRN 7: the raw hex as a
// two's-complement number of the field's width, and the value it prints.
TEST(IrnssBroadcast, LiveSubframes1) {
    for (const auto& sf : kLive) {
        const std::string where = "PRN " + std::to_string(sf.prn);
        const Listing lines = decodeFrame(ZeltNavMsg::MessageFormat::Irnss, sf.hex);
        for (const auto& [key, value] : {std::pair{"TLM", 139},
                                         {"TOWC", 13265},
                                         {"Alert", 0},
                                         {"Autonav", 0},
                                         {"Subframe ID", 0},
                                         {"Subframe specific data/week", 919},
                                         {"Subframe specific data/toc", 158400},
                                         {"Subframe specific data/IODEC", 10},
                                         {"Subframe specific data/L5 Flag", 0},
                                         {"Subframe specific data/S Flag", 0},
                                         {"Subframe specific data/URA", sf.ura}}) {
            expectInteger(lines, key, value, where);
        }
    }
    const struct {
        const char* name;
        int width;
        int pow2;
        std::int64_t raw;
    } fields[] = {{"af0", 22, -31, 426006}, {"af1", 16, -43, -734},    {"af2", 8, -55, 0},
                  {"TGD", 8, -31, -3},      {"deltaN", 22, -41, 3756}, {"Cuc", 15, -28, -1110},
                  {"Cus", 15, -28, 1787},   {"Cic", 15, -28, -17},     {"Cis", 15, -28, 24},
                  {"Crc", 15, -4, -3221},   {"Crs", 15, -4, -1929},    {"IDOT", 14, -43, -1331}};
    const Listing lines = decodeFrame(ZeltNavMsg::MessageFormat::Irnss, kLive[0].hex);
    for (const auto& f : fields) {
        if (const ListedValue* line = onlyLine(lines, kData + f.name, "PRN 7")) {
            auto raw = static_cast<std::int64_t>(std::stoull(line->hex, nullptr, 16));
            raw -= (raw >> (f.width - 1)) != 0 ? std::int64_t{1} << f.width : 0;
            EXPECT_EQ(raw, f.raw) << f.name;
            expectValue(lines, kData + f.name, std::ldexp(f.raw, f.pow2), "PRN 7");
        }
    }
}

TEST(IrnssBroadcast, LoggedSubframe2MatchesIndependentDecoders) {
    const auto radians =
        namePairs("M0 M0 OMEGA0 Omega0 omega omega OMEGAdot omegaDot i0 i0", kData);
    auto same = namePairs("e e sqrtA sqrtA toe toe", kData);
    same["TOWC"] = "TOWC";
    int messages = 0;
    for (const RealMessage& m : loadRealData("irnss.tsv")) {
        ASSERT_EQ(m.hex.size(), 73U) << m.where;
        const Listing lines = decodeFrame(ZeltNavMsg::MessageFormat::Irnss, m.hex);
        expectInteger(lines, "Subframe ID", m.subframe - 1, m.where);  // the file counts from 1
        for (const auto& [key, text] : m.truth) {
            const double v = std::stod(text);
            if (radians.contains(key)) {
                expectValue(lines, radians.at(key), v / kPi, m.where);
            } else if (same.contains(key)) {
                expectValue(lines, same.at(key), v, m.where);
            } else {
                ADD_FAILURE() << m.where << ": no check for ground-truth field " << key;
            }
        }
        ++messages;
    }
    EXPECT_EQ(messages, 1);
}

}  // namespace
