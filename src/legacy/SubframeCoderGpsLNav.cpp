#include "legacy/SubframeCoderGpsLNav.h"

#include <bit>

namespace ZeltNavMsg::Legacy {

namespace {

constexpr std::uint32_t kDataInversion = 0xFFFFFFC0U;

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

constexpr std::uint32_t parityBit(const ParityEquation& eq, std::uint32_t word,
                                  std::uint32_t previous) {
    const std::uint32_t seed = eq.fromD29 ? (previous >> 1) & 1U : previous & 1U;
    return (seed + static_cast<std::uint32_t>(std::popcount(word & eq.mask))) & 1U;
}

constexpr std::uint32_t kD23 = dataBits(23);
constexpr std::uint32_t kD24 = dataBits(24);

}  // namespace

std::uint32_t SubframeCoderGpsLNav::EncodeWord(std::uint32_t word, std::uint32_t previous,
                                               bool zeroLastParityBits) noexcept {
    if (zeroLastParityBits) {
        // D29 covers d24 but not d23, D30 covers both: solve for d24, then d23.
        word &= ~(kD23 | kD24);
        const std::uint32_t d24 = parityBit(kParity[4], word, previous);
        if (d24 != 0) {
            word |= kD24;
        }
        if (parityBit(kParity[5], word, previous) != 0) {
            word |= kD23;
        }
    }
    std::uint32_t coded = word & ~0x3FU;
    if (previous & 1U) {
        coded ^= kDataInversion;
    }
    for (int k = 0; k < 6; ++k) {
        coded |= parityBit(kParity[k], word, previous) << (5 - k);
    }
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
        const std::uint32_t word = (previous & 1U) ? received ^ kDataInversion : received;
        failed = WriteWord(sf, firstBit, word) || failed;
        previous = received;
    }
    return failed;
}

}  // namespace ZeltNavMsg::Legacy
