#include "checks/BeidouCodewords.h"

#include <algorithm>
#include <array>
#include <bit>
#include <string_view>

#include "checks/InputBits.h"
#include "legacy/SubframeCoderBeidouNav.h"

namespace ZeltNavMsg::Checks {

namespace {

using Coder = Legacy::SubframeCoderBeidouNav;

constexpr std::int32_t kWords = 10;
constexpr std::int32_t kWordBits = 30;
constexpr std::int32_t kCodewordBits = 15;
constexpr std::int32_t kRecordBits = 8 * kBeidouDecodedBytes;
constexpr std::uint32_t kCodewordMask = 0x7FFFU;
constexpr std::uint32_t kParityMask = 0xFU;
constexpr std::int32_t kParityBits = 4;

// The decoded form of word 1: its unprotected bits, then its codeword unchanged.
constexpr std::uint32_t decodedFirstWord(std::uint32_t unprotected, std::uint32_t codeword) {
    return (unprotected << kCodewordBits) | (codeword & kCodewordMask);
}

// The decoded form of words 2-10: both information parts, then both parities.
constexpr std::uint32_t decodedWord(std::uint32_t first, std::uint32_t second) {
    return ((first >> kParityBits) << 19) | ((second >> kParityBits) << 8) |
           ((first & kParityMask) << 4) | (second & kParityMask);
}

// The one set bit of a 30-bit word as a position in the word, first bit = 0.
std::int32_t offsetOf(std::uint32_t oneHot) {
    return kWordBits - 1 - std::countr_zero(oneHot);
}

constexpr std::string_view kNames[kBeidouCodewords] = {
    "word 1 BCH",   "word 2 BCH 1", "word 2 BCH 2",  "word 3 BCH 1",  "word 3 BCH 2",
    "word 4 BCH 1", "word 4 BCH 2", "word 5 BCH 1",  "word 5 BCH 2",  "word 6 BCH 1",
    "word 6 BCH 2", "word 7 BCH 1", "word 7 BCH 2",  "word 8 BCH 1",  "word 8 BCH 2",
    "word 9 BCH 1", "word 9 BCH 2", "word 10 BCH 1", "word 10 BCH 2",
};

struct CodewordPlace {
    std::array<BitSegment, kCodewordBits> segments{};  // input bits, first transmitted first
    std::int32_t segmentCount = 0;
    std::array<std::int16_t, kCodewordBits> inputBit{};  // by codeword bit (14 = first)
    std::int32_t lastInputBit = 0;
};

// Where each codeword bit is received and where it is decoded, found by passing one set
// bit at a time through the coder's de-interleaving and the decoded layout above; and the
// codewords' results before any input is seen. Built in place once: the results point at
// the segments.
struct Places {
    Places();
    Places(const Places&) = delete;
    Places& operator=(const Places&) = delete;

    std::array<CodewordPlace, kBeidouCodewords> codewords{};
    std::array<std::int16_t, kBeidouSubframeBits> inputPosition{};  // by decoded bit
    std::array<CheckResult, kBeidouCodewords> results{};
};

Places::Places() {
    const auto place = [this](std::int32_t codeword, std::int32_t bit, std::int32_t input,
                              std::int32_t decoded) {
        CodewordPlace& c = codewords[static_cast<std::size_t>(codeword)];
        c.inputBit[static_cast<std::size_t>(bit)] = static_cast<std::int16_t>(input);
        inputPosition[static_cast<std::size_t>(decoded)] = static_cast<std::int16_t>(input);
    };
    for (std::int32_t offset = 0; offset < kWordBits - kCodewordBits; ++offset) {
        const std::uint32_t oneHot = 1U << (kWordBits - 1 - offset);
        inputPosition[static_cast<std::size_t>(offsetOf(
            decodedFirstWord(oneHot >> kCodewordBits, 0)))] = static_cast<std::int16_t>(offset);
    }
    for (std::int32_t bit = 0; bit < kCodewordBits; ++bit) {
        // Word 1 carries its codeword as is, in its last 15 bits.
        const std::uint32_t oneHot = 1U << bit;
        place(0, bit, offsetOf(oneHot), offsetOf(decodedFirstWord(0, oneHot)));
    }
    for (std::int32_t word = 1; word < kWords; ++word) {
        const std::int32_t base = kWordBits * word;
        for (std::int32_t offset = 0; offset < kWordBits; ++offset) {
            const auto pair = Coder::DeinterleaveWord(1U << (kWordBits - 1 - offset));
            const bool first = pair.first != 0;
            const std::uint32_t oneHot = first ? pair.first : pair.second;
            place(2 * word - (first ? 1 : 0), std::countr_zero(oneHot), base + offset,
                  base + offsetOf(first ? decodedWord(oneHot, 0) : decodedWord(0, oneHot)));
        }
    }
    for (CodewordPlace& c : codewords) {
        for (std::int32_t bit = kCodewordBits - 1; bit >= 0; --bit) {
            const std::int32_t input = c.inputBit[static_cast<std::size_t>(bit)];
            BitSegment* last = c.segmentCount == 0
                                   ? nullptr
                                   : &c.segments[static_cast<std::size_t>(c.segmentCount - 1)];
            if (last != nullptr && last->first + last->count == input) {
                ++last->count;
            } else {
                c.segments[static_cast<std::size_t>(c.segmentCount++)] = {input, 1};
            }
            c.lastInputBit = input > c.lastInputBit ? input : c.lastInputBit;
        }
    }
    for (std::size_t i = 0; i < results.size(); ++i) {
        results[i].name = kNames[i];
        results[i].bits = {codewords[i].segments.data(),
                           static_cast<std::size_t>(codewords[i].segmentCount)};
        results[i].status = CheckStatus::Incomplete;
        results[i].checkBits = kParityBits;
    }
}

const Places& places() {
    static const Places table;
    return table;
}

// The received codewords of word `word` (0-9) as read; missing bits are zero. Word 1 has
// one, in `first`.
Coder::CodewordPair receivedCodewords(const std::uint8_t* bytes, std::int32_t inputBits,
                                      std::int32_t word) noexcept {
    const std::uint32_t bits = readInputBits(bytes, inputBits, kWordBits * word, kWordBits);
    if (word == 0) {
        return {static_cast<std::uint16_t>(bits & kCodewordMask), 0};
    }
    return Coder::DeinterleaveWord(bits);
}

// ORs the low `count` bits of `value` into `out` from bit `first` on.
void orBits(std::uint8_t* out, std::int32_t first, std::int32_t count, std::uint32_t value) {
    const std::int32_t end = first + count;
    const std::int32_t lastByte = (end - 1) / 8;
    std::uint64_t window = std::uint64_t{value} << (8 * (lastByte + 1) - end);
    for (std::int32_t byte = lastByte; byte >= first / 8; --byte) {
        out[byte] = static_cast<std::uint8_t>(out[byte] | (window & 0xFFU));
        window >>= 8;
    }
}

}  // namespace

BchOutcome correctBch(std::uint16_t received) noexcept {
    // The syndrome of each single-bit error, computed with the coder's parity rule.
    static const std::array<std::int32_t, 16> kErrorBit = [] {
        std::array<std::int32_t, 16> table{};
        table.fill(-1);
        for (std::int32_t bit = 0; bit < kCodewordBits; ++bit) {
            const auto error = static_cast<std::uint16_t>(1U << bit);
            const std::uint32_t syndrome =
                (Coder::BchEncode(static_cast<std::uint16_t>(error >> kParityBits)) ^ error) &
                kParityMask;
            table[syndrome] = bit;
        }
        return table;
    }();
    BchOutcome outcome;
    const std::uint32_t word = received & kCodewordMask;
    outcome.received = word & kParityMask;
    outcome.computed =
        Coder::BchEncode(static_cast<std::uint16_t>(word >> kParityBits)) & kParityMask;
    outcome.errorBit = kErrorBit[outcome.computed ^ outcome.received];
    outcome.codeword =
        static_cast<std::uint16_t>(outcome.errorBit < 0 ? word : word ^ (1U << outcome.errorBit));
    return outcome;
}

void checkBeidouSubframe(const std::uint8_t* bytes, std::int32_t inputBits,
                         std::vector<CheckResult>& out) {
    const Places& p = places();
    CheckResult* result = appendResults(out, p.results);
    for (std::int32_t word = 0; word < kWords; ++word) {
        const Coder::CodewordPair pair = receivedCodewords(bytes, inputBits, word);
        for (std::int32_t part = 0; part < (word == 0 ? 1 : 2); ++part, ++result) {
            const CodewordPlace& place =
                p.codewords[static_cast<std::size_t>(word == 0 ? 0 : 2 * word - 1 + part)];
            if (place.lastInputBit >= inputBits) {
                continue;
            }
            const BchOutcome outcome = correctBch(part == 0 ? pair.first : pair.second);
            result->computed = outcome.computed;
            result->received = outcome.received;
            if (outcome.errorBit >= 0) {
                result->status = CheckStatus::Corrected;
                result->correctedBit = place.inputBit[static_cast<std::size_t>(outcome.errorBit)];
            } else {
                result->status = CheckStatus::Pass;
            }
        }
    }
}

void correctBeidouSubframe(const std::uint8_t* bytes, std::int32_t inputBits,
                           std::span<std::uint8_t, kBeidouDecodedBytes> out) noexcept {
    const Places& p = places();
    std::fill(out.begin(), out.end(), std::uint8_t{0});
    const auto corrected = [&](std::int32_t index, std::uint16_t codeword) -> std::uint32_t {
        return p.codewords[static_cast<std::size_t>(index)].lastInputBit < inputBits
                   ? correctBch(codeword).codeword
                   : codeword;
    };
    const std::uint32_t first = readInputBits(bytes, inputBits, 0, kWordBits);
    orBits(out.data(), 0, kWordBits,
           decodedFirstWord(first >> kCodewordBits,
                            corrected(0, static_cast<std::uint16_t>(first & kCodewordMask))));
    for (std::int32_t word = 1; word < kWords; ++word) {
        const Coder::CodewordPair pair = receivedCodewords(bytes, inputBits, word);
        orBits(out.data(), kWordBits * word, kWordBits,
               decodedWord(corrected(2 * word - 1, pair.first), corrected(2 * word, pair.second)));
    }
    if (inputBits > kBeidouSubframeBits) {
        const std::int32_t extra = std::min(inputBits, kRecordBits) - kBeidouSubframeBits;
        orBits(out.data(), kBeidouSubframeBits, extra,
               readInputBits(bytes, inputBits, kBeidouSubframeBits, extra));
    }
}

std::span<const std::int16_t, kBeidouSubframeBits> beidouInputPositions() noexcept {
    return places().inputPosition;
}

}  // namespace ZeltNavMsg::Checks
