// The navmsg command line: its output against the library's and its exit codes.

#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using ZeltNavMsg::MessageFormat;
using ZeltNavMsg::NavMessageDecoder;

const std::string kGpsSubframe1 =
    "8b0d3487fffd614d351000091b1de78f322ebaf701369182b0dd6d7f8f6800ffd153eafc2f0";

struct CliRun {
    int status = -1;
    std::string out;
    std::string err;
};

// Runs navmsg with `args` (shell words) and `input` on its standard input.
CliRun navmsg(const std::string& args, const std::string& input = "") {
    const char* dir = std::getenv("TMPDIR");
    const std::string base =
        std::string(dir != nullptr ? dir : "/tmp") + "/navmsg-test-" + std::to_string(::getpid());
    std::ofstream(base + ".in", std::ios::binary) << input;
    const std::string command = std::string("'") + NAVMSG_PATH + "' " + args + " <'" + base +
                                ".in' >'" + base + ".out' 2>'" + base + ".err'";
    const int raw = std::system(command.c_str());
    const auto take = [&](const std::string& suffix) {
        std::ifstream in(base + suffix, std::ios::binary);
        std::stringstream text;
        text << in.rdbuf();
        std::remove((base + suffix).c_str());
        return text.str();
    };
    std::remove((base + ".in").c_str());
    return {WIFEXITED(raw) ? WEXITSTATUS(raw) : -1, take(".out"), take(".err")};
}

std::string withLf(std::string text) {
    for (std::size_t p = text.find("\r\n"); p != std::string::npos; p = text.find("\r\n", p)) {
        text.erase(p, 1);
    }
    return text;
}

// The library's text with the platform's line ends ("\r\n" with --crlf), one message per
// line from standard input with "-", and a failing message reported on the way.
TEST(NavmsgCli, DecodePrintsTheLibraryText) {
    const std::string text = NavMessageDecoder::Decode(MessageFormat::GpsLNav, 1, 0, kGpsSubframe1);
    const CliRun lf = navmsg("decode --sat G04 --subframe 1 " + kGpsSubframe1);
    EXPECT_EQ(lf.status, 0) << lf.err;
    EXPECT_EQ(lf.out, withLf(text));
    EXPECT_EQ(navmsg("decode --sat G04 --format LNAV --subframe 1 --crlf " + kGpsSubframe1).out,
              text);

    const std::string qzss =
        withLf(NavMessageDecoder::Decode(MessageFormat::QzssLNav, 2, 0, kGpsSubframe1));
    const CliRun in =
        navmsg("decode --sat J01 --subframe 2 -", kGpsSubframe1 + "\n\n" + kGpsSubframe1 + "\n");
    EXPECT_EQ(in.status, 0) << in.err;
    EXPECT_EQ(in.out, qzss + "\n" + qzss);

    const CliRun bad = navmsg("decode --sat G04 --subframe 1 zz " + kGpsSubframe1);
    EXPECT_EQ(bad.status, 1);
    EXPECT_EQ(bad.err, "navmsg: Can't parse symbol as hex digit: z\n");
    EXPECT_EQ(bad.out, withLf(text));
}

TEST(NavmsgCli, UsageErrorsExitTwoWithOneLine) {
    for (const char* args :
         {"", "decode " /* no --sat */, "decode --sat G01", "decode --sat G01 --subframe x 00",
          "frobnicate", "batch", "decode --sat E11 00" /* no default format */,
          "decode --sat G01 --format LNAV2 00", "batch /no/such/file"}) {
        const CliRun run = navmsg(args);
        EXPECT_EQ(run.status, 2) << args;
        EXPECT_TRUE(run.err.starts_with("navmsg: ")) << args << ": " << run.err;
        EXPECT_EQ(run.err.find('\n'), run.err.size() - 1) << args << ": " << run.err;
    }
}

TEST(NavmsgCli, HelpAndVersion) {
    const CliRun version = navmsg("--version");
    EXPECT_EQ(version.status, 0);
    EXPECT_TRUE(version.out.starts_with("navmsg ")) << version.out;
    for (const char* args : {"--help", "decode --help", "batch --help", "formats --help"}) {
        const CliRun help = navmsg(args);
        EXPECT_EQ(help.status, 0) << args;
        EXPECT_NE(help.out.find("Usage"), std::string::npos) << args;
    }
}

TEST(NavmsgCli, BatchDecodesEveryLineAndReportsFailures) {
    const std::string input = "# comment\n\nG04 LNAV 1 0 " + kGpsSubframe1 +
                              "\nG04 LNAV 1 0 12x4\nG04 LNAV one 0 00\nE11 INAV 1 0 00\n"
                              "J01 LNAV 3 0 " +
                              kGpsSubframe1 + "\n";
    const CliRun run = navmsg("batch -", input);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err,
              "navmsg: line 4: Can't parse symbol as hex digit: x\n"
              "navmsg: line 5: SUBFRAME and PAGE must be 32-bit integers\n"
              "navmsg: line 6: Decoding is not supported yet for this message format\n");
    const std::string expected =
        "# line 3: G04 LNAV subframe 1 page 0\n" +
        withLf(NavMessageDecoder::Decode(MessageFormat::GpsLNav, 1, 0, kGpsSubframe1)) + "\n" +
        "# line 7: J01 LNAV subframe 3 page 0\n" +
        withLf(NavMessageDecoder::Decode(MessageFormat::QzssLNav, 3, 0, kGpsSubframe1)) + "\n";
    EXPECT_EQ(run.out, expected);
}

TEST(NavmsgCli, BatchOfTheBundledExamplesSucceeds) {
    const CliRun run = navmsg(std::string("batch '") + ZELTNAVMSG_EXAMPLES_DIR + "/messages.txt'");
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.err, "");
    EXPECT_NE(run.out.find("# line "), std::string::npos);
}

TEST(NavmsgCli, FormatsListsNamesAndWhatDecodes) {
    const CliRun run = navmsg("formats");
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.out.find("G  GPS"), std::string::npos);
    EXPECT_NE(run.out.find(" LNAV (default, decodes)"), std::string::npos);
    EXPECT_NE(run.out.find(" INAV (not decoded)"), std::string::npos);
    EXPECT_NE(run.out.find(" D1 (default, decodes) D2 (decodes) CNAV1 (decodes) CNAV2 (decodes)"),
              std::string::npos);
    EXPECT_NE(run.out.find(" IRNSS (default, decodes)"), std::string::npos);
    EXPECT_NE(run.out.find("B2a"), std::string::npos);
}

}  // namespace
