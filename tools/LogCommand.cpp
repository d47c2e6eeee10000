#include "LogCommand.h"

#include <CLI/CLI.hpp>

#include <array>
#include <charconv>
#include <map>
#include <memory>

#include "CheckReport.h"
#include "ExitStatus.h"
#include "FormatLookup.h"
#include "InputFile.h"
#include "Output.h"
#include "api/FormatNames.h"
#include "zeltnavmsg/LogReader.h"
#include "zeltnavmsg/RecordOutput.h"

namespace Navmsg {

using ZeltNavMsg::LogMessage;
using ZeltNavMsg::LogReader;
using ZeltNavMsg::MessageFormat;

namespace {

// The header line of a message in text output, written piece by piece:
// "# week 2408 tow 588794.5: G05 L1CA GpsLNav subframe 1 page 0" ("no time" where the
// log has no time tag yet).
void writeHeader(Output& out, const LogMessage& m, std::string_view formatName) {
    if (m.hasTime) {
        out.put("# week ");
        out.putNumber(m.week);
        out.put(" tow ");
        out.append([&](std::string& text) { ZeltNavMsg::AppendNumber(text, m.secondsOfWeek); });
    } else {
        out.put("# no time");
    }
    for (const std::string_view piece :
         {std::string_view(": "), m.satellite, std::string_view(" "), m.signalName,
          std::string_view(" "), formatName, std::string_view(" subframe ")}) {
        out.put(piece);
    }
    out.putNumber(m.subframe);
    out.put(" page ");
    out.putNumber(m.page);
    out.lineEnd();
}

// Which messages are wanted: a format (any of its names) and a satellite or system.
class Filter {
  public:
    Filter(std::string_view format, std::string_view sat) : format_(format), sat_(sat) {
        if (format_.empty()) {
            return;
        }
        // The name must mean a format for some system: a typo must not empty the run.
        for (const char letter : ZeltNavMsg::Names::kSystemLetters) {
            try {
                (void)resolveFormat(std::string(1, letter), format_);
                return;
            } catch (const std::exception&) {
            }
        }
        throw UsageError{"unknown format name " + format_ + " for --format"};
    }

    [[nodiscard]] bool wants(const LogMessage& m) const {
        if (!sat_.empty() && m.satellite != sat_ &&
            !(sat_.size() == 1 && m.satellite.starts_with(sat_))) {
            return false;
        }
        if (format_.empty()) {
            return true;
        }
        try {
            return resolveFormat(m.satellite, format_) == m.format;
        } catch (const std::exception&) {
            return false;  // a name of another system's format
        }
    }

  private:
    std::string format_;
    std::string sat_;
};

// Messages per format and per system of one log, for the summary.
struct LogCounts {
    static constexpr std::size_t kFormats = 13;  // the MessageFormat values
    std::array<long, kFormats> formats{};
    std::array<long, 128> systems{};  // by the satellite name's first letter
    long messages = 0;

    void add(const LogMessage& m) {
        ++messages;
        const auto format = static_cast<std::size_t>(m.format);
        if (format < kFormats) {
            ++formats[format];
        }
        const auto letter = static_cast<unsigned char>(m.satellite.empty() ? 0 : m.satellite[0]);
        ++systems[letter & 0x7FU];
    }
};

void reportLog(Diagnostics& diagnostics, const std::string& name, const LogCounts& counts,
               const ZeltNavMsg::LogReaderStats& stats) {
    const auto list = [](const std::map<std::string_view, long>& items) {
        std::string text;
        for (const auto& [item, n] : items) {
            text.append(text.empty() ? "" : ", ")
                .append(item)
                .append(" ")
                .append(std::to_string(n));
        }
        return text.empty() ? std::string("none") : text;
    };
    std::map<std::string_view, long> formats;
    for (std::size_t f = 0; f < counts.formats.size(); ++f) {
        if (counts.formats[f] != 0) {
            formats[ZeltNavMsg::MessageFormatName(static_cast<MessageFormat>(f))] =
                counts.formats[f];
        }
    }
    std::map<std::string_view, long> systems;
    for (std::size_t c = 0; c < counts.systems.size(); ++c) {
        if (counts.systems[c] != 0) {
            systems[systemName(static_cast<char>(c))] = counts.systems[c];
        }
    }
    diagnostics.report(
        {}, name + ": " + std::to_string(counts.messages) + " messages: " + list(formats));
    diagnostics.report({}, "  by system: " + list(systems));
    std::string skipped;
    const auto add = [&](std::uint64_t n, std::string_view what) {
        if (n != 0) {
            skipped.append(skipped.empty() ? "" : ", ")
                .append(std::to_string(n))
                .append(" ")
                .append(what);
        }
    };
    add(stats.unmappedSignals, "records of signals not decoded");
    add(stats.ubxBadChecksums, "UBX frames with a bad checksum");
    add(stats.sbfBadCrcs, "SBF blocks with a bad CRC");
    add(stats.sbfBadLengths, "SBF blocks with an impossible length");
    add(stats.truncatedFrames, "frames cut off by the end of the log");
    add(stats.malformedRecords, "malformed records");
    add(stats.failedChecks, "records failing the receiver's or their frame's check");
    add(stats.incompleteFrames, "B-CNAV1 frames without all their records");
    add(stats.skippedBytes, "bytes outside frames");
    diagnostics.report({}, "  skipped: " + (skipped.empty() ? std::string("nothing") : skipped));
}

}  // namespace

LogCommand::LogCommand(CLI::App& app)
    : command_(app.add_subcommand(
          "log",
          "Decode every navigation message of u-blox UBX and Septentrio SBF receiver logs")) {
    command_
        ->add_option("FILE", paths_,
                     "Receiver log (UBX and SBF, in any mix with other data), or - for standard "
                     "input")
        ->required();
    command_->add_option(
        "--format", format_,
        "Only messages of this format: a system's name (LNAV, D1, CNAV2, ...) or a "
        "MessageFormat name (GpsLNav, QzssLNav, BeidouCNav1, ...)");
    command_->add_option("--sat", sat_, "Only this satellite (G05), or this system (G, C, J, I)");
    command_->add_flag("--extract", extract_,
                       "Write the messages as batch lines 'SAT FORMAT SUBFRAME PAGE HEX' instead");
    addMessageOptions(*command_, options_);
    command_->footer(
        std::string(
            "Each message is listed after a header line with the receiver time, satellite,\n"
            "signal, format, subframe and page; at the end a summary of each log goes to\n"
            "standard error.\n\n"
            "Examples:\n"
            "  navmsg log --check receiver.ubx\n"
            "  navmsg log --output json --sat G receiver.sbf | jq -c '.fields[]'\n"
            "\n") +
        std::string(kExitStatusHelp));
}

bool LogCommand::selected() const {
    return command_->parsed();
}

int LogCommand::run(Output& out) const {
    const Filter filter(format_, sat_);
    out.keepCrlf(options_.crlf);
    Diagnostics diagnostics(out, options_.form == OutputForm::Text);
    if (!extract_ && options_.form == OutputForm::Csv) {
        out.put(ZeltNavMsg::CsvHeader(true));
    }
    CheckSummary checks;
    Decoded decoded;
    ZeltNavMsg::RecordContext context;
    ZeltNavMsg::RecordOptions recordOptions;
    recordOptions.allFields = options_.allFields;
    constexpr std::size_t kChunk = std::size_t{1} << 16;
    const auto chunk = std::make_unique_for_overwrite<char[]>(kChunk);
    long number = 0;  // messages written, counted over every log
    for (const std::string& path : paths_) {
        InputFile input(path);
        LogReader reader;
        LogCounts counts;
        LogMessage m;
        const auto drain = [&] {
            while (reader.next(m)) {
                if (!filter.wants(m)) {
                    continue;
                }
                ++number;
                const std::string_view formatName = ZeltNavMsg::MessageFormatName(m.format);
                counts.add(m);
                if (extract_) {
                    out.put(m.satellite);
                    out.put(" ");
                    out.put(formatName);
                    out.put(" ");
                    out.putNumber(m.subframe);
                    out.put(" ");
                    out.putNumber(m.page);
                    out.put(" ");
                    out.put(m.hex);
                    out.lineEnd();
                    continue;
                }
                const Message message{m.satellite, formatName, m.format, m.subframe, m.page, m.hex};
                const bool ok =
                    decodeMessage(message, Place::message(number), options_, diagnostics, decoded);
                if (ok && options_.records()) {
                    checks.add(decoded.records);
                }
                if (options_.form == OutputForm::Text) {
                    if (!ok) {
                        continue;
                    }
                    writeHeader(out, m, formatName);
                    writeMessage(out, options_, message, number, true, decoded, {});
                    out.lineEnd();
                    continue;
                }
                context.line = number;
                context.sat = m.satellite;
                context.signal = m.signalName;
                context.hasTime = m.hasTime;
                context.week = m.week;
                context.tow = m.secondsOfWeek;
                out.append([&](std::string& buffer) {
                    if (!ok) {
                        ZeltNavMsg::AppendJsonError(buffer, number, decoded.failureType,
                                                    decoded.failure);
                    } else if (options_.form == OutputForm::Json) {
                        ZeltNavMsg::AppendJsonRecord(buffer, decoded.records, context,
                                                     recordOptions);
                    } else {
                        ZeltNavMsg::AppendCsvRows(buffer, decoded.records, context, recordOptions);
                    }
                });
            }
        };
        for (std::size_t got = input.read(chunk.get(), kChunk); got != 0;
             got = input.read(chunk.get(), kChunk)) {
            reader.feed(std::string_view(chunk.get(), got));
            drain();
        }
        reader.finish();
        drain();
        reportLog(diagnostics, input.name(), counts, reader.stats());
    }
    if (options_.records()) {
        checks.report(diagnostics);
    }
    return diagnostics.failed() ? kExitFailedMessage : kExitOk;
}

}  // namespace Navmsg
