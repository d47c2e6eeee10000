#ifndef NAVMSG_CHECKREPORT_H
#define NAVMSG_CHECKREPORT_H

#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <string_view>

#include "zeltnavmsg/DecodedMessage.h"

// What navmsg says about the integrity checks: a verdict line per message in text
// output, and at the end of a run a summary on standard error.

namespace Navmsg {

class Diagnostics;

// "Checks: ok (10 words)", "Checks: FAILED word 3 parity, word 4 parity",
// "Checks: corrected word 5 BCH 2 (bit 137)", "Checks: incomplete word 10 parity".
std::string checksLine(const ZeltNavMsg::DecodedMessage& message);

// Counts messages and failed checks, per format, for the summary.
class CheckSummary {
  public:
    void add(const ZeltNavMsg::DecodedMessage& message);
    // The summary lines, each as a report: messages per format, how many were not
    // intact, and the checks that failed most often.
    void report(Diagnostics& diagnostics) const;

  private:
    struct Counts {
        long messages = 0;
        long failed = 0;
        long corrected = 0;
        long incomplete = 0;
    };
    std::map<std::string_view, Counts> formats_;
    std::map<std::string_view, long> failedChecks_;  // by name: static text
};

}  // namespace Navmsg

#endif
