#ifndef NAVMSG_MESSAGEDECODE_H
#define NAVMSG_MESSAGEDECODE_H

#include <cstdint>
#include <string>
#include <string_view>

#include "Diagnostics.h"
#include "zeltnavmsg/DecodedMessage.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace CLI {
class App;
}

// One message decoded the way decode and batch both do it, with every report a
// person can act on: where a bad digit is, which format was refused, how many bits a
// short message lacks.

namespace Navmsg {

// What decode and batch write for each message.
enum class OutputForm { Text, Json, Csv };

// The options decode and batch share.
struct MessageOptions {
    bool crlf = false;
    bool strict = false;  // a message that looks wrong fails instead of being listed
    OutputForm form = OutputForm::Text;
    bool allFields = false;  // records: reserved, check and whole-word fields too
    bool check = false;      // a verdict line after each listing, and a summary
    // The records are wanted: for JSON or CSV, or for their checks.
    [[nodiscard]] bool records() const { return form != OutputForm::Text || check || strict; }
};

void addMessageOptions(CLI::App& command, MessageOptions& options);

struct Message {
    std::string_view sat;
    std::string_view formatName;  // as the user gave it (or the default format's name)
    ZeltNavMsg::MessageFormat format;
    std::int32_t subframe = 0;
    std::int32_t page = 0;
    std::string_view hex;
};

// One message's result: its listing (text output) or its records, or why it failed.
struct Decoded {
    std::string listing;
    // The listing's lines end as the output wants them (no conversion on writing).
    bool listingInOutputForm = false;
    ZeltNavMsg::DecodedMessage records;  // reused from message to message
    std::string failureType;             // "DecodingError", "length_error", ...
    std::string failure;                 // the report, without its place
};

// Decodes `message` as options.form asks (the listing, or the records); false when
// the message failed. Problems are reported at `place`: a failure (bad digit, refused
// format, a short message with --strict) and warnings (a short message; the library's
// own report of a word that does not fit, which it prints itself and which is held
// back to be reported here).
bool decodeMessage(const Message& message, Place place, const MessageOptions& options,
                   Diagnostics& diagnostics, Decoded& decoded);

// Records a failure that is not the library's (a bad line, an unknown name) in
// `decoded` and reports it.
void failMessage(Place place, std::string_view type, std::string_view text,
                 Diagnostics& diagnostics, Decoded& decoded);

// Writes the message's result in the chosen form: the listing (after `header` when
// not empty, a text line of its own), or one JSON record, or its CSV rows; a failed
// message is a JSON error record (and nothing in the other forms: its report says it).
// `line` is the input line of a batch, 0 for none.
class Output;
void writeMessage(Output& out, const MessageOptions& options, const Message& message, long line,
                  bool ok, const Decoded& decoded, std::string_view header);
// What the chosen form writes before the first message: the CSV header row.
void writeStart(Output& out, const MessageOptions& options);

}  // namespace Navmsg

#endif
