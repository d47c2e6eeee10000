// Satellite, signal and format names to enumeration values, and their errors. Expected
// values are the interface's numbers, not the enumerators, so a renumbered enumeration
// fails here.

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "support/Thrown.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using ZeltNavMsg::DecodingError;
using ZeltNavMsg::NavMessageDecoder;
using ZeltNavMsg::Testing::thrownMessage;

enum class Lookup { Signal, Format, Default };

struct NameCase {
    const char* sat;
    const char* name;
    int value;
};

TEST(NameLookup, EverySignalAndFormat) {
    const NameCase signals[] = {
        {"G01", "L1CA", 0},  {"G01", "L1P", 1},  {"G01", "L1CAP", 2}, {"G01", "L1C", 3},
        {"G01", "L2P", 4},   {"G01", "L2C", 5},  {"G01", "L5", 6},    {"R01", "L1", 7},
        {"R01", "L2", 8},    {"E01", "E1", 9},   {"E01", "E5a", 10},  {"E01", "E5b", 11},
        {"E01", "E6", 12},   {"C01", "B1", 13},  {"C01", "B2", 14},   {"C01", "B3", 15},
        {"C01", "B1C", 16},  {"C01", "B2a", 17}, {"J01", "L1CA", 18}, {"J01", "L2C", 19},
        {"J01", "L5", 20},   {"I01", "L5", 21},  {"S01", "L1", 22},   {"S01", "L5", 23},
        {"Gxyz", "L1CA", 0},  // only the first letter counts
        {"C", "B2a", 17},
    };
    for (const NameCase& c : signals) {
        EXPECT_EQ(static_cast<int>(NavMessageDecoder::GetSignalTypeFromString(c.sat, c.name)),
                  c.value)
            << c.sat << " " << c.name;
    }
    const NameCase formats[] = {
        {"G05", "LNAV", 0},   {"G05", "CNAV", 2},   {"G05", "CNAV2", 1},  {"R05", "FDMA", 3},
        {"E05", "INAV", 4},   {"E05", "FNAV", 5},   {"C05", "D1", 6},     {"C05", "D2", 7},
        {"C05", "CNAV1", 8},  {"C05", "CNAV2", 9},  {"J193", "LNAV", 10}, {"J193", "CNAV", 2},
        {"I09", "IRNSS", 11}, {"S120", "SBAS", 12},
    };
    for (const NameCase& c : formats) {
        EXPECT_EQ(static_cast<int>(NavMessageDecoder::GetMessageFormatFromString(c.sat, c.name)),
                  c.value)
            << c.sat << " " << c.name;
    }
    for (const NameCase& c : {NameCase{"G05", "LNAV", 0},
                              {"C01", "D1", 6},
                              {"J01", "LNAV", 10},
                              {"I02", "IRNSS", 11}}) {
        EXPECT_EQ(NavMessageDecoder::GetDefaultMessageFormatString(c.sat), c.name);
    }
}

template <class Error = DecodingError>
std::string lookupError(Lookup lookup, const char* sat, const char* name) {
    return thrownMessage<Error>([&] {
        switch (lookup) {
            case Lookup::Signal:
                return (void)NavMessageDecoder::GetSignalTypeFromString(sat, name);
            case Lookup::Format:
                return (void)NavMessageDecoder::GetMessageFormatFromString(sat, name);
            case Lookup::Default:
                return (void)NavMessageDecoder::GetDefaultMessageFormatString(sat);
        }
    });
}

TEST(NameLookup, Errors) {
    const struct {
        Lookup lookup;
        const char* sat;
        const char* name;
        const char* message;
    } cases[] = {
        {Lookup::Signal, "g05", "L1CA", "Unknown satellite system for satellite name g05"},
        {Lookup::Signal, "X", "L1CA", "Unknown satellite system for satellite name X"},
        {Lookup::Signal, "C11", "B1I", "Unknown signal type string B1I for satellite name C11"},
        {Lookup::Signal, "G05", "l1ca", "Unknown signal type string l1ca for satellite name G05"},
        {Lookup::Signal, "G05", "L1CA ", "Unknown signal type string L1CA  for satellite name G05"},
        {Lookup::Signal, "R01", "L5", "Unknown signal type string L5 for satellite name R01"},
        {Lookup::Signal, "E01", "", "Unknown signal type string  for satellite name E01"},
        {Lookup::Format, "J193", "CNAV2",
         "Unknown message format string CNAV2 for satellite name J193"},
        {Lookup::Format, "C01", "LNAV",
         "Unknown message format string LNAV for satellite name C01"},
        {Lookup::Format, "I09", "L5", "Unknown message format string L5 for satellite name I09"},
        {Lookup::Format, "Z01", "LNAV", "Unknown satellite system for satellite name Z01"},
        {Lookup::Format, " G01", "LNAV", "Unknown satellite system for satellite name  G01"},
        // GLONASS, Galileo and SBAS have formats but no default.
        {Lookup::Default, "E11", "", "Unknown satellite system for satellite name E11"},
        {Lookup::Default, "R01", "", "Unknown satellite system for satellite name R01"},
        {Lookup::Default, "S120", "", "Unknown satellite system for satellite name S120"},
        {Lookup::Default, "x", "", "Unknown satellite system for satellite name x"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(lookupError(c.lookup, c.sat, c.name), c.message) << c.sat << " " << c.name;
    }
    for (const Lookup lookup : {Lookup::Signal, Lookup::Format, Lookup::Default}) {
        EXPECT_EQ(lookupError<std::invalid_argument>(lookup, "", "L1CA"),
                  "Wrong satellite system type string");
    }
}

TEST(DecodingErrorType, CarriesItsMessage) {
    static_assert(std::is_base_of_v<std::exception, DecodingError>);
    static_assert(!std::is_base_of_v<std::runtime_error, DecodingError>);
    EXPECT_STREQ(DecodingError().what(), "");
    const DecodingError original("no such format");
    const DecodingError copy = original;  // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_STREQ(copy.what(), "no such format");
}

}  // namespace
