#include "logs/RecordBits.h"

#include <bit>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "checks/Crc.h"
#include "legacy/SubframeCoderBeidouNav.h"

namespace ZeltNavMsg::Logs {

namespace {

constexpr std::uint32_t kWordMask = 0x3FFFFFFFU;

std::uint32_t bitAt(const std::uint8_t* data, std::size_t index) noexcept {
    return (data[index / 8] >> (7 - index % 8)) & 1U;
}

// Whether the `n` bits from `first` follow the 8-tap recurrence of the B1C SOH and the
// L1C TOI codes (x^8 + x^7 + x^4 + x^3 + x^2 + x + 1), after XOR with `flip`.
bool followsSohRecurrence(const std::uint8_t* data, std::size_t first, std::uint32_t flip) {
    constexpr std::size_t kLength = 51;
    std::array<std::uint32_t, kLength> u{};
    for (std::size_t t = 0; t < kLength; ++t) {
        u[t] = bitAt(data, first + t) ^ flip;
    }
    for (std::size_t t = 0; t + 8 < kLength; ++t) {
        if (u[t + 8] != (u[t] ^ u[t + 1] ^ u[t + 2] ^ u[t + 3] ^ u[t + 4] ^ u[t + 7])) {
            return false;
        }
    }
    return true;
}

// The low `count` bits of `value` (count <= 32) at bit `first` of `out`, whose bytes
// there are zero so far: OR-ed into the five bytes at most that they reach.
void orBits(std::uint8_t* out, std::size_t first, std::uint32_t value, unsigned count) noexcept {
    const auto offset = static_cast<unsigned>(first % 8);
    const std::uint64_t bits = (std::uint64_t{value} & ((std::uint64_t{1} << count) - 1))
                               << (64 - count - offset);
    std::uint8_t* const p = out + first / 8;
    for (unsigned i = 0; i < (offset + count + 7) / 8; ++i) {
        p[i] = static_cast<std::uint8_t>(p[i] | (bits >> (56 - 8 * i)));
    }
}

void storeBigEndian32(std::uint8_t* p, std::uint32_t value) noexcept {
    if constexpr (std::endian::native == std::endian::little) {
        // Written so that compilers make it one byte swap.
        value =
            (value >> 24) | ((value >> 8) & 0xFF00U) | ((value << 8) & 0xFF0000U) | (value << 24);
    }
    std::memcpy(p, &value, sizeof value);
}

// Ten 30-bit words (bits 31-30 ignored) after the bits so far, 32 bits a store.
void appendWords30(const std::array<std::uint32_t, 10>& words, MessageBits& out) noexcept {
    constexpr std::size_t kBits = 300;
    if (out.bitCount % 8 != 0 || out.bitCount + kBits > 8 * MessageBits::kBytes) {
        for (const std::uint32_t word : words) {
            out.append(word & kWordMask, 30);
        }
        return;
    }
    std::uint8_t* p = out.bytes.data() + out.bitCount / 8;
    std::uint64_t pending = 0;  // bits not yet stored, from bit 63 down
    unsigned held = 0;          // their count, under 32 between words
    for (const std::uint32_t word : words) {
        pending |= std::uint64_t{word & kWordMask} << (34 - held);
        held += 30;
        if (held >= 32) {
            storeBigEndian32(p, static_cast<std::uint32_t>(pending >> 32));
            p += 4;
            pending <<= 32;
            held -= 32;
        }
    }
    for (; held > 0; held = held > 8 ? held - 8 : 0) {
        *p++ = static_cast<std::uint8_t>(pending >> 56);
        pending <<= 8;
    }
    out.bitCount += kBits;
}

// Two lower-case hex digits for each byte value.
constexpr auto kHexPairs = [] {
    constexpr char kDigits[] = "0123456789abcdef";
    std::array<char, 512> table{};
    for (std::size_t byte = 0; byte < 256; ++byte) {
        table[2 * byte] = kDigits[byte >> 4];
        table[2 * byte + 1] = kDigits[byte & 15U];
    }
    return table;
}();

}  // namespace

void MessageBits::append(std::uint32_t value, unsigned count) noexcept {
    // Bits past the last byte are dropped, the first of them kept.
    const std::size_t room = 8 * kBytes - bitCount;
    if (count > room) {
        value >>= count - room;
        count = static_cast<unsigned>(room);
    }
    if (count == 0) {
        return;
    }
    orBits(bytes.data(), bitCount, value, count);
    bitCount += count;
}

void MessageBits::appendBits(const std::uint8_t* src, std::size_t first,
                             std::size_t count) noexcept {
    for (; count >= 32; count -= 32, first += 32) {
        append(readBits(src, first, 32), 32);
    }
    append(readBits(src, first, static_cast<unsigned>(count)), static_cast<unsigned>(count));
}

std::uint32_t readBits(const std::uint8_t* data, std::size_t first, unsigned count) noexcept {
    if (count == 0) {
        return 0;
    }
    const std::size_t last = first + count - 1;
    std::uint64_t window = 0;  // the five bytes at most that hold the bits
    for (std::size_t i = first / 8; i <= last / 8; ++i) {
        window = (window << 8) | data[i];
    }
    return static_cast<std::uint32_t>((window >> (7 - last % 8)) &
                                      ((std::uint64_t{1} << count) - 1));
}

void wordsToBits(const std::uint8_t* p, std::size_t words, std::uint8_t* out) noexcept {
    for (std::size_t w = 0; w < words; ++w) {
        storeBigEndian32(out + 4 * w, le32(p + 4 * w));
    }
}

void appendLNavWords(const std::array<std::uint32_t, 10>& stored, MessageBits& out) noexcept {
    // Word 10 of every subframe ends in two zero bits, so word 1 is stored as sent.
    std::array<std::uint32_t, 10> sent{};
    std::uint32_t previousD30 = 0;
    for (std::size_t w = 0; w < sent.size(); ++w) {
        sent[w] = (stored[w] & kWordMask) ^ (previousD30 != 0 ? kWordMask : 0U);
        previousD30 = sent[w] & 1U;
    }
    appendWords30(sent, out);
}

void appendBeidouWords(const std::array<std::uint32_t, 10>& stored, MessageBits& out) noexcept {
    std::array<std::uint32_t, 10> sent{};
    sent[0] = stored[0];
    for (std::size_t w = 1; w < stored.size(); ++w) {
        const std::uint32_t word = stored[w] & kWordMask;
        const std::uint32_t first = (((word >> 19) & 0x7FFU) << 4) | ((word >> 4) & 15U);
        const std::uint32_t second = (((word >> 8) & 0x7FFU) << 4) | (word & 15U);
        sent[w] = Legacy::SubframeCoderBeidouNav::InterleaveWord(first, second);
    }
    appendWords30(sent, out);
}

bool crc24Passes(const std::uint8_t* data, std::size_t first, std::size_t count) noexcept {
    return Checks::Crc24Q::ofBits(data, first, count) == readBits(data, first + count, 24);
}

bool b1cSubframe1Passes(const std::uint8_t* symbols) noexcept {
    // PRN: BCH(21,6), the recurrence of x^6 + x^4 + x^2 + x + 1.
    for (std::size_t t = 0; t + 6 < 21; ++t) {
        const std::uint32_t expected = bitAt(symbols, t) ^ bitAt(symbols, t + 1) ^
                                       bitAt(symbols, t + 2) ^ bitAt(symbols, t + 4);
        if (bitAt(symbols, t + 6) != expected) {
            return false;
        }
    }
    return followsSohRecurrence(symbols, 21, 0);
}

std::int32_t l1cToi(const std::uint8_t* symbols, std::size_t first) noexcept {
    const std::uint32_t s0 = bitAt(symbols, first);
    if (!followsSohRecurrence(symbols, first + 1, s0)) {
        return -1;
    }
    const std::uint32_t low = readBits(symbols, first + 1, 8) ^ (s0 != 0 ? 0xFFU : 0U);
    return static_cast<std::int32_t>((s0 << 8) | low);
}

std::size_t writeHex(const MessageBits& bits, char* out) noexcept {
    const std::size_t digits = (bits.bitCount + 3) / 4;
    std::size_t i = 0;
#if defined(__SSE2__)
    // Sixteen bytes a step: each nibble n becomes '0' + n, plus 'a' - '0' - 10 over 9.
    const __m128i low = _mm_set1_epi8(0x0F);
    const __m128i nine = _mm_set1_epi8(9);
    const __m128i zeroDigit = _mm_set1_epi8('0');
    const __m128i letterStep = _mm_set1_epi8('a' - '0' - 10);
    const auto toDigits = [&](__m128i nibbles) {
        return _mm_add_epi8(_mm_add_epi8(nibbles, zeroDigit),
                            _mm_and_si128(_mm_cmpgt_epi8(nibbles, nine), letterStep));
    };
    for (; i + 16 <= digits / 2; i += 16) {
        __m128i x;
        std::memcpy(&x, bits.bytes.data() + i, sizeof x);
        const __m128i high = _mm_and_si128(_mm_srli_epi16(x, 4), low);
        const __m128i first = toDigits(_mm_unpacklo_epi8(high, _mm_and_si128(x, low)));
        const __m128i second = toDigits(_mm_unpackhi_epi8(high, _mm_and_si128(x, low)));
        std::memcpy(out + 2 * i, &first, sizeof first);
        std::memcpy(out + 2 * i + 16, &second, sizeof second);
    }
#endif
    for (; i < digits / 2; ++i) {
        std::memcpy(out + 2 * i, &kHexPairs[2 * std::size_t{bits.bytes[i]}], 2);
    }
    if (digits % 2 != 0) {
        out[digits - 1] = kHexPairs[2 * std::size_t{bits.bytes[digits / 2]}];
    }
    return digits;
}

}  // namespace ZeltNavMsg::Logs
