#ifndef ZELTNAVMSG_LOGS_BYTESCAN_H
#define ZELTNAVMSG_LOGS_BYTESCAN_H

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

// The two loops that see every byte of a log: the search for sync bytes between
// frames, and the UBX checksum over every frame of any class. Each has a portable form
// and, where the target has SSE2 (every x86-64), one that takes 16 or 32 bytes a step.

namespace ZeltNavMsg::Logs {

constexpr std::uint8_t kUbxSync1 = 0xB5;
constexpr std::uint8_t kUbxSync2 = 0x62;
constexpr std::uint8_t kSbfSync1 = 0x24;  // '$'
constexpr std::uint8_t kSbfSync2 = 0x40;  // '@'

// The UBX checksum of n bytes x_0 ... x_(n-1): CK_A = sum of x_i, CK_B = sum of
// (n - i) x_i, both mod 256. The sums are kept in 32 bits, whose wrap-around is exact
// mod 256; compare their low bytes.
struct Fletcher8 {
    std::uint32_t a = 0;
    std::uint32_t b = 0;
};

// One byte at a time (a += x, b += a), continuing from `sums`.
inline Fletcher8 fletcher8Portable(const std::uint8_t* p, std::size_t n,
                                   Fletcher8 sums = {}) noexcept {
    std::uint32_t a = sums.a;
    std::uint32_t b = sums.b;
    for (std::size_t i = 0; i < n; ++i) {
        a += p[i];
        b += a;
    }
    return {a, b};
}

#if defined(__SSE2__)
namespace Detail {
// From byte r on, 16 bytes that keep the last r lanes of a block.
inline constexpr std::array<std::uint8_t, 32> kLastLanes = [] {
    std::array<std::uint8_t, 32> lanes{};
    for (std::size_t i = 16; i < lanes.size(); ++i) {
        lanes[i] = 0xFF;
    }
    return lanes;
}();

// The sum of the 16 bytes of `v`.
inline std::uint32_t byteSum(__m128i v) noexcept {
    const __m128i halves = _mm_sad_epu8(v, _mm_setzero_si128());
    return static_cast<std::uint32_t>(
        _mm_cvtsi128_si32(_mm_add_epi32(halves, _mm_unpackhi_epi64(halves, halves))));
}

// The sum of (16 - j) v_j over the 16 bytes v_0 ... v_15 of `v`.
inline std::uint32_t weightedByteSum(__m128i v) noexcept {
    const __m128i zero = _mm_setzero_si128();
    __m128i sums = _mm_add_epi32(
        _mm_madd_epi16(_mm_unpacklo_epi8(v, zero), _mm_setr_epi16(16, 15, 14, 13, 12, 11, 10, 9)),
        _mm_madd_epi16(_mm_unpackhi_epi8(v, zero), _mm_setr_epi16(8, 7, 6, 5, 4, 3, 2, 1)));
    sums = _mm_add_epi32(sums, _mm_shuffle_epi32(sums, 0x4E));  // lanes 2 3 0 1
    sums = _mm_add_epi32(sums, _mm_shuffle_epi32(sums, 0xB1));  // lanes 1 0 3 2
    return static_cast<std::uint32_t>(_mm_cvtsi128_si32(sums));
}
}  // namespace Detail
#endif

// Sixteen bytes a step. Over blocks x_(16k+j), k < m: CK_A is the sum of the columns
// P_j = sum over k of x_(16k+j), and CK_B = 16 T + sum of (16 - j) P_j, where T sums,
// over the blocks, the bytes ahead of each. Only mod 256 matters, so the columns and
// the running T_j live in byte lanes that wrap on their own: two byte additions a block.
// The last n mod 16 bytes go in as one more block led by zeros; zeros inserted there
// add nothing to CK_A and CK_A so far to CK_B each, which is then taken off.
inline Fletcher8 fletcher8(const std::uint8_t* p, std::size_t n) noexcept {
#if defined(__SSE2__)
    constexpr std::size_t kBlock = 16;
    if (n < kBlock) {
        return fletcher8Portable(p, n);
    }
    const std::size_t blocks = n / kBlock;
    const auto rest = static_cast<std::uint32_t>(n % kBlock);
    __m128i column = _mm_setzero_si128();
    __m128i ahead = _mm_setzero_si128();
    std::size_t k = 0;
    for (; k + 2 <= blocks; k += 2) {  // two blocks: ahead += 2 column + x0
        __m128i x0;
        __m128i x1;
        std::memcpy(&x0, p + kBlock * k, sizeof x0);
        std::memcpy(&x1, p + kBlock * k + kBlock, sizeof x1);
        ahead = _mm_add_epi8(_mm_add_epi8(ahead, x0), _mm_add_epi8(column, column));
        column = _mm_add_epi8(column, _mm_add_epi8(x0, x1));
    }
    if (k < blocks) {
        __m128i x;
        std::memcpy(&x, p + kBlock * k, sizeof x);
        ahead = _mm_add_epi8(ahead, column);
        column = _mm_add_epi8(column, x);
    }
    std::uint32_t inserted = 0;
    if (rest != 0) {
        inserted = (16 - rest) * Detail::byteSum(column);
        __m128i x;
        __m128i last;  // lanes 16 - rest ... 15
        std::memcpy(&x, p + n - kBlock, sizeof x);
        std::memcpy(&last, Detail::kLastLanes.data() + rest, sizeof last);
        ahead = _mm_add_epi8(ahead, column);
        column = _mm_add_epi8(column, _mm_and_si128(x, last));
    }
    return {Detail::byteSum(column),
            16 * Detail::byteSum(ahead) + Detail::weightedByteSum(column) - inserted};
#else
    return fletcher8Portable(p, n);
#endif
}

// Whether data[p] begins a sync pair, given that data[p + 1] exists.
inline bool isSyncPair(const std::uint8_t* data, std::size_t p) noexcept {
    return (data[p] == kUbxSync1 && data[p + 1] == kUbxSync2) ||
           (data[p] == kSbfSync1 && data[p + 1] == kSbfSync2);
}

inline bool isSyncStart(std::uint8_t byte) noexcept {
    return byte == kUbxSync1 || byte == kSbfSync1;
}

// Where a frame may begin at or after `p`: the first sync pair, or else the last byte
// before `end` when it is a first sync byte (its partner is still to come); `end`
// when neither.
//
// Portable form: eight bytes a step where none of them is a first sync byte (exact:
// a zero byte of the XOR borrows into its own high bit only).
inline std::size_t findSyncPortable(const std::uint8_t* data, std::size_t p,
                                    std::size_t end) noexcept {
    constexpr std::uint64_t kOnes = 0x0101010101010101U;
    constexpr std::uint64_t kHighBits = 0x8080808080808080U;
    const auto has = [](std::uint64_t word, std::uint8_t byte) {
        const std::uint64_t x = word ^ (kOnes * byte);
        return ((x - kOnes) & ~x & kHighBits) != 0;
    };
    for (; p < end; ++p) {
        if (end - p > 8) {
            std::uint64_t word = 0;
            std::memcpy(&word, data + p, sizeof word);
            if (!has(word, kUbxSync1) && !has(word, kSbfSync1)) {
                p += 7;
                continue;
            }
        }
        if (isSyncStart(data[p]) && (p + 1 == end || isSyncPair(data, p))) {
            return p;
        }
    }
    return end;
}

// SSE2 form: 32 bytes a step, each first sync byte then checked for its partner.
inline std::size_t findSync(const std::uint8_t* data, std::size_t p, std::size_t end) noexcept {
    if (end - p >= 2 && isSyncPair(data, p)) {  // frames mostly follow each other
        return p;
    }
#if defined(__SSE2__)
    constexpr std::size_t kStep = 32;
    const __m128i ubx = _mm_set1_epi8(static_cast<char>(kUbxSync1));
    const __m128i sbf = _mm_set1_epi8(static_cast<char>(kSbfSync1));
    const auto starts = [&](const std::uint8_t* at) {
        __m128i x;
        std::memcpy(&x, at, sizeof x);
        return static_cast<std::uint32_t>(
            _mm_movemask_epi8(_mm_or_si128(_mm_cmpeq_epi8(x, ubx), _mm_cmpeq_epi8(x, sbf))));
    };
    for (; end - p >= kStep; p += kStep) {
        for (std::uint32_t found = starts(data + p) | (starts(data + p + 16) << 16); found != 0;
             found &= found - 1) {
            const std::size_t at = p + static_cast<std::size_t>(std::countr_zero(found));
            if (at + 1 == end || isSyncPair(data, at)) {
                return at;
            }
        }
    }
#endif
    return findSyncPortable(data, p, end);
}

}  // namespace ZeltNavMsg::Logs

#endif
