#include "legacy/tables/FieldTables.h"

namespace ZeltNavMsg::Legacy {

// Bit positions are those of the decoded subframe (see BeidouD1Fields.cpp). Fields
// split over two pages print as two lines, "_1" the most significant part and "_2"
// the least; the listing of one page cannot join them.
// clang-format off
constexpr std::array<SubframeFieldInfo, kBeidouD2FieldCount> kBeidouD2Fields = {{
    // Every subframe: preamble, subframe id, seconds of week.
    field("pre", {{1, 11}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x8, 1, 1810),
    field("rev", {{12, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x20, 1),
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

    // Subframe 1: page number, then the clock and ephemeris spread over pages 1-10.
    field("pnum", {{43, 4}}, kUnsigned, 0.0, nullptr, 2, 1, 0, 0x0, 1),
    field("rev", {{151, 22}, {181, 22}, {211, 22}, {241, 22}, {271, 22}}, kUnsigned, 0.0, nullptr, 2, 1, 0, 0x20, 0),

    // Subframe 1 page 1: health, issues of data, week, toc, group delays.
    field("sath1", {{47, 1}}, kUnsigned, 0.0, nullptr, 3, 1, 1, 0x0, 0),
    field("iodc", {{48, 5}}, kUnsigned, 0.0, nullptr, 3, 1, 1, 0x0, 0),
    field("urai", {{61, 4}}, kUnsigned, 0.0, nullptr, 3, 1, 1, 0x0, 0),
    field("wn", {{65, 13}}, kUnsigned, 0.0, "weeks", 3, 1, 1, 0x0, 0),
    field("toc", {{78, 5}, {91, 12}}, kSignedScaled, pow2(3), "seconds", 3, 1, 1, 0x0, 0),
    field("tgd1", {{103, 10}}, kSignedScaled, 0.1, "nanoseconds", 3, 1, 1, 0x0, 0),
    field("tgd2", {{121, 10}}, kSignedScaled, 0.1, "nanoseconds", 3, 1, 1, 0x0, 0),
    field("rev2", {{131, 12}}, kUnsigned, 0.0, nullptr, 3, 1, 1, 0x20, 0),

    // Page 2: ionosphere.
    field("alpha0", {{47, 6}, {61, 2}}, kSignedScaled, 9.31322574615e-10, "seconds", 4, 1, 2, 0x0, 0),
    field("alpha1", {{63, 8}}, kSignedScaled, 7.45058059692e-09, "seconds/pi", 4, 1, 2, 0x0, 0),
    field("alpha2", {{71, 8}}, kSignedScaled, 5.96046447754e-08, "seconds/pi^2", 4, 1, 2, 0x0, 0),
    field("alpha3", {{79, 4}, {91, 4}}, kSignedScaled, 5.96046447754e-08, "seconds/pi^3", 4, 1, 2, 0x0, 0),
    field("beta0", {{95, 8}}, kSignedScaled, pow2(11), "seconds", 4, 1, 2, 0x0, 0),
    field("beta1", {{103, 8}}, kSignedScaled, pow2(14), "seconds/pi", 4, 1, 2, 0x0, 0),
    field("beta2", {{111, 2}, {121, 6}}, kSignedScaled, pow2(16), "seconds/pi^2", 4, 1, 2, 0x0, 0),
    field("beta3", {{127, 8}}, kSignedScaled, pow2(16), "seconds/pi^3", 4, 1, 2, 0x0, 0),
    field("rev2", {{135, 8}}, kUnsigned, 0.0, nullptr, 4, 1, 2, 0x20, 0),

    // Page 3: a0; a1 starts (split fields print their "_1" and "_2" parts apart).
    field("rev2", {{47, 6}}, kUnsigned, 0.0, nullptr, 5, 1, 3, 0x20, 0),
    field("rev3", {{61, 22}}, kUnsigned, 0.0, nullptr, 5, 1, 3, 0x20, 0),
    field("rev4", {{91, 10}}, kUnsigned, 0.0, nullptr, 5, 1, 3, 0x20, 0),
    field("a0", {{101, 12}, {121, 12}}, kSignedScaled, 1.16415321827e-10, "seconds", 5, 1, 3, 0x0, 0),
    field("a1_1", {{133, 4}}, kUnsigned, 0.0, "4 MSB here, 18 LSB in Subframe 1 Page 4", 5, 1, 3, 0x0, 0),
    field("rev5", {{137, 6}}, kUnsigned, 0.0, nullptr, 5, 1, 3, 0x20, 0),

    // Page 4.
    field("a1_2", {{47, 6}, {61, 12}}, kUnsigned, 0.0, "18 LSB here, 4 MSB in Subframe 1 Page 3", 6, 1, 4, 0x0, 0),
    field("a2", {{73, 10}, {91, 1}}, kSignedScaled, 1.35525271561e-20, "seconds/second^2", 6, 1, 4, 0x0, 0),
    field("iode", {{92, 5}}, kUnsigned, 0.0, nullptr, 6, 1, 4, 0x0, 0),
    field("deltan", {{97, 16}}, kSignedScaled, 1.13686837722e-13, "pi/second", 6, 1, 4, 0x0, 0),
    field("cuc_1", {{121, 14}}, kUnsigned, 0.0, "14 MSB here, 4 LSB are in Subframe 1 Page 5", 6, 1, 4, 0x0, 0),
    field("rev2", {{135, 8}}, kUnsigned, 0.0, nullptr, 6, 1, 4, 0x20, 0),

    // Page 5.
    field("cuc_2", {{47, 4}}, kUnsigned, 0.0, "4 LSB here, 14 MSB are in Subframe 1 Page 4", 7, 1, 5, 0x0, 0),
    field("m0", {{51, 2}, {61, 22}, {91, 8}}, kSignedScaled, 4.65661287308e-10, "pi", 7, 1, 5, 0x0, 0),
    field("cus", {{99, 14}, {121, 4}}, kSignedScaled, 4.65661287308e-10, "radians", 7, 1, 5, 0x0, 0),
    field("e_1", {{125, 10}}, kUnsigned, 0.0, "10 MSB here, 22 LSB are in Subframe 1 Page 6", 7, 1, 5, 0x0, 0),
    field("rev2", {{135, 8}}, kUnsigned, 0.0, nullptr, 7, 1, 5, 0x20, 0),

    // Page 6.
    field("e_2", {{47, 6}, {61, 16}}, kUnsigned, 0.0, "22 LSB here, 10 MSB are in Subframe 1 Page 5", 8, 1, 6, 0x0, 0),
    field("sqrta", {{77, 6}, {91, 22}, {121, 4}}, kUnsignedScaled, 1.90734863281e-06, "meters^(-2)", 8, 1, 6, 0x0, 0),
    field("cic_1", {{125, 10}}, kUnsigned, 0.0, "10 MSB here, 8 MSB are in Subframe 1 Page 7", 8, 1, 6, 0x0, 0),
    field("rev2", {{135, 8}}, kUnsigned, 0.0, nullptr, 8, 1, 6, 0x20, 0),

    // Page 7.
    field("cic_2", {{47, 6}, {61, 2}}, kUnsigned, 0.0, "8 LSB here, 10 MSB are in Subframe 1 Page 6", 9, 1, 7, 0x0, 0),
    field("cis", {{63, 18}}, kSignedScaled, 4.65661287308e-10, "radians", 9, 1, 7, 0x0, 0),
    field("toe", {{81, 2}, {91, 15}}, kUnsigned, 0.0, "seconds", 9, 1, 7, 0x0, 0),
    field("i0_1", {{106, 7}, {121, 14}}, kUnsigned, 0.0, "21 MSB here, 11 LSB are in Subframe 1 Page 8", 9, 1, 7, 0x0, 0),
    field("rev2", {{135, 8}}, kUnsigned, 0.0, nullptr, 9, 1, 7, 0x20, 0),

    // Page 8; "omegadot_1" is never printed.
    field("i0_2", {{47, 6}, {61, 5}}, kUnsigned, 0.0, "11 LSB here, 21 MSB are in Subframe 1 Page 7", 10, 1, 8, 0x0, 0),
    field("crc", {{66, 17}, {91, 1}}, kSignedScaled, pow2(-6), "meters", 10, 1, 8, 0x0, 0),
    field("crs", {{92, 18}}, kSignedScaled, pow2(-6), "meters", 10, 1, 8, 0x0, 0),
    field("omegadot_1", {{110, 3}, {121, 16}}, kUnsigned, 0.0, "19 MSB here, 5 LSB are in Subframe 1 Page 9", 10, 1, 8, 0x20, 0),
    field("rev2", {{137, 6}}, kUnsigned, 0.0, nullptr, 10, 1, 8, 0x20, 0),

    // Page 9.
    field("omegadot_2", {{47, 5}}, kUnsigned, 0.0, "5 LSB here, 19 MSB are in Subframe 1 Page 8", 11, 1, 9, 0x0, 0),
    field("omega0", {{52, 1}, {61, 22}, {91, 9}}, kSignedScaled, 4.65661287308e-10, "pi", 11, 1, 9, 0x0, 0),
    field("w_1", {{100, 13}, {121, 14}}, kUnsigned, 0.0, "27 MSB here, 5 LSB are in Subframe 1 Page 10", 11, 1, 9, 0x0, 0),
    field("rev2", {{135, 8}}, kUnsigned, 0.0, nullptr, 11, 1, 9, 0x20, 0),

    // Page 10.
    field("w_2", {{47, 5}}, kUnsigned, 0.0, "5 LSB here, 27 MSB are in Subframe 1 Page 9", 12, 1, 10, 0x0, 0),
    field("idot", {{52, 1}, {61, 13}}, kSignedScaled, 1.13686837722e-13, "pi/second", 12, 1, 10, 0x0, 0),
    field("rev2", {{74, 9}, {91, 22}, {121, 22}}, kUnsigned, 0.0, nullptr, 12, 1, 10, 0x20, 0),

    // Subframes 2, 3 and 4, and the page number of subframe 5.
    field("pnum", {{44, 4}}, kUnsigned, 0.0, nullptr, 13, 2, 0, 0x0, 1),
    field("rev1", {{43, 1}}, kUnsigned, 0.0, nullptr, 13, 2, 0, 0x20, 0),
    field("sath2", {{48, 2}}, kUnsigned, 0.0, nullptr, 13, 2, 0, 0x0, 0),
    field("rev2", {{50, 3}, {61, 22}, {91, 22}, {121, 22}, {151, 22}}, kUnsigned, 0.0, nullptr, 13, 2, 0, 0x20, 0),
    field("rev2b", {{181, 22}, {211, 22}, {241, 22}, {271, 22}}, kUnsigned, 0.0, nullptr, 13, 2, 0, 0x20, 0),
    field("rev1", {{43, 10}, {61, 22}, {91, 22}, {121, 22}, {151, 22}}, kUnsigned, 0.0, nullptr, 14, 3, 0, 0x20, 0),
    field("rev1b", {{181, 22}, {211, 22}, {241, 22}, {271, 22}}, kUnsigned, 0.0, nullptr, 14, 3, 0, 0x20, 0),
    field("rev1", {{43, 10}, {61, 22}, {91, 22}, {121, 22}, {151, 22}}, kUnsigned, 0.0, nullptr, 15, 4, 0, 0x20, 0),
    field("rev1b", {{181, 22}, {211, 22}, {241, 22}, {271, 22}}, kUnsigned, 0.0, nullptr, 15, 4, 0, 0x20, 0),
    field("pnum", {{44, 7}}, kUnsigned, 0.0, nullptr, 16, 5, 0, 0x0, 1),
    field("rev1", {{43, 1}}, kUnsigned, 0.0, nullptr, 16, 5, 0, 0x20, 0),
    field("rev2", {{51, 2}, {61, 22}, {91, 22}, {121, 22}, {151, 22}}, kUnsigned, 0.0, nullptr, 17, 0, 0, 0x20, 0),
    field("rev2b", {{181, 22}, {211, 22}, {241, 22}, {271, 22}}, kUnsigned, 0.0, nullptr, 17, 0, 0, 0x20, 0),

    // Subframe 5 page 35: health of SVs 1-19.
    field("hea1", {{51, 2}, {61, 7}}, kUnsigned, 0.0, nullptr, 18, 5, 35, 0x0, 0),
    field("hea2", {{68, 9}}, kUnsigned, 0.0, nullptr, 18, 5, 35, 0x0, 0),
    field("hea3", {{77, 6}, {91, 3}}, kUnsigned, 0.0, nullptr, 18, 5, 35, 0x0, 0),
    field("hea4", {{94, 9}}, kUnsigned, 0.0, nullptr, 18, 5, 35, 0x0, 0),
    field("hea5", {{103, 9}}, kUnsigned, 0.0, nullptr, 18, 5, 35, 0x0, 0),
    field("hea6", {{112, 1}, {121, 8}}, kUnsigned, 0.0, nullptr, 18, 5, 35, 0x0, 0),
    field("hea7", {{129, 9}}, kUnsigned, 0.0, nullptr, 18, 5, 35, 0x0, 0),
    field("hea8", {{138, 5}, {151, 4}}, kUnsigned, 0.0, nullptr, 18, 5, 35, 0x0, 0),
    field("hea9", {{155, 9}}, kUnsigned, 0.0, nullptr, 18, 5, 35, 0x0, 0),
    field("hea10", {{164, 9}}, kUnsigned, 0.0, nullptr, 18, 5, 35, 0x0, 0),
    field("hea11", {{181, 9}}, kUnsigned, 0.0, nullptr, 18, 5, 35, 0x0, 0),
    field("hea12", {{190, 9}}, kUnsigned, 0.0, nullptr, 18, 5, 35, 0x0, 0),
    field("hea13", {{199, 4}, {211, 5}}, kUnsigned, 0.0, nullptr, 18, 5, 35, 0x0, 0),
    field("hea14", {{216, 9}}, kUnsigned, 0.0, nullptr, 18, 5, 35, 0x0, 0),
    field("hea15", {{225, 8}, {241, 1}}, kUnsigned, 0.0, nullptr, 18, 5, 35, 0x0, 0),
    field("hea16", {{242, 9}}, kUnsigned, 0.0, nullptr, 18, 5, 35, 0x0, 0),
    field("hea17", {{251, 9}}, kUnsigned, 0.0, nullptr, 18, 5, 35, 0x0, 0),
    field("hea18", {{260, 3}, {271, 6}}, kUnsigned, 0.0, nullptr, 18, 5, 35, 0x0, 0),
    field("hea19", {{277, 9}}, kUnsigned, 0.0, nullptr, 18, 5, 35, 0x0, 0),
    field("rev3", {{286, 7}}, kUnsigned, 0.0, nullptr, 18, 5, 35, 0x20, 0),

    // Subframe 5 page 36: health of SVs 20-30, almanac week and reference time.
    field("hea20", {{51, 2}, {61, 7}}, kUnsigned, 0.0, nullptr, 19, 5, 36, 0x0, 0),
    field("hea21", {{68, 9}}, kUnsigned, 0.0, nullptr, 19, 5, 36, 0x0, 0),
    field("hea22", {{77, 6}, {91, 3}}, kUnsigned, 0.0, nullptr, 19, 5, 36, 0x0, 0),
    field("hea23", {{94, 9}}, kUnsigned, 0.0, nullptr, 19, 5, 36, 0x0, 0),
    field("hea24", {{103, 9}}, kUnsigned, 0.0, nullptr, 19, 5, 36, 0x0, 0),
    field("hea25", {{112, 1}, {121, 8}}, kUnsigned, 0.0, nullptr, 19, 5, 36, 0x0, 0),
    field("hea26", {{129, 9}}, kUnsigned, 0.0, nullptr, 19, 5, 36, 0x0, 0),
    field("hea27", {{138, 5}, {151, 4}}, kUnsigned, 0.0, nullptr, 19, 5, 36, 0x0, 0),
    field("hea28", {{155, 9}}, kUnsigned, 0.0, nullptr, 19, 5, 36, 0x0, 0),
    field("hea29", {{164, 9}}, kUnsigned, 0.0, nullptr, 19, 5, 36, 0x0, 0),
    field("hea30", {{181, 9}}, kUnsigned, 0.0, nullptr, 19, 5, 36, 0x0, 0),
    field("wna", {{190, 8}}, kUnsigned, 0.0, nullptr, 19, 5, 36, 0x0, 0),
    field("toa", {{198, 5}, {211, 3}}, kUnsigned, 0.0, "second", 19, 5, 36, 0x0, 0),
    field("rev3", {{214, 19}, {241, 22}, {271, 22}}, kUnsigned, 0.0, nullptr, 19, 5, 36, 0x20, 0),

    // Almanac: subframe 5 pages 37-60 and 95-100.
    field("sqrta", {{51, 2}, {61, 22}}, kUnsignedScaled, pow2(-11), "meters^(-2)", 20, 0, 0, 0x0, 0),
    field("a1", {{91, 11}}, kSignedScaled, 3.63797880709e-12, "second/second", 20, 0, 0, 0x0, 0),
    field("a0", {{102, 11}}, kSignedScaled, 9.53674316406e-07, "second", 20, 0, 0, 0x0, 0),
    field("omega0", {{121, 22}, {151, 2}}, kSignedScaled, 1.19209289551e-07, "pi", 20, 0, 0, 0x0, 0),
    field("e", {{153, 17}}, kUnsignedScaled, 4.76837158203e-07, nullptr, 20, 0, 0, 0x0, 0),
    field("deltai", {{170, 3}, {181, 13}}, kSignedScaled, 1.90734863281e-06, "pi", 20, 0, 0, 0x0, 0),
    field("toa", {{194, 8}}, kUnsigned, 0.0, "second", 20, 0, 0, 0x0, 0),
    field("omegadot", {{202, 1}, {211, 16}}, kSignedScaled, 3.63797880709e-12, "pi/second", 20, 0, 0, 0x0, 0),
    field("w", {{227, 6}, {241, 18}}, kSignedScaled, 1.19209289551e-07, "pi", 20, 0, 0, 0x0, 0),
    field("m0", {{259, 4}, {271, 20}}, kSignedScaled, 1.19209289551e-07, "pi", 20, 0, 0, 0x0, 0),
    field("AmEpID", {{291, 2}}, kUnsigned, 0.0, nullptr, 20, 0, 0, 0x0, 0),

    // Subframe 5 page 101: offsets to GPS, Galileo and GLONASS time.
    field("rev", {{51, 2}, {61, 22}, {91, 6}, {219, 14}, {241, 22}, {271, 22}}, kUnsigned, 0.0, nullptr, 21, 5, 101, 0x20, 0),
    field("a0gps", {{97, 14}}, kSignedScaled, 0.1, "nanosecond", 21, 5, 101, 0x0, 0),
    field("a1gps", {{111, 2}, {121, 14}}, kSignedScaled, 0.1, "nanosecond/second", 21, 5, 101, 0x0, 0),
    field("a0gal", {{135, 8}, {151, 6}}, kSignedScaled, 0.1, "nanosecond", 21, 5, 101, 0x0, 0),
    field("a1gal", {{157, 16}}, kSignedScaled, 0.1, "nanosecond/second", 21, 5, 101, 0x0, 0),
    field("a0glo", {{181, 14}}, kSignedScaled, 0.1, "nanosecond", 21, 5, 101, 0x0, 0),
    field("a1glo", {{195, 8}, {211, 8}}, kSignedScaled, 0.1, "nanosecond/second", 21, 5, 101, 0x0, 0),

    // Subframe 5 page 102: leap seconds and UTC offset.
    field("deltatls", {{51, 2}, {61, 6}}, kUnsigned, 0.0, "second", 22, 5, 102, 0x0, 0),
    field("deltatlsf", {{67, 8}}, kUnsigned, 0.0, "second", 22, 5, 102, 0x0, 0),
    field("wnlsf", {{75, 8}}, kUnsigned, 0.0, "weeks", 22, 5, 102, 0x0, 0),
    field("a0utc", {{91, 22}, {121, 10}}, kSignedScaled, 9.31322574615e-10, "second", 22, 5, 102, 0x0, 0),
    field("a1utc", {{131, 12}, {151, 12}}, kSignedScaled, 8.881784197e-16, "second/second", 22, 5, 102, 0x0, 0),
    field("dn", {{163, 8}}, kUnsigned, 0.0, "days", 22, 5, 102, 0x0, 0),
    field("rev2", {{171, 2}, {181, 22}}, kUnsigned, 0.0, nullptr, 22, 5, 102, 0x20, 0),
    field("rev3", {{211, 22}}, kUnsigned, 0.0, nullptr, 22, 5, 102, 0x20, 0),
    field("rev4", {{241, 22}}, kUnsigned, 0.0, nullptr, 22, 5, 102, 0x20, 0),
    field("rev5", {{271, 22}}, kUnsigned, 0.0, nullptr, 22, 5, 102, 0x20, 0),

    // Almanac of subframe 5 pages 103-115, with AmID in place of AmEpID.
    field("sqrta", {{51, 2}, {61, 22}}, kUnsignedScaled, pow2(-11), "meters^(-2)", 23, 0, 0, 0x0, 0),
    field("a1", {{91, 11}}, kSignedScaled, 3.63797880709e-12, "second/second", 23, 0, 0, 0x0, 0),
    field("a0", {{102, 11}}, kSignedScaled, 9.53674316406e-07, "second", 23, 0, 0, 0x0, 0),
    field("omega0", {{121, 22}, {151, 2}}, kSignedScaled, 1.19209289551e-07, "pi", 23, 0, 0, 0x0, 0),
    field("e", {{153, 17}}, kUnsignedScaled, 4.76837158203e-07, nullptr, 23, 0, 0, 0x0, 0),
    field("deltai", {{170, 3}, {181, 13}}, kSignedScaled, 1.90734863281e-06, "pi", 23, 0, 0, 0x0, 0),
    field("toa", {{194, 8}}, kUnsigned, 0.0, "second", 23, 0, 0, 0x0, 0),
    field("omegadot", {{202, 1}, {211, 16}}, kSignedScaled, 3.63797880709e-12, "pi/second", 23, 0, 0, 0x0, 0),
    field("w", {{227, 6}, {241, 18}}, kSignedScaled, 1.19209289551e-07, "pi", 23, 0, 0, 0x0, 0),
    field("m0", {{259, 4}, {271, 20}}, kSignedScaled, 1.19209289551e-07, "pi", 23, 0, 0, 0x0, 0),
    field("AmID", {{291, 2}}, kUnsigned, 0.0, nullptr, 23, 0, 0, 0x0, 0),

    // Subframe 5 page 116: health of SVs 31-43.
    field("hea31", {{51, 2}, {61, 7}}, kUnsigned, 0.0, nullptr, 24, 5, 116, 0x0, 0),
    field("hea32", {{68, 9}}, kUnsigned, 0.0, nullptr, 24, 5, 116, 0x0, 0),
    field("hea33", {{77, 6}, {91, 3}}, kUnsigned, 0.0, nullptr, 24, 5, 116, 0x0, 0),
    field("hea34", {{94, 9}}, kUnsigned, 0.0, nullptr, 24, 5, 116, 0x0, 0),
    field("hea35", {{103, 9}}, kUnsigned, 0.0, nullptr, 24, 5, 116, 0x0, 0),
    field("hea36", {{112, 1}, {121, 8}}, kUnsigned, 0.0, nullptr, 24, 5, 116, 0x0, 0),
    field("hea37", {{129, 9}}, kUnsigned, 0.0, nullptr, 24, 5, 116, 0x0, 0),
    field("hea38", {{138, 5}, {151, 4}}, kUnsigned, 0.0, nullptr, 24, 5, 116, 0x0, 0),
    field("hea39", {{155, 9}}, kUnsigned, 0.0, nullptr, 24, 5, 116, 0x0, 0),
    field("hea40", {{164, 9}}, kUnsigned, 0.0, nullptr, 24, 5, 116, 0x0, 0),
    field("hea41", {{181, 9}}, kUnsigned, 0.0, nullptr, 24, 5, 116, 0x0, 0),
    field("hea42", {{190, 9}}, kUnsigned, 0.0, nullptr, 24, 5, 116, 0x0, 0),
    field("hea43", {{199, 4}, {211, 5}}, kUnsigned, 0.0, nullptr, 24, 5, 116, 0x0, 0),
    field("AmID", {{216, 2}}, kUnsigned, 0.0, nullptr, 24, 5, 116, 0x0, 0),
    field("rev3", {{218, 15}}, kUnsigned, 0.0, nullptr, 24, 5, 116, 0x20, 0),
    field("rev4", {{241, 22}}, kUnsigned, 0.0, nullptr, 24, 5, 116, 0x20, 0),
    field("rev5", {{271, 22}}, kUnsigned, 0.0, nullptr, 24, 5, 116, 0x20, 0),
}};
// clang-format on

namespace {
constexpr auto kPlanData = planListing(kBeidouD2Fields);
}
constinit const ListingPlan kBeidouD2Listing = kPlanData.plan();

}  // namespace ZeltNavMsg::Legacy
