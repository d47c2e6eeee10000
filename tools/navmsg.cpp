// navmsg: decodes navigation messages given as hex text into readable listings.
//
//   navmsg decode --sat G05 [--format LNAV] [--subframe N] [--page P] [--crlf] HEX...
//   navmsg batch [--crlf] FILE|-
//   navmsg formats
//
// Exit status: 0 all decoded, 1 some message failed, 2 usage error.

#include <CLI/CLI.hpp>

#include <array>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "api/FormatNames.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using ZeltNavMsg::MessageFormat;
using ZeltNavMsg::NavMessageDecoder;

constexpr int kExitFailedMessage = 1;
constexpr int kExitUsage = 2;

// A usage error found after parsing (unknown satellite or format, unreadable file).
struct UsageError {
    std::string reason;
};

// Standard output, collected in a buffer of our own and written in large blocks: no
// flush and no stdio call per message or line. The library ends lines with "\r\n";
// unless asked to keep them, they become this platform's "\n".
class Output {
  public:
    explicit Output(bool keepCrlf) : keepCrlf_(keepCrlf) { buffer_.reserve(kBlock + kBlock / 4); }
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;
    ~Output() { flush(); }

    void write(std::string_view text) {
        if (keepCrlf_) {
            put(text);
            return;
        }
        for (std::size_t cr = text.find("\r\n"); cr != std::string_view::npos;
             cr = text.find("\r\n")) {
            put(text.substr(0, cr));
            text.remove_prefix(cr + 1);  // keep the "\n"
        }
        put(text);
    }

    // A decoded listing, ended by a line end whatever road produced it.
    void writeListing(std::string_view text) {
        write(text);
        if (!text.ends_with('\n')) {
            lineEnd();
        }
    }

    void lineEnd() { put(keepCrlf_ ? "\r\n" : "\n"); }

    void put(std::string_view s) {
        buffer_.append(s);
        if (buffer_.size() >= kBlock) {
            writeOut();
        }
    }

    // Everything written so far, out to the terminal or file.
    void flush() {
        writeOut();
        std::fflush(stdout);
    }

  private:
    static constexpr std::size_t kBlock = std::size_t{1} << 16;

    void writeOut() {
        std::fwrite(buffer_.data(), 1, buffer_.size(), stdout);
        buffer_.clear();
    }

    bool keepCrlf_;
    std::string buffer_;
};

// Keeps standard output and standard error in order when both go to a terminal.
void reportFailure(Output& out, std::string_view where, const std::exception& e) {
    out.flush();
    std::fprintf(stderr, "navmsg: %.*s%s\n", static_cast<int>(where.size()), where.data(),
                 e.what());
}

MessageFormat resolveFormat(const std::string& sat, const std::string& formatName) {
    try {
        const std::string name =
            formatName.empty() ? NavMessageDecoder::GetDefaultMessageFormatString(sat) : formatName;
        return NavMessageDecoder::GetMessageFormatFromString(sat, name);
    } catch (const std::exception& e) {
        throw UsageError{e.what()};
    }
}

std::optional<std::int32_t> parseInt32(std::string_view text) {
    std::int32_t value = 0;
    const char* end = text.data() + text.size();
    const auto [ptr, ec] = std::from_chars(text.data(), end, value);
    if (ec != std::errc() || ptr != end) {
        return std::nullopt;
    }
    return value;
}

// --- decode ---------------------------------------------------------------

struct DecodeOptions {
    std::string sat;
    std::string format;
    std::int32_t subframe = 0;
    std::int32_t page = 0;
    bool crlf = false;
    std::vector<std::string> hex;
};

int runDecode(const DecodeOptions& options) {
    const MessageFormat format = resolveFormat(options.sat, options.format);
    Output out(options.crlf);
    bool failed = false;
    bool first = true;
    auto decodeOne = [&](std::string_view hex) {
        try {
            const std::string text =
                NavMessageDecoder::Decode(format, options.subframe, options.page, hex);
            if (!first) {
                out.lineEnd();
            }
            first = false;
            out.writeListing(text);
        } catch (const std::exception& e) {
            reportFailure(out, "", e);
            failed = true;
        }
    };
    for (const std::string& hex : options.hex) {
        if (hex != "-") {
            decodeOne(hex);
            continue;
        }
        for (std::string line; std::getline(std::cin, line);) {
            if (line.find_first_not_of(" \t\r\v\f") != std::string::npos) {
                decodeOne(line);
            }
        }
    }
    return failed ? kExitFailedMessage : 0;
}

// --- batch ----------------------------------------------------------------

// The white-space separated words of a batch line: the first kMaxWords of them and
// how many there are (counted up to kMaxWords + 1, enough to tell "too many").
struct Words {
    static constexpr std::size_t kMaxWords = 5;
    std::array<std::string_view, kMaxWords> word;
    std::size_t count = 0;
};

Words splitWords(std::string_view line) {
    Words w;
    constexpr std::string_view kBlanks = " \t\r\v\f";
    for (std::size_t start = line.find_first_not_of(kBlanks);
         start != std::string_view::npos && w.count <= Words::kMaxWords;) {
        const std::size_t end = line.find_first_of(kBlanks, start);
        if (w.count < Words::kMaxWords) {
            w.word[w.count] = line.substr(start, end == std::string_view::npos ? end : end - start);
        }
        ++w.count;
        start = end == std::string_view::npos ? end : line.find_first_not_of(kBlanks, end);
    }
    return w;
}

void appendNumber(Output& out, long number) {
    char digits[24];
    const auto result = std::to_chars(digits, digits + sizeof digits, number);
    out.put(std::string_view(digits, static_cast<std::size_t>(result.ptr - digits)));
}

int runBatch(const std::string& path, bool crlf) {
    std::ifstream file;
    if (path != "-") {
        file.open(path);
        if (!file) {
            throw UsageError{"cannot read " + path};
        }
    }
    std::istream& in = path == "-" ? std::cin : file;

    Output out(crlf);
    bool failed = false;
    std::string line;
    for (long lineNumber = 1; std::getline(in, line); ++lineNumber) {
        const Words w = splitWords(line);
        if (w.count == 0 || w.word[0].starts_with('#')) {
            continue;
        }
        try {
            if (w.count != Words::kMaxWords) {
                throw std::invalid_argument("expected SAT FORMAT SUBFRAME PAGE HEX");
            }
            const std::optional<std::int32_t> subframe = parseInt32(w.word[2]);
            const std::optional<std::int32_t> page = parseInt32(w.word[3]);
            if (!subframe || !page) {
                throw std::invalid_argument("SUBFRAME and PAGE must be 32-bit integers");
            }
            const MessageFormat format =
                NavMessageDecoder::GetMessageFormatFromString(w.word[0], w.word[1]);
            const std::string text = NavMessageDecoder::Decode(format, *subframe, *page, w.word[4]);
            out.put("# line ");
            appendNumber(out, lineNumber);
            for (const std::string_view piece :
                 {std::string_view(": "), w.word[0], std::string_view(" "), w.word[1],
                  std::string_view(" subframe "), w.word[2], std::string_view(" page "),
                  w.word[3]}) {
                out.put(piece);
            }
            out.lineEnd();
            out.writeListing(text);
            out.lineEnd();
        } catch (const std::exception& e) {
            reportFailure(out, "line " + std::to_string(lineNumber) + ": ", e);
            failed = true;
        }
    }
    return failed ? kExitFailedMessage : 0;
}

// --- formats --------------------------------------------------------------

// Asks the library itself: 76 zero digits fit every format's input.
bool formatDecodes(MessageFormat format) {
    try {
        (void)NavMessageDecoder::Decode(format, 1, 0, std::string(76, '0'));
        return true;
    } catch (const ZeltNavMsg::DecodingError&) {
        return false;
    }
}

int runFormats() {
    Output out(false);
    out.write(
        "Satellite names start with the letter of their system; signal and format\n"
        "names are matched exactly (case-sensitive).\n\n");
    for (const auto& [letter, system] : ZeltNavMsg::Names::kSystemNames) {
        std::string text(1, letter);
        text.append("  ").append(system).append("\n    signals:");
        for (const auto& row : ZeltNavMsg::Names::kSignalNames) {
            if (row.letter == letter) {
                text.append(" ").append(row.name);
            }
        }
        text.append("\n    formats:");
        for (const auto& row : ZeltNavMsg::Names::kFormatNames) {
            if (row.letter != letter) {
                continue;
            }
            text.append(" ").append(row.name).append(" (");
            for (const auto& d : ZeltNavMsg::Names::kDefaultFormats) {
                if (d.letter == letter && d.name == row.name) {
                    text.append("default, ");
                }
            }
            text.append(formatDecodes(row.format) ? "decodes)" : "not decoded)");
        }
        text.append("\n");
        out.write(text);
    }
    return 0;
}

int run(int argc, char** argv) {
    CLI::App app{"Decodes GNSS navigation messages given as hex text into readable listings.",
                 "navmsg"};
    app.set_version_flag("--version", std::string("navmsg ") + ZELTNAVMSG_VERSION);
    app.require_subcommand(1);

    DecodeOptions decodeOptions;
    CLI::App* decode = app.add_subcommand("decode", "Decode messages given on the command line");
    decode->add_option("--sat", decodeOptions.sat, "Satellite name, e.g. G05, C11, J01, I09")
        ->required();
    decode->add_option("--format", decodeOptions.format,
                       "Message format, e.g. LNAV, CNAV2, D1 (default: the system's default)");
    decode->add_option("--subframe", decodeOptions.subframe, "Subframe number (default 0)");
    decode->add_option("--page", decodeOptions.page, "Page number (default 0)");
    decode->add_flag("--crlf", decodeOptions.crlf, "Keep the library's \\r\\n line ends");
    decode
        ->add_option("HEX", decodeOptions.hex,
                     "Message bits as hex; - reads one per line from stdin")
        ->required();

    std::string batchPath;
    bool batchCrlf = false;
    CLI::App* batch = app.add_subcommand(
        "batch", "Decode every line 'SAT FORMAT SUBFRAME PAGE HEX' of a file (# starts a comment)");
    batch->add_option("FILE", batchPath, "Input file, or - for standard input")->required();
    batch->add_flag("--crlf", batchCrlf, "Keep the library's \\r\\n line ends");

    CLI::App* formats =
        app.add_subcommand("formats", "List satellite letters, signal and format names");

    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp& e) {
        return app.exit(e);
    } catch (const CLI::CallForAllHelp& e) {
        return app.exit(e);
    } catch (const CLI::CallForVersion& e) {
        return app.exit(e);
    } catch (const CLI::ParseError& e) {
        std::fprintf(stderr, "navmsg: %s\n", e.what());
        return kExitUsage;
    }

    try {
        if (decode->parsed()) {
            return runDecode(decodeOptions);
        }
        if (batch->parsed()) {
            return runBatch(batchPath, batchCrlf);
        }
        if (formats->parsed()) {
            return runFormats();
        }
    } catch (const UsageError& e) {
        std::fprintf(stderr, "navmsg: %s\n", e.reason.c_str());
        return kExitUsage;
    }
    return kExitUsage;
}

}  // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    // Anything the handlers above do not expect (out of memory, an internal error of the
    // library outside a decode) ends the run with a reason instead of std::terminate.
    try {
        return run(argc, argv);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "navmsg: %s\n", e.what());
    } catch (...) {
        std::fprintf(stderr, "navmsg: unexpected error\n");
    }
    return kExitFailedMessage;
}
