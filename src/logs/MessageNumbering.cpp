#include <algorithm>
#include <array>
#include <cstring>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "api/HexInput.h"
#include "bits/BinArray.h"
#include "legacy/BeidouD1Interface.h"
#include "legacy/BeidouD2Interface.h"
#include "legacy/GpsL1caInterface.h"
#include "legacy/QzssL1caInterface.h"
#include "legacy/SubframeCoder.h"
#include "schemas/beidou_cnav1/FrameDef.h"
#include "schemas/beidou_cnav2/FrameDef.h"
#include "schemas/gps_cnav2/FrameDef.h"
#include "schemas/irnss/SubframeDef.h"
#include "zeltnavmsg/SubframeAndPage.h"

namespace ZeltNavMsg {

namespace {

using Legacy::SubframeFieldInfo;

using Legacy::SubframeCoder;

constexpr std::int32_t kWords = 10;
constexpr std::int32_t kWordBits = SubframeCoder::kWordBits;

// A table entry as pieces of decoded words: each of its segments, split where it
// crosses from one word into the next, most significant first.
struct EntryInWords {
    struct Piece {
        std::uint8_t word = 0;
        std::uint8_t shift = 0;  // of the piece's last bit above the word's bit 0
        std::uint8_t length = 0;
    };
    static constexpr auto kMaxPieces =
        2 * static_cast<std::size_t>(SubframeFieldInfo::kMaxSegments);

    std::array<Piece, kMaxPieces> pieces{};
    std::size_t count = 0;
    bool present = false;
};

// Numbering entries lie in the ten words and are at most 32 bits wide; a table that
// breaks this stops the first reading with an error rather than read it wrong.
EntryInWords inWords(const SubframeFieldInfo& entry) {
    EntryInWords reading;
    reading.present = true;
    std::int32_t width = 0;
    for (std::int32_t s = 0; s < entry.segmentCount && s < SubframeFieldInfo::kMaxSegments; ++s) {
        std::int32_t index = entry.segmentStart[s] - 1;
        std::int32_t length = entry.segmentLength[s];
        if (length <= 0) {
            continue;
        }
        width += length;
        if (index < 0 || index + length > kWords * kWordBits || width > 32) {
            throw std::logic_error(std::string("MessageNumbering: entry ") + entry.name +
                                   " does not lie in the ten words");
        }
        while (length > 0) {
            if (reading.count == EntryInWords::kMaxPieces) {
                throw std::logic_error(std::string("MessageNumbering: entry ") + entry.name +
                                       " has too many pieces");
            }
            const std::int32_t offset = index % kWordBits;
            const std::int32_t n = std::min(length, kWordBits - offset);
            reading.pieces[reading.count++] = {static_cast<std::uint8_t>(index / kWordBits),
                                               static_cast<std::uint8_t>(kWordBits - offset - n),
                                               static_cast<std::uint8_t>(n)};
            index += n;
            length -= n;
        }
    }
    return reading;
}

// The entries of a legacy table that number a subframe: its subframe number field,
// the LNAV TOW count, and the page number field of each subframe that has one.
struct LegacyNumbering {
    const Legacy::SubframeIf* signal = nullptr;
    EntryInWords subframe;
    EntryInWords tow;
    std::array<EntryInWords, 8> pages{};
};

LegacyNumbering findEntries(const Legacy::SubframeIf& signal, std::string_view subframeName,
                            std::string_view towName, std::string_view pageName) {
    LegacyNumbering numbering;
    numbering.signal = &signal;
    for (const SubframeFieldInfo& entry : signal.fields()) {
        const std::string_view name = entry.name;
        if (name == subframeName && !numbering.subframe.present) {
            numbering.subframe = inWords(entry);
        } else if (!towName.empty() && name == towName && !numbering.tow.present) {
            numbering.tow = inWords(entry);
        } else if (!pageName.empty() && name == pageName && entry.subframe > 0 &&
                   static_cast<std::size_t>(entry.subframe) < numbering.pages.size() &&
                   !numbering.pages[static_cast<std::size_t>(entry.subframe)].present) {
            numbering.pages[static_cast<std::size_t>(entry.subframe)] = inWords(entry);
        }
    }
    if (!numbering.subframe.present || (!towName.empty() && !numbering.tow.present)) {
        throw std::logic_error("MessageNumbering: a subframe numbering entry is missing");
    }
    return numbering;
}

const LegacyNumbering& legacyNumbering(MessageFormat format) {
    static const std::array<LegacyNumbering, 4> kNumberings{
        findEntries(Legacy::GPS_L1CA_Interface, "subframe_id", "tow_count", ""),
        findEntries(Legacy::QZSS_L1CA_Interface, "subframe_id", "tow_count", ""),
        findEntries(Legacy::BEIDOU_D1_Interface, "fraid", "", "pnum"),
        findEntries(Legacy::BEIDOU_D2_Interface, "fraid", "", "pnum")};
    switch (format) {
        case MessageFormat::GpsLNav:
            return kNumberings[0];
        case MessageFormat::QzssLNav:
            return kNumberings[1];
        case MessageFormat::BeidouD1:
            return kNumberings[2];
        default:
            return kNumberings[3];
    }
}

// The words of a received subframe as the coder decodes them (LNAV data-bit inversion,
// BeiDou BCH and interleaving stripped), each decoded when an entry first needs it.
class DecodedWords {
  public:
    DecodedWords(const SubframeCoder& coder, std::span<const std::uint8_t> bytes) : coder_(coder) {
        received_.bitCount = kWords * kWordBits;
        if (bytes.size() >= sizeof received_.data) {
            std::memcpy(received_.data, bytes.data(), sizeof received_.data);
        } else if (!bytes.empty()) {
            std::memcpy(received_.data, bytes.data(), bytes.size());
        }
    }

    // The entry's value: its pieces joined, most significant first.
    std::uint32_t read(const EntryInWords& entry) {
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < entry.count; ++i) {
            const EntryInWords::Piece piece = entry.pieces[i];
            value = (value << piece.length) |
                    ((word(piece.word) >> piece.shift) & ((1U << piece.length) - 1U));
        }
        return value;
    }

  private:
    std::uint32_t word(std::int32_t w) {
        if ((decoded_ & (1U << w)) == 0) {
            decoded_ |= 1U << w;
            words_[static_cast<std::size_t>(w)] = coder_.DecodedWord(received_, w);
        }
        return words_[static_cast<std::size_t>(w)];
    }

    const SubframeCoder& coder_;
    Legacy::subframe_t received_;
    std::array<std::uint32_t, kWords> words_{};
    std::uint32_t decoded_ = 0;  // bit w: words_[w] is decoded
};

// LNAV subframes 4 and 5 cycle through 25 pages of 30 s from the start of the week;
// the TOW count is that of the next subframe, so this one began 6 s earlier.
std::int32_t lnavPage(std::uint32_t towCount) {
    constexpr std::uint32_t kSecondsPerWeek = 604800;
    const std::uint32_t start = (towCount * 6 + kSecondsPerWeek - 6) % kSecondsPerWeek;
    return static_cast<std::int32_t>((start / 30) % 25 + 1);
}

// From the table entries and the coder's word decoding, the words they lie in only.
SubframeAndPage legacyNumbers(MessageFormat format, std::span<const std::uint8_t> bytes) {
    const LegacyNumbering& numbering = legacyNumbering(format);
    DecodedWords words(numbering.signal->GetCoder(), bytes);
    SubframeAndPage numbers;
    numbers.subframe = static_cast<std::int32_t>(words.read(numbering.subframe));
    if (numbering.tow.present) {
        if (numbers.subframe == 4 || numbers.subframe == 5) {
            numbers.page = lnavPage(words.read(numbering.tow));
        }
    } else if (numbers.subframe > 0 &&
               static_cast<std::size_t>(numbers.subframe) < numbering.pages.size()) {
        const EntryInWords& page = numbering.pages[static_cast<std::size_t>(numbers.subframe)];
        if (page.present) {
            numbers.page = static_cast<std::int32_t>(words.read(page));
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
