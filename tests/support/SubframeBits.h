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

}  // namespace ZeltNavMsg::Testing

#endif
