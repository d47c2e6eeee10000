#include "DecodeCommand.h"

#include <CLI/CLI.hpp>

#include "CheckReport.h"
#include "ExitStatus.h"
#include "FormatLookup.h"
#include "LineReader.h"
#include "Output.h"
#include "zeltnavmsg/SubframeAndPage.h"

namespace Navmsg {

DecodeCommand::DecodeCommand(CLI::App& app)
    : command_(app.add_subcommand("decode", "Decode messages given on the command line")) {
    command_->add_option("--sat", sat_, "Satellite name, e.g. G05, C11, J01, I09")->required();
    command_->add_option("--format", format_,
                         "Message format, e.g. LNAV, CNAV2, D1, or a MessageFormat name such as "
                         "GpsCNav2 (default: the system's default)");
    command_->add_option("--subframe", subframe_,
                         "Subframe number (default: the one the message's bits carry)");
    command_->add_option("--page", page_,
                         "Page number (default: the one the message's bits carry)");
    addMessageOptions(*command_, options_);
    command_
        ->add_option("HEX", hex_, "Message bits as hex; - reads one message per line from stdin")
        ->required();
    command_->footer(
        std::string("Examples:\n"
                    "  navmsg decode --sat G04 --subframe 1 "
                    "8b0d3487fffd614d351000091b1de78f322ebaf701369182b0dd6d7f8f6800ffd153eafc2f0\n"
                    "  cut -f5 subframes.txt | navmsg decode --sat C11 --format D1 --output csv -\n"
                    "\n") +
        std::string(kExitStatusHelp));
}

bool DecodeCommand::selected() const {
    return command_->parsed();
}

int DecodeCommand::run(Output& out) const {
    const std::string formatName = format_.empty() ? defaultFormatName(sat_) : format_;
    ZeltNavMsg::MessageFormat format{};
    try {
        format = resolveFormat(sat_, formatName);
    } catch (const std::exception& e) {
        throw UsageError{e.what()};
    }
    out.keepCrlf(options_.crlf);
    Diagnostics diagnostics(out, options_.form == OutputForm::Text);
    writeStart(out, options_);
    CheckSummary summary;
    bool first = true;
    Decoded decoded;
    // What is not given is read from each message's bits: the HOW's subframe ID and the
    // page of its TOW count (LNAV), FraID and Pnum (BeiDou), page or message type.
    const bool subframeGiven = command_->count("--subframe") > 0;
    const bool pageGiven = command_->count("--page") > 0;
    const auto decodeOne = [&](std::string_view hex, Place place) {
        Message message{sat_, formatName, format, subframe_, page_, hex};
        if (!subframeGiven || !pageGiven) {
            try {
                const ZeltNavMsg::SubframeAndPage read =
                    ZeltNavMsg::MessageNumbering::GetSubframeAndPage(format, hex);
                message.subframe = subframeGiven ? subframe_ : read.subframe;
                message.page = pageGiven ? page_ : read.page;
            } catch (const std::exception&) {
                // Bits that cannot be read: the decode reports why.
            }
        }
        const bool ok = decodeMessage(message, place, options_, diagnostics, decoded);
        if (ok && options_.check) {
            summary.add(decoded.records);
        }
        if (options_.form == OutputForm::Text) {
            if (!ok) {
                return;
            }
            if (!first) {
                out.lineEnd();
            }
            first = false;
        }
        writeMessage(out, options_, message, 0, ok, decoded, {});
    };
    for (std::size_t i = 0; i < hex_.size(); ++i) {
        if (hex_[i] != "-") {
            decodeOne(hex_[i], Place::argument(static_cast<long>(i) + 1));
            continue;
        }
        LineReader reader("-");
        for (LineReader::Line line; reader.next(line);) {
            if (line.tooLong) {
                failMessage(Place::line(line.number), "InputError",
                            "line longer than " + std::to_string(LineReader::kMaxLine) + " bytes",
                            diagnostics, decoded);
                writeMessage(out, options_, {sat_, formatName, format, 0, 0, {}}, 0, false, decoded,
                             {});
            } else if (line.text.find_first_not_of(" \t\r\v\f") != std::string_view::npos) {
                decodeOne(line.text, Place::line(line.number));
            }
        }
    }
    if (options_.check) {
        summary.report(diagnostics);
    }
    return diagnostics.failed() ? kExitFailedMessage : kExitOk;
}

}  // namespace Navmsg
