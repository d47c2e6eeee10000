#ifndef ZELTNAVMSG_TESTS_FUZZ_FUZZINPUT_H
#define ZELTNAVMSG_TESTS_FUZZ_FUZZINPUT_H

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <istream>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "support/DecodeOutcome.h"
#include "support/SupportedFormats.h"

// The fuzz target's reading of its input bytes, the rule it checks every Decode call
// against, and its seeds; shared by the libFuzzer target, the seed writer and the unit
// test that replays seeds and kept findings in every build.
//
// Input: format, subframe and page, one signed byte each (127 stands for INT32_MAX,
// -128 for INT32_MIN); a mode byte; then the hex text: the rest of the input as it is
// (any bytes: NUL, white space, non-ASCII) when the mode byte is even, the rest written
// as two hex digits a byte when it is odd.

namespace ZeltNavMsg::Fuzz {

// Decodes what the input stands for and checks the outcome: digits first, then
// emptiness, then the format, then the length; else a listing. Returns what is wrong,
// or nothing.
inline std::optional<std::string> checkInput(const std::uint8_t* data, std::size_t size) {
    const auto number = [&](std::size_t i) -> std::int32_t {
        const auto b = static_cast<std::int8_t>(i < size ? data[i] : 0);
        return b == INT8_MAX ? INT32_MAX : b == INT8_MIN ? INT32_MIN : b;
    };
    const std::int32_t formatValue = number(0);
    const std::int32_t subframe = number(1);
    const std::int32_t page = number(2);
    std::string hex;
    for (std::size_t i = 4; i < size; ++i) {
        if ((data[3] & 1U) != 0) {
            hex += "0123456789abcdef"[data[i] >> 4];
            hex += "0123456789abcdef"[data[i] & 0xFU];
        } else {
            hex += static_cast<char>(data[i]);
        }
    }
    using Testing::DecodeOutcome;
    using Kind = DecodeOutcome::Kind;
    const auto format = static_cast<MessageFormat>(formatValue);
    const DecodeOutcome got = Testing::decodeOutcome(format, subframe, page, hex);
    DecodeOutcome expected{Kind::Text, got.text};
    constexpr std::string_view kBlanks = " \t\n\v\f\r";
    std::string_view digits = hex;
    digits.remove_prefix(std::min(digits.size(), digits.find_first_not_of(kBlanks)));
    digits = digits.substr(0, digits.find_last_not_of(kBlanks) + 1);
    const auto bad = std::find_if_not(digits.begin(), digits.end(), [](char c) {
        return (c >= '0' && c <= '9') || ((c | 0x20) >= 'a' && (c | 0x20) <= 'f');
    });
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
    // The records refuse what the listing refuses, or write a record.
    const DecodeOutcome records = Testing::recordsOutcome(format, subframe, page, hex);
    if (got == expected && records.kind == got.kind &&
        (got.kind == Kind::Text ? records.text.ends_with("}\n") : records.text == got.text)) {
        return std::nullopt;
    }
    std::ostringstream text;
    text << "expected " << expected << " (format " << formatValue << ", subframe " << subframe
         << ", page " << page << ", " << hex.size() << " characters; got " << got << "; records "
         << records << ")";
    return text.str();
}

// Every message of a batch file (lines "SAT FORMAT SUBFRAME PAGE HEX"), the sample of
// every supported format whole and cut short, and a few hostile inputs, all as text.
inline std::vector<std::string> makeSeeds(std::istream& batchFile) {
    std::vector<std::string> seeds;
    const auto add = [&](MessageFormat format, std::int32_t subframe, std::int32_t page,
                         std::string_view hex) {
        std::string seed;
        for (const std::int32_t n : {static_cast<std::int32_t>(format), subframe, page}) {
            seed += static_cast<char>(n == INT32_MAX ? INT8_MAX : n == INT32_MIN ? INT8_MIN : n);
        }
        seeds.push_back(seed + '\0' + std::string(hex));
    };
    for (std::string line; std::getline(batchFile, line);) {
        std::istringstream words(line);
        std::string sat;
        std::string name;
        std::string hex;
        std::int32_t subframe = 0;
        std::int32_t page = 0;
        if (!line.starts_with('#') && words >> sat >> name >> subframe >> page >> hex) {
            add(NavMessageDecoder::GetMessageFormatFromString(sat, name), subframe, page, hex);
        }
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

#endif
