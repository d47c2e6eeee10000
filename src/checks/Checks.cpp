#include "checks/Checks.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "checks/BeidouCodewords.h"
#include "checks/Crc.h"
#include "checks/InputBits.h"
#include "fields/BitStructDef.h"
#include "legacy/SubframeCoderGpsLNav.h"
#include "schemas/beidou_cnav1/FrameDef.h"
#include "schemas/beidou_cnav2/FrameDef.h"
#include "schemas/gps_cnav2/FrameDef.h"
#include "schemas/irnss/SubframeDef.h"

namespace ZeltNavMsg::Checks {

namespace {

// LNAV: ten 30-bit words, each ending in six parity bits.

constexpr std::int32_t kLNavWords = 10;
constexpr std::int32_t kLNavWordBits = 30;
constexpr std::int32_t kLNavParityBits = 6;
constexpr std::uint32_t kLNavParityMask = 0x3FU;

constexpr std::string_view kLNavNames[kLNavWords] = {
    "word 1 parity", "word 2 parity", "word 3 parity", "word 4 parity", "word 5 parity",
    "word 6 parity", "word 7 parity", "word 8 parity", "word 9 parity", "word 10 parity",
};

constexpr auto kLNavWordBitsOf = [] {
    std::array<BitSegment, kLNavWords> words{};
    for (std::int32_t w = 0; w < kLNavWords; ++w) {
        words[static_cast<std::size_t>(w)] = {kLNavWordBits * w, kLNavWordBits};
    }
    return words;
}();

constexpr auto kLNavResults = [] {
    std::array<CheckResult, kLNavWords> results{};
    for (std::int32_t w = 0; w < kLNavWords; ++w) {
        CheckResult& result = results[static_cast<std::size_t>(w)];
        result.name = kLNavNames[w];
        result.bits = {&kLNavWordBitsOf[static_cast<std::size_t>(w)], 1};
        result.status = CheckStatus::Incomplete;
        result.checkBits = kLNavParityBits;
    }
    return results;
}();

// The parity check of one received word given the previous received word.
inline void checkLNavWord(std::uint32_t received, std::uint32_t previous, CheckResult& result) {
    using Coder = Legacy::SubframeCoderGpsLNav;
    result.computed = Coder::Parity(Coder::SourceWord(received, previous), previous);
    result.received = received & kLNavParityMask;
    result.status = result.computed == result.received ? CheckStatus::Pass : CheckStatus::Fail;
}

// Word W of a subframe whose 38 bytes are all there: one load of eight bytes, from the
// word's first byte or, for the last word, the last eight.
template <std::size_t W>
std::uint32_t subframeWord(const std::uint8_t* bytes) noexcept {
    constexpr std::size_t kBytes = (kLNavWords * kLNavWordBits + 7) / 8;
    constexpr std::size_t kFirst = kLNavWordBits * W;
    constexpr std::size_t kStart = std::min<std::size_t>(kFirst / 8, kBytes - 8);
    return static_cast<std::uint32_t>((loadBigEndian64(bytes + kStart) << (kFirst - 8 * kStart)) >>
                                      (64 - kLNavWordBits));
}

// All ten words, unrolled: the common case of a whole subframe.
template <std::size_t... W>
void checkWholeLNav(const std::uint8_t* bytes, CheckResult* results, std::index_sequence<W...>) {
    const std::uint32_t words[] = {0U, subframeWord<W>(bytes)...};  // 0: ahead of word 1
    (checkLNavWord(words[W + 1], words[W], results[W]), ...);
}

void checkLNav(const std::uint8_t* bytes, std::int32_t inputBits, std::vector<CheckResult>& out) {
    CheckResult* const results = appendResults(out, kLNavResults);
    if (inputBits >= kLNavWords * kLNavWordBits) {
        checkWholeLNav(bytes, results, std::make_index_sequence<kLNavWords>());
        return;
    }
    std::uint32_t previous = 0;  // D29* and D30* are 0 ahead of word 1
    for (std::int32_t w = 0; w < std::max(inputBits, 0) / kLNavWordBits; ++w) {
        const std::uint32_t received =
            readInputBits(bytes, inputBits, kLNavWordBits * w, kLNavWordBits);
        checkLNavWord(received, previous, results[w]);
        previous = received;
    }
}

// Frame formats: CRC-24Q blocks found in the definition trees.

constexpr std::int32_t kCrcBits = 24;

struct CrcBlock {
    std::string name;
    BitSegment bits;  // the covered bits and the CRC after them
};

// A frame format's CRC blocks in message order, and their results before any input is
// seen. Built in place once: the results point at the blocks' names and bits.
struct FrameCrcs {
    explicit FrameCrcs(const BitStructDef& root);
    FrameCrcs(const FrameCrcs&) = delete;
    FrameCrcs& operator=(const FrameCrcs&) = delete;

    std::int32_t frameBits = 0;
    std::vector<CrcBlock> blocks;
    std::vector<CheckResult> results;
};

// "Subframe 2" -> "subframe 2 CRC-24Q"; the whole message ("B-CNAV2 Frame", "IRNSS
// Subframe") by its last word: "frame CRC-24Q".
std::string blockName(const BitStructDef& owner) {
    std::string_view name = owner.name();
    if (owner.parent() == nullptr) {
        name = name.substr(name.rfind(' ') + 1);
    }
    std::string text(name);
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text + " CRC-24Q";
}

// Every field named "CRC": it covers its structure's bits ahead of it.
void collectCrcs(const BitStructDef& owner, std::vector<CrcBlock>& blocks) {
    for (const BitFieldDef* child : owner.children()) {
        if (child->isStruct()) {
            collectCrcs(static_cast<const BitStructDef&>(*child), blocks);
        } else if (child->name() == "CRC") {
            if (child->ranges().size() != 1 || owner.ranges().size() != 1 ||
                child->totalBitsCount() != kCrcBits) {
                throw std::logic_error("CRC-24Q of " + owner.name() +
                                       " is not one run of 24 bits in one run of bits");
            }
            const std::int32_t first = owner.ranges().front().firstBitIndex();
            const std::int32_t end = child->ranges().front().lastBitIndex() + 1;
            blocks.push_back({blockName(owner), {first, end - first}});
        }
    }
}

FrameCrcs::FrameCrcs(const BitStructDef& root) : frameBits(root.totalBitsCount()) {
    collectCrcs(root, blocks);
    std::stable_sort(blocks.begin(), blocks.end(), [](const CrcBlock& a, const CrcBlock& b) {
        return a.bits.first < b.bits.first;
    });
    for (const CrcBlock& block : blocks) {
        CheckResult& result = results.emplace_back();
        result.name = block.name;
        result.bits = {&block.bits, 1};
        result.status = CheckStatus::Incomplete;
        result.checkBits = kCrcBits;
    }
}

const FrameCrcs* frameCrcs(MessageFormat format) {
    switch (format) {
        case MessageFormat::GpsCNav2: {
            static const FrameCrcs crcs(GpsCNav2::gpsCNav2FrameDef());
            return &crcs;
        }
        case MessageFormat::BeidouCNav1: {
            static const FrameCrcs crcs(BeidouCNav1::beidouCNav1FrameDef());
            return &crcs;
        }
        case MessageFormat::BeidouCNav2: {
            static const FrameCrcs crcs(BeidouCNav2::beidouCNav2FrameDef());
            return &crcs;
        }
        case MessageFormat::Irnss: {
            static const FrameCrcs crcs(Irnss::irnssSubframeDef());
            return &crcs;
        }
        default:
            return nullptr;
    }
}

void checkCrcs(const FrameCrcs& crcs, const std::uint8_t* bytes, std::int32_t inputBits,
               std::vector<CheckResult>& out) {
    const std::int32_t given = std::min(inputBits, crcs.frameBits);
    CheckResult* result = appendResults(out, crcs.results);
    for (const CrcBlock& block : crcs.blocks) {
        const std::int32_t end = block.bits.first + block.bits.count;
        if (end <= given) {
            result->computed =
                Crc24Q::ofBits(bytes, static_cast<std::size_t>(block.bits.first),
                               static_cast<std::size_t>(block.bits.count - kCrcBits));
            result->received = readInputBits(bytes, inputBits, end - kCrcBits, kCrcBits);
            result->status =
                result->computed == result->received ? CheckStatus::Pass : CheckStatus::Fail;
        }
        ++result;
    }
}

}  // namespace

void sealCrcs(MessageFormat format, std::uint8_t* bytes) {
    const FrameCrcs* crcs = frameCrcs(format);
    if (crcs == nullptr) {
        return;
    }
    for (const CrcBlock& block : crcs->blocks) {
        const std::int32_t at = block.bits.first + block.bits.count - kCrcBits;
        const std::uint32_t crc = Crc24Q::ofBits(bytes, static_cast<std::size_t>(block.bits.first),
                                                 static_cast<std::size_t>(at - block.bits.first));
        for (std::int32_t i = 0; i < kCrcBits; ++i) {
            const auto mask =
                static_cast<std::uint8_t>(0x80U >> static_cast<unsigned>((at + i) % 8));
            std::uint8_t& byte = bytes[(at + i) / 8];
            byte = ((crc >> (kCrcBits - 1 - i)) & 1U) != 0
                       ? static_cast<std::uint8_t>(byte | mask)
                       : static_cast<std::uint8_t>(byte & ~mask);
        }
    }
}

void run(MessageFormat format, const std::uint8_t* bytes, std::int32_t inputBits,
         std::vector<CheckResult>& out) {
    switch (format) {
        case MessageFormat::GpsLNav:
        case MessageFormat::QzssLNav:
            checkLNav(bytes, inputBits, out);
            return;
        case MessageFormat::BeidouD1:
        case MessageFormat::BeidouD2:
            checkBeidouSubframe(bytes, inputBits, out);
            return;
        default:
            if (const FrameCrcs* crcs = frameCrcs(format)) {
                checkCrcs(*crcs, bytes, inputBits, out);
            }
            return;
    }
}

}  // namespace ZeltNavMsg::Checks
