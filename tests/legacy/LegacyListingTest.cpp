// GPS LNAV listings of the entries that a subframe and page select, and of the text
// page's characters (whole listings: tests/api/ExpectedListingTest).

#include <gtest/gtest.h>

#include <string>

#include "support/SubframeBits.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using ZeltNavMsg::MessageFormat;
using ZeltNavMsg::NavMessageDecoder;
using ZeltNavMsg::Testing::SubframeBits;

// TLM and HOW with all parity bits zero, so no word is inverted: preamble 0x8B,
// TLM message 0x0ABC, integrity flag 1, TOW count 100000, A-S flag 1.
SubframeBits tlmAndHow(unsigned subframeId) {
    SubframeBits s;
    s.put(1, 8, 0x8B).put(9, 14, 0x0ABC).put(23, 1, 1);
    s.put(31, 17, 100000).put(48, 1, 0).put(49, 1, 1).put(50, 3, subframeId);
    return s;
}

// The entries a subframe and page select: a page that maps to no layout keeps the
// entries of every layout and those selected by the subframe number alone; subframe 0
// takes the entries filed under subframe 0 of every layout (reserved words, almanac).
TEST(LegacyListing, GpsEntrySelection) {
    const std::string page26 =
        NavMessageDecoder::Decode(MessageFormat::GpsLNav, 4, 26, tlmAndHow(4).hex());
    EXPECT_TRUE(page26.starts_with("Subframe: 4 Page: 26\r\n\r\n              Word 1:"));
    EXPECT_TRUE(
        page26.ends_with("         subframe_id: 0x4 4\r\n"
                         "             data_id: 0x0 0\r\n"
                         "               sv_id: 0x00 0\r\n"));
    const std::string subframe0 =
        NavMessageDecoder::Decode(MessageFormat::GpsLNav, 0, 0, tlmAndHow(0).hex());
    EXPECT_NE(subframe0.find("           reserved1: 0x0000\r\n"), std::string::npos);
    EXPECT_NE(subframe0.find("               sqrta: 0x000000 0 meters^-2\r\n"), std::string::npos);
    EXPECT_EQ(subframe0.find("data_id"), std::string::npos);
    EXPECT_EQ(subframe0.find("tgd"), std::string::npos);
}

TEST(LegacyListing, GpsPage17TextShowsCharacters) {
    SubframeBits s = tlmAndHow(4);
    s.put(69, 8, 'A').put(77, 8, 0x00).put(91, 8, '\n').put(99, 8, 0xFF);
    const std::string text = NavMessageDecoder::Decode(MessageFormat::GpsLNav, 4, 17, s.hex());
    EXPECT_NE(text.find("\r\n                ch01: 0x41 65 'A'\r\n"), std::string::npos);
    // A NUL ends the formatted piece: the closing quote is lost with it.
    EXPECT_NE(text.find("\r\n                ch02: 0x00 0 '\r\n"), std::string::npos);
    // The line-end conversion reaches a newline character too.
    EXPECT_NE(text.find("\r\n                ch03: 0x0A 10 '\r\n'\r\n"), std::string::npos);
    EXPECT_NE(text.find("\r\n                ch04: 0xFF 255 '\xFF'\r\n"), std::string::npos);
    EXPECT_NE(text.find("\r\n            reserved: 0x00 0\r\n"), std::string::npos);
}

}  // namespace
