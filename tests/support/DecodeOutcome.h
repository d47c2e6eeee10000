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

#include "zeltnavmsg/DecodedMessage.h"
#include "zeltnavmsg/NavMessageDecoder.h"
#include "zeltnavmsg/RecordOutput.h"

namespace ZeltNavMsg::Testing {

// What one Decode call gave: the listing, or which error with which message.
struct DecodeOutcome {
    enum class Kind { Text, DecodingError, OutOfRange, LengthError, OtherError };

    Kind kind = Kind::OtherError;
    std::string text;  // the listing, or what() of the error

    bool operator==(const DecodeOutcome&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const DecodeOutcome& outcome) {
    static constexpr const char* kKinds[] = {"text", "DecodingError", "std::out_of_range",
                                             "std::length_error", "another exception"};
    constexpr std::size_t kShown = 200;
    return out << kKinds[static_cast<int>(outcome.kind)] << ": \"" << outcome.text.substr(0, kShown)
               << (outcome.text.size() > kShown ? "...\"" : "\"");
}

namespace Detail {

template <class Call>
DecodeOutcome outcomeOf(std::string_view hex, Call&& call) {
    // From a heap copy of exactly its size, so that AddressSanitizer reports any read
    // past the caller's bytes (a std::string would have its NUL and spare capacity
    // behind the last character).
    const auto exact = std::make_unique_for_overwrite<char[]>(hex.size());
    std::copy(hex.begin(), hex.end(), exact.get());
    const std::string_view input(exact.get(), hex.size());
    try {
        return {DecodeOutcome::Kind::Text, call(input)};
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

}  // namespace Detail

// What Decode gives for `hex`.
inline DecodeOutcome decodeOutcome(MessageFormat format, std::int32_t subframe, std::int32_t page,
                                   std::string_view hex) {
    return Detail::outcomeOf(hex, [&](std::string_view input) {
        return NavMessageDecoder::Decode(format, subframe, page, input);
    });
}

// What DecodeFields gives for `hex`: every field as one JSON record, or the error.
inline DecodeOutcome recordsOutcome(MessageFormat format, std::int32_t subframe, std::int32_t page,
                                    std::string_view hex) {
    return Detail::outcomeOf(hex, [&](std::string_view input) {
        const DecodedMessage m = NavMessageDecoder::DecodeFields(format, subframe, page, input);
        std::string json;
        RecordOptions all;
        all.allFields = true;
        AppendJsonRecord(json, m, RecordContext{}, all);
        return json;
    });
}

}  // namespace ZeltNavMsg::Testing

#endif
