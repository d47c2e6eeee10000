#include "legacy/SubframeCoderBeidouNav.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstring>
#include "bits/BigEndian.h"

namespace ZeltNavMsg::Legacy {

namespace {

constexpr std::uint32_t kInfoMask = 0x7FFU;
constexpr std::uint32_t kCodewordMask = 0x7FFFU;
constexpr int kWords = 10;
constexpr int kUncodedBits = 15;  // preamble and the 4 bits after it

// 30 bits starting at zero-based bit `index`, first bit most significant. Every word
// of a subframe lies within the 38 data bytes, five bytes at most.
std::uint32_t readWord(const std::uint8_t* data, int index) noexcept {
    const int byte = index / 8;
    std::uint64_t bits = 0;
    for (int b = 0; b < 5 && byte + b < subframe_t::kDataBytes; ++b) {
        bits |= std::uint64_t{data[byte + b]} << (32 - 8 * b);
    }
    return static_cast<std::uint32_t>(bits >> (10 - index % 8)) & 0x3FFFFFFFU;
}

constexpr std::int32_t wordStart(int word) {
    return 30 * word + 1;  // bits are counted from 1
}

// BCH(15,11) parity: a 4-bit register divides by x^4 + x + 1, information bits most
// significant first.
constexpr std::uint32_t codeword(std::uint32_t info) {
    std::uint32_t r = 0;
    for (int i = 10; i >= 0; --i) {
        const std::uint32_t b = (info >> i) & 1U;
        const std::uint32_t top = (r >> 3) & 1U;
        r <<= 1;
        if (top != b) {
            r ^= 3U;
        }
    }
    return ((info & kInfoMask) << 4) | (r & 15U);
}

// One clock of the syndrome registers (state = r3 r2 r1 r0, r3 most significant):
// d = r3; r3 = r2; r2 = r1; r1 = r0 | d; r0 = bit | d.
constexpr std::uint32_t syndromeStep(std::uint32_t state, std::uint32_t bit) {
    const std::uint32_t r0 = state & 1U;
    const std::uint32_t r1 = (state >> 1) & 1U;
    const std::uint32_t r2 = (state >> 2) & 1U;
    const std::uint32_t d = (state >> 3) & 1U;
    return (r2 << 3) | (r1 << 2) | ((r0 | d) << 1) | (bit | d);
}

// The registers clocked from zero over the low eight codeword bits, least significant
// first, and then from each state over the high seven: two lookups cover 15 bits.
constexpr auto kSyndromeLow = [] {
    std::array<std::uint8_t, 256> table{};
    for (std::uint32_t bits = 0; bits < 256; ++bits) {
        std::uint32_t s = 0;
        for (int i = 0; i < 8; ++i) {
            s = syndromeStep(s, (bits >> i) & 1U);
        }
        table[bits] = static_cast<std::uint8_t>(s);
    }
    return table;
}();
constexpr auto kSyndromeHigh = [] {
    std::array<std::array<std::uint8_t, 128>, 16> table{};
    for (std::uint32_t state = 0; state < 16; ++state) {
        for (std::uint32_t bits = 0; bits < 128; ++bits) {
            std::uint32_t s = state;
            for (int i = 0; i < 7; ++i) {
                s = syndromeStep(s, (bits >> i) & 1U);
            }
            table[state][bits] = static_cast<std::uint8_t>(s);
        }
    }
    return table;
}();

// Error pattern by syndrome; the bit set is (pattern - 1) mod 32.
constexpr std::uint32_t kErrorPattern[16] = {
    0x0000, 0x0001, 0x0002, 0x0010, 0x0004, 0x0100, 0x0020, 0x0400,
    0x0008, 0x4000, 0x0200, 0x0080, 0x0040, 0x2000, 0x0800, 0x1000,
};

// The bit each syndrome sets, or none.
constexpr auto kCorrection = [] {
    std::array<std::uint32_t, 16> table{};
    for (std::size_t s = 0; s != table.size(); ++s) {
        table[s] = kErrorPattern[s] != 0 ? 1U << ((kErrorPattern[s] - 1U) % 32U) : 0U;
    }
    return table;
}();

// For each byte, its bits at even positions (6, 4, 2, 0) in the low half and those at
// odd positions (7, 5, 3, 1) in the high half, each as a nibble in the same order.
constexpr auto kSplitByte = [] {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t b = 0; b < 256; ++b) {
        std::uint32_t even = 0;
        std::uint32_t odd = 0;
        for (int i = 0; i < 4; ++i) {
            even |= ((b >> (2 * i)) & 1U) << i;
            odd |= ((b >> (2 * i + 1)) & 1U) << i;
        }
        table[b] = even | (odd << 16);
    }
    return table;
}();

// The low 16 bits of `x` spread to bits 0, 2, 4, ...
constexpr std::uint32_t spreadBits(std::uint32_t x) {
    x &= 0x0000FFFFU;
    x = (x | (x << 8)) & 0x00FF00FFU;
    x = (x | (x << 4)) & 0x0F0F0F0FU;
    x = (x | (x << 2)) & 0x33333333U;
    x = (x | (x << 1)) & 0x55555555U;
    return x;
}

}  // namespace

std::uint16_t SubframeCoderBeidouNav::BchDecode(std::uint16_t codeword) noexcept {
    const std::uint32_t c = codeword;
    const std::uint32_t s = kSyndromeHigh[kSyndromeLow[c & 0xFFU]][(c >> 8) & 0x7FU];
    return static_cast<std::uint16_t>(((c | kCorrection[s]) >> 4) & kInfoMask);
}

std::uint16_t SubframeCoderBeidouNav::BchEncode(std::uint16_t info) noexcept {
    // The parity of every information word, from the register above.
    static constexpr auto kParity = [] {
        std::array<std::uint8_t, 2048> table{};
        for (std::size_t i = 0; i < table.size(); ++i) {
            table[i] = static_cast<std::uint8_t>(codeword(static_cast<std::uint32_t>(i)) & 15U);
        }
        return table;
    }();
    const std::uint32_t bits = info & kInfoMask;
    return static_cast<std::uint16_t>((bits << 4) | kParity[bits]);
}

SubframeCoderBeidouNav::CodewordPair SubframeCoderBeidouNav::DeinterleaveWord(
    std::uint32_t word) noexcept {
    // Byte by byte: the first codeword takes the odd bit positions, the second the even.
    const std::uint32_t split = kSplitByte[word & 0xFFU] | (kSplitByte[(word >> 8) & 0xFFU] << 4) |
                                (kSplitByte[(word >> 16) & 0xFFU] << 8) |
                                (kSplitByte[word >> 24] << 12);
    return {static_cast<std::uint16_t>(split >> 16), static_cast<std::uint16_t>(split & 0xFFFFU)};
}

std::uint32_t SubframeCoderBeidouNav::InterleaveWord(std::uint32_t first,
                                                     std::uint32_t second) noexcept {
    return (spreadBits(first & kCodewordMask) << 1) | spreadBits(second & kCodewordMask);
}

bool SubframeCoderBeidouNav::Encode(subframe_t& sf) const {
    // Built in a cleared copy, so bits past word 10 and words that do not fit the
    // record come out zero; it starts with the uncoded bits of word 1.
    subframe_t coded = sf;
    std::memset(coded.data, 0, sizeof coded.data);
    coded.data[0] = sf.data[0];
    coded.data[1] = static_cast<std::uint8_t>(sf.data[1] & 0xFEU);

    const std::uint32_t first = readWord(sf.data, 0);
    const std::uint32_t uncoded = first >> kUncodedBits;
    bool failed = WriteWord(coded, wordStart(0),
                            (uncoded << kUncodedBits) | codeword((first >> 4) & kInfoMask));
    for (int w = 1; w < kWords; ++w) {
        const std::uint32_t word = readWord(sf.data, wordStart(w) - 1);
        const std::uint32_t a = codeword(word >> 19);
        const std::uint32_t b = codeword(word >> 8);
        failed = WriteWord(coded, wordStart(w), InterleaveWord(a, b)) || failed;
    }
    std::memcpy(sf.data, coded.data, sizeof sf.data);
    return failed;
}

namespace {

// Received word 1 -> decoded: its 15 uncoded bits, the 11 information bits of its
// codeword, 4 zero bits.
inline std::uint32_t decodeFirstWord(std::uint32_t received) noexcept {
    const std::uint32_t info =
        SubframeCoderBeidouNav::BchDecode(static_cast<std::uint16_t>(received & kCodewordMask));
    return (((received >> kUncodedBits) << 11) | info) << 4;
}

// Received word 2-10 -> decoded: the information bits of its two codewords, 8 zero bits.
inline std::uint32_t decodeWord(std::uint32_t received) noexcept {
    const SubframeCoderBeidouNav::CodewordPair pair =
        SubframeCoderBeidouNav::DeinterleaveWord(received);
    return ((static_cast<std::uint32_t>(SubframeCoderBeidouNav::BchDecode(pair.first)) << 11) |
            SubframeCoderBeidouNav::BchDecode(pair.second))
           << 8;
}

}  // namespace

bool SubframeCoderBeidouNav::Decode(subframe_t& sf) const {
    if (sf.bitCount >= 300) {
        // Every word fits: read the ten words from a padded copy, OR the decoded ones
        // into a cleared subframe and copy it back, bits past word 10 as they were.
        std::uint8_t in[48] = {};
        std::uint8_t out[48] = {};
        std::memcpy(in, sf.data, sizeof sf.data);
        for (int w = 0; w < kWords; ++w) {
            const int at = 30 * w;
            const std::uint32_t word =
                static_cast<std::uint32_t>(Bits::loadBigEndian64(in + at / 8) >> (34 - at % 8)) &
                0x3FFFFFFFU;
            const std::uint32_t decoded = w == 0 ? decodeFirstWord(word) : decodeWord(word);
            Bits::storeBigEndian64(out + at / 8, Bits::loadBigEndian64(out + at / 8) |
                                                     (std::uint64_t{decoded} << (34 - at % 8)));
        }
        out[37] = static_cast<std::uint8_t>((out[37] & 0xF0U) | (sf.data[37] & 0x0FU));
        std::memcpy(sf.data, out, sizeof sf.data);
        return false;
    }
    bool failed = WriteWord(sf, wordStart(0), decodeFirstWord(readWord(sf.data, 0)));
    for (int w = 1; w < kWords; ++w) {
        failed =
            WriteWord(sf, wordStart(w), decodeWord(readWord(sf.data, wordStart(w) - 1))) || failed;
    }
    return failed;
}

std::uint32_t SubframeCoderBeidouNav::DecodedWord(const subframe_t& sf,
                                                  std::int32_t word) const noexcept {
    const std::uint32_t received = readWord(sf.data, wordStart(word) - 1);
    return word == 0 ? decodeFirstWord(received) : decodeWord(received);
}

}  // namespace ZeltNavMsg::Legacy
