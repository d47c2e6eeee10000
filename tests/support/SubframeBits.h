#ifndef ZELTNAVMSG_TESTS_SUPPORT_SUBFRAMEBITS_H
#define ZELTNAVMSG_TESTS_SUPPORT_SUBFRAMEBITS_H

#include <cstdint>
#include <string>
#include <vector>

namespace ZeltNavMsg::Testing {

// Builds test input bit by bit, in the legacy tables' numbering (bit 1 = first
// transmitted bit), and writes it as the hex text the decoder takes.
class SubframeBits {
  public:
    explicit SubframeBits(int bitCount = 300) : bits_(static_cast<std::size_t>(bitCount), 0) {}

    // Sets bits first ... first+length-1 to `value`, most significant bit first.
    SubframeBits& put(int first, int length, std::uint64_t value) {
        for (int i = 0; i < length; ++i) {
            bits_.at(static_cast<std::size_t>(first - 1 + i)) =
                static_cast<char>((value >> (length - 1 - i)) & 1U);
        }
        return *this;
    }

    [[nodiscard]] std::uint64_t get(int first, int length) const {
        std::uint64_t value = 0;
        for (int i = 0; i < length; ++i) {
            value = (value << 1) |
                    static_cast<std::uint64_t>(bits_.at(static_cast<std::size_t>(first - 1 + i)));
        }
        return value;
    }

    // ceil(bitCount / 4) upper-case digits, the last one padded with zero bits.
    [[nodiscard]] std::string hex() const {
        std::string text;
        for (std::size_t i = 0; i < bits_.size(); i += 4) {
            int digit = 0;
            for (std::size_t k = i; k < i + 4; ++k) {
                digit = digit * 2 + (k < bits_.size() ? bits_[k] : 0);
            }
            text += "0123456789ABCDEF"[digit];
        }
        return text;
    }

  private:
    std::vector<char> bits_;
};

// BeiDou D1/D2 words written the long way, independently of the library's coder:
// parity by polynomial long division, interleaving one bit at a time.

// The BCH(15,11) codeword of 11 information bits: info * x^4 plus the remainder of
// info * x^4 divided by x^4 + x + 1.
inline std::uint32_t bchCodeword(std::uint32_t info) {
    constexpr std::uint32_t kGenerator = 0b10011;
    std::uint32_t remainder = (info & 0x7FFU) << 4;
    for (int bit = 14; bit >= 4; --bit) {
        if ((remainder >> bit) & 1U) {
            remainder ^= kGenerator << (bit - 4);
        }
    }
    return ((info & 0x7FFU) << 4) | remainder;
}

// 30 bits A14 B14 A13 B13 ... A0 B0 of two 15-bit codewords.
inline std::uint32_t interleave(std::uint32_t a, std::uint32_t b) {
    std::uint32_t word = 0;
    for (int i = 14; i >= 0; --i) {
        word = (word << 1) | ((a >> i) & 1U);
        word = (word << 1) | ((b >> i) & 1U);
    }
    return word;
}

// The subframe as broadcast from its decoded layout (bit 1 = first bit): word 1 keeps
// its 15 uncoded bits and codes bits 16-26; words 2-10 code bits 1-11 and 12-22.
inline SubframeBits encodeBeidou(const SubframeBits& decoded) {
    SubframeBits received;
    received.put(1, 15, decoded.get(1, 15));
    received.put(16, 15, bchCodeword(static_cast<std::uint32_t>(decoded.get(16, 11))));
    for (int k = 2; k <= 10; ++k) {
        const int first = 30 * (k - 1) + 1;
        const auto a = bchCodeword(static_cast<std::uint32_t>(decoded.get(first, 11)));
        const auto b = bchCodeword(static_cast<std::uint32_t>(decoded.get(first + 11, 11)));
        received.put(first, 30, interleave(a, b));
    }
    return received;
}

}  // namespace ZeltNavMsg::Testing

#endif
