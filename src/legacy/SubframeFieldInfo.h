#ifndef ZELTNAVMSG_LEGACY_SUBFRAMEFIELDINFO_H
#define ZELTNAVMSG_LEGACY_SUBFRAMEFIELDINFO_H

#include <cstdint>
#include <initializer_list>

namespace ZeltNavMsg::Legacy {

// How an entry's raw bits become the printed value.
enum ValueType : std::int32_t {
    kUnsigned = 0,        // "%lu"
    kSigned = 1,          // two's complement, "%ld"
    kUnsignedScaled = 2,  // unsigned x scale, "%g"
    kSignedScaled = 3,    // two's complement x scale, "%g"
};

// Entry flags.
enum FieldFlags : std::uint32_t {
    kWholeWord = 0x01,     // "Word 1" ... "Word 10"; no effect on the text
    kNeverPrinted = 0x02,  // parity and parity-adjustment bits
    kRawPass = 0x04,       // printed from the record as received, before decoding
    kValueOnlyIfOneBit = 0x08,
    kNoHex = 0x10,
    kReserved = 0x20,       // reserved and spare bits, never printed
    kShowCharacter = 0x40,  // text characters of special messages
};

// One field of a legacy subframe table. Bits are counted from 1; a field of several
// segments is joined most significant segment first.
struct SubframeFieldInfo {
    static constexpr int kMaxSegments = 8;

    const char* name = nullptr;
    std::int32_t segmentCount = 0;
    std::int32_t segmentStart[kMaxSegments] = {};
    std::int32_t segmentLength[kMaxSegments] = {};
    std::int32_t defaultValue = 0;  // what an encoder puts in the field
    std::int32_t valueType = kUnsigned;
    const char* description = nullptr;
    std::int32_t layoutId = 0;  // 0 = every layout
    std::int32_t subframe = 0;  // 0 = any
    std::int32_t page = 0;      // 0 = none
    const char* units = nullptr;
    double scale = 0.0;
    std::uint32_t flags = 0;
    std::int32_t group = 0;  // a change of group between printed lines leaves an empty line
};

struct Segment {
    std::int32_t first;
    std::int32_t length;
};

// Builds an entry in the column order of the tables:
// name, bits, kind, scale, units, layout, subframe, page, flags, group, default.
constexpr SubframeFieldInfo field(const char* name, std::initializer_list<Segment> bits,
                                  ValueType kind, double scale, const char* units,
                                  std::int32_t layoutId, std::int32_t subframe, std::int32_t page,
                                  std::uint32_t flags, std::int32_t group,
                                  std::int32_t defaultValue = 0) {
    SubframeFieldInfo info;
    info.name = name;
    for (const Segment& s : bits) {
        info.segmentStart[info.segmentCount] = s.first;
        info.segmentLength[info.segmentCount] = s.length;
        ++info.segmentCount;
    }
    info.defaultValue = defaultValue;
    info.valueType = kind;
    info.layoutId = layoutId;
    info.subframe = subframe;
    info.page = page;
    info.units = units;
    info.scale = scale;
    info.flags = flags;
    info.group = group;
    return info;
}

// 2^k, exact, for the scales the tables write as powers of two.
constexpr double pow2(int k) {
    double v = 1.0;
    for (; k > 0; --k) {
        v *= 2.0;
    }
    for (; k < 0; ++k) {
        v /= 2.0;
    }
    return v;
}

}  // namespace ZeltNavMsg::Legacy

#endif
