#ifndef ZELTNAVMSG_TESTS_SUPPORT_SUPPORTEDFORMATS_H
#define ZELTNAVMSG_TESTS_SUPPORT_SUPPORTEDFORMATS_H

#include <cstdint>
#include <string_view>

#include "zeltnavmsg/NavMessageDecoder.h"

// The formats that Decode supports, each with one real broadcast message. The
// bad-input tests, the many-threads test, the fuzz target and its seeds, and the
// static-initialiser host all walk this table: covering a format that has landed is
// one row here. Header-only and free of GoogleTest, so that the fuzz target and the
// host executable can use it too.

namespace ZeltNavMsg::Testing {

// How Decode takes a format's bits.
enum class Road {
    Subframe,  // 300-bit legacy subframe: at most 38 bytes, words decoded by a word coder
    Frame,     // definition tree of a fixed frame length: shorter input is zero-filled,
               // bits beyond the frame are ignored
};

struct SupportedFormat {
    MessageFormat format;
    std::string_view name;  // as in tests/data/real-data and in test names
    Road road;
    std::int32_t frameBits;  // 300 for subframes
    std::int32_t subframe;   // of the sample
    std::int32_t page;
    std::string_view sampleHex;     // a real broadcast, at least frameBits long
    std::string_view realDataFile;  // more messages of the format, in tests/data/real-data
};

// clang-format off
inline constexpr SupportedFormat kSupportedFormats[] = {
    {MessageFormat::GpsLNav, "GpsLNav", Road::Subframe, 300, 1, 0,
     "8b0d3487fffd614d351000091b1de78f322ebaf701369182b0dd6d7f8f6800ffd153eafc2f0", "gps_lnav.tsv"},
    {MessageFormat::QzssLNav, "QzssLNav", Road::Subframe, 300, 1, 0,
     "8b02a892a30216411a1037dfffffd5ffffff580000029ffff0bf205fdc4bffffdbb4630bc3c", "qzss_lnav.tsv"},
    {MessageFormat::BeidouD1, "BeidouD1", Road::Subframe, 300, 1, 0,
     "e2405504a000008439320d39045574de204076bf2d1a4f508aa44a8440a1fff20128e76035b", "beidou_d1.tsv"},
    {MessageFormat::BeidouD2, "BeidouD2", Road::Subframe, 300, 1, 1,
     "e2405504a10001d444391ea5784020a82ce7b19999965666665959999965666665959999965", "beidou_d2.tsv"},
    {MessageFormat::GpsCNav2, "GpsCNav2", Road::Frame, 883, 0, 1,
     "002004c217fb2480e4c4a0030fb96c5bff5c5a7829861800c5de2d7c35bc74fb8f96b51390a0a840e3ffa3400500088007c8401486c0804400667e2e276c41802bb001ed2ff2ffd0021f2264020201c00220024f6008013c4b8905817fff15817efeffb3e3be6bf358000007dd28a", "gps_cnav2.tsv"},
    {MessageFormat::BeidouCNav1, "BeidouCNav1", Road::Frame, 878, 0, 3,
     "b1b8839460b8bfa4fff9faefffd4b190d00009b9d2f2362401d7ddd644d348f366d708901334fbebfafa87c950027ffdeffed01013116004e47ff0dfd23870febfd8a1001f61febfb601ccdea830781fa40365dc04d8c9640173400825957cefb241c8eadfe1df35400002d3bf84", "beidou_cnav1.tsv"},
    {MessageFormat::BeidouCNav2, "BeidouCNav2", Road::Frame, 288, 0, 40,
     "b28bfa8c1e01eabdfb790713c17026a514b4557ec36bff96f4f000800000000000b4481a", "beidou_cnav2.tsv"},
    {MessageFormat::Irnss, "Irnss", Road::Frame, 292, 2, 0,
     "8b4e850ab83a7b65d71803d9c6072bacf53e45452b5203fc305fff52e14afc8d71dbfed80", "irnss.tsv"},
};
// clang-format on

[[nodiscard]] constexpr const SupportedFormat* findSupported(MessageFormat format) noexcept {
    for (const SupportedFormat& row : kSupportedFormats) {
        if (row.format == format) {
            return &row;
        }
    }
    return nullptr;
}

// A subframe record holds 38 bytes, 76 hex digits.
inline constexpr std::size_t kMaxSubframeDigits = 76;

}  // namespace ZeltNavMsg::Testing

#endif
