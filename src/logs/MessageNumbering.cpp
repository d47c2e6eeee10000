#include <algorithm>
#include <cstring>
#include <stdexcept>
#include <string_view>

#include "api/HexInput.h"
#include "bits/BinArray.h"
#include "legacy/BeidouD1Interface.h"
#include "legacy/BeidouD2Interface.h"
#include "legacy/GpsL1caInterface.h"
#include "legacy/ListingPlan.h"
#include "legacy/QzssL1caInterface.h"
#include "schemas/beidou_cnav1/FrameDef.h"
#include "schemas/beidou_cnav2/FrameDef.h"
#include "schemas/gps_cnav2/FrameDef.h"
#include "schemas/irnss/SubframeDef.h"
#include "zeltnavmsg/SubframeAndPage.h"

namespace ZeltNavMsg {

namespace {

using Legacy::SubframeFieldInfo;

// The entries of a legacy table that number a subframe: its subframe number field,
// the LNAV TOW count, and the page number field of each subframe that has one.
struct LegacyNumbering {
    const Legacy::SubframeIf* signal = nullptr;
    const SubframeFieldInfo* subframeField = nullptr;
    const SubframeFieldInfo* towField = nullptr;
    std::array<const SubframeFieldInfo*, 8> pageFields{};
};

LegacyNumbering findEntries(const Legacy::SubframeIf& signal, std::string_view subframeName,
                            std::string_view towName, std::string_view pageName) {
    LegacyNumbering numbering;
    numbering.signal = &signal;
    for (const SubframeFieldInfo& entry : signal.fields()) {
        const std::string_view name = entry.name;
        if (name == subframeName && numbering.subframeField == nullptr) {
            numbering.subframeField = &entry;
        } else if (!towName.empty() && name == towName && numbering.towField == nullptr) {
            numbering.towField = &entry;
        } else if (!pageName.empty() && name == pageName && entry.subframe > 0 &&
                   static_cast<std::size_t>(entry.subframe) < numbering.pageFields.size() &&
                   numbering.pageFields[static_cast<std::size_t>(entry.subframe)] == nullptr) {
            numbering.pageFields[static_cast<std::size_t>(entry.subframe)] = &entry;
        }
    }
    if (numbering.subframeField == nullptr || (!towName.empty() && numbering.towField == nullptr)) {
        throw std::logic_error("MessageNumbering: a subframe numbering entry is missing");
    }
    return numbering;
}

const LegacyNumbering& legacyNumbering(MessageFormat format) {
    static const LegacyNumbering gps =
        findEntries(Legacy::GPS_L1CA_Interface, "subframe_id", "tow_count", "");
    static const LegacyNumbering qzss =
        findEntries(Legacy::QZSS_L1CA_Interface, "subframe_id", "tow_count", "");
    static const LegacyNumbering d1 = findEntries(Legacy::BEIDOU_D1_Interface, "fraid", "", "pnum");
    static const LegacyNumbering d2 = findEntries(Legacy::BEIDOU_D2_Interface, "fraid", "", "pnum");
    switch (format) {
        case MessageFormat::GpsLNav:
            return gps;
        case MessageFormat::QzssLNav:
            return qzss;
        case MessageFormat::BeidouD1:
            return d1;
        default:
            return d2;
    }
}

// LNAV subframes 4 and 5 cycle through 25 pages of 30 s from the start of the week;
// the TOW count is that of the next subframe, so this one began 6 s earlier.
std::int32_t lnavPage(std::uint32_t towCount) {
    constexpr std::uint32_t kSecondsPerWeek = 604800;
    const std::uint32_t start = (towCount * 6 + kSecondsPerWeek - 6) % kSecondsPerWeek;
    return static_cast<std::int32_t>((start / 30) % 25 + 1);
}

SubframeAndPage legacyNumbers(MessageFormat format, std::span<const std::uint8_t> bytes) {
    const LegacyNumbering& numbering = legacyNumbering(format);
    // The coder strips the word protection (LNAV data-bit inversion, BeiDou BCH and
    // interleaving) in place; the table positions are those of the stripped words.
    Legacy::subframe_t sf;
    sf.bitCount = 300;
    std::memcpy(sf.data, bytes.data(), std::min(bytes.size(), sizeof sf.data));
    numbering.signal->GetCoder().Decode(sf);
    std::uint8_t padded[Legacy::kPaddedDataBytes] = {};
    std::memcpy(padded, sf.data, sizeof sf.data);

    SubframeAndPage numbers;
    numbers.subframe =
        static_cast<std::int32_t>(Legacy::extractField(*numbering.subframeField, padded).value);
    if (numbering.towField != nullptr) {
        if (numbers.subframe == 4 || numbers.subframe == 5) {
            numbers.page = lnavPage(Legacy::extractField(*numbering.towField, padded).value);
        }
    } else if (numbers.subframe > 0 &&
               static_cast<std::size_t>(numbers.subframe) < numbering.pageFields.size()) {
        const SubframeFieldInfo* page =
            numbering.pageFields[static_cast<std::size_t>(numbers.subframe)];
        if (page != nullptr) {
            numbers.page = static_cast<std::int32_t>(Legacy::extractField(*page, padded).value);
        }
    }
    return numbers;
}

// The first N bits in a zeroed frame, as Decode reads a frame format.
template <int N>
BinArray<N> frameBits(std::span<const std::uint8_t> bytes) {
    BinArray<N> frame;
    frame.fill(0);
    std::memcpy(frame.data(), bytes.data(),
                std::min(bytes.size(), static_cast<std::size_t>(BinArray<N>::kBytes)));
    frame.clearUnusedBits();
    return frame;
}

std::int32_t asNumber(std::uint64_t value) {
    return static_cast<std::int32_t>(value);
}

}  // namespace

SubframeAndPage MessageNumbering::GetSubframeAndPage(MessageFormat format,
                                                     std::span<const std::uint8_t> bytes) {
    switch (format) {
        case MessageFormat::GpsLNav:
        case MessageFormat::QzssLNav:
        case MessageFormat::BeidouD1:
        case MessageFormat::BeidouD2:
            return legacyNumbers(format, bytes);
        case MessageFormat::GpsCNav2: {
            const auto frame = frameBits<GpsCNav2::FrameDef::kBits>(bytes);
            return {0,
                    asNumber(GpsCNav2::gpsCNav2FrameDef().subframe3.pageId.read(frame.buffer()))};
        }
        case MessageFormat::BeidouCNav1: {
            const auto frame = frameBits<BeidouCNav1::FrameDef::kBits>(bytes);
            return {
                0,
                asNumber(BeidouCNav1::beidouCNav1FrameDef().subframe3.pageId.read(frame.buffer()))};
        }
        case MessageFormat::BeidouCNav2: {
            const auto frame = frameBits<BeidouCNav2::FrameDef::kBits>(bytes);
            return {0, asNumber(BeidouCNav2::beidouCNav2FrameDef().mesType.read(frame.buffer()))};
        }
        case MessageFormat::Irnss: {
            const auto frame = frameBits<Irnss::SubframeDef::kBits>(bytes);
            const Irnss::SubframeDef& root = Irnss::irnssSubframeDef();
            SubframeAndPage numbers;
            numbers.subframe = asNumber(root.subframeId.read(frame.buffer())) + 1;
            if (numbers.subframe == 3 || numbers.subframe == 4) {
                numbers.page = asNumber(root.messageData.messageId.read(frame.buffer()));
            }
            return numbers;
        }
        default:
            throw DecodingError("Decoding is not supported yet for this message format");
    }
}

SubframeAndPage MessageNumbering::GetSubframeAndPage(MessageFormat format,
                                                     std::string_view hexString) {
    const std::string_view digits = Detail::validateHexDigits(hexString);
    if (digits.empty()) {
        throw std::out_of_range("GetSubframeAndPage: hex string is empty");
    }
    // 883 bits, the longest message, are 111 bytes; further digits are not looked at.
    std::array<std::uint8_t, 112> bytes{};
    Detail::hexDigitsToBytes(digits, bytes.data(), bytes.size());
    const std::size_t used = std::min(bytes.size(), (digits.size() + 1) / 2);
    return GetSubframeAndPage(format, std::span<const std::uint8_t>(bytes.data(), used));
}

}  // namespace ZeltNavMsg
