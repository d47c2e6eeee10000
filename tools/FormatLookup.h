#ifndef NAVMSG_FORMATLOOKUP_H
#define NAVMSG_FORMATLOOKUP_H

#include <string>
#include <string_view>

#include "zeltnavmsg/NavMessageDecoder.h"

// Names to formats as the command line takes them, on top of the library's look-ups.

namespace Navmsg {

// "GPS", "GLONASS", ... for a system letter; empty for any other character.
std::string_view systemName(char letter);

// The format `name` means for satellite `sat`: a format name of the satellite's system
// ("LNAV", "D1") or, for a satellite of any known system, a MessageFormat enumerator
// name ("GpsCNav2"). Anything else throws the library's own error.
ZeltNavMsg::MessageFormat resolveFormat(std::string_view sat, std::string_view name);

// The name of the default format of the satellite's system. A system without one
// (GLONASS, Galileo, SBAS) or an unknown one throws UsageError saying so, with the
// system's format names.
std::string defaultFormatName(std::string_view sat);

// The length of one message of `format` in bits; 0 for a format that is not decoded.
int messageBits(ZeltNavMsg::MessageFormat format);

}  // namespace Navmsg

#endif
