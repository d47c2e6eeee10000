#ifndef NAVMSG_DIAGNOSTICS_H
#define NAVMSG_DIAGNOSTICS_H

#include <cstdio>
#include <string>
#include <string_view>

namespace Navmsg {

class Output;

// Where a report points: "line 4" of the input, "argument 2" of the command line,
// optionally ", digit 17" of that message's hex text; or nowhere in particular.
struct Place {
    enum class Kind { None, Line, Argument, Message };
    Kind kind = Kind::None;
    long number = 0;
    long digit = 0;  // 0: the message as a whole

    static Place line(long n) { return {Kind::Line, n, 0}; }
    static Place argument(long n) { return {Kind::Argument, n, 0}; }
    static Place message(long n) { return {Kind::Message, n, 0}; }  // of a receiver log
    [[nodiscard]] Place atDigit(long d) const { return {kind, number, d}; }
};

// Byte `text` shown so that nothing in it is invisible or ambiguous: printable ASCII
// as it is; a control byte, DEL or a byte that is not valid UTF-8 as \xNN; any other
// character as U+XXXX. A space is kept in running text and escaped (\x20) when it is
// the culprit itself.
std::string escapeInvisible(std::string_view text, bool escapeSpace);

// The first character of non-empty `text` (a whole UTF-8 sequence when it starts
// one), shown as escapeInvisible shows a culprit.
std::string describeFirstCharacter(std::string_view text);

// The reports on standard error, one line each: "navmsg: line 4: <message>". In text
// output, standard output is flushed before each report, so that on a terminal (or in
// a file both go to) a report stands next to the listing it belongs to.
class Diagnostics {
  public:
    Diagnostics(Output& out, bool flushBeforeReport);
    Diagnostics(const Diagnostics&) = delete;
    Diagnostics& operator=(const Diagnostics&) = delete;
    ~Diagnostics();

    void report(Place place, std::string_view message);
    // A report that makes the run fail (exit status 1).
    void failure(Place place, std::string_view message) {
        report(place, message);
        failed_ = true;
    }
    [[nodiscard]] bool failed() const { return failed_; }

    // Each line of `text` as a report at `place`.
    void reportLines(Place place, std::string_view text);

  private:
    friend class LibraryReports;

    Output& out_;
    bool flushBeforeReport_;
    bool failed_ = false;
    std::FILE* captureFile_ = nullptr;  // made on first use, reused
};

// Holds back what the library itself prints on standard error (a word that does not
// fit the bits given) from construction to finish(), by pointing standard error at a
// temporary file, so that the CLI can report it with its line number.
class LibraryReports {
  public:
    explicit LibraryReports(Diagnostics& diagnostics);
    LibraryReports(const LibraryReports&) = delete;
    LibraryReports& operator=(const LibraryReports&) = delete;
    ~LibraryReports();  // drops what was held back unless finish() took it

    // Standard error back where it was; returns what the library printed.
    std::string finish();

  private:
    void restore();

    std::FILE* file_;
    int savedStderr_ = -1;
};

}  // namespace Navmsg

#endif
