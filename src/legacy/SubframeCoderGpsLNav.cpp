#include "legacy/SubframeCoderGpsLNav.h"

#include <array>
#include <bit>
#include <cstddef>

namespace ZeltNavMsg::Legacy {

namespace {

constexpr std::uint32_t kDataInversion = 0x3FFFFFC0U;  // d1 ... d24 of a 30-bit word

// Mask of data bits d1 ... d24 of a 30-bit word, d1 being bit 29.
template <typename... Bits>
constexpr std::uint32_t dataBits(Bits... d) {
    return ((1U << (30 - d)) | ...);
}

// The six parity equations: the data bits each one covers, and whether it
// starts from D29* (true) or D30* (false) of the previous word.
struct ParityEquation {
    std::uint32_t mask;
    bool fromD29;
};
constexpr ParityEquation kParity[6] = {
    {dataBits(1, 2, 3, 5, 6, 10, 11, 12, 13, 14, 17, 18, 20, 23), true},      // D25
    {dataBits(2, 3, 4, 6, 7, 11, 12, 13, 14, 15, 18, 19, 21, 24), false},     // D26
    {dataBits(1, 3, 4, 5, 7, 8, 12, 13, 14, 15, 16, 19, 20, 22), true},       // D27
    {dataBits(2, 4, 5, 6, 8, 9, 13, 14, 15, 16, 17, 20, 21, 23), false},      // D28
    {dataBits(1, 3, 5, 6, 7, 9, 10, 14, 15, 16, 17, 18, 21, 22, 24), false},  // D29
    {dataBits(3, 5, 6, 8, 9, 10, 11, 13, 15, 19, 22, 23, 24), true},          // D30
};

// The equations a D29* or D30* seed enters, as parity bits D25 ... D30 (D25 = bit 5).
constexpr std::uint32_t seedMask(bool fromD29) {
    std::uint32_t mask = 0;
    for (int k = 0; k < 6; ++k) {
        if (kParity[k].fromD29 == fromD29) {
            mask |= 1U << (5 - k);
        }
    }
    return mask;
}
constexpr std::uint32_t kD29Seeds = seedMask(true);
constexpr std::uint32_t kD30Seeds = seedMask(false);

// The parity bits each data byte contributes, for data bits d1-d8, d9-d16 and d17-d24:
// three lookups give all six equations of a word at once.
constexpr auto kParityOfByte = [] {
    std::array<std::array<std::uint8_t, 256>, 3> table{};
    for (int part = 0; part < 3; ++part) {
        for (std::uint32_t byte = 0; byte < 256; ++byte) {
            const std::uint32_t word = byte << (6 + 8 * (2 - part));
            std::uint32_t parity = 0;
            for (int k = 0; k < 6; ++k) {
                parity |= (static_cast<std::uint32_t>(std::popcount(word & kParity[k].mask)) & 1U)
                          << (5 - k);
            }
            table[static_cast<std::size_t>(part)][byte] = static_cast<std::uint8_t>(parity);
        }
    }
    return table;
}();

constexpr std::uint32_t kD23 = dataBits(23);
constexpr std::uint32_t kD24 = dataBits(24);
constexpr std::uint32_t kParityD29 = 2U;  // D29 and D30 among the six parity bits
constexpr std::uint32_t kParityD30 = 1U;

}  // namespace

std::uint32_t SubframeCoderGpsLNav::Parity(std::uint32_t word, std::uint32_t previous) noexcept {
    std::uint32_t parity = kParityOfByte[0][(word >> 22) & 0xFFU] ^
                           kParityOfByte[1][(word >> 14) & 0xFFU] ^
                           kParityOfByte[2][(word >> 6) & 0xFFU];
    if ((previous & 2U) != 0) {
        parity ^= kD29Seeds;
    }
    if ((previous & 1U) != 0) {
        parity ^= kD30Seeds;
    }
    return parity;
}

std::uint32_t SubframeCoderGpsLNav::SourceWord(std::uint32_t received,
                                               std::uint32_t previous) noexcept {
    return (previous & 1U) != 0 ? received ^ kDataInversion : received;
}

std::uint32_t SubframeCoderGpsLNav::EncodeWord(std::uint32_t word, std::uint32_t previous,
                                               bool zeroLastParityBits) noexcept {
    if (zeroLastParityBits) {
        // D29 covers d24 but not d23, D30 covers both: solve for d24, then d23.
        word &= ~(kD23 | kD24);
        if ((Parity(word, previous) & kParityD29) != 0) {
            word |= kD24;
        }
        if ((Parity(word, previous) & kParityD30) != 0) {
            word |= kD23;
        }
    }
    const std::uint32_t coded = SourceWord(word & ~0x3FU, previous) | Parity(word, previous);
    return coded & 0x3FFFFFFFU;
}

bool SubframeCoderGpsLNav::Encode(subframe_t& sf) const {
    std::uint32_t previous = 0;
    bool failed = false;
    for (int w = 0; w < 10; ++w) {
        const std::int32_t firstBit = 30 * w + 1;
        const std::uint32_t coded = EncodeWord(ReadWord(sf, firstBit), previous, w == 1 || w == 9);
        failed = WriteWord(sf, firstBit, coded);
        previous = coded;
    }
    return failed;
}

bool SubframeCoderGpsLNav::Decode(subframe_t& sf) const {
    std::uint32_t previous = 0;  // as received: the decision never uses a corrected word
    bool failed = false;
    for (int w = 0; w < 10; ++w) {
        const std::int32_t firstBit = 30 * w + 1;
        const std::uint32_t received = ReadWord(sf, firstBit);
        const std::uint32_t word = SourceWord(received, previous);
        failed = WriteWord(sf, firstBit, word) || failed;
        previous = received;
    }
    return failed;
}

}  // namespace ZeltNavMsg::Legacy
