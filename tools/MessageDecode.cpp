#include "MessageDecode.h"

#include <CLI/CLI.hpp>

#include <map>
#include <stdexcept>

#include "CheckReport.h"
#include "FormatLookup.h"
#include "Output.h"
#include "api/HexInput.h"
#include "zeltnavmsg/RecordOutput.h"

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
                         Diagnostics& diagnostics, Decoded& decoded) {
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
        decoded.failureType = "DecodingError";
        decoded.failure = "digit " + std::to_string(i + 1) + ": " + text;
        return;
    }
    std::string text(systemName(message.sat.empty() ? '\0' : message.sat.front()));
    text.append(" ").append(message.formatName).append(": ").append(what);
    failMessage(place, "DecodingError", text, diagnostics, decoded);
}

// The category a caught exception is named by in a JSON error record.
std::string_view typeOf(const std::exception& e) {
    if (dynamic_cast<const std::out_of_range*>(&e) != nullptr) {
        return "out_of_range";
    }
    if (dynamic_cast<const std::length_error*>(&e) != nullptr) {
        return "length_error";
    }
    if (dynamic_cast<const std::invalid_argument*>(&e) != nullptr) {
        return "invalid_argument";
    }
    return "runtime_error";
}

// The listing or the records of a message, or both, as the options ask.
void decodeAs(const Message& m, const MessageOptions& options, Decoded& decoded) {
    if (options.form == OutputForm::Text) {
        // Straight in the output's line ends, into the string of the last message. A
        // carriage return of the message's own text (a broadcast character) makes the
        // listing go the long way, as the conversion on writing treats it.
        decoded.listing.clear();
        if (!options.crlf) {
            NavMessageDecoder::Decode(m.format, m.subframe, m.page, m.hex, decoded.listing, "\n");
            decoded.listingInOutputForm = decoded.listing.find('\r') == std::string::npos;
        }
        if (options.crlf || !decoded.listingInOutputForm) {
            decoded.listing.clear();
            NavMessageDecoder::Decode(m.format, m.subframe, m.page, m.hex, decoded.listing);
            decoded.listingInOutputForm = options.crlf;
        }
    }
    if (options.records()) {
        NavMessageDecoder::DecodeFields(m.format, m.subframe, m.page, m.hex, decoded.records);
    }
}

// With --strict a message that is not intact fails (it is still written).
void checkStrictly(Place place, const MessageOptions& options, Diagnostics& diagnostics,
                   Decoded& decoded) {
    if (options.strict && !decoded.records.ok()) {
        diagnostics.failure(place, checksLine(decoded.records));
    }
}

}  // namespace

void addMessageOptions(CLI::App& command, MessageOptions& options) {
    command.add_flag("--crlf", options.crlf, "Keep the library's \\r\\n line ends (text output)");
    command.add_flag("--strict", options.strict,
                     "A message shorter than its format fails instead of being listed, and one "
                     "that fails a parity, BCH or CRC check makes the exit status 1");
    command
        .add_option("--output", options.form,
                    "text (the listing, the default), json (JSON Lines, one record per message) "
                    "or csv (one row per field)")
        ->transform(CLI::CheckedTransformer(
            std::map<std::string, OutputForm>{
                {"text", OutputForm::Text}, {"json", OutputForm::Json}, {"csv", OutputForm::Csv}},
            CLI::ignore_case));
    command.add_flag("--all-fields", options.allFields,
                     "json and csv: reserved, check and whole-word fields too");
    command.add_flag("--check", options.check,
                     "Check parity, BCH and CRC: text output adds a line after each listing; "
                     "a summary goes to standard error at the end");
}

void failMessage(Place place, std::string_view type, std::string_view text,
                 Diagnostics& diagnostics, Decoded& decoded) {
    diagnostics.failure(place, text);
    decoded.failureType = type;
    decoded.failure = text;
}

void writeStart(Output& out, const MessageOptions& options) {
    if (options.form == OutputForm::Csv) {
        out.put(ZeltNavMsg::CsvHeader());
    }
}

void writeMessage(Output& out, const MessageOptions& options, const Message& message, long line,
                  bool ok, const Decoded& decoded, std::string_view header) {
    ZeltNavMsg::RecordContext context;
    context.line = line;
    context.sat = message.sat;
    ZeltNavMsg::RecordOptions recordOptions;
    recordOptions.allFields = options.allFields;
    switch (options.form) {
        case OutputForm::Text:
            if (ok) {
                if (!header.empty()) {
                    out.put(header);
                    out.lineEnd();
                }
                if (decoded.listingInOutputForm) {
                    out.putListing(decoded.listing);
                } else {
                    out.writeListing(decoded.listing);
                }
                if (options.check) {
                    out.put(checksLine(decoded.records));
                    out.lineEnd();
                }
            }
            break;
        case OutputForm::Json:
            out.append([&](std::string& buffer) {
                if (ok) {
                    ZeltNavMsg::AppendJsonRecord(buffer, decoded.records, context, recordOptions);
                } else {
                    ZeltNavMsg::AppendJsonError(buffer, line, decoded.failureType, decoded.failure);
                }
            });
            break;
        case OutputForm::Csv:
            if (ok) {
                out.append([&](std::string& buffer) {
                    ZeltNavMsg::AppendCsvRows(buffer, decoded.records, context, recordOptions);
                });
            }
            break;
    }
}

bool decodeMessage(const Message& message, Place place, const MessageOptions& options,
                   Diagnostics& diagnostics, Decoded& decoded) {
    try {
        const long bitsGiven = 4 * static_cast<long>(trimmed(message.hex).size());
        const int bits = messageBits(message.format);
        if (bitsGiven >= bits || options.form != OutputForm::Text) {
            decodeAs(message, options, decoded);
        }
        if (bitsGiven >= bits) {
            checkStrictly(place, options, diagnostics, decoded);
            return true;
        }
        // Short: the listing reports each word that does not fit on standard error (the
        // records do not).
        std::string libraryReports;
        if (options.form == OutputForm::Text) {
            LibraryReports held(diagnostics);
            decodeAs(message, options, decoded);
            libraryReports = held.finish();
        }
        const std::string warning = std::to_string(bitsGiven) + " of " + std::to_string(bits) +
                                    " bits given; the rest read as zero";
        if (options.strict) {
            failMessage(place, "InputError", warning, diagnostics, decoded);
            return false;
        }
        diagnostics.report(place, warning);
        diagnostics.reportLines(place, libraryReports);
        checkStrictly(place, options, diagnostics, decoded);
        return true;
    } catch (const ZeltNavMsg::DecodingError& e) {
        reportDecodingError(message, place, e, diagnostics, decoded);
    } catch (const std::exception& e) {
        failMessage(place, typeOf(e), e.what(), diagnostics, decoded);
    }
    return false;
}

}  // namespace Navmsg
