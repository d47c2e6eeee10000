// Prints the version the host was compiled with, the version of the library it runs
// with, and the listing of one GPS LNAV subframe (G04, subframe 1: WN 845, IODC 74).
#include <zeltnavmsg/NavMessageDecoder.h>
#include <zeltnavmsg/Version.h>

#include <iostream>

int main() {
    using namespace ZeltNavMsg;
    std::cout << "compiled " << ZELTNAVMSG_VERSION << " runs " << LibraryVersion() << '\n';
    std::cout << NavMessageDecoder::Decode(
        MessageFormat::GpsLNav, 1, 0,
        "8b0d3487fffd614d351000091b1de78f322ebaf701369182b0dd6d7f8f6800ffd153eafc2f0");
}
