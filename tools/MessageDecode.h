#ifndef NAVMSG_MESSAGEDECODE_H
#define NAVMSG_MESSAGEDECODE_H

#include <cstdint>
#include <string>
#include <string_view>

#include "Diagnostics.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace CLI {
class App;
}

// One message decoded the way decode and batch both do it, with every report a
// person can act on: where a bad digit is, which format was refused, how many bits a
// short message lacks.

namespace Navmsg {

// The options decode and batch share.
struct MessageOptions {
    bool crlf = false;
    bool strict = false;  // a message that looks wrong fails instead of being listed
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

// The listing of `message` into `listing`; false when the message failed. Problems
// are reported at `place`: a failure (bad digit, refused format, a short message with
// --strict) and warnings (a short message; the library's own report of a word that
// does not fit, which it prints itself and which is held back to be reported here).
bool decodeMessage(const Message& message, Place place, const MessageOptions& options,
                   Diagnostics& diagnostics, std::string& listing);

}  // namespace Navmsg

#endif
