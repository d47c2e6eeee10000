// libFuzzer entry: every input is one Decode call, checked against the documented
// behaviour; a wrong outcome aborts, as a crash, a leak or a sanitizer report does.
// scripts/fuzz.sh builds and runs it.

#include <sanitizer/common_interface_defs.h>

#include <cstdlib>

#include "fuzz/FuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (const auto finding = ZeltNavMsg::Fuzz::checkInput(data, size)) {
        // Standard error is closed in runs that silence the word writer
        // (-close_fd_mask=2); the sanitizer's report channel stays open.
        __sanitizer_report_error_summary(("navmsg_fuzz finding: " + *finding).c_str());
        std::abort();
    }
    return 0;
}
