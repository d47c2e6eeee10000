#include "FormatsCommand.h"

#include <CLI/CLI.hpp>

#include "ExitStatus.h"
#include "FormatLookup.h"
#include "Output.h"
#include "api/FormatNames.h"

namespace Navmsg {

namespace Names = ZeltNavMsg::Names;
using ZeltNavMsg::MessageFormat;
using ZeltNavMsg::NavMessageDecoder;

namespace {

// Asks the library itself: 76 zero digits fit every format's input.
bool formatDecodes(MessageFormat format) {
    try {
        (void)NavMessageDecoder::Decode(format, 1, 0, std::string(76, '0'));
        return true;
    } catch (const ZeltNavMsg::DecodingError&) {
        return false;
    }
}

}  // namespace

FormatsCommand::FormatsCommand(CLI::App& app)
    : command_(app.add_subcommand("formats", "List satellite letters, signal and format names")) {
    command_->footer(std::string("Examples:\n"
                                 "  navmsg formats\n"
                                 "  navmsg formats | grep -A2 '^C'\n"
                                 "\n") +
                     std::string(kExitStatusHelp));
}

bool FormatsCommand::selected() const {
    return command_->parsed();
}

int FormatsCommand::run(Output& out) {
    out.put(
        "Satellite names start with the letter of their system; signal and format\n"
        "names are matched exactly (case-sensitive).\n\n");
    for (const char letter : Names::kSystemLetters) {
        std::string text(1, letter);
        text.append("  ").append(systemName(letter)).append("\n    signals:");
        for (const auto& row : Names::kSignalNames) {
            if (row.letter == letter) {
                text.append(" ").append(row.name);
            }
        }
        text.append("\n    formats:");
        for (const auto& row : Names::kFormatNames) {
            if (row.letter != letter) {
                continue;
            }
            text.append(" ").append(row.name).append(" (");
            for (const auto& d : Names::kDefaultFormats) {
                if (d.letter == letter && d.name == row.name) {
                    text.append("default, ");
                }
            }
            text.append(formatDecodes(row.format) ? "decodes)" : "not decoded)");
        }
        text.append("\n");
        out.put(text);
    }
    out.put(
        "\nFormats may also be named by their MessageFormat enumerator, for a satellite\n"
        "of any system:");
    for (const auto& row : Names::kFormatEnumerators) {
        out.put(" ");
        out.put(row.name);
    }
    out.put("\n");
    return kExitOk;
}

}  // namespace Navmsg
