#ifndef ZELTNAVMSG_TESTS_SUPPORT_CHECKVERDICT_H
#define ZELTNAVMSG_TESTS_SUPPORT_CHECKVERDICT_H

#include <string>

#include "zeltnavmsg/DecodedMessage.h"

namespace ZeltNavMsg::Testing {

// The checks of `m` that do not pass, in order: "word 2 parity failed; " or, for a
// codeword put right, "word 6 BCH 2 corrected at 163; ". Empty when all pass.
inline std::string failedChecks(const DecodedMessage& m) {
    std::string text;
    for (const CheckResult& c : m.checks()) {
        if (!c.ok()) {
            text += std::string(c.name) +
                    (c.status == CheckStatus::Corrected
                         ? " corrected at " + std::to_string(c.correctedBit)
                         : " failed") +
                    "; ";
        }
    }
    return text;
}

}  // namespace ZeltNavMsg::Testing

#endif
