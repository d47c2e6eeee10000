#include "legacy/SubframeCoderGpsLNav.h"

#include <array>
#include <bit>
#include <cstddef>

namespace ZeltNavMsg::Legacy {

namespace {

constexpr std::uint32_t kD23 = LNavParity::dataBits(23);
constexpr std::uint32_t kD24 = LNavParity::dataBits(24);
constexpr std::uint32_t kParityD29 = 2U;  // D29 and D30 among the six parity bits
constexpr std::uint32_t kParityD30 = 1U;

}  // namespace

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
    if (sf.bitCount >= 300) {
        // Every word fits: invert d1 ... d24 of each word whose predecessor ends in 1,
        // in place as four bytes. The inversion never touches a D30*, so the later
        // words still see their predecessors as received.
        for (int w = 1; w < 10; ++w) {
            const int first = 30 * w;  // d1 of word w+1, counted from 0
            if (((sf.data[(first - 1) / 8] >> (7 - (first - 1) % 8)) & 1U) != 0) {
                std::uint8_t* const bytes = sf.data + first / 8;
                const std::uint32_t mask = 0xFFFFFF00U >> (first % 8);
                for (int i = 0; i < 4; ++i) {
                    bytes[i] = static_cast<std::uint8_t>(bytes[i] ^ (mask >> (24 - 8 * i)));
                }
            }
        }
        return false;
    }
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

std::uint32_t SubframeCoderGpsLNav::DecodedWord(const subframe_t& sf,
                                                std::int32_t word) const noexcept {
    const std::uint32_t previous = word > 0 ? ReadWord(sf, kWordBits * (word - 1) + 1) : 0U;
    return SourceWord(ReadWord(sf, kWordBits * word + 1), previous);
}

}  // namespace ZeltNavMsg::Legacy
