#ifndef ZELTNAVMSG_TESTS_SUPPORT_BITBYTES_H
#define ZELTNAVMSG_TESTS_SUPPORT_BITBYTES_H

// Bytes as a bit sequence the way every format sends them: bit i is in byte i/8 under
// mask 0x80 >> i%8. The tests' own model of the numbering, one bit at a time.

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

namespace ZeltNavMsg::Testing {

inline unsigned bitOf(const std::uint8_t* bytes, std::size_t i) {
    return (bytes[i / 8] >> (7 - i % 8)) & 1U;
}

inline void flipBit(std::vector<std::uint8_t>& bytes, std::size_t i) {
    bytes[i / 8] ^= static_cast<std::uint8_t>(0x80U >> (i % 8));
}

// `n` bytes of a fixed pseudo-random sequence.
inline std::vector<std::uint8_t> randomBytes(std::size_t n, unsigned seed) {
    std::mt19937 random(seed);
    std::vector<std::uint8_t> bytes(n);
    for (auto& b : bytes) {
        b = static_cast<std::uint8_t>(random());
    }
    return bytes;
}

}  // namespace ZeltNavMsg::Testing

#endif
