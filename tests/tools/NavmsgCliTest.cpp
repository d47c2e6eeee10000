// The navmsg command line: its output against the library's, its exit statuses, and
// what it says when the input or the output is not what it should be.

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <string>

#include "support/CliShell.h"
#include "support/SupportedFormats.h"
#include "zeltnavmsg/MessageEncoder.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using ZeltNavMsg::MessageFormat;
using ZeltNavMsg::NavMessageDecoder;
using ZeltNavMsg::Testing::CliRun;
using ZeltNavMsg::Testing::findSupported;
using ZeltNavMsg::Testing::replaceAll;
using ZeltNavMsg::Testing::Shell;

const std::string kGpsSubframe1 =
    "8b0d3487fffd614d351000091b1de78f322ebaf701369182b0dd6d7f8f6800ffd153eafc2f0";

std::string withLf(std::string text) {
    replaceAll(text, "\r\n", "\n");
    return text;
}

CliRun navmsg(const std::string& args, const std::string& input = "") {
    return Shell().run("navmsg " + args, input);
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
    EXPECT_EQ(bad.err, "navmsg: argument 1, digit 1: Can't parse symbol as hex digit: z\n");
    EXPECT_EQ(bad.out, withLf(text));
}

TEST(NavmsgCli, UsageErrorsExitTwoWithOneLine) {
    for (const char* args :
         {"decode " /* no --sat */, "decode --sat G01", "decode --sat G01 --subframe x 00",
          "frobnicate", "batch", "decode --sat X11 00", "decode --sat G01 --format LNAV2 00",
          "decode --sat G01 --format gpslnav 00", "decode --sat X01 --format GpsLNav 00",
          "encode --format LNAV", "encode --set toe", "encode --sat G01 -",
          "encode --format GpsLNav x.json"}) {
        const CliRun run = navmsg(args);
        EXPECT_EQ(run.status, 2) << args;
        EXPECT_TRUE(run.err.starts_with("navmsg: ")) << args << ": " << run.err;
        EXPECT_EQ(run.err.find('\n'), run.err.size() - 1) << args << ": " << run.err;
    }
}

// Without arguments the usage summary; every --help ends with the exit statuses, and
// a subcommand's with two examples, the first of which runs as it stands, quietly.
TEST(NavmsgCli, UsageHelpAndVersion) {
    const CliRun none = navmsg("");
    EXPECT_EQ(none.status, 2);
    for (const char* command : {"decode", "batch", "formats", "--version"}) {
        EXPECT_NE(none.err.find(command), std::string::npos) << none.err;
    }
    const CliRun version = navmsg("--version");
    EXPECT_EQ(version.status, 0);
    EXPECT_TRUE(version.out.starts_with("navmsg ")) << version.out;
    for (const std::string command : {"", "decode", "batch", "encode", "formats"}) {
        const CliRun help = navmsg(command + " --help");
        EXPECT_EQ(help.status, 0) << command;
        EXPECT_NE(help.out.find("Usage"), std::string::npos) << command;
        EXPECT_TRUE(
            help.out.ends_with("3 output\ncould not be written (a closed pipe ends the "
                               "run quietly with 3).\n"))
            << help.out;
        if (command.empty()) {
            continue;
        }
        const std::size_t examples = help.out.find("Examples:\n");
        ASSERT_NE(examples, std::string::npos) << help.out;
        const std::string block =
            help.out.substr(examples + 10, help.out.find("\n\n", examples) - examples - 9);
        const std::size_t secondLine = block.find('\n') + 1;
        EXPECT_EQ(secondLine + block.substr(secondLine).find('\n') + 1, block.size()) << block;
        ASSERT_TRUE(block.starts_with("  navmsg " + command)) << block;
        const CliRun run = Shell().run(std::string("cd '") + ZELTNAVMSG_SOURCE_DIR + "' && " +
                                       block.substr(2, secondLine - 3));
        EXPECT_EQ(run.status, 0) << block << run.err;
        EXPECT_EQ(run.err, "") << block;  // e.g. no short message among examples/messages.txt
        EXPECT_NE(run.out, "") << block;
    }
}

TEST(NavmsgCli, BatchDecodesEveryLineAndReportsFailures) {
    const std::string input = "# comment\n\nG04 LNAV 1 0 " + kGpsSubframe1 +
                              "\nG04 LNAV 1 0 12x4\nG04 LNAV one 0 00\nE11 INAV 1 0 00\n"
                              "J01 LNAV 3 0 " +
                              kGpsSubframe1 + "\nG04 LNAV 1\n";
    const CliRun run = navmsg("batch -", input);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err,
              "navmsg: line 4, digit 3: Can't parse symbol as hex digit: x\n"
              "navmsg: line 5: SUBFRAME and PAGE must be 32-bit integers\n"
              "navmsg: line 6: Galileo INAV: Decoding is not supported yet for this message "
              "format\n"
              "navmsg: line 8: expected SAT FORMAT SUBFRAME PAGE HEX\n");
    const std::string expected =
        "# line 3: G04 LNAV subframe 1 page 0\n" +
        withLf(NavMessageDecoder::Decode(MessageFormat::GpsLNav, 1, 0, kGpsSubframe1)) + "\n" +
        "# line 7: J01 LNAV subframe 3 page 0\n" +
        withLf(NavMessageDecoder::Decode(MessageFormat::QzssLNav, 3, 0, kGpsSubframe1)) + "\n";
    EXPECT_EQ(run.out, expected);
}

// Blanks of every kind and any number part the words; a text message's own carriage
// return and line feed come out as the library lists them, in either line end.
TEST(NavmsgCli, BatchWordsAndTextCharacters) {
    ZeltNavMsg::MessageEncoder encoder(MessageFormat::GpsLNav, 4, 17, kGpsSubframe1);
    encoder.set("ch01", '\r');
    encoder.set("ch02", '\n');
    encoder.set("ch03", '\r');
    const std::string text = encoder.hex();
    const std::string input = "G04\t LNAV\v4\f17" + std::string(20, ' ') + text + " \r\n" +
                              std::string(17, ' ') + "G04 LNAV 1 0 " + kGpsSubframe1 +
                              std::string(17, '\t') + "\n";
    const std::string first = "# line 1: G04 LNAV subframe 4 page 17\r\n" +
                              NavMessageDecoder::Decode(MessageFormat::GpsLNav, 4, 17, text) +
                              "\r\n";
    const std::string second =
        "# line 2: G04 LNAV subframe 1 page 0\r\n" +
        NavMessageDecoder::Decode(MessageFormat::GpsLNav, 1, 0, kGpsSubframe1) + "\r\n";
    ASSERT_NE(first.find("'\r'"), std::string::npos);
    const CliRun lf = navmsg("batch -", input);
    EXPECT_EQ(lf.status, 0) << lf.err;
    EXPECT_EQ(lf.out, withLf(first + second));
    const CliRun crlf = navmsg("batch --crlf -", input);
    EXPECT_EQ(crlf.out, first + second);
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
    EXPECT_NE(run.out.find(": GpsLNav GpsCNav2 CNav GlonassFdma"), std::string::npos);
}

// A format may be named by its MessageFormat enumerator, for any system's satellite.
TEST(NavmsgCli, EnumeratorNamesSelectTheFormat) {
    for (const MessageFormat format : {MessageFormat::GpsCNav2, MessageFormat::BeidouD2}) {
        const auto* sample = findSupported(format);
        ASSERT_NE(sample, nullptr);
        const std::string line =
            "J02 " + std::string(sample->name) + " " + std::to_string(sample->subframe) + " " +
            std::to_string(sample->page) + " " + std::string(sample->sampleHex);
        const CliRun run = navmsg("batch -", line + "\n");
        EXPECT_EQ(run.status, 0) << run.err;
        const std::string listing = withLf(
            NavMessageDecoder::Decode(format, sample->subframe, sample->page, sample->sampleHex));
        EXPECT_EQ(run.out.substr(run.out.find('\n') + 1, listing.size()), listing) << line;
    }
}

// Lost output, unreadable input and input that is not what the user meant: each ends
// with its own status and a message that says what happened, never a quiet success.
TEST(NavmsgCli, HostileInputAndOutput) {
    struct Case {
        Case(const char* s, std::string in, int st, const char* e, int errnum = 0,
             std::string has = "")
            : script(s),
              input(std::move(in)),
              status(st),
              err(e),
              error(errnum),
              outHas(std::move(has)) {}
        const char* script;  // $D: a scratch directory with the files below
        std::string input;   // standard input
        int status;
        const char* err;  // exactly; {} is strerror(error), $D the directory
        int error;
        std::string outHas;
    };
    const std::string gps = kGpsSubframe1;
    const std::string damaged = gps.substr(0, gps.size() - 1) + "1";
    const std::string listing =
        withLf(NavMessageDecoder::Decode(MessageFormat::GpsLNav, 1, 0, kGpsSubframe1));
    const Case cases[] = {
        // Output that cannot be written, whatever the subcommand.
        {"navmsg batch $D/lnav >/dev/full", "", 3, "navmsg: cannot write output: {}\n", ENOSPC},
        {"navmsg decode --sat I01 - >/dev/full", "8b0d\n", 3,
         "navmsg: line 1: 16 of 292 bits given; the rest read as zero\n"
         "navmsg: cannot write output: {}\n",
         ENOSPC},
        {"navmsg formats >/dev/full", "", 3, "navmsg: cannot write output: {}\n", ENOSPC},
        {"navmsg --help >/dev/full", "", 3, "navmsg: cannot write output: {}\n", ENOSPC},
        {"navmsg --version >&-", "", 3, "navmsg: cannot write output: {}\n", EBADF},
        {"navmsg batch - >&-", "# nothing to list\n", 0, ""},
        {"navmsg batch $D/lnav >&-", "", 3, "navmsg: cannot write output: {}\n", EBADF},
        // SIGPIPE ignored, the reader gone after one byte: a quiet stop, the last
        // (bad) line never decoded.
        {"trap '' PIPE; { navmsg batch $D/lnav; echo $? >$D/status; } | head -c 1 >/dev/null;"
         " exit $(cat $D/status)",
         "", 3, ""},
        // Input that cannot be read.
        {"navmsg batch $D", "", 2, "navmsg: cannot read $D: {}\n", EISDIR},
        {"navmsg batch $D/missing", "", 2, "navmsg: cannot read $D/missing: {}\n", ENOENT},
        {"navmsg batch /proc/self/mem", "", 2, "navmsg: cannot read /proc/self/mem: {}\n", EIO},
        {"navmsg batch - <$D", "", 2, "navmsg: cannot read standard input: {}\n", EISDIR},
        {"navmsg decode --sat G01 - <&-", "", 2, "navmsg: cannot read standard input: {}\n", EBADF},
        {"navmsg batch $D/binary", "", 2,
         "navmsg: $D/binary: looks like a binary file; for receiver logs use 'navmsg log'\n"},
        {"navmsg batch - </dev/zero", "", 2,
         "navmsg: standard input: looks like a binary file; for receiver logs use 'navmsg log'\n"},
        // Lines beyond the limit are skipped, the run goes on.
        {"navmsg batch $D/endless", "", 1, "navmsg: line 1: line longer than 1048576 bytes\n"},
        {"navmsg decode --sat G01 - <$D/endless", "", 1,
         "navmsg: line 1: line longer than 1048576 bytes\n"},
        {"navmsg batch $D/limits", "", 1,
         "navmsg: line 1: expected SAT FORMAT SUBFRAME PAGE HEX\n"
         "navmsg: line 2: line longer than 1048576 bytes\n",
         0, "# line 3: G04 LNAV"},
        // Diagnostics: where the bad digit is, shown so that it can be seen.
        {"navmsg batch -", "#\n\nG04 LNAV 1 0 8b0d3487fffd614z\n", 1,
         "navmsg: line 3, digit 16: Can't parse symbol as hex digit: z\n"},
        {"navmsg decode --sat I01 -", "8b0d\n8b\x01\n8b\xef\xbb\xbf\n8b\xc3\xa9\n8b\xff\n", 1,
         "navmsg: line 1: 16 of 292 bits given; the rest read as zero\n"
         "navmsg: line 2, digit 3: Can't parse symbol as hex digit: \\x01\n"
         "navmsg: line 3, digit 3: Can't parse symbol as hex digit: U+FEFF\n"
         "navmsg: line 4, digit 3: Can't parse symbol as hex digit: U+00E9\n"
         "navmsg: line 5, digit 3: Can't parse symbol as hex digit: \\xFF\n"},
        {"navmsg decode --sat G04 --strict '8b0d 3487' ' 8b0d3487fffd614d3510000 '", "", 1,
         "navmsg: argument 1, digit 5: Can't parse symbol as hex digit: \\x20\n"
         "navmsg: argument 2: 92 of 300 bits given; the rest read as zero\n"},
        {"navmsg batch -", "\xef\xbb\xbfG04 LNAV 1 0 " + gps + "\n", 0, "", 0,
         "# line 1: G04 LNAV subframe 1 page 0\n"},
        {"navmsg batch -", "R01 FDMA 1 0 00\nS20 Sbas 1 0 00\n", 1,
         "navmsg: line 1: GLONASS FDMA: Decoding is not supported yet for this message format\n"
         "navmsg: line 2: SBAS Sbas: Decoding is not supported yet for this message format\n"},
        {"navmsg decode --sat E11 00", "", 2,
         "navmsg: E11: Galileo has no default format; choose one with --format: INAV FNAV\n"},
        {"navmsg decode --sat R01 00", "", 2,
         "navmsg: R01: GLONASS has no default format; choose one with --format: FDMA\n"},
        // Short messages: a warning with the lengths, a failure with --strict.
        {"navmsg batch --strict -", "G04 LNAV 1 0 8b0d\nJ02 GpsCNav2 0 0 00\n", 1,
         "navmsg: line 1: 16 of 300 bits given; the rest read as zero\n"
         "navmsg: line 2: 8 of 883 bits given; the rest read as zero\n"},
        {"navmsg batch -", "C01 CNAV2 0 0 0\nC01 CNAV1 0 0 0\nI01 IRNSS 0 0 0\n", 0,
         "navmsg: line 1: 4 of 288 bits given; the rest read as zero\n"
         "navmsg: line 2: 4 of 878 bits given; the rest read as zero\n"
         "navmsg: line 3: 4 of 292 bits given; the rest read as zero\n"},
        // Integrity checks: a verdict after each listing and a summary; --strict fails a
        // message that is not intact (D30 of word 10 flipped here).
        {"navmsg batch --check -", "G04 LNAV 1 0 " + gps + "\nG04 LNAV 1 0 " + damaged + "\n", 0,
         "navmsg: checks: 2 messages, 1 intact, 1 failed\n"
         "navmsg:   GpsLNav: 2 messages, 1 intact, 1 failed\n"
         "navmsg:   most often not ok: word 10 parity (1)\n",
         0, "Checks: ok (10 words)\n\n# line 2: G04 LNAV subframe 1 page 0\n"},
        {"navmsg batch --check - | grep FAILED", "G04 LNAV 1 0 " + damaged + "\n", 0,
         "navmsg: checks: 1 messages, 0 intact, 1 failed\n"
         "navmsg:   GpsLNav: 1 messages, 0 intact, 1 failed\n"
         "navmsg:   most often not ok: word 10 parity (1)\n",
         0, "Checks: FAILED word 10 parity\n"},
        {"navmsg batch --strict --output json -", "G04 LNAV 1 0 " + damaged + "\n", 1,
         "navmsg: line 1: Checks: FAILED word 10 parity\n", 0,
         // Word 10's parity is the input's last six bits, 0xF0 & 0x3F, and 0x31 damaged.
         "{\"name\":\"word 10 parity\",\"ok\":false,\"bits\":[[270,30]],\"computed\":\"30\","
         "\"received\":\"31\"}],\"ok\":false}\n"},
        // Reports in order with the listings when both go to one file.
        {"navmsg batch $D/short 2>&1", "", 0, "", 0,
         "# line 1: G04 LNAV subframe 1 page 0\n" + listing +
             "\nnavmsg: line 2: 16 of 300 bits given; the rest read as zero\n"
             "navmsg: line 2: The data does not fit in the subframe 2: data 31, sf-length 17.\n"},
    };

    Shell shell;
    shell.file("short", "G04 LNAV 1 0 " + gps + "\nG04 LNAV 1 0 8b0d\n");
    std::string lnav;
    for (int i = 0; i < 2000; ++i) {
        lnav += "G04 LNAV 1 0 " + gps + "\n";
    }
    shell.file("lnav", lnav + "G04 LNAV 1 0 zz\n");
    shell.file("binary", std::string("G04 LNAV 1 0\0 8b", 16));
    shell.file("endless", std::string(10'000'000, 'a'));
    const std::size_t limit = std::size_t{1} << 20;
    shell.file("limits", std::string(limit, 'a') + "\n" + std::string(limit + 1, 'b') +
                             "\nG04 LNAV 1 0 " + gps + "\n");
    for (const Case& c : cases) {
        SCOPED_TRACE(c.script);
        const CliRun run = shell.run(c.script, c.input);
        std::string err = c.err;
        replaceAll(err, "{}", c.error != 0 ? std::strerror(c.error) : "");
        replaceAll(err, "$D", shell.dir());
        EXPECT_EQ(run.status, c.status);
        EXPECT_EQ(run.err, err);
        EXPECT_NE(run.out.find(c.outHas), std::string::npos) << run.out.substr(0, 2000);
    }
}

}  // namespace
