// Satellite, signal and format names to enumeration values, and their errors.
// Expected values are the interface's numbers, not the enumerators, so a renumbered
// enumeration fails here.

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using ZeltNavMsg::DecodingError;
using ZeltNavMsg::NavMessageDecoder;

struct NameCase {
    const char* sat;
    const char* name;
    int value;
};

TEST(NameLookup, EverySignal) {
    const NameCase cases[] = {
        {"G01", "L1CA", 0},  {"G01", "L1P", 1},  {"G01", "L1CAP", 2}, {"G01", "L1C", 3},
        {"G01", "L2P", 4},   {"G01", "L2C", 5},  {"G01", "L5", 6},    {"R01", "L1", 7},
        {"R01", "L2", 8},    {"E01", "E1", 9},   {"E01", "E5a", 10},  {"E01", "E5b", 11},
        {"E01", "E6", 12},   {"C01", "B1", 13},  {"C01", "B2", 14},   {"C01", "B3", 15},
        {"C01", "B1C", 16},  {"C01", "B2a", 17}, {"J01", "L1CA", 18}, {"J01", "L2C", 19},
        {"J01", "L5", 20},   {"I01", "L5", 21},  {"S01", "L1", 22},   {"S01", "L5", 23},
        {"Gxyz", "L1CA", 0},  // only the first letter counts
        {"C", "B2a", 17},
    };
    for (const NameCase& c : cases) {
        EXPECT_EQ(static_cast<int>(NavMessageDecoder::GetSignalTypeFromString(c.sat, c.name)),
                  c.value)
            << c.sat << " " << c.name;
    }
}

TEST(NameLookup, EveryFormat) {
    const NameCase cases[] = {
        {"G05", "LNAV", 0},   {"G05", "CNAV", 2},   {"G05", "CNAV2", 1},  {"R05", "FDMA", 3},
        {"E05", "INAV", 4},   {"E05", "FNAV", 5},   {"C05", "D1", 6},     {"C05", "D2", 7},
        {"C05", "CNAV1", 8},  {"C05", "CNAV2", 9},  {"J193", "LNAV", 10}, {"J193", "CNAV", 2},
        {"I09", "IRNSS", 11}, {"S120", "SBAS", 12},
    };
    for (const NameCase& c : cases) {
        EXPECT_EQ(static_cast<int>(NavMessageDecoder::GetMessageFormatFromString(c.sat, c.name)),
                  c.value)
            << c.sat << " " << c.name;
    }
}

TEST(NameLookup, DefaultFormatsRoundTrip) {
    const NameCase cases[] = {
        {"G05", "LNAV", 0}, {"C01", "D1", 6}, {"J01", "LNAV", 10}, {"I02", "IRNSS", 11}};
    for (const NameCase& c : cases) {
        const std::string name = NavMessageDecoder::GetDefaultMessageFormatString(c.sat);
        EXPECT_EQ(name, c.name);
        EXPECT_EQ(static_cast<int>(NavMessageDecoder::GetMessageFormatFromString(c.sat, name)),
                  c.value);
    }
}

struct ErrorCase {
    const char* sat;
    const char* name;
    const char* message;
};

TEST(NameLookup, SignalErrors) {
    const ErrorCase cases[] = {
        {"g05", "L1CA", "Unknown satellite system for satellite name g05"},
        {"X", "L1CA", "Unknown satellite system for satellite name X"},
        {"C11", "B1I", "Unknown signal type string B1I for satellite name C11"},
        {"G05", "l1ca", "Unknown signal type string l1ca for satellite name G05"},
        {"G05", "L1CA ", "Unknown signal type string L1CA  for satellite name G05"},
        {"R01", "L5", "Unknown signal type string L5 for satellite name R01"},
        {"E01", "", "Unknown signal type string  for satellite name E01"},
    };
    for (const ErrorCase& c : cases) {
        try {
            NavMessageDecoder::GetSignalTypeFromString(c.sat, c.name);
            ADD_FAILURE() << "no error for " << c.sat << " " << c.name;
        } catch (const DecodingError& e) {
            EXPECT_STREQ(e.what(), c.message);
        }
    }
}

TEST(NameLookup, FormatErrors) {
    const ErrorCase cases[] = {
        {"J193", "CNAV2", "Unknown message format string CNAV2 for satellite name J193"},
        {"C01", "LNAV", "Unknown message format string LNAV for satellite name C01"},
        {"I09", "L5", "Unknown message format string L5 for satellite name I09"},
        {"Z01", "LNAV", "Unknown satellite system for satellite name Z01"},
        {" G01", "LNAV", "Unknown satellite system for satellite name  G01"},
    };
    for (const ErrorCase& c : cases) {
        try {
            NavMessageDecoder::GetMessageFormatFromString(c.sat, c.name);
            ADD_FAILURE() << "no error for " << c.sat << " " << c.name;
        } catch (const DecodingError& e) {
            EXPECT_STREQ(e.what(), c.message);
        }
    }
}

// GLONASS, Galileo and SBAS have formats but no default.
TEST(NameLookup, DefaultFormatErrors) {
    for (const char* sat : {"E11", "R01", "S120", "x"}) {
        try {
            NavMessageDecoder::GetDefaultMessageFormatString(sat);
            ADD_FAILURE() << "no error for " << sat;
        } catch (const DecodingError& e) {
            EXPECT_EQ(std::string(e.what()),
                      std::string("Unknown satellite system for satellite name ") + sat);
        }
    }
}

TEST(NameLookup, EmptySatelliteIsInvalidArgument) {
    const auto expectInvalid = [](auto call) {
        try {
            call();
            ADD_FAILURE() << "no error";
        } catch (const std::invalid_argument& e) {
            EXPECT_STREQ(e.what(), "Wrong satellite system type string");
        }
    };
    expectInvalid([] { NavMessageDecoder::GetSignalTypeFromString("", "L1CA"); });
    expectInvalid([] { NavMessageDecoder::GetMessageFormatFromString("", "LNAV"); });
    expectInvalid([] { NavMessageDecoder::GetDefaultMessageFormatString(""); });
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
