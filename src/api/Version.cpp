#include "zeltnavmsg/Version.h"

namespace ZeltNavMsg {

const char* LibraryVersion() noexcept {
    return ZELTNAVMSG_VERSION;
}

}  // namespace ZeltNavMsg
