// libFuzzer entry of the receiver log reader (fuzz/LogFuzzInput.h): a wrong outcome
// aborts, as a crash or a sanitizer report does. Seeds: tests/data/receiver-logs.

#include <sanitizer/common_interface_defs.h>

#include <cstdlib>

#include "fuzz/LogFuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (const auto finding = ZeltNavMsg::Fuzz::checkLogInput(data, size)) {
        __sanitizer_report_error_summary(("navmsg_log_fuzz finding: " + *finding).c_str());
        std::abort();
    }
    return 0;
}
