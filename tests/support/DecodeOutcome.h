#ifndef ZELTNAVMSG_TESTS_SUPPORT_DECODEOUTCOME_H
#define ZELTNAVMSG_TESTS_SUPPORT_DECODEOUTCOME_H

#include <algorithm>
#include <cstdint>
#include <exception>
#include <memory>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>

#include "zeltnavmsg/NavMessageDecoder.h"

namespace ZeltNavMsg::Testing {

// What one Decode call gave: the listing, or which error with which message.
struct DecodeOutcome {
    enum class Kind { Text, DecodingError, OutOfRange, LengthError, OtherError };

    Kind kind = Kind::OtherError;
    std::string text;  // the listing, or what() of the error

    bool operator==(const DecodeOutcome&) const = default;
};

inline const char* kindName(DecodeOutcome::Kind kind) {
    switch (kind) {
        case DecodeOutcome::Kind::Text:
            return "text";
        case DecodeOutcome::Kind::DecodingError:
            return "DecodingError";
        case DecodeOutcome::Kind::OutOfRange:
            return "std::out_of_range";
        case DecodeOutcome::Kind::LengthError:
            return "std::length_error";
        case DecodeOutcome::Kind::OtherError:
            break;
    }
    return "another exception";
}

inline std::ostream& operator<<(std::ostream& out, const DecodeOutcome& outcome) {
    constexpr std::size_t kShown = 200;
    out << kindName(outcome.kind) << ": \"" << outcome.text.substr(0, kShown)
        << (outcome.text.size() > kShown ? "...\"" : "\"");
    return out;
}

// Decodes `hex` from a heap copy of exactly its size, so that AddressSanitizer reports
// any read past the caller's bytes (a std::string would have its NUL and spare capacity
// behind the last character).
inline DecodeOutcome decodeOutcome(MessageFormat format, std::int32_t subframe, std::int32_t page,
                                   std::string_view hex) {
    const auto exact = std::make_unique_for_overwrite<char[]>(hex.size());
    std::copy(hex.begin(), hex.end(), exact.get());
    const std::string_view input(exact.get(), hex.size());
    try {
        return {DecodeOutcome::Kind::Text,
                NavMessageDecoder::Decode(format, subframe, page, input)};
    } catch (const DecodingError& e) {
        return {DecodeOutcome::Kind::DecodingError, e.what()};
    } catch (const std::out_of_range& e) {
        return {DecodeOutcome::Kind::OutOfRange, e.what()};
    } catch (const std::length_error& e) {
        return {DecodeOutcome::Kind::LengthError, e.what()};
    } catch (const std::exception& e) {
        return {DecodeOutcome::Kind::OtherError, e.what()};
    } catch (...) {
        return {DecodeOutcome::Kind::OtherError, "(not a std::exception)"};
    }
}

}  // namespace ZeltNavMsg::Testing

#endif
