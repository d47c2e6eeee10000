#include "legacy/tables/FieldTables.h"

namespace ZeltNavMsg::Legacy {

// Bit positions are those of the decoded subframe: word 1 holds 26 data bits, words
// 2-10 22 each, so word k's data starts at bit 30(k-1)+1. Scales in decimal are
// 12-digit constants, used as written.
// clang-format off
constexpr std::array<SubframeFieldInfo, kBeidouD1FieldCount> kBeidouD1Fields = {{
    // Every subframe: preamble, subframe id, seconds of week.
    field("pre", {{1, 11}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x8, 1, 1810),
    field("fraid", {{16, 3}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 1, 1),
    field("sow", {{19, 8}, {31, 12}}, kUnsigned, 0.0, "seconds", 0, 0, 0, 0x0, 1),

    // BCH parity of each word, where the decoded subframe keeps it: 4 bits after word
    // 1's codeword, 8 after the two codewords of words 2-10. Never printed.
    field("parity1", {{27, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x2, 0),
    field("parity2", {{53, 8}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x2, 0),
    field("parity3", {{83, 8}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x2, 0),
    field("parity4", {{113, 8}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x2, 0),
    field("parity5", {{143, 8}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x2, 0),
    field("parity6", {{173, 8}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x2, 0),
    field("parity7", {{203, 8}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x2, 0),
    field("parity8", {{233, 8}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x2, 0),
    field("parity9", {{263, 8}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x2, 0),
    field("parity10", {{293, 8}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x2, 0),

    // Subframe 1: health, issues of data, week, clock, group delays, ionosphere.
    field("rev", {{12, 4}}, kUnsigned, 0.0, nullptr, 2, 1, 0, 0x20, 0),
    field("sath1", {{43, 1}}, kUnsigned, 0.0, nullptr, 2, 1, 0, 0x0, 0),
    field("iodc", {{44, 5}}, kUnsigned, 0.0, nullptr, 2, 1, 0, 0x0, 0),
    field("urai", {{49, 4}}, kUnsigned, 0.0, nullptr, 2, 1, 0, 0x0, 0),
    field("wn", {{61, 13}}, kUnsigned, 0.0, nullptr, 2, 1, 0, 0x0, 0),
    field("toc", {{74, 9}, {91, 8}}, kSignedScaled, pow2(3), "seconds", 2, 1, 0, 0x0, 0),
    field("tgd1", {{99, 10}}, kSignedScaled, 0.1, "nanoseconds", 2, 1, 0, 0x0, 0),
    field("tgd2", {{109, 4}, {121, 6}}, kSignedScaled, 0.1, "nanoseconds", 2, 1, 0, 0x0, 0),
    field("alpha0", {{127, 8}}, kSignedScaled, 9.31322574615e-10, "seconds", 2, 1, 0, 0x0, 0),
    field("alpha1", {{135, 8}}, kSignedScaled, 7.45058059692e-09, "seconds/pi", 2, 1, 0, 0x0, 0),
    field("alpha2", {{151, 8}}, kSignedScaled, 5.96046447754e-08, "seconds/pi^2", 2, 1, 0, 0x0, 0),
    field("alpha3", {{159, 8}}, kSignedScaled, 5.96046447754e-08, "seconds/pi^3", 2, 1, 0, 0x0, 0),
    field("beta0", {{167, 6}, {181, 2}}, kSignedScaled, pow2(11), "seconds", 2, 1, 0, 0x0, 0),
    field("beta1", {{183, 8}}, kSignedScaled, pow2(14), "seconds/pi", 2, 1, 0, 0x0, 0),
    field("beta2", {{191, 8}}, kSignedScaled, pow2(16), "seconds/pi^2", 2, 1, 0, 0x0, 0),
    field("beta3", {{199, 4}, {211, 4}}, kSignedScaled, pow2(16), "seconds/pi^3", 2, 1, 0, 0x0, 0),
    field("a2", {{215, 11}}, kSignedScaled, 1.35525271561e-20, "seconds/second^2", 2, 1, 0, 0x0, 0),
    field("a0", {{226, 7}, {241, 17}}, kSignedScaled, 1.16415321827e-10, "seconds", 2, 1, 0, 0x0, 0),
    field("a1", {{258, 5}, {271, 17}}, kSignedScaled, 8.881784197e-16, "seconds/second", 2, 1, 0, 0x0, 0),
    field("iode", {{288, 5}}, kUnsigned, 0.0, nullptr, 2, 1, 0, 0x0, 0),

    // Subframe 2: ephemeris, first part; toe continues in subframe 3.
    field("rev", {{12, 4}}, kUnsigned, 0.0, nullptr, 3, 2, 0, 0x20, 0),
    field("deltan", {{43, 10}, {61, 6}}, kSignedScaled, 1.13686837722e-13, "pi/second", 3, 2, 0, 0x0, 0),
    field("cuc", {{67, 16}, {91, 2}}, kSignedScaled, 4.65661287308e-10, "radians", 3, 2, 0, 0x0, 0),
    field("m0", {{93, 20}, {121, 12}}, kSignedScaled, 4.65661287308e-10, "pi", 3, 2, 0, 0x0, 0),
    field("e", {{133, 10}, {151, 22}}, kUnsignedScaled, 1.16415321827e-10, nullptr, 3, 2, 0, 0x0, 0),
    field("cus", {{181, 18}}, kSignedScaled, 4.65661287308e-10, "radians", 3, 2, 0, 0x0, 0),
    field("crc", {{199, 4}, {211, 14}}, kSignedScaled, pow2(-6), "meters", 3, 2, 0, 0x0, 0),
    field("crs", {{225, 8}, {241, 10}}, kSignedScaled, pow2(-6), "meters", 3, 2, 0, 0x0, 0),
    field("sqrta", {{251, 12}, {271, 20}}, kUnsignedScaled, 1.90734863281e-06, "meters^(-2)", 3, 2, 0, 0x0, 0),
    field("toe_1", {{291, 2}}, kUnsigned, 0.0, "2 MSB here, 15 LSB in Subframe 3", 3, 2, 0, 0x0, 0),

    // Subframe 3: ephemeris, second part.
    field("rev", {{12, 4}, {292, 1}}, kUnsigned, 0.0, nullptr, 4, 3, 0, 0x20, 0),
    field("toe_2", {{43, 10}, {61, 5}}, kUnsigned, 0.0, "15 LSB here, 2 MSB in Subframe 2", 4, 3, 0, 0x0, 0),
    field("i0", {{66, 17}, {91, 15}}, kSignedScaled, 4.65661287308e-10, "pi", 4, 3, 0, 0x0, 0),
    field("cic", {{106, 7}, {121, 11}}, kSignedScaled, 4.65661287308e-10, "radians", 4, 3, 0, 0x0, 0),
    field("omegadot", {{132, 11}, {151, 13}}, kSignedScaled, 1.13686837722e-13, "pi/second", 4, 3, 0, 0x0, 0),
    field("cis", {{164, 9}, {181, 9}}, kSignedScaled, 4.65661287308e-10, "radians", 4, 3, 0, 0x0, 0),
    field("idot", {{190, 13}, {211, 1}}, kSignedScaled, 1.13686837722e-13, "pi/second", 4, 3, 0, 0x0, 0),
    field("omega0", {{212, 21}, {241, 11}}, kSignedScaled, 4.65661287308e-10, "pi", 4, 3, 0, 0x0, 0),
    field("w", {{252, 11}, {271, 21}}, kSignedScaled, 4.65661287308e-10, "pi", 4, 3, 0, 0x0, 0),

    // Page numbers of subframes 4 and 5, taken by the subframe number alone.
    field("pnum", {{44, 7}}, kUnsigned, 0.0, nullptr, 5, 4, 0, 0x0, 1),
    field("pnum", {{44, 7}}, kUnsigned, 0.0, nullptr, 6, 5, 0, 0x0, 1),

    // Almanac: subframe 4, and subframe 5 pages 1-6.
    field("rev", {{12, 4}, {43, 1}}, kUnsigned, 0.0, nullptr, 7, 0, 0, 0x20, 0),
    field("sqrta", {{51, 2}, {61, 22}}, kUnsignedScaled, pow2(-11), "meters^(-2)", 7, 0, 0, 0x0, 0),
    field("a1", {{91, 11}}, kSignedScaled, 3.63797880709e-12, "second/second", 7, 0, 0, 0x0, 0),
    field("a0", {{102, 11}}, kSignedScaled, 9.53674316406e-07, "second", 7, 0, 0, 0x0, 0),
    field("omega0", {{121, 22}, {151, 2}}, kSignedScaled, 1.19209289551e-07, "pi", 7, 0, 0, 0x0, 0),
    field("e", {{153, 17}}, kUnsignedScaled, 4.76837158203e-07, nullptr, 7, 0, 0, 0x0, 0),
    field("deltai", {{170, 3}, {181, 13}}, kSignedScaled, 1.90734863281e-06, "pi", 7, 0, 0, 0x0, 0),
    field("toa", {{194, 8}}, kUnsigned, 0.0, "second", 7, 0, 0, 0x0, 0),
    field("omegadot", {{202, 1}, {211, 16}}, kSignedScaled, 3.63797880709e-12, "pi/second", 7, 0, 0, 0x0, 0),
    field("w", {{227, 6}, {241, 18}}, kSignedScaled, 1.19209289551e-07, "pi", 7, 0, 0, 0x0, 0),
    field("m0", {{259, 4}, {271, 20}}, kSignedScaled, 1.19209289551e-07, "pi", 7, 0, 0, 0x0, 0),
    field("AmEpID", {{291, 2}}, kUnsigned, 0.0, nullptr, 7, 0, 0, 0x0, 0),

    // Subframe 5 page 7: health of SVs 1-19.
    field("rev", {{12, 4}, {43, 1}, {286, 7}}, kUnsigned, 0.0, nullptr, 8, 5, 7, 0x20, 0),
    field("hea1", {{51, 2}, {61, 7}}, kUnsigned, 0.0, nullptr, 8, 5, 7, 0x0, 0),
    field("hea2", {{68, 9}}, kUnsigned, 0.0, nullptr, 8, 5, 7, 0x0, 0),
    field("hea3", {{77, 6}, {91, 3}}, kUnsigned, 0.0, nullptr, 8, 5, 7, 0x0, 0),
    field("hea4", {{94, 9}}, kUnsigned, 0.0, nullptr, 8, 5, 7, 0x0, 0),
    field("hea5", {{103, 9}}, kUnsigned, 0.0, nullptr, 8, 5, 7, 0x0, 0),
    field("hea6", {{112, 1}, {121, 8}}, kUnsigned, 0.0, nullptr, 8, 5, 7, 0x0, 0),
    field("hea7", {{129, 9}}, kUnsigned, 0.0, nullptr, 8, 5, 7, 0x0, 0),
    field("hea8", {{138, 5}, {151, 4}}, kUnsigned, 0.0, nullptr, 8, 5, 7, 0x0, 0),
    field("hea9", {{155, 9}}, kUnsigned, 0.0, nullptr, 8, 5, 7, 0x0, 0),
    field("hea10", {{164, 9}}, kUnsigned, 0.0, nullptr, 8, 5, 7, 0x0, 0),
    field("hea11", {{181, 9}}, kUnsigned, 0.0, nullptr, 8, 5, 7, 0x0, 0),
    field("hea12", {{190, 9}}, kUnsigned, 0.0, nullptr, 8, 5, 7, 0x0, 0),
    field("hea13", {{199, 4}, {211, 5}}, kUnsigned, 0.0, nullptr, 8, 5, 7, 0x0, 0),
    field("hea14", {{216, 9}}, kUnsigned, 0.0, nullptr, 8, 5, 7, 0x0, 0),
    field("hea15", {{225, 8}, {241, 1}}, kUnsigned, 0.0, nullptr, 8, 5, 7, 0x0, 0),
    field("hea16", {{242, 9}}, kUnsigned, 0.0, nullptr, 8, 5, 7, 0x0, 0),
    field("hea17", {{251, 9}}, kUnsigned, 0.0, nullptr, 8, 5, 7, 0x0, 0),
    field("hea18", {{260, 3}, {271, 6}}, kUnsigned, 0.0, nullptr, 8, 5, 7, 0x0, 0),
    field("hea19", {{277, 9}}, kUnsigned, 0.0, nullptr, 8, 5, 7, 0x0, 0),

    // Subframe 5 page 8: health of SVs 20-30, almanac week and reference time.
    field("rev", {{12, 4}, {43, 1}, {214, 19}, {241, 22}, {271, 22}}, kUnsigned, 0.0, nullptr, 9, 5, 8, 0x20, 0),
    field("hea20", {{51, 2}, {61, 7}}, kUnsigned, 0.0, nullptr, 9, 5, 8, 0x0, 0),
    field("hea21", {{68, 9}}, kUnsigned, 0.0, nullptr, 9, 5, 8, 0x0, 0),
    field("hea22", {{77, 6}, {91, 3}}, kUnsigned, 0.0, nullptr, 9, 5, 8, 0x0, 0),
    field("hea23", {{94, 9}}, kUnsigned, 0.0, nullptr, 9, 5, 8, 0x0, 0),
    field("hea24", {{103, 9}}, kUnsigned, 0.0, nullptr, 9, 5, 8, 0x0, 0),
    field("hea25", {{112, 1}, {121, 8}}, kUnsigned, 0.0, nullptr, 9, 5, 8, 0x0, 0),
    field("hea26", {{129, 9}}, kUnsigned, 0.0, nullptr, 9, 5, 8, 0x0, 0),
    field("hea27", {{138, 5}, {151, 4}}, kUnsigned, 0.0, nullptr, 9, 5, 8, 0x0, 0),
    field("hea28", {{155, 9}}, kUnsigned, 0.0, nullptr, 9, 5, 8, 0x0, 0),
    field("hea29", {{164, 9}}, kUnsigned, 0.0, nullptr, 9, 5, 8, 0x0, 0),
    field("hea30", {{181, 9}}, kUnsigned, 0.0, nullptr, 9, 5, 8, 0x0, 0),
    field("wna", {{190, 8}}, kUnsigned, 0.0, nullptr, 9, 5, 8, 0x0, 0),
    field("toa", {{198, 5}, {211, 3}}, kUnsigned, 0.0, "second", 9, 5, 8, 0x0, 0),

    // Subframe 5 page 9: offsets to GPS, Galileo and GLONASS time.
    field("rev", {{12, 4}, {43, 1}, {51, 2}, {61, 22}, {91, 6}, {219, 14}, {241, 22}, {271, 22}}, kUnsigned, 0.0, nullptr, 10, 5, 9, 0x20, 0),
    field("a0gps", {{97, 14}}, kSignedScaled, 0.1, "nanosecond", 10, 5, 9, 0x0, 0),
    field("a1gps", {{111, 2}, {121, 14}}, kSignedScaled, 0.1, "nanosecond/second", 10, 5, 9, 0x0, 0),
    field("a0gal", {{135, 8}, {151, 6}}, kSignedScaled, 0.1, "nanosecond", 10, 5, 9, 0x0, 0),
    field("a1gal", {{157, 16}}, kSignedScaled, 0.1, "nanosecond/second", 10, 5, 9, 0x0, 0),
    field("a0glo", {{181, 14}}, kSignedScaled, 0.1, "nanosecond", 10, 5, 9, 0x0, 0),
    field("a1glo", {{195, 8}, {211, 8}}, kSignedScaled, 0.1, "nanosecond/second", 10, 5, 9, 0x0, 0),

    // Subframe 5 page 10: leap seconds and UTC offset.
    field("rev", {{12, 4}, {43, 1}, {171, 2}, {181, 22}, {211, 22}, {241, 22}, {271, 22}}, kUnsigned, 0.0, nullptr, 11, 5, 10, 0x20, 0),
    field("deltatls", {{51, 2}, {61, 6}}, kUnsigned, 0.0, "second", 11, 5, 10, 0x0, 0),
    field("deltatlsf", {{67, 8}}, kUnsigned, 0.0, "second", 11, 5, 10, 0x0, 0),
    field("wnlsf", {{75, 8}}, kUnsigned, 0.0, "weeks", 11, 5, 10, 0x0, 0),
    field("a0utc", {{91, 22}, {121, 10}}, kSignedScaled, 9.31322574615e-10, "second", 11, 5, 10, 0x0, 0),
    field("a1utc", {{131, 12}, {151, 12}}, kSignedScaled, 8.881784197e-16, "second/second", 11, 5, 10, 0x0, 0),
    field("dn", {{163, 8}}, kUnsigned, 0.0, "days", 11, 5, 10, 0x0, 0),

    // Almanac of subframe 5 pages 11-23, with AmID in place of AmEpID.
    field("rev", {{12, 4}, {43, 1}}, kUnsigned, 0.0, nullptr, 12, 0, 0, 0x20, 0),
    field("sqrta", {{51, 2}, {61, 22}}, kUnsignedScaled, pow2(-11), "meters^(-2)", 12, 0, 0, 0x0, 0),
    field("a1", {{91, 11}}, kSignedScaled, 3.63797880709e-12, "second/second", 12, 0, 0, 0x0, 0),
    field("a0", {{102, 11}}, kSignedScaled, 9.53674316406e-07, "second", 12, 0, 0, 0x0, 0),
    field("omega0", {{121, 22}, {151, 2}}, kSignedScaled, 1.19209289551e-07, "pi", 12, 0, 0, 0x0, 0),
    field("e", {{153, 17}}, kUnsignedScaled, 4.76837158203e-07, nullptr, 12, 0, 0, 0x0, 0),
    field("deltai", {{170, 3}, {181, 13}}, kSignedScaled, 1.90734863281e-06, "pi", 12, 0, 0, 0x0, 0),
    field("toa", {{194, 8}}, kUnsigned, 0.0, "second", 12, 0, 0, 0x0, 0),
    field("omegadot", {{202, 1}, {211, 16}}, kSignedScaled, 3.63797880709e-12, "pi/second", 12, 0, 0, 0x0, 0),
    field("w", {{227, 6}, {241, 18}}, kSignedScaled, 1.19209289551e-07, "pi", 12, 0, 0, 0x0, 0),
    field("m0", {{259, 4}, {271, 20}}, kSignedScaled, 1.19209289551e-07, "pi", 12, 0, 0, 0x0, 0),
    field("AmID", {{291, 2}}, kUnsigned, 0.0, nullptr, 12, 0, 0, 0x0, 0),

    // Subframe 5 page 24: health of SVs 31-43.
    field("rev1", {{12, 4}, {43, 1}, {218, 15}}, kUnsigned, 0.0, nullptr, 13, 5, 24, 0x20, 0),
    field("hea31", {{51, 2}, {61, 7}}, kUnsigned, 0.0, nullptr, 13, 5, 24, 0x0, 0),
    field("hea32", {{68, 9}}, kUnsigned, 0.0, nullptr, 13, 5, 24, 0x0, 0),
    field("hea33", {{77, 6}, {91, 3}}, kUnsigned, 0.0, nullptr, 13, 5, 24, 0x0, 0),
    field("hea34", {{94, 9}}, kUnsigned, 0.0, nullptr, 13, 5, 24, 0x0, 0),
    field("hea35", {{103, 9}}, kUnsigned, 0.0, nullptr, 13, 5, 24, 0x0, 0),
    field("hea36", {{112, 1}, {121, 8}}, kUnsigned, 0.0, nullptr, 13, 5, 24, 0x0, 0),
    field("hea37", {{129, 9}}, kUnsigned, 0.0, nullptr, 13, 5, 24, 0x0, 0),
    field("hea38", {{138, 5}, {151, 4}}, kUnsigned, 0.0, nullptr, 13, 5, 24, 0x0, 0),
    field("hea39", {{155, 9}}, kUnsigned, 0.0, nullptr, 13, 5, 24, 0x0, 0),
    field("hea40", {{164, 9}}, kUnsigned, 0.0, nullptr, 13, 5, 24, 0x0, 0),
    field("hea41", {{181, 9}}, kUnsigned, 0.0, nullptr, 13, 5, 24, 0x0, 0),
    field("hea42", {{190, 9}}, kUnsigned, 0.0, nullptr, 13, 5, 24, 0x0, 0),
    field("hea43", {{199, 4}, {211, 5}}, kUnsigned, 0.0, nullptr, 13, 5, 24, 0x0, 0),
    field("AmID", {{216, 2}}, kUnsigned, 0.0, nullptr, 13, 5, 24, 0x0, 0),
    field("rev2", {{241, 22}}, kUnsigned, 0.0, nullptr, 13, 5, 24, 0x20, 0),
    field("rev3", {{271, 22}}, kUnsigned, 0.0, nullptr, 13, 5, 24, 0x20, 0),
}};
// clang-format on

namespace {
constexpr auto kPlanData = planListing(kBeidouD1Fields);
}
constinit const ListingPlan kBeidouD1Listing = kPlanData.plan();

}  // namespace ZeltNavMsg::Legacy
