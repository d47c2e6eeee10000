// BeiDou D1/D2 codewords: the BCH(15,11) check over its whole space of received words,
// and the corrected, de-interleaved subframe of real broadcasts with every single error.
// Codewords come from the test's own long division (support/SubframeBits.h).

#include "checks/BeidouCodewords.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cctype>
#include <string>
#include <vector>

#include "api/HexInput.h"
#include "support/BitBytes.h"
#include "support/RealData.h"
#include "support/SubframeBits.h"

namespace ZeltNavMsg::Checks {
namespace {

using Decoded = std::array<std::uint8_t, kBeidouDecodedBytes>;

Decoded corrected(const std::vector<std::uint8_t>& bytes, std::int32_t bits) {
    Decoded out{};
    out.fill(0xA5);  // every byte must be written
    correctBeidouSubframe(bytes.data(), bits, out);
    return out;
}

unsigned bitOf(const std::uint8_t* bytes, std::int32_t p) {
    return Testing::bitOf(bytes, static_cast<std::size_t>(p));
}

std::string upper(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return text;
}

// Every one of the 2^15 received words: zero syndrome exactly for the 2^11 codewords;
// otherwise exactly one bit toggled, giving a codeword (the code is perfect).
TEST(BeidouCodewords, BchChecksAndCorrectsEveryReceivedWord) {
    std::vector<bool> isCodeword(1U << 15);
    for (std::uint32_t info = 0; info < 2048; ++info) {
        isCodeword[Testing::bchCodeword(info)] = true;
    }
    for (std::uint32_t word = 0; word < (1U << 15); ++word) {
        const BchOutcome o = correctBch(static_cast<std::uint16_t>(word));
        ASSERT_EQ(o.errorBit < 0, isCodeword[word]) << word;
        ASSERT_TRUE(isCodeword[o.codeword]) << word;
        ASSERT_EQ(o.codeword ^ word, o.errorBit < 0 ? 0U : 1U << o.errorBit) << word;
        ASSERT_EQ(o.received, word & 15U);
        ASSERT_EQ(o.computed, Testing::bchCodeword(word >> 4) & 15U) << word;
    }
    // So a single error is corrected back, and a double error lands on a third codeword.
    for (std::uint32_t info = 0; info < 2048; ++info) {
        const std::uint32_t sent = Testing::bchCodeword(info);
        for (int a = 0; a < 15; ++a) {
            ASSERT_EQ(correctBch(static_cast<std::uint16_t>(sent ^ (1U << a))).codeword, sent);
            for (int b = a + 1; b < 15; ++b) {
                const BchOutcome o =
                    correctBch(static_cast<std::uint16_t>(sent ^ (1U << a) ^ (1U << b)));
                ASSERT_EQ(std::popcount(o.codeword ^ sent), 3) << info << " " << a << " " << b;
            }
        }
    }
}

// Decoded bit -> input bit: word 1 in place; in words 2-10 the 11 information bits of
// codeword 1 (even offsets), those of codeword 2 (odd offsets), then the two parities.
std::int32_t documentedInputBit(std::int32_t d) {
    const std::int32_t base = d / 30 * 30;
    const std::int32_t r = d % 30;
    if (base == 0) {
        return d;
    }
    const std::int32_t codeword = r < 11 || (r >= 22 && r < 26) ? 0 : 1;
    return base + 2 * (r < 22 ? r % 11 : 11 + (r - 22) % 4) + codeword;
}

// Real subframes: each decoded bit is the input bit at its documented place, and so
// is beidouInputPositions(); encoding the information bits the test's own way gives the
// broadcast back; one error in any codeword bit changes nothing.
TEST(BeidouCodewords, CorrectedSubframeOfEverySingleErrorIsTheBroadcastOne) {
    for (std::int32_t d = 0; d < kBeidouSubframeBits; ++d) {
        ASSERT_EQ(beidouInputPositions()[static_cast<std::size_t>(d)], documentedInputBit(d)) << d;
    }
    int messages = 0;
    for (const char* file : {"beidou_d1.tsv", "beidou_d2.tsv"}) {
        for (const Testing::RealMessage& m : Testing::loadRealData(file)) {
            ++messages;
            std::int32_t bits = 0;
            std::vector<std::uint8_t> bytes = Detail::HexStringToBytes(m.hex, bits);
            const Decoded clean = corrected(bytes, bits);
            Testing::SubframeBits decoded;
            for (int d = 0; d < kBeidouSubframeBits; ++d) {
                decoded.put(d + 1, 1, bitOf(clean.data(), d));
                ASSERT_EQ(bitOf(clean.data(), d), bitOf(bytes.data(), documentedInputBit(d))) << d;
            }
            EXPECT_EQ(Testing::encodeBeidou(decoded).hex(), upper(m.hex.substr(0, 75))) << m.where;
            for (int p = 15; p < kBeidouSubframeBits; ++p) {
                Testing::flipBit(bytes, static_cast<std::size_t>(p));
                ASSERT_EQ(corrected(bytes, bits), clean) << m.where << " error at bit " << p;
                Testing::flipBit(bytes, static_cast<std::size_t>(p));
            }
        }
    }
    EXPECT_EQ(messages, 84 + 148);
}

// Input cut at a word boundary: the whole words come out as from the full input (the
// cut falls between codewords), everything after is zero.
TEST(BeidouCodewords, ShortInputDecodesTheWordsGiven) {
    std::int32_t bits = 0;
    std::vector<std::uint8_t> bytes = Detail::HexStringToBytes(
        "e2405504a000008439320d39045574de204076bf2d1a4f508aa44a8440a1fff20128e76035b", bits);
    bytes[10] ^= 0x10;  // one error, in word 3
    const Decoded full = corrected(bytes, bits);
    for (std::int32_t given = 0; given <= 300; given += 30) {
        const std::vector<std::uint8_t> cut(bytes.begin(), bytes.begin() + (given + 7) / 8);
        const Decoded out = corrected(cut, given);
        for (int p = 0; p < 8 * kBeidouDecodedBytes; ++p) {
            ASSERT_EQ(bitOf(out.data(), p), p < given ? bitOf(full.data(), p) : 0U)
                << given << " bits, bit " << p;
        }
    }
}

}  // namespace
}  // namespace ZeltNavMsg::Checks
