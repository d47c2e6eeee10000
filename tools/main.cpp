// navmsg: decodes navigation messages given as hex text into readable listings.
//
//   navmsg decode --sat G05 [--format LNAV] [--subframe N] [--page P] [OUTPUT] HEX...
//   navmsg batch [OUTPUT] FILE|-
//   navmsg log [--format F] [--sat S] [--extract] [OUTPUT] FILE...|-
//   navmsg encode [--format F [--sat SAT] ...] [--set PATH=VALUE]... [FILE|-]
//   navmsg formats
//
// OUTPUT: [--output text|json|csv] [--all-fields] [--check] [--strict] [--crlf]
//
// Exit status (ExitStatus.h): 0 all decoded, 1 some message failed, 2 usage or input
// error, 3 output could not be written.

#include <CLI/CLI.hpp>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <string>

#include "BatchCommand.h"
#include "DecodeCommand.h"
#include "EncodeCommand.h"
#include "ExitStatus.h"
#include "FormatsCommand.h"
#include "LogCommand.h"
#include "Output.h"
#include "zeltnavmsg/Version.h"

namespace {

using namespace Navmsg;

void reportLine(std::string_view text) {
    const std::string line = "navmsg: " + std::string(text) + "\n";
    [[maybe_unused]] const ssize_t ignored = ::write(STDERR_FILENO, line.data(), line.size());
}

// A standard descriptor closed by the caller would be taken by the next file this
// process opens, and output could land in the input. Each is held by /dev/null, open
// the wrong way round for 0 and 1 so that reading standard input or writing standard
// output still fails (EBADF) as it would have on the closed descriptor.
void holdClosedStandardDescriptors() {
    for (const int fd : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(fd, F_GETFD) != -1 || errno != EBADF) {
            continue;
        }
        const int flags = fd == STDOUT_FILENO ? O_RDONLY : O_WRONLY;
        const int held = ::open("/dev/null", flags);
        if (held >= 0 && held != fd) {
            ::close(held);
        }
    }
}

int run(int argc, char** argv, Output& out) {
    CLI::App app{"Decodes GNSS navigation messages given as hex text into readable listings.",
                 "navmsg"};
    app.set_version_flag("--version", std::string("navmsg ") + ZeltNavMsg::LibraryVersion());
    app.require_subcommand(1);
    app.footer(std::string(kExitStatusHelp));
    const DecodeCommand decode(app);
    const BatchCommand batch(app);
    const EncodeCommand encode(app);
    const FormatsCommand formats(app);
    const LogCommand log(app);

    if (argc <= 1) {
        const std::string usage = app.help();
        [[maybe_unused]] const ssize_t ignored = ::write(STDERR_FILENO, usage.data(), usage.size());
        return kExitUsage;
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        out.put(app.help());
        return kExitOk;
    } catch (const CLI::CallForAllHelp&) {
        out.put(app.help("", CLI::AppFormatMode::All));
        return kExitOk;
    } catch (const CLI::CallForVersion& e) {
        out.put(e.what());
        out.put("\n");
        return kExitOk;
    } catch (const CLI::ParseError& e) {
        reportLine(e.what());
        return kExitUsage;
    }

    if (decode.selected()) {
        return decode.run(out);
    }
    if (batch.selected()) {
        return batch.run(out);
    }
    if (log.selected()) {
        return log.run(out);
    }
    if (encode.selected()) {
        return encode.run(out);
    }
    if (formats.selected()) {
        return FormatsCommand::run(out);
    }
    return kExitUsage;
}

}  // namespace

int main(int argc, char** argv) {
    holdClosedStandardDescriptors();
    Output out(STDOUT_FILENO);
    int status = kExitOk;
    try {
        // What was listed before an error stays listed, before the error's report.
        try {
            status = run(argc, argv, out);
        } catch (const UsageError& e) {
            out.flush();
            reportLine(e.reason);
            status = kExitUsage;
        } catch (const std::exception& e) {
            // Out of memory or an internal error outside a decode: one line, not a crash.
            out.flush();
            reportLine(e.what());
            status = kExitFailedMessage;
        }
        out.close();
    } catch (const OutputError& e) {
        // A reader that has gone wants no more: no report, and no further decoding.
        if (e.error != EPIPE) {
            reportLine(std::string("cannot write output: ") + std::strerror(e.error));
        }
        return kExitOutput;
    }
    return status;
}
