#include "BatchCommand.h"

#include <CLI/CLI.hpp>

#include <array>
#include <bit>
#include <charconv>
#include <optional>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "CheckReport.h"
#include "ExitStatus.h"
#include "FormatLookup.h"
#include "LineReader.h"
#include "Output.h"

namespace Navmsg {

namespace {

// The white-space separated words of a batch line: the first kMaxWords of them and
// how many there are (counted up to kMaxWords + 1, enough to tell "too many").
struct Words {
    static constexpr std::size_t kMaxWords = 5;
    std::array<std::string_view, kMaxWords> word;
    std::size_t count = 0;
};

// The blanks between words: space, \t, \r, \v and \f.
constexpr bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\v' || c == '\f';
}

#if defined(__SSE2__)
// Bit k set when line[i + k] is a blank, for the sixteen characters from i.
unsigned blanksAt(const char* at) {
    const __m128i c = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
    // \t, \v, \f and \r are 9 and 11 to 13; \n (10) is not a blank here.
    const __m128i control =
        _mm_and_si128(_mm_cmpgt_epi8(c, _mm_set1_epi8(8)), _mm_cmplt_epi8(c, _mm_set1_epi8(14)));
    const __m128i blank =
        _mm_or_si128(_mm_cmpeq_epi8(c, _mm_set1_epi8(' ')),
                     _mm_andnot_si128(_mm_cmpeq_epi8(c, _mm_set1_epi8('\n')), control));
    return static_cast<unsigned>(_mm_movemask_epi8(blank));
}
#endif

// The first i from `i` on whose character is (wantBlank) or is not a blank, or n.
std::size_t skipTo(std::string_view line, std::size_t i, bool wantBlank) {
    const std::size_t n = line.size();
#if defined(__SSE2__)
    // Sixteen characters a step: the hex word is most of a line.
    constexpr std::size_t kBlock = 16;
    while (n - i >= kBlock) {
        const unsigned blanks = blanksAt(line.data() + i);
        const unsigned hits = wantBlank ? blanks : ~blanks & 0xFFFFU;
        if (hits != 0) {
            return i + static_cast<std::size_t>(std::countr_zero(hits));
        }
        i += kBlock;
    }
#endif
    while (i < n && isBlank(line[i]) != wantBlank) {
        ++i;
    }
    return i;
}

Words splitWords(std::string_view line) {
    Words w;
    const std::size_t n = line.size();
    std::size_t i = 0;
    while (w.count <= Words::kMaxWords) {
        i = skipTo(line, i, false);
        if (i == n) {
            break;
        }
        const std::size_t start = i;
        i = skipTo(line, i, true);
        if (w.count < Words::kMaxWords) {
            w.word[w.count] = line.substr(start, i - start);
        }
        ++w.count;
    }
    return w;
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

}  // namespace

BatchCommand::BatchCommand(CLI::App& app)
    : command_(app.add_subcommand(
          "batch",
          "Decode every line 'SAT FORMAT SUBFRAME PAGE HEX' of a file (# starts a comment)")) {
    command_->add_option("FILE", path_, "Input file, or - for standard input")->required();
    addMessageOptions(*command_, options_);
    command_->footer(
        std::string("FORMAT is a format name of the satellite's system (LNAV, D1, ...) "
                    "or a MessageFormat\nname (GpsCNav2, ...).\n\n"
                    "Examples:\n"
                    "  navmsg batch examples/messages.txt\n"
                    "  navmsg batch --output json messages.txt | jq -c '.fields[] | "
                    "select(.name == \"toe\")'\n"
                    "\n") +
        std::string(kExitStatusHelp));
}

bool BatchCommand::selected() const {
    return command_->parsed();
}

int BatchCommand::run(Output& out) const {
    LineReader reader(path_);
    if (reader.head().find('\0') != std::string_view::npos) {
        throw UsageError{reader.name() +
                         ": looks like a binary file; for receiver logs use 'navmsg log'"};
    }
    out.keepCrlf(options_.crlf);
    Diagnostics diagnostics(out, options_.form == OutputForm::Text);
    writeStart(out, options_);
    CheckSummary summary;
    Decoded decoded;
    std::string header;
    for (LineReader::Line line; reader.next(line);) {
        const Place place = Place::line(line.number);
        // A line that fails still has its place in JSON output: an error record.
        const auto fail = [&](std::string_view type, std::string_view text) {
            failMessage(place, type, text, diagnostics, decoded);
            writeMessage(out, options_, {}, line.number, false, decoded, {});
        };
        if (line.tooLong) {
            fail("InputError",
                 "line longer than " + std::to_string(LineReader::kMaxLine) + " bytes");
            continue;
        }
        const Words w = splitWords(line.text);
        if (w.count == 0 || w.word[0].starts_with('#')) {
            continue;
        }
        if (w.count != Words::kMaxWords) {
            fail("InputError", "expected SAT FORMAT SUBFRAME PAGE HEX");
            continue;
        }
        const std::optional<std::int32_t> subframe = parseInt32(w.word[2]);
        const std::optional<std::int32_t> page = parseInt32(w.word[3]);
        if (!subframe || !page) {
            fail("InputError", "SUBFRAME and PAGE must be 32-bit integers");
            continue;
        }
        ZeltNavMsg::MessageFormat format{};
        try {
            format = resolveFormat(w.word[0], w.word[1]);
        } catch (const std::exception& e) {
            fail("DecodingError", e.what());
            continue;
        }
        const Message message{w.word[0], w.word[1], format, *subframe, *page, w.word[4]};
        const bool ok = decodeMessage(message, place, options_, diagnostics, decoded);
        if (ok && options_.check) {
            summary.add(decoded.records);
        }
        if (options_.form == OutputForm::Text) {
            if (!ok) {
                continue;
            }
            header.assign("# line ");
            char number[24];
            header.append(number, std::to_chars(number, number + sizeof number, line.number).ptr);
            for (const std::string_view piece :
                 {std::string_view(": "), w.word[0], std::string_view(" "), w.word[1],
                  std::string_view(" subframe "), w.word[2], std::string_view(" page "),
                  w.word[3]}) {
                header.append(piece);
            }
            writeMessage(out, options_, message, line.number, true, decoded, header);
            out.lineEnd();
            continue;
        }
        writeMessage(out, options_, message, line.number, ok, decoded, {});
    }
    if (options_.check) {
        summary.report(diagnostics);
    }
    return diagnostics.failed() ? kExitFailedMessage : kExitOk;
}

}  // namespace Navmsg
