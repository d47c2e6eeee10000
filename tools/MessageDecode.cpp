#include "MessageDecode.h"

#include <CLI/CLI.hpp>

#include "FormatLookup.h"
#include "api/HexInput.h"

namespace Navmsg {

using ZeltNavMsg::NavMessageDecoder;

namespace {

// The hex text as the library reads it: ASCII white space at both ends does not count.
std::string_view trimmed(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\n\v\f\r";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// Decode refuses a message with DecodingError for one of two reasons: a character
// that is not a hex digit (checked first) or a format it does not decode.
void reportDecodingError(const Message& message, Place place, const std::exception& error,
                         Diagnostics& diagnostics) {
    const std::string_view digits = trimmed(message.hex);
    const std::string_view what = error.what();
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (ZeltNavMsg::Detail::kHexDigitValue[static_cast<unsigned char>(digits[i])] >= 0) {
            continue;
        }
        // The library names the culprit after its text's first ": ".
        const std::size_t colon = what.find(": ");
        std::string text(what.substr(0, colon == std::string_view::npos ? what.size() : colon + 2));
        text.append(describeFirstCharacter(digits.substr(i)));
        diagnostics.failure(place.atDigit(static_cast<long>(i) + 1), text);
        return;
    }
    std::string text(systemName(message.sat.empty() ? '\0' : message.sat.front()));
    text.append(" ").append(message.formatName).append(": ").append(what);
    diagnostics.failure(place, text);
}

}  // namespace

void addMessageOptions(CLI::App& command, MessageOptions& options) {
    command.add_flag("--crlf", options.crlf, "Keep the library's \\r\\n line ends");
    command.add_flag("--strict", options.strict,
                     "A message shorter than its format fails instead of being listed");
}

bool decodeMessage(const Message& message, Place place, const MessageOptions& options,
                   Diagnostics& diagnostics, std::string& listing) {
    try {
        const long bitsGiven = 4 * static_cast<long>(trimmed(message.hex).size());
        const int bits = messageBits(message.format);
        if (bitsGiven >= bits) {
            listing = NavMessageDecoder::Decode(message.format, message.subframe, message.page,
                                                message.hex);
            return true;
        }
        // Short: the library reports each word that does not fit on standard error.
        std::string libraryReports;
        {
            LibraryReports held(diagnostics);
            listing = NavMessageDecoder::Decode(message.format, message.subframe, message.page,
                                                message.hex);
            libraryReports = held.finish();
        }
        const std::string warning = std::to_string(bitsGiven) + " of " + std::to_string(bits) +
                                    " bits given; the rest read as zero";
        if (options.strict) {
            diagnostics.failure(place, warning);
            return false;
        }
        diagnostics.report(place, warning);
        diagnostics.reportLines(place, libraryReports);
        return true;
    } catch (const ZeltNavMsg::DecodingError& e) {
        reportDecodingError(message, place, e, diagnostics);
    } catch (const std::exception& e) {
        diagnostics.failure(place, e.what());
    }
    return false;
}

}  // namespace Navmsg
