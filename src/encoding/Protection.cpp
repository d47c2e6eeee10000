#include "encoding/Protection.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "checks/Checks.h"
#include "legacy/BeidouD1Interface.h"
#include "legacy/BeidouD2Interface.h"
#include "legacy/GpsL1caInterface.h"
#include "legacy/QzssL1caInterface.h"
#include "legacy/SubframeCoderBeidouNav.h"
#include "legacy/SubframeCoderGpsLNav.h"
#include "records/TreeRecords.h"

namespace ZeltNavMsg::Encoding {

namespace {

using Legacy::subframe_t;

constexpr std::int32_t kSubframeBits = 300;
constexpr std::int32_t kWords = 10;
constexpr std::int32_t kWordBits = 30;

const Legacy::SubframeIf* signalOf(MessageFormat format) noexcept {
    switch (format) {
        case MessageFormat::GpsLNav:
            return &Legacy::GPS_L1CA_Interface;
        case MessageFormat::QzssLNav:
            return &Legacy::QZSS_L1CA_Interface;
        case MessageFormat::BeidouD1:
            return &Legacy::BEIDOU_D1_Interface;
        case MessageFormat::BeidouD2:
            return &Legacy::BEIDOU_D2_Interface;
        default:
            return nullptr;
    }
}

bool isLNav(MessageFormat format) noexcept {
    return format == MessageFormat::GpsLNav || format == MessageFormat::QzssLNav;
}

// The coders' record of a whole subframe: every word fits, so none is reported.
subframe_t subframeOf(const std::uint8_t* bytes) noexcept {
    subframe_t sf;
    sf.bitCount = subframe_t::kDataBytes * 8;
    std::memcpy(sf.data, bytes, sizeof sf.data);
    return sf;
}

// LNAV data bits inverted where the previous word as broadcast ends in 1, the parity bits
// as they are: the inverse of the coder's Decode.
void invertAfterD30(subframe_t& sf) {
    using Coder = Legacy::SubframeCoderGpsLNav;
    std::uint32_t previous = 0;
    for (std::int32_t w = 0; w < kWords; ++w) {
        const std::int32_t firstBit = kWordBits * w + 1;
        const std::uint32_t word = Coder::ReadWord(sf, firstBit);
        (void)Coder::WriteWord(sf, firstBit, Coder::SourceWord(word, previous));
        previous = word;  // its parity bits are the broadcast ones
    }
}

// The form the BeiDou coder's Encode takes, from the broadcast form, without correction:
// word 1 as it is; words 2-10 the information bits of their two codewords.
void deinterleave(subframe_t& sf) {
    using Coder = Legacy::SubframeCoderBeidouNav;
    for (std::int32_t w = 1; w < kWords; ++w) {
        const std::int32_t firstBit = kWordBits * w + 1;
        const Coder::CodewordPair pair = Coder::DeinterleaveWord(Coder::ReadWord(sf, firstBit));
        const std::uint32_t info = (static_cast<std::uint32_t>(pair.first >> 4) << 19) |
                                   (static_cast<std::uint32_t>(pair.second >> 4) << 8);
        (void)Coder::WriteWord(sf, firstBit, info);
    }
}

}  // namespace

std::int32_t messageBits(MessageFormat format) noexcept {
    return signalOf(format) != nullptr ? kSubframeBits : Records::treeFrameBits(format);
}

void toRecordBits(MessageFormat format, std::uint8_t* bytes, std::int32_t givenBits,
                  std::uint8_t* damage) {
    if (isLNav(format)) {
        subframe_t sf = subframeOf(bytes);
        (void)signalOf(format)->GetCoder().Decode(sf);
        std::memcpy(bytes, sf.data, sizeof sf.data);
        return;
    }
    if (format == MessageFormat::BeidouD1 || format == MessageFormat::BeidouD2) {
        // The checks correct as the records do, and say which bit.
        std::vector<CheckResult> results;
        Checks::run(format, bytes, std::min(givenBits, kSubframeBits), results);
        for (const CheckResult& result : results) {
            if (result.status == CheckStatus::Corrected) {
                const auto bit = static_cast<std::size_t>(result.correctedBit);
                const auto mask = static_cast<std::uint8_t>(0x80U >> (bit % 8));
                bytes[bit / 8] ^= mask;
                damage[bit / 8] |= mask;
            }
        }
    }
}

void toBroadcastBits(MessageFormat format, std::uint8_t* bytes, CheckBits checks) {
    const Legacy::SubframeIf* signal = signalOf(format);
    if (signal == nullptr) {
        if (checks == CheckBits::Recompute) {
            Checks::sealCrcs(format, bytes);
        }
        return;
    }
    const bool lnav = isLNav(format);
    if (!lnav && checks == CheckBits::Keep) {
        return;  // BeiDou bits are kept in their broadcast places
    }
    subframe_t sf = subframeOf(bytes);
    if (lnav && checks == CheckBits::Keep) {
        invertAfterD30(sf);
    } else {
        if (!lnav) {
            deinterleave(sf);
        }
        (void)signal->GetCoder().Encode(sf);
    }
    std::memcpy(bytes, sf.data, sizeof sf.data);
}

}  // namespace ZeltNavMsg::Encoding
