#include "logs/RecordBits.h"

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

}  // namespace

void MessageBits::append(std::uint32_t value, unsigned count) noexcept {
    for (unsigned i = count; i-- > 0;) {
        if (bitCount / 8 >= kBytes) {
            return;
        }
        if (((value >> i) & 1U) != 0) {
            bytes[bitCount / 8] |= static_cast<std::uint8_t>(0x80U >> (bitCount % 8));
        }
        ++bitCount;
    }
}

void MessageBits::appendBits(const std::uint8_t* src, std::size_t first,
                             std::size_t count) noexcept {
    for (std::size_t i = 0; i < count; ++i) {
        append(bitAt(src, first + i), 1);
    }
}

std::uint32_t readBits(const std::uint8_t* data, std::size_t first, unsigned count) noexcept {
    std::uint32_t value = 0;
    for (unsigned i = 0; i < count; ++i) {
        value = (value << 1) | bitAt(data, first + i);
    }
    return value;
}

void wordsToBits(const std::uint8_t* p, std::size_t words, std::uint8_t* out) noexcept {
    for (std::size_t w = 0; w < words; ++w) {
        for (std::size_t b = 0; b < 4; ++b) {
            out[4 * w + b] = p[4 * w + 3 - b];
        }
    }
}

void appendLNavWords(const std::array<std::uint32_t, 10>& stored, MessageBits& out) noexcept {
    // Word 10 of every subframe ends in two zero bits, so word 1 is stored as sent.
    std::uint32_t previousD30 = 0;
    for (const std::uint32_t word : stored) {
        const std::uint32_t sent = (word & kWordMask) ^ (previousD30 != 0 ? kWordMask : 0U);
        out.append(sent, 30);
        previousD30 = sent & 1U;
    }
}

void appendBeidouWords(const std::array<std::uint32_t, 10>& stored, MessageBits& out) noexcept {
    out.append(stored[0] & kWordMask, 30);
    for (std::size_t w = 1; w < stored.size(); ++w) {
        const std::uint32_t word = stored[w] & kWordMask;
        const std::uint32_t first = (((word >> 19) & 0x7FFU) << 4) | ((word >> 4) & 15U);
        const std::uint32_t second = (((word >> 8) & 0x7FFU) << 4) | (word & 15U);
        out.append(Legacy::SubframeCoderBeidouNav::InterleaveWord(first, second), 30);
    }
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
    constexpr char kDigits[] = "0123456789abcdef";
    const std::size_t digits = (bits.bitCount + 3) / 4;
    for (std::size_t i = 0; i < digits; ++i) {
        const std::uint8_t byte = bits.bytes[i / 2];
        out[i] = kDigits[(i % 2 == 0 ? byte >> 4 : byte) & 15U];
    }
    return digits;
}

}  // namespace ZeltNavMsg::Logs
