// Decodes one GPS LNAV subframe with the library's API and prints its listing.
#include <zeltnavmsg/NavMessageDecoder.h>

#include <iostream>

int main() {
    using namespace ZeltNavMsg;
    try {
        const MessageFormat format = NavMessageDecoder::GetMessageFormatFromString("G04", "LNAV");
        std::cout << NavMessageDecoder::Decode(
            format, 1, 0,
            "8b0d3487fffd614d351000091b1de78f322ebaf701369182b0dd6d7f8f6800ffd153eafc2f0");
    } catch (const DecodingError& e) {  // unknown names, bad digits, unsupported formats
        std::cerr << e.what() << '\n';
        return 1;
    }
}
