#ifndef NAVMSG_EXITSTATUS_H
#define NAVMSG_EXITSTATUS_H

#include <string>
#include <string_view>

namespace Navmsg {

// The exit statuses of navmsg, from best to worst news for a script.
enum ExitStatus : int {
    kExitOk = 0,             // every message decoded
    kExitFailedMessage = 1,  // some message failed (or, with --strict, looked wrong)
    kExitUsage = 2,          // bad command line, or input that cannot be read
    kExitOutput = 3,         // standard output could not be written: what it holds is cut short
};

// The paragraph each --help ends with.
inline constexpr std::string_view kExitStatusHelp =
    "Exit status: 0 every message decoded; 1 some message failed (with --strict, also\n"
    "a message shorter than its format); 2 usage error or unreadable input; 3 output\n"
    "could not be written (a closed pipe ends the run quietly with 3).";

// Ends the run with kExitUsage: an unknown name, an unreadable file, a binary file.
struct UsageError {
    std::string reason;  // one line, without "navmsg: "
};

}  // namespace Navmsg

#endif
