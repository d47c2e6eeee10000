#ifndef ZELTNAVMSG_LEGACY_TABLES_LNAVFIELDBLOCKS_H
#define ZELTNAVMSG_LEGACY_TABLES_LNAVFIELDBLOCKS_H

#include <array>
#include <cstddef>
#include <cstdint>

#include "legacy/SubframeFieldInfo.h"

// Entries of the GPS and QZSS L1 C/A LNAV tables. Both tables share the first 75
// entries outright, and their subframe 4/5 blocks differ only in the layout,
// subframe and page that select them; each table places the blocks itself.
// Scales in decimal are 12-digit constants, used as written.

namespace ZeltNavMsg::Legacy::LNav {

// clang-format off

// Raw words, TLM and HOW, subframes 1 to 3, subframe 4 data and SV ids, reserved words.
inline constexpr SubframeFieldInfo kCommonFields[] = {
    field("Word 1", {{1, 30}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0xd, 1),
    field("Word 2", {{31, 30}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0xd, 1),
    field("Word 3", {{61, 30}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0xd, 1),
    field("Word 4", {{91, 30}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0xd, 1),
    field("Word 5", {{121, 30}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0xd, 1),
    field("Word 6", {{151, 30}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0xd, 1),
    field("Word 7", {{181, 30}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0xd, 1),
    field("Word 8", {{211, 30}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0xd, 1),
    field("Word 9", {{241, 30}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0xd, 1),
    field("Word 10", {{271, 30}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0xd, 1),
    field("preamble", {{1, 8}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x8, 0, 139),
    field("tlm_res", {{9, 14}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 806),
    field("isf_flag", {{23, 1}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("tpar_1", {{24, 1}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x20, 0),
    field("parity1", {{25, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x2, 0),
    field("tow_count", {{31, 17}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("alert_flag", {{48, 1}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("antispoof_flag", {{49, 1}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 1),
    field("subframe_id", {{50, 3}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 1),
    field("tpar_2", {{53, 2}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x2, 0),
    field("parity2", {{55, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x2, 0),
    field("parity3", {{85, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x2, 0),
    field("parity4", {{115, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x2, 0),
    field("parity5", {{145, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x2, 0),
    field("parity6", {{175, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x2, 0),
    field("parity7", {{205, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x2, 0),
    field("parity8", {{235, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x2, 0),
    field("parity9", {{265, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x2, 0),
    field("tpar_10", {{293, 2}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x2, 0),
    field("parity10", {{295, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x2, 0),
    field("wn", {{61, 10}}, kUnsigned, 0.0, nullptr, 2, 1, 0, 0x0, 0),
    field("cap", {{71, 2}}, kUnsigned, 0.0, nullptr, 2, 1, 0, 0x0, 0, 1),
    field("ura", {{73, 4}}, kUnsigned, 0.0, nullptr, 2, 1, 0, 0x0, 0),
    field("sv_health", {{77, 6}}, kUnsigned, 0.0, nullptr, 2, 1, 0, 0x0, 0),
    field("iodc", {{83, 2}, {211, 8}}, kUnsigned, 0.0, nullptr, 2, 1, 0, 0x0, 0),
    field("l2p", {{91, 1}}, kUnsigned, 0.0, nullptr, 2, 1, 0, 0x0, 0),
    field("word4", {{92, 23}}, kUnsigned, 0.0, nullptr, 2, 1, 0, 0x0, 0),
    field("word5", {{121, 24}}, kUnsigned, 0.0, nullptr, 2, 1, 0, 0x0, 0),
    field("word6", {{151, 24}}, kUnsigned, 0.0, nullptr, 2, 1, 0, 0x0, 0),
    field("word7", {{181, 16}}, kUnsigned, 0.0, nullptr, 2, 1, 0, 0x0, 0),
    field("tgd", {{197, 8}}, kSignedScaled, 4.65661287308e-10, "seconds", 2, 1, 0, 0x0, 0),
    field("toc", {{219, 16}}, kUnsignedScaled, pow2(4), "seconds", 2, 1, 0, 0x0, 0),
    field("af2", {{241, 8}}, kSignedScaled, 2.77555756156e-17, "seconds/second^2", 2, 1, 0, 0x0, 0),
    field("af1", {{249, 16}}, kSignedScaled, 1.13686837722e-13, "seconds/second", 2, 1, 0, 0x0, 0),
    field("af0", {{271, 22}}, kSignedScaled, 4.65661287308e-10, "seconds", 2, 1, 0, 0x0, 0),
    field("iode", {{61, 8}}, kUnsigned, 0.0, nullptr, 3, 2, 0, 0x0, 0),
    field("crs", {{69, 16}}, kSignedScaled, pow2(-5), "meters", 3, 2, 0, 0x0, 0),
    field("deltan", {{91, 16}}, kSignedScaled, 1.13686837722e-13, "semi-circles/second", 3, 2, 0, 0x0, 0),
    field("m0", {{107, 8}, {121, 24}}, kSignedScaled, 4.65661287308e-10, "semi-circles", 3, 2, 0, 0x0, 0),
    field("cuc", {{151, 16}}, kSignedScaled, 1.86264514923e-09, "radians", 3, 2, 0, 0x0, 0),
    field("e", {{167, 8}, {181, 24}}, kUnsignedScaled, 1.16415321827e-10, nullptr, 3, 2, 0, 0x0, 0),
    field("cus", {{211, 16}}, kSignedScaled, 1.86264514923e-09, "radians", 3, 2, 0, 0x0, 0),
    field("asqrt", {{227, 8}, {241, 24}}, kUnsignedScaled, 1.90734863281e-06, "meters^-2", 3, 2, 0, 0x0, 0),
    field("toe", {{271, 16}}, kUnsignedScaled, pow2(4), "seconds", 3, 2, 0, 0x0, 0),
    field("fit", {{287, 1}}, kUnsigned, 0.0, nullptr, 3, 2, 0, 0x0, 0),
    field("aodo", {{288, 5}}, kUnsigned, 0.0, nullptr, 3, 2, 0, 0x0, 0),
    field("cic", {{61, 16}}, kSignedScaled, 1.86264514923e-09, "radians", 4, 3, 0, 0x0, 0),
    field("omega0", {{77, 8}, {91, 24}}, kSignedScaled, 4.65661287308e-10, "semi-circles", 4, 3, 0, 0x0, 0),
    field("cis", {{121, 16}}, kSignedScaled, 1.86264514923e-09, "radians", 4, 3, 0, 0x0, 0),
    field("i0", {{137, 8}, {151, 24}}, kSignedScaled, 4.65661287308e-10, "semi-circles", 4, 3, 0, 0x0, 0),
    field("crc", {{181, 16}}, kSignedScaled, pow2(-5), "meters", 4, 3, 0, 0x0, 0),
    field("w", {{197, 8}, {211, 24}}, kSignedScaled, 4.65661287308e-10, "semi-circles", 4, 3, 0, 0x0, 0),
    field("omegadot", {{241, 24}}, kSignedScaled, 1.13686837722e-13, "semi-circles/second", 4, 3, 0, 0x0, 0),
    field("iode", {{271, 8}}, kUnsigned, 0.0, nullptr, 4, 3, 0, 0x0, 0),
    field("idot", {{279, 14}}, kSignedScaled, 1.13686837722e-13, "semi-circles/second", 4, 3, 0, 0x0, 0),
    field("data_id", {{61, 2}}, kUnsigned, 0.0, nullptr, 5, 4, 0, 0x0, 0, 1),
    field("sv_id", {{63, 6}}, kUnsigned, 0.0, nullptr, 5, 4, 0, 0x0, 0),
    field("reserved1", {{69, 16}}, kUnsigned, 0.0, nullptr, 6, 0, 0, 0x8, 0),
    field("reserved2", {{91, 24}}, kUnsigned, 0.0, nullptr, 6, 0, 0, 0x8, 0),
    field("reserved3", {{121, 24}}, kUnsigned, 0.0, nullptr, 6, 0, 0, 0x8, 0),
    field("reserved4", {{151, 24}}, kUnsigned, 0.0, nullptr, 6, 0, 0, 0x8, 0),
    field("reserved5", {{181, 24}}, kUnsigned, 0.0, nullptr, 6, 0, 0, 0x8, 0),
    field("reserved6", {{211, 24}}, kUnsigned, 0.0, nullptr, 6, 0, 0, 0x8, 0),
    field("reserved7", {{241, 24}}, kUnsigned, 0.0, nullptr, 6, 0, 0, 0x8, 0),
    field("reserved8", {{271, 22}}, kUnsigned, 0.0, nullptr, 6, 0, 0, 0x8, 0),
};

// Almanac health special message: "AI" and the 30 ERDs, several split over two words.
inline constexpr SubframeFieldInfo kNmctFields[] = {
    field("AI", {{69, 2}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 2),
    field("ERD1", {{71, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD2", {{77, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD3", {{83, 2}, {91, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD4", {{95, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD5", {{101, 5}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD6", {{106, 7}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD7", {{113, 2}, {121, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD8", {{125, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD9", {{131, 5}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD10", {{136, 7}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD11", {{143, 2}, {151, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD12", {{155, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD13", {{161, 5}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD14", {{166, 7}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD15", {{173, 2}, {181, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD16", {{185, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD17", {{191, 5}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD18", {{196, 7}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD19", {{203, 2}, {211, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD20", {{215, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD21", {{221, 5}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD22", {{226, 7}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD23", {{233, 2}, {241, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD24", {{245, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD25", {{251, 5}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD26", {{256, 7}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD27", {{263, 2}, {271, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD28", {{275, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD29", {{281, 5}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
    field("ERD30", {{286, 7}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 32),
};

// Ionosphere and UTC parameters.
inline constexpr SubframeFieldInfo kIonoUtcFields[] = {
    field("alfa0", {{69, 8}}, kSignedScaled, 9.31322574615e-10, "seconds", 0, 0, 0, 0x0, 0),
    field("alfa1", {{77, 8}}, kSignedScaled, 7.45058059692e-09, "seconds/semi-circle", 0, 0, 0, 0x0, 0),
    field("alfa2", {{91, 8}}, kSignedScaled, 5.96046447754e-08, "seconds/(semi-circles^2)", 0, 0, 0, 0x0, 0),
    field("alfa3", {{99, 8}}, kSignedScaled, 5.96046447754e-08, "seconds/(semi-circles^3)", 0, 0, 0, 0x0, 0),
    field("beta0", {{107, 8}}, kSignedScaled, pow2(11), "seconds", 0, 0, 0, 0x0, 0),
    field("beta1", {{121, 8}}, kSignedScaled, pow2(14), "seconds/semi-circle", 0, 0, 0, 0x0, 0),
    field("beta2", {{129, 8}}, kSignedScaled, pow2(16), "seconds/(semi-circles^2)", 0, 0, 0, 0x0, 0),
    field("beta3", {{137, 8}}, kSignedScaled, pow2(16), "seconds/(semi-circles^3)", 0, 0, 0, 0x0, 0),
    field("A1", {{151, 24}}, kSignedScaled, 8.881784197e-16, "seconds/second", 0, 0, 0, 0x0, 0),
    field("A0", {{181, 24}, {211, 8}}, kSignedScaled, 9.31322574615e-10, "seconds", 0, 0, 0, 0x0, 0),
    field("tot", {{219, 8}}, kUnsignedScaled, pow2(12), "seconds", 0, 0, 0, 0x0, 0),
    field("wnt", {{227, 8}}, kUnsigned, 0.0, "weeks", 0, 0, 0, 0x0, 0),
    field("dtls", {{241, 8}}, kSigned, 0.0, "seconds", 0, 0, 0, 0x0, 0),
    field("wnlsf", {{249, 8}}, kUnsigned, 0.0, "weeks", 0, 0, 0, 0x0, 0),
    field("dn", {{257, 8}}, kUnsigned, 0.0, "days", 0, 0, 0, 0x0, 0),
    field("dtlsf", {{271, 8}}, kSigned, 0.0, "seconds", 0, 0, 0, 0x0, 0),
    field("reserved10", {{279, 14}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x8, 0),
};

// Subframe 4 A-S configurations and health of SVs 25-32.
inline constexpr SubframeFieldInfo kConfigHealthFields[] = {
    field("asv1", {{69, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv2", {{73, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv3", {{77, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv4", {{81, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv5", {{91, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv6", {{95, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv7", {{99, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv8", {{103, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv9", {{107, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv10", {{111, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv11", {{121, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv12", {{125, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv13", {{129, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv14", {{133, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv15", {{137, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv16", {{141, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv17", {{151, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv18", {{155, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv19", {{159, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv20", {{163, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv21", {{167, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv22", {{171, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv23", {{181, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv24", {{185, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv25", {{189, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv26", {{193, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv27", {{197, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv28", {{201, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv29", {{211, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv30", {{215, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv31", {{219, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("asv32", {{223, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("reserved1", {{227, 2}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x8, 0),
    field("svh25", {{229, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh26", {{241, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh27", {{247, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh28", {{253, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh29", {{259, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh30", {{271, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh31", {{277, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh32", {{283, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("reserved2", {{289, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x8, 0),
};

// Subframe 5 data and SV ids.
inline constexpr SubframeFieldInfo kSubframe5IdFields[] = {
    field("data_id", {{61, 2}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0, 1),
    field("sv_id", {{63, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
};

// Almanac of one SV.
inline constexpr SubframeFieldInfo kAlmanacFields[] = {
    field("e", {{69, 16}}, kUnsignedScaled, 4.76837158203e-07, nullptr, 0, 0, 0, 0x0, 0),
    field("toa", {{91, 8}}, kUnsignedScaled, pow2(12), "seconds", 0, 0, 0, 0x0, 0),
    field("delta_i", {{99, 16}}, kSignedScaled, 1.90734863281e-06, "semi-circles", 0, 0, 0, 0x0, 0),
    field("omegadot", {{121, 16}}, kSignedScaled, 3.63797880709e-12, "semi-circles/second", 0, 0, 0, 0x0, 0),
    field("sv_health", {{137, 8}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("sqrta", {{151, 24}}, kUnsignedScaled, pow2(-11), "meters^-2", 0, 0, 0, 0x0, 0),
    field("omega0", {{181, 24}}, kSignedScaled, 1.19209289551e-07, "semi-circles", 0, 0, 0, 0x0, 0),
    field("w", {{211, 24}}, kSignedScaled, 1.19209289551e-07, "semi-circles", 0, 0, 0, 0x0, 0),
    field("m0", {{241, 24}}, kSignedScaled, 1.19209289551e-07, "semi-circles", 0, 0, 0, 0x0, 0),
    field("af0", {{271, 8}, {290, 3}}, kSignedScaled, 9.53674316406e-07, "seconds", 0, 0, 0, 0x0, 0),
    field("af1", {{279, 11}}, kSignedScaled, 3.63797880709e-12, "seconds/second", 0, 0, 0, 0x0, 0),
};

// Almanac reference time, week and health of SVs 1-24.
inline constexpr SubframeFieldInfo kAlmanacHealthFields[] = {
    field("toa", {{69, 8}}, kUnsignedScaled, pow2(12), "seconds", 0, 0, 0, 0x0, 0),
    field("wna", {{77, 8}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh1", {{91, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh2", {{97, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh3", {{103, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh4", {{109, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh5", {{121, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh6", {{127, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh7", {{133, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh8", {{139, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh9", {{151, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh10", {{157, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh11", {{163, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh12", {{169, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh13", {{181, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh14", {{187, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh15", {{193, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh16", {{199, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh17", {{211, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh18", {{217, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh19", {{223, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh20", {{229, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh21", {{241, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh22", {{247, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh23", {{253, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("svh24", {{259, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 0),
    field("reserved10", {{271, 22}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x8, 0),
};

// clang-format on

// Where a block's entries apply: layout id, subframe and page of the selection rule.
struct Placement {
    std::int32_t layoutId;
    std::int32_t subframe;
    std::int32_t page;
};

template <std::size_t N>
struct PlacedBlock {
    const SubframeFieldInfo (&fields)[N];
    Placement at;
};

template <std::size_t N>
constexpr PlacedBlock<N> place(const SubframeFieldInfo (&fields)[N], Placement at) {
    return {fields, at};
}

// The blocks one after another as one table; a placed block's entries get its placement.
template <std::size_t... N>
constexpr std::array<SubframeFieldInfo, (N + ...)> assemble(const PlacedBlock<N>&... blocks) {
    std::array<SubframeFieldInfo, (N + ...)> table{};
    std::size_t next = 0;
    auto copy = [&](const auto& block) {
        for (const SubframeFieldInfo& f : block.fields) {
            SubframeFieldInfo& entry = table[next++];
            entry = f;
            if (block.at.layoutId != 0) {
                entry.layoutId = block.at.layoutId;
                entry.subframe = block.at.subframe;
                entry.page = block.at.page;
            }
        }
    };
    (copy(blocks), ...);
    return table;
}

// The common entries keep their own selection.
inline constexpr Placement kAsDeclared{0, 0, 0};

}  // namespace ZeltNavMsg::Legacy::LNav

#endif
