#include "zeltnavmsg/MessageEncoder.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstring>
#include <stdexcept>

#include "api/HexInput.h"
#include "bits/BigEndian.h"
#include "bits/BitUtils.h"
#include "encoding/Protection.h"
#include "records/FieldDetail.h"
#include "zeltnavmsg/RecordOutput.h"

namespace ZeltNavMsg {

// The std::runtime_error member only holds the text; nothing is thrown here.
// NOLINTNEXTLINE(bugprone-throw-keyword-missing)
EncodingError::EncodingError(const std::string& message) : DecodingError(message) {}
EncodingError::~EncodingError() = default;

namespace {

constexpr std::int32_t kSubframeDigits = 2 * 38;  // what Decode takes of a 300-bit format

const Records::FieldDetail& detailOf(const FieldInfo& field) {
    if (field.detail == nullptr) {
        throw EncodingError(std::string(field.path) + ": not a field of the library's records");
    }
    return *static_cast<const Records::FieldDetail*>(field.detail);
}

std::string numberText(double v) {
    char text[32];
    return {text, Records::writeShortest(text, v)};
}

// " s" after a number, or nothing for a pure number.
std::string unitsText(const FieldInfo& field) {
    std::string text;
    if (!field.units.empty()) {
        text.append(" ").append(field.units);
    }
    return text;
}

// `count` bits of `value` (its low bits, the first most significant) from bit `first` of
// the `size` bytes at `bytes`: within one byte, one eight-byte window, or byte by byte.
void writeRun(std::uint8_t* bytes, std::size_t size, std::int32_t first, std::int32_t count,
              std::uint64_t value) noexcept {
    const auto at = static_cast<std::size_t>(first / 8);
    const std::int32_t offset = first % 8;
    if (offset + count <= 8) {  // BeiDou fields come one bit at a time
        const auto shift = static_cast<unsigned>(8 - offset - count);
        const auto mask = static_cast<std::uint8_t>(lowBitsMask(count) << shift);
        bytes[at] = static_cast<std::uint8_t>((bytes[at] & ~mask) | ((value << shift) & mask));
        return;
    }
    if (offset + count <= 64 && at + 8 <= size) {
        const auto shift = static_cast<unsigned>(64 - offset - count);
        const std::uint64_t mask = lowBitsMask(count) << shift;
        Bits::storeBigEndian64(
            bytes + at, (Bits::loadBigEndian64(bytes + at) & ~mask) | ((value << shift) & mask));
        return;
    }
    while (count > 0) {
        const std::int32_t inByte = first % 8;
        const std::int32_t take = std::min(8 - inByte, count);
        const auto shift = static_cast<unsigned>(8 - inByte - take);
        const auto mask = static_cast<std::uint8_t>(((1U << take) - 1U) << shift);
        const auto bits = static_cast<std::uint8_t>(((value >> (count - take)) << shift) & mask);
        std::uint8_t& byte = bytes[first / 8];
        byte = static_cast<std::uint8_t>((byte & ~mask) | bits);
        first += take;
        count -= take;
    }
}

// "low to high units": the ends of a field's range, exact (a count of up to 64 bits is
// not always a double, so an unscaled one is written as an integer).
std::string rangeText(const FieldInfo& field, const Records::ValueRule& rule) {
    const std::int32_t width = rule.width;
    std::uint64_t high = lowBitsMask(width);
    std::uint64_t lowMagnitude = 0;  // of a negative low end
    if (!isUnsignedFormat(rule.format)) {
        high = lowBitsMask(width - 1);
        const bool signMagnitude = rule.format == NumberFormat::SignMagnitudeNumberFormat;
        lowMagnitude = signMagnitude && width > 1 ? high : high + 1;
    }
    const auto end = [&](std::uint64_t magnitude, bool negative) {
        if (rule.scale != 1.0) {
            const double v = static_cast<double>(magnitude) * rule.scale;
            return numberText(negative && magnitude != 0 ? -v : v);
        }
        char text[24];
        char* p = text;
        if (negative && magnitude != 0) {
            *p++ = '-';
        }
        return std::string(+text, std::to_chars(p, text + sizeof text, magnitude).ptr);
    };
    return end(lowMagnitude, true) + " to " + end(high, false) + unitsText(field);
}

}  // namespace

MessageEncoder::MessageEncoder(MessageFormat format, std::int32_t subframe, std::int32_t page)
    : format_(format), subframe_(subframe), page_(page), frameBits_(Encoding::messageBits(format)) {
    if (frameBits_ == 0) {
        throw DecodingError("Encoding is not supported for this message format");
    }
}

MessageEncoder::MessageEncoder(MessageFormat format, std::int32_t subframe, std::int32_t page,
                               std::string_view hex)
    : format_(format), subframe_(subframe), page_(page) {
    // Decode's checks, in its order.
    const std::string_view digits = Detail::validateHexDigits(hex);
    if (digits.empty()) {
        throw std::out_of_range("Decode: hex string is empty");
    }
    frameBits_ = Encoding::messageBits(format);
    if (frameBits_ == 0) {
        throw DecodingError("Encoding is not supported for this message format");
    }
    if (frameBits_ == 300 && digits.size() > static_cast<std::size_t>(kSubframeDigits)) {
        throw std::length_error("Decode: subframe data is longer than 38 bytes");
    }
    const auto frameBytes = static_cast<std::size_t>(frameBits_ + 7) / 8;
    Detail::hexDigitsToBytes(digits, bits_.data(), frameBytes);
    if (frameBits_ % 8 != 0) {
        bits_[frameBytes - 1] &= static_cast<std::uint8_t>(0xFF00U >> (frameBits_ % 8));
    }
    const auto given = static_cast<std::int32_t>(
        std::min<std::size_t>(digits.size() * 4, static_cast<std::size_t>(frameBits_)));
    Encoding::toRecordBits(format_, bits_.data(), given, damage_.data());
    for (const std::uint8_t byte : damage_) {
        damaged_ = damaged_ || byte != 0;
    }
}

MessageEncoder::MessageEncoder(const DecodedMessage& message)
    : MessageEncoder(message.format(), message.subframe(), message.page()) {
    for (const DecodedField& f : message.fields()) {
        if (f.role() != FieldRole::Word) {
            setRaw(f.info(), f.raw());
        }
    }
}

const DecodedMessage& MessageEncoder::message() {
    if (stale_) {
        hex(scratch_);
        NavMessageDecoder::DecodeFields(format_, subframe_, page_, scratch_, message_);
        stale_ = false;
    }
    return message_;
}

const FieldInfo& MessageEncoder::field(std::string_view key, std::int32_t part) {
    const DecodedMessage& m = message();
    std::int32_t found = 0;
    for (const bool byPath : {true, false}) {
        for (const DecodedField& f : m.fields()) {
            if ((byPath ? f.path() : f.name()) == key && found++ == part) {
                return f.info();
            }
        }
        if (found > 0) {
            break;
        }
    }
    std::string text = "no field \"" + std::string(key) + "\"";
    if (found > 0) {
        text += " part " + std::to_string(part) + " (it has " + std::to_string(found) +
                (found == 1 ? " part" : " parts") + ", counted from 0)";
    }
    throw EncodingError(text + " in " + std::string(m.layout()));
}

void MessageEncoder::set(const FieldInfo& field, double value) {
    setRaw(field, rawOf(field, value));
}

void MessageEncoder::setRaw(const FieldInfo& field, std::uint64_t raw) {
    const Records::FieldDetail& detail = detailOf(field);
    if (detail.format != format_) {
        throw EncodingError(std::string(field.path) + ": a field of " +
                            std::string(MessageFormatName(detail.format)) + ", not of " +
                            std::string(MessageFormatName(format_)));
    }
    if (field.role == FieldRole::Word) {
        throw EncodingError(std::string(field.path) +
                            ": a whole word as received, which its fields make; set them instead");
    }
    if (field.bitCount < 64 && (raw >> field.bitCount) != 0) {
        char text[16];
        char* end = std::to_chars(text, text + sizeof text, raw, 16).ptr;
        throw EncodingError(std::string(field.path) + ": raw value 0x" + std::string(+text, end) +
                            " does not fit in its " + std::to_string(field.bitCount) + " bits");
    }
    std::int32_t left = field.bitCount;
    for (const BitSegment& s : field.bits) {
        left -= s.count;
        const std::uint64_t part = left >= 64 ? 0 : raw >> left;
        writeRun(bits_.data(), kBytes, s.first, s.count, part);
        if (damaged_) {
            writeRun(damage_.data(), kBytes, s.first, s.count, 0);
        }
    }
    stale_ = true;
}

std::string MessageEncoder::hex(CheckBits checks) const {
    std::string out;
    hex(out, checks);
    return out;
}

void MessageEncoder::hex(std::string& out, CheckBits checks) const {
    static constexpr char kDigits[] = "0123456789abcdef";
    std::array<std::uint8_t, kBytes> bytes = bits_;
    if (checks == CheckBits::Keep && damaged_) {
        for (std::size_t i = 0; i < kBytes; ++i) {
            bytes[i] ^= damage_[i];
        }
    }
    Encoding::toBroadcastBits(format_, bytes.data(), checks);
    const auto digits = static_cast<std::size_t>(frameBits_ + 3) / 4;
    out.resize(digits);
    for (std::size_t i = 0; i < digits; ++i) {
        out[i] = kDigits[(bytes[i / 2] >> (i % 2 == 0 ? 4 : 0)) & 0xF];
    }
}

std::uint64_t MessageEncoder::rawOf(const FieldInfo& field, double value) {
    const Records::ValueRule& rule = detailOf(field).rule;
    const std::int32_t width = rule.width;
    const bool isUnsigned = isUnsignedFormat(rule.format);
    const bool signMagnitude = rule.format == NumberFormat::SignMagnitudeNumberFormat;
    // The codes as integers, lowest ... highest; a one-bit signed field reads 1 as -1.
    const std::uint64_t highest = isUnsigned ? lowBitsMask(width) : lowBitsMask(width - 1);
    const std::int64_t lowest = isUnsigned      ? 0
                                : width == 1    ? -1
                                : signMagnitude ? -static_cast<std::int64_t>(highest)
                                                : -static_cast<std::int64_t>(highest) - 1;
    constexpr double kTwo63 = 9223372036854775808.0;
    const double x = value / rule.scale;
    if (rule.scale > 0.0 && x > -kTwo63 && x < kTwo63) {
        // The nearest integer, halves away from zero: x minus its truncation is exact.
        auto n = static_cast<std::int64_t>(x);
        const double rest = x - static_cast<double>(n);
        n += rest >= 0.5 ? 1 : rest <= -0.5 ? -1 : 0;
        if (n >= lowest && (n < 0 || static_cast<std::uint64_t>(n) <= highest)) {
            if (signMagnitude && n < 0) {
                return static_cast<std::uint64_t>(-n) | (std::uint64_t{1} << (width - 1));
            }
            return static_cast<std::uint64_t>(n) & lowBitsMask(width);
        }
    } else if (isUnsigned && width == 64 && x >= kTwo63 && x < 2 * kTwo63) {
        return static_cast<std::uint64_t>(x);  // a whole number at this size
    }
    const std::string units = unitsText(field);
    throw EncodingError(std::string(field.path) + ": " + numberText(value) + units +
                        " is outside the range " + rangeText(field, rule) + " (LSB " +
                        numberText(rule.scale) + units + ")");
}

double MessageEncoder::valueOf(const FieldInfo& field, std::uint64_t raw) {
    const Records::ValueRule& rule = detailOf(field).rule;
    return BitUtils::readDouble(raw & lowBitsMask(rule.width), rule.scale, rule.width, rule.format);
}

}  // namespace ZeltNavMsg
