#include "fuzz/FuzzInput.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <sstream>

#include "support/DecodeOutcome.h"
#include "support/SupportedFormats.h"

namespace ZeltNavMsg::Fuzz {

namespace {

using Testing::DecodeOutcome;
using Kind = DecodeOutcome::Kind;

constexpr std::uint8_t kMinByte = 0xF0;
constexpr std::uint8_t kMaxByte = 0xF1;
constexpr std::uint8_t kWordByte = 0xFF;
constexpr int kSmallOffset = 16;

constexpr std::uint8_t kAsBits = 0x01;
constexpr std::uint8_t kUpperCase = 0x02;
constexpr std::uint8_t kOddCount = 0x04;
constexpr std::uint8_t kWhiteSpace = 0x08;

void appendNumber(std::vector<std::uint8_t>& out, std::int32_t value) {
    if (value >= -kSmallOffset && value < kMinByte - kSmallOffset) {
        out.push_back(static_cast<std::uint8_t>(value + kSmallOffset));
    } else if (value == INT32_MIN) {
        out.push_back(kMinByte);
    } else if (value == INT32_MAX) {
        out.push_back(kMaxByte);
    } else {
        out.push_back(kWordByte);
        const auto bits = static_cast<std::uint32_t>(value);
        for (int shift = 0; shift < 32; shift += 8) {
            out.push_back(static_cast<std::uint8_t>(bits >> shift));
        }
    }
}

int hexValue(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    if (c >= 'A' && c <= 'F') {
        return c - 'A' + 10;
    }
    return -1;
}

std::string_view trimmed(std::string_view s) {
    constexpr std::string_view kBlanks = " \t\n\v\f\r";
    const std::size_t first = s.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return s.substr(first, s.find_last_not_of(kBlanks) - first + 1);
}

}  // namespace

Request parseInput(const std::uint8_t* data, std::size_t size) {
    std::size_t pos = 0;
    const auto byte = [&]() -> std::uint8_t { return pos < size ? data[pos++] : 0; };
    const auto number = [&]() -> std::int32_t {
        const std::uint8_t b = byte();
        if (b <= kMaxByte) {  // a small number, INT32_MIN or INT32_MAX
            return b < kMinByte ? b - kSmallOffset : b == kMinByte ? INT32_MIN : INT32_MAX;
        }
        std::uint32_t value = 0;
        for (int shift = 0; shift < 32; shift += 8) {
            value |= std::uint32_t{byte()} << shift;
        }
        return static_cast<std::int32_t>(value);
    };
    Request r;
    r.format = number();
    r.subframe = number();
    r.page = number();
    const std::uint8_t mode = byte();
    const std::uint8_t* rest = data + pos;
    const std::size_t restSize = size - pos;
    if ((mode & kAsBits) == 0) {
        r.hex = std::string_view(reinterpret_cast<const char*>(rest), restSize);
        return r;
    }
    std::string text = (mode & kWhiteSpace) != 0 ? " \t" : "";
    const char* digits = (mode & kUpperCase) != 0 ? "0123456789ABCDEF" : "0123456789abcdef";
    for (std::size_t i = 0; i < restSize; ++i) {
        text += digits[rest[i] >> 4];
        text += digits[rest[i] & 0x0F];
    }
    if ((mode & kOddCount) != 0 && restSize > 0) {
        text.pop_back();
    }
    if ((mode & kWhiteSpace) != 0) {
        text += "\r\n";
    }
    // A heap block of exactly the text's size, so that a read past it is reported.
    r.storage = std::make_unique_for_overwrite<char[]>(text.size());
    std::memcpy(r.storage.get(), text.data(), text.size());
    r.hex = std::string_view(r.storage.get(), text.size());
    return r;
}

std::vector<std::uint8_t> encodeInput(std::int32_t format, std::int32_t subframe, std::int32_t page,
                                      std::string_view hex, bool asBits) {
    std::vector<std::uint8_t> out;
    appendNumber(out, format);
    appendNumber(out, subframe);
    appendNumber(out, page);
    if (!asBits) {
        out.push_back(0);
        out.insert(out.end(), hex.begin(), hex.end());
        return out;
    }
    out.push_back(static_cast<std::uint8_t>(kAsBits | (hex.size() % 2 != 0 ? kOddCount : 0)));
    for (std::size_t i = 0; i < hex.size(); i += 2) {
        const int high = hexValue(hex[i]);
        const int low = i + 1 < hex.size() ? hexValue(hex[i + 1]) : 0;
        out.push_back(static_cast<std::uint8_t>((std::max(high, 0) << 4) | std::max(low, 0)));
    }
    return out;
}

std::optional<std::string> checkRequest(const Request& r) {
    const auto format = static_cast<MessageFormat>(r.format);
    const DecodeOutcome got = Testing::decodeOutcome(format, r.subframe, r.page, r.hex);
    // Digits first, then emptiness, then the format, then the length; else a listing.
    DecodeOutcome expected{Kind::Text, got.text};
    const std::string_view digits = trimmed(r.hex);
    const auto bad =
        std::find_if(digits.begin(), digits.end(), [](char c) { return hexValue(c) < 0; });
    const Testing::SupportedFormat* row = Testing::findSupported(format);
    if (bad != digits.end()) {
        // The whole character is named: its first byte and at most three more after it.
        // what() is a C string, so a NUL character leaves the name empty.
        constexpr std::string_view kPrefix = "Can't parse symbol as hex digit: ";
        const std::string_view named = std::string_view(got.text).substr(
            got.text.starts_with(kPrefix) ? kPrefix.size() : 0, std::string_view::npos);
        const std::string_view from = digits.substr(static_cast<std::size_t>(bad - digits.begin()));
        const bool right = named.empty() ? *bad == '\0'
                                         : named.size() <= 4 && from.starts_with(named) &&
                                               (named.size() == 1 || (*bad & 0x80) != 0);
        expected = {Kind::DecodingError,
                    right ? got.text : std::string(kPrefix) + "(" + *bad + ")"};
    } else if (digits.empty()) {
        expected = {Kind::OutOfRange, "Decode: hex string is empty"};
    } else if (row == nullptr) {
        expected = {Kind::DecodingError, "Decoding is not supported yet for this message format"};
    } else if (row->road == Testing::Road::Subframe &&
               digits.size() > Testing::kMaxSubframeDigits) {
        expected = {Kind::LengthError, "Decode: subframe data is longer than 38 bytes"};
    }
    if (got == expected) {
        return std::nullopt;
    }
    std::ostringstream text;
    text << "expected " << expected << " (format " << r.format << ", subframe " << r.subframe
         << ", page " << r.page << ", " << r.hex.size() << " characters; got " << got << ")";
    return text.str();
}

std::vector<std::vector<std::uint8_t>> makeSeeds(std::istream& batchFile) {
    std::vector<std::vector<std::uint8_t>> seeds;
    const auto add = [&](MessageFormat format, std::int32_t subframe, std::int32_t page,
                         std::string_view hex) {
        const auto f = static_cast<std::int32_t>(format);
        seeds.push_back(encodeInput(f, subframe, page, hex, false));
        seeds.push_back(encodeInput(f, subframe, page, hex, true));
    };
    for (std::string line; std::getline(batchFile, line);) {
        std::istringstream words(line);
        std::string sat;
        std::string name;
        std::int32_t subframe = 0;
        std::int32_t page = 0;
        std::string hex;
        if (line.starts_with('#') || !(words >> sat >> name >> subframe >> page >> hex)) {
            continue;
        }
        add(NavMessageDecoder::GetMessageFormatFromString(sat, name), subframe, page, hex);
    }
    for (const Testing::SupportedFormat& row : Testing::kSupportedFormats) {
        add(row.format, row.subframe, row.page, row.sampleHex);
        add(row.format, 0, 0, row.sampleHex.substr(0, 9));
    }
    add(MessageFormat::GpsLNav, 4, 17, " \t\r\n");
    add(MessageFormat::Sbas, INT32_MIN, INT32_MAX, "0x8B\xC3\xA9");
    add(static_cast<MessageFormat>(-1), -1, -1, "8b 0d");
    return seeds;
}

}  // namespace ZeltNavMsg::Fuzz
