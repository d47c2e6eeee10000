// The version the library reports, the one its header was generated with and the top
// entry of the changelog, which the project's version is meant to follow.

#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <string>

#include "zeltnavmsg/Version.h"

namespace {

std::string changelogTopVersion() {
    std::ifstream changelog(ZELTNAVMSG_CHANGELOG);
    const std::regex heading(R"(^## \[(\d+\.\d+\.\d+)\])");
    std::smatch match;
    for (std::string line; std::getline(changelog, line);) {
        if (std::regex_search(line, match, heading)) {
            return match[1];
        }
    }
    return "no version heading in " ZELTNAVMSG_CHANGELOG;
}

TEST(Version, LibraryHeaderAndChangelogAgree) {
    const std::string parts = std::to_string(ZELTNAVMSG_VERSION_MAJOR) + "." +
                              std::to_string(ZELTNAVMSG_VERSION_MINOR) + "." +
                              std::to_string(ZELTNAVMSG_VERSION_PATCH);
    EXPECT_EQ(std::string(ZeltNavMsg::LibraryVersion()), changelogTopVersion());
    EXPECT_STREQ(ZELTNAVMSG_VERSION, ZeltNavMsg::LibraryVersion());
    EXPECT_EQ(parts, ZELTNAVMSG_VERSION);
}

}  // namespace
