// The integrity checks of all eight formats: real broadcasts pass, one flipped bit fails
// exactly the checks whose bits it is in, and short input is incomplete. The expected
// layouts are written from the documents (word and codeword positions, the receiver-log
// document's CRC coverage), not read from the library.

#include "checks/Checks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "api/HexInput.h"
#include "support/BitBytes.h"
#include "support/RealData.h"
#include "support/SupportedFormats.h"

namespace ZeltNavMsg::Checks {
namespace {

using Testing::SupportedFormat;

std::vector<std::uint8_t> bytesOf(std::string_view hex) {
    std::int32_t bits = 0;
    return Detail::HexStringToBytes(hex, bits);
}

std::vector<CheckResult> checksOf(MessageFormat format, const std::vector<std::uint8_t>& bytes,
                                  std::int32_t bits) {
    std::vector<CheckResult> out;
    run(format, bytes.data(), bits, out);
    return out;
}

// A check's name, width and the input bits it covers, in order.
struct Expected {
    std::string name;
    int width;
    std::vector<std::int32_t> bits;
    [[nodiscard]] bool covers(std::int32_t p) const {
        return std::find(bits.begin(), bits.end(), p) != bits.end();
    }
};

Expected check(std::string name, int width, std::int32_t first, std::int32_t count,
               std::int32_t step = 1) {
    Expected e{std::move(name), width, {}};
    for (std::int32_t p = first; p < first + count; p += step) {
        e.bits.push_back(p);
    }
    return e;
}

// LNAV: ten words of 30 bits. BeiDou: the second half of word 1, then in each word the
// bits at even offsets (codeword 1) and at odd offsets (codeword 2). CRC-24Q: covered
// bits and CRC.
std::vector<Expected> expectedChecks(MessageFormat format) {
    std::vector<Expected> checks;
    const auto word = [](int k) { return "word " + std::to_string(k); };
    switch (format) {
        case MessageFormat::GpsLNav:
        case MessageFormat::QzssLNav:
            for (int k = 1; k <= 10; ++k) {
                checks.push_back(check(word(k) + " parity", 6, 30 * (k - 1), 30));
            }
            return checks;
        case MessageFormat::BeidouD1:
        case MessageFormat::BeidouD2:
            checks.push_back(check("word 1 BCH", 4, 15, 15));
            for (int k = 2; k <= 10; ++k) {
                checks.push_back(check(word(k) + " BCH 1", 4, 30 * (k - 1), 30, 2));
                checks.push_back(check(word(k) + " BCH 2", 4, 30 * (k - 1) + 1, 30, 2));
            }
            return checks;
        case MessageFormat::GpsCNav2:
            return {check("subframe 2 CRC-24Q", 24, 9, 600),
                    check("subframe 3 CRC-24Q", 24, 609, 274)};
        case MessageFormat::BeidouCNav1:
            return {check("subframe 2 CRC-24Q", 24, 14, 600),
                    check("subframe 3 CRC-24Q", 24, 614, 264)};
        case MessageFormat::BeidouCNav2:
            return {check("frame CRC-24Q", 24, 0, 288)};
        default:
            return {check("subframe CRC-24Q", 24, 0, 286)};
    }
}

// Names, bits and widths as documented; every real message passes every check, and
// `received` is the message's own last check bits.
TEST(Checks, EveryRealMessagePassesItsDocumentedChecks) {
    int messages = 0;
    for (const SupportedFormat& f : Testing::kSupportedFormats) {
        const std::vector<Expected> expected = expectedChecks(f.format);
        for (const Testing::RealMessage& m : Testing::loadRealData(f.realDataFile)) {
            ++messages;
            const std::vector<std::uint8_t> bytes = bytesOf(m.hex);
            const auto checks =
                checksOf(f.format, bytes, static_cast<std::int32_t>(4 * m.hex.size()));
            ASSERT_EQ(checks.size(), expected.size()) << m.where;
            for (std::size_t i = 0; i < checks.size(); ++i) {
                const CheckResult& c = checks[i];
                const Expected& e = expected[i];
                std::vector<std::int32_t> bits;
                for (const BitSegment& s : c.bits) {
                    for (std::int32_t p = s.first; p < s.first + s.count; ++p) {
                        bits.push_back(p);
                    }
                }
                EXPECT_EQ(c.name, e.name);
                EXPECT_EQ(bits, e.bits) << e.name;
                ASSERT_EQ(c.checkBits, e.width) << e.name;
                std::uint32_t received = 0;
                for (auto p = e.bits.end() - e.width; p != e.bits.end(); ++p) {
                    received = (received << 1) |
                               Testing::bitOf(bytes.data(), static_cast<std::size_t>(*p));
                }
                EXPECT_EQ(c.status, CheckStatus::Pass) << m.where << " " << e.name;
                EXPECT_EQ(c.computed, received) << m.where << " " << e.name;
                EXPECT_EQ(c.received, received) << m.where << " " << e.name;
                EXPECT_EQ(c.correctedBit, -1) << m.where << " " << e.name;
            }
        }
    }
    EXPECT_EQ(messages, 558);
}

// Every bit of every format flipped in turn. LNAV: the word fails, and so does the next
// word when the bit is its D29* or D30*. BeiDou: the codeword is corrected at that bit.
// CRC: the block fails. Bits no check covers fail nothing.
TEST(Checks, OneFlippedBitFailsExactlyTheChecksThatCoverIt) {
    for (const SupportedFormat& f : Testing::kSupportedFormats) {
        const std::vector<Expected> expected = expectedChecks(f.format);
        std::vector<std::uint8_t> bytes = bytesOf(f.sampleHex);
        for (std::int32_t p = 0; p < f.frameBits; ++p) {
            Testing::flipBit(bytes, static_cast<std::size_t>(p));
            const auto checks = checksOf(f.format, bytes, f.frameBits);
            Testing::flipBit(bytes, static_cast<std::size_t>(p));
            ASSERT_EQ(checks.size(), expected.size());
            for (std::size_t i = 0; i < checks.size(); ++i) {
                const bool carried = expected[i].width == 6 && i > 0 && expected[i - 1].covers(p) &&
                                     !expected[i - 1].covers(p + 2);
                CheckStatus status = CheckStatus::Pass;
                if (expected[i].covers(p) || carried) {
                    status = expected[i].width == 4 ? CheckStatus::Corrected : CheckStatus::Fail;
                }
                EXPECT_EQ(checks[i].status, status)
                    << f.name << " bit " << p << " " << expected[i].name;
                EXPECT_EQ(checks[i].correctedBit, status == CheckStatus::Corrected ? p : -1)
                    << f.name << " bit " << p;
            }
        }
    }
}

// Cut after every bit length, the bytes after the cut absent (the sanitizer build sees a
// read past them): a check is incomplete exactly when its last bit is missing, and
// passes otherwise. Bits past a frame format's length are ignored.
TEST(Checks, ShortInputIsIncompleteAndLongInputIsCut) {
    for (const SupportedFormat& f : Testing::kSupportedFormats) {
        const std::vector<Expected> expected = expectedChecks(f.format);
        std::vector<std::uint8_t> full = bytesOf(f.sampleHex);
        const std::int32_t longest = f.road == Testing::Road::Frame ? f.frameBits + 16 : 304;
        full.resize(static_cast<std::size_t>((f.frameBits + 7) / 8));
        full.resize(static_cast<std::size_t>((longest + 7) / 8), 0xFF);
        for (std::int32_t given = 0; given <= longest; ++given) {
            const std::vector<std::uint8_t> bytes(full.begin(), full.begin() + (given + 7) / 8);
            const auto checks = checksOf(f.format, bytes, given);
            ASSERT_EQ(checks.size(), expected.size());
            for (std::size_t i = 0; i < checks.size(); ++i) {
                EXPECT_EQ(checks[i].status, expected[i].bits.back() < given
                                                ? CheckStatus::Pass
                                                : CheckStatus::Incomplete)
                    << f.name << " " << given << " bits, " << expected[i].name;
            }
        }
    }
}

}  // namespace
}  // namespace ZeltNavMsg::Checks
