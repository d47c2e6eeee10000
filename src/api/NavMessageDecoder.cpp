#include "zeltnavmsg/NavMessageDecoder.h"

#include "zeltnavmsg/DecodedMessage.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>
#include <type_traits>

#include "api/FormatNames.h"
#include "api/HexInput.h"
#include "checks/Checks.h"
#include "fields/TreePlan.h"
#include "legacy/BeidouD1Interface.h"
#include "legacy/BeidouD2Interface.h"
#include "legacy/GpsL1caInterface.h"
#include "legacy/QzssL1caInterface.h"
#include "records/LegacyRecords.h"
#include "records/TreeRecords.h"
#include "schemas/beidou_cnav1/FrameDef.h"
#include "schemas/beidou_cnav2/FrameDef.h"
#include "schemas/gps_cnav2/FrameDef.h"
#include "schemas/irnss/SubframeDef.h"
#include "text/TextBuffer.h"

namespace ZeltNavMsg {

// The std::runtime_error member only holds the text; nothing is thrown here.
// NOLINTBEGIN(bugprone-throw-keyword-missing)
DecodingError::DecodingError() : message_("") {}
DecodingError::DecodingError(const std::string& message) : message_(message) {}
DecodingError::DecodingError(const char* message) : message_(message != nullptr ? message : "") {}
// NOLINTEND(bugprone-throw-keyword-missing)

const char* DecodingError::what() const noexcept {
    return message_.what();
}

namespace {

char systemLetter(std::string_view satIdStr) {
    if (satIdStr.empty()) {
        throw std::invalid_argument("Wrong satellite system type string");
    }
    return satIdStr.front();
}

[[noreturn]] void throwUnknownSystem(std::string_view satIdStr) {
    std::string message = "Unknown satellite system for satellite name ";
    message.append(satIdStr);
    throw DecodingError(message);
}

bool isKnownSystem(char letter) {
    return Names::kSystemLetters.find(letter) != std::string_view::npos;
}

// The 300-bit formats' record of the given digits: subframe, page, bit count and the
// bytes. Longer input than 38 bytes is refused.
Legacy::subframe_t subframeRecord(std::int32_t subframeNumber, std::int32_t pageNumber,
                                  std::string_view digits) {
    if (digits.size() > 2 * static_cast<std::size_t>(Legacy::subframe_t::kDataBytes)) {
        throw std::length_error("Decode: subframe data is longer than 38 bytes");
    }
    Legacy::subframe_t sf;
    sf.subframe = subframeNumber;
    sf.page = pageNumber;
    sf.bitCount = static_cast<std::int32_t>(digits.size() * 4);
    Detail::hexDigitsToBytes(digits, sf.data, sizeof sf.data);
    return sf;
}

// Legacy road: the bytes go into the 38-byte record with the layout of its
// subframe and page, and the signal's table describes it.
void describeSubframe(const Legacy::SubframeIf& signal, std::int32_t subframeNumber,
                      std::int32_t pageNumber, std::string_view digits, Text::TextBuffer& out) {
    Legacy::subframe_t sf = subframeRecord(subframeNumber, pageNumber, digits);
    sf.layoutId = signal.GetLayoutId(sf);
    signal.describe(out, sf, Legacy::SubframeIf::DecodingMode::DecodeWords);
}

// Definition-tree road: the first N bits go into a zeroed frame (a shorter input
// leaves the rest zero, a longer one is cut) and the plan of the format's tree lists
// it.
template <auto Root>
void describeFrame(std::string_view digits, Text::TextBuffer& out) {
    constexpr int kBits = std::remove_cvref_t<decltype(Root())>::kBits;
    const Describe::TreePlan& plan = Describe::treePlanOf<Root>();
    std::array<std::uint8_t, (kBits + 7) / 8> frame{};
    if (plan.readableBytes() > frame.size()) {
        throw std::logic_error("Decode: the tree reaches past its frame");
    }
    Detail::hexDigitsToBytes(digits, frame.data(), frame.size());
    if constexpr (kBits % 8 != 0) {
        frame.back() &= static_cast<std::uint8_t>(0xFF00U >> (kBits % 8));
    }
    plan.appendText(ConstBitBuffer(frame.data(), kBits), out);
}

}  // namespace

SignalType NavMessageDecoder::GetSignalTypeFromString(std::string_view satIdStr,
                                                      std::string_view signalTypeStr) {
    const char letter = systemLetter(satIdStr);
    if (!isKnownSystem(letter)) {
        throwUnknownSystem(satIdStr);
    }
    for (const Names::SignalName& row : Names::kSignalNames) {
        if (row.letter == letter && row.name == signalTypeStr) {
            return row.signal;
        }
    }
    std::string message = "Unknown signal type string ";
    message.append(signalTypeStr).append(" for satellite name ").append(satIdStr);
    throw DecodingError(message);
}

MessageFormat NavMessageDecoder::GetMessageFormatFromString(std::string_view satIdStr,
                                                            std::string_view messageFormatStr) {
    const char letter = systemLetter(satIdStr);
    if (!isKnownSystem(letter)) {
        throwUnknownSystem(satIdStr);
    }
    for (const Names::FormatName& row : Names::kFormatNames) {
        if (row.letter == letter && row.name == messageFormatStr) {
            return row.format;
        }
    }
    std::string message = "Unknown message format string ";
    message.append(messageFormatStr).append(" for satellite name ").append(satIdStr);
    throw DecodingError(message);
}

std::string NavMessageDecoder::GetDefaultMessageFormatString(std::string_view satIdStr) {
    const char letter = systemLetter(satIdStr);
    for (const Names::DefaultFormat& row : Names::kDefaultFormats) {
        if (row.letter == letter) {
            return std::string(row.name);
        }
    }
    throwUnknownSystem(satIdStr);
}

namespace {

// The listing of one message into `out`, whose line end is chosen.
void describeMessage(MessageFormat format, std::int32_t subframeNumber, std::int32_t pageNumber,
                     std::string_view hexString, Text::TextBuffer& out) {
    // Digits are checked before anything looks at the format, and emptiness next.
    const std::string_view digits = Detail::validateHexDigits(hexString);
    if (digits.empty()) {
        throw std::out_of_range("Decode: hex string is empty");
    }

    switch (format) {
        case MessageFormat::GpsCNav2:
            describeFrame<&GpsCNav2::gpsCNav2FrameDef>(digits, out);
            break;
        case MessageFormat::Irnss:
            describeFrame<&Irnss::irnssSubframeDef>(digits, out);
            break;
        case MessageFormat::BeidouCNav1:
            describeFrame<&BeidouCNav1::beidouCNav1FrameDef>(digits, out);
            break;
        case MessageFormat::BeidouCNav2:
            describeFrame<&BeidouCNav2::beidouCNav2FrameDef>(digits, out);
            break;
        case MessageFormat::GpsLNav:
            describeSubframe(Legacy::GPS_L1CA_Interface, subframeNumber, pageNumber, digits, out);
            break;
        case MessageFormat::QzssLNav:
            describeSubframe(Legacy::QZSS_L1CA_Interface, subframeNumber, pageNumber, digits, out);
            break;
        case MessageFormat::BeidouD1:
            describeSubframe(Legacy::BEIDOU_D1_Interface, subframeNumber, pageNumber, digits, out);
            break;
        case MessageFormat::BeidouD2:
            describeSubframe(Legacy::BEIDOU_D2_Interface, subframeNumber, pageNumber, digits, out);
            break;
        default:
            throw DecodingError("Decoding is not supported yet for this message format");
    }
}

}  // namespace

std::string NavMessageDecoder::Decode(MessageFormat format, std::int32_t subframeNumber,
                                      std::int32_t pageNumber, std::string_view hexString) {
    Text::TextBuffer out("\r\n");
    describeMessage(format, subframeNumber, pageNumber, hexString, out);
    return out.str();
}

void NavMessageDecoder::Decode(MessageFormat format, std::int32_t subframeNumber,
                               std::int32_t pageNumber, std::string_view hexString,
                               std::string& out, std::string_view lineEnd) {
    if (lineEnd != "\r\n" && lineEnd != "\n") {
        throw std::invalid_argument(R"(Decode: line ends are "\r\n" or "\n")");
    }
    // The listing is made whole on the stack first, so that a failure leaves `out` as
    // it was.
    Text::TextBuffer text(lineEnd == "\n" ? "\n" : "\r\n");
    describeMessage(format, subframeNumber, pageNumber, hexString, text);
    out.append(text.view());
}

DecodedMessage NavMessageDecoder::DecodeFields(MessageFormat format, std::int32_t subframeNumber,
                                               std::int32_t pageNumber,
                                               std::string_view hexString) {
    DecodedMessage message;
    DecodeFields(format, subframeNumber, pageNumber, hexString, message);
    return message;
}

void NavMessageDecoder::DecodeFields(MessageFormat format, std::int32_t subframeNumber,
                                     std::int32_t pageNumber, std::string_view hexString,
                                     DecodedMessage& out) {
    // The same checks as Decode, in the same order.
    const std::string_view digits = Detail::validateHexDigits(hexString);
    if (digits.empty()) {
        throw std::out_of_range("Decode: hex string is empty");
    }
    Records::MessageWriter writer(out);
    const auto bitCount =
        static_cast<std::int32_t>(std::min<std::size_t>(digits.size(), 1U << 28) * 4);
    switch (format) {
        case MessageFormat::GpsCNav2:
        case MessageFormat::BeidouCNav1:
        case MessageFormat::BeidouCNav2:
        case MessageFormat::Irnss: {
            // The first N bits in a zeroed frame, as the listing reads them.
            writer.start(format, subframeNumber, pageNumber, bitCount);
            const std::int32_t frameBits = Records::treeFrameBits(format);
            const auto frameBytes = static_cast<std::size_t>((frameBits + 7) / 8);
            Detail::hexDigitsToBytes(digits, writer.bits(), frameBytes);
            if (frameBits % 8 != 0) {
                writer.bits()[frameBytes - 1] &=
                    static_cast<std::uint8_t>(0xFF00U >> (frameBits % 8));
            }
            Records::decodeTree(format, writer);
            Checks::run(format, writer.bits(), std::min(bitCount, frameBits), writer.checks());
            return;
        }
        case MessageFormat::GpsLNav:
        case MessageFormat::QzssLNav:
        case MessageFormat::BeidouD1:
        case MessageFormat::BeidouD2: {
            const Legacy::subframe_t sf = subframeRecord(subframeNumber, pageNumber, digits);
            writer.start(format, subframeNumber, pageNumber, bitCount);
            Records::decodeSubframe(format, sf, writer);
            Checks::run(format, sf.data, sf.bitCount, writer.checks());
            return;
        }
        default:
            throw DecodingError("Decoding is not supported yet for this message format");
    }
}

}  // namespace ZeltNavMsg
