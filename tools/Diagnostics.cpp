#include "Diagnostics.h"

#include <unistd.h>

#include <cstdint>
#include <cstdio>

#include "Output.h"

namespace Navmsg {

namespace {

constexpr char kHexDigits[] = "0123456789ABCDEF";

void appendByte(std::string& out, unsigned char byte) {
    out.append("\\x");
    out.push_back(kHexDigits[byte >> 4]);
    out.push_back(kHexDigits[byte & 0xF]);
}

void appendCodePoint(std::string& out, std::uint32_t codePoint) {
    out.append("U+");
    int digits = 4;
    while (digits < 6 && (codePoint >> (4 * digits)) != 0) {
        ++digits;
    }
    for (int d = digits - 1; d >= 0; --d) {
        out.push_back(kHexDigits[(codePoint >> (4 * d)) & 0xF]);
    }
}

// Length of the well-formed UTF-8 sequence at the start of `text` and its code point;
// 0 when the first byte does not start one (overlong forms and surrogates included).
std::size_t utf8Sequence(std::string_view text, std::uint32_t& codePoint) {
    const auto lead = static_cast<unsigned char>(text[0]);
    std::size_t length = 0;
    std::uint32_t minimum = 0;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
        minimum = 0x80;
        codePoint = lead & 0x1FU;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        minimum = 0x800;
        codePoint = lead & 0x0FU;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        minimum = 0x10000;
        codePoint = lead & 0x07U;
    } else {
        return 0;
    }
    if (text.size() < length) {
        return 0;
    }
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0U) != 0x80U) {
            return 0;
        }
        codePoint = (codePoint << 6) | (next & 0x3FU);
    }
    const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    return codePoint < minimum || codePoint > 0x10FFFF || surrogate ? 0 : length;
}

void writeAll(int fd, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = ::write(fd, text.data(), text.size());
        if (written <= 0) {
            return;  // standard error is where failures are told; nowhere is left
        }
        text.remove_prefix(static_cast<std::size_t>(written));
    }
}

}  // namespace

std::string escapeInvisible(std::string_view text, bool escapeSpace) {
    std::string out;
    out.reserve(text.size());
    while (!text.empty()) {
        const auto byte = static_cast<unsigned char>(text[0]);
        if ((byte > 0x20 && byte < 0x7F) || (byte == 0x20 && !escapeSpace)) {
            out.push_back(text[0]);
            text.remove_prefix(1);
            continue;
        }
        std::uint32_t codePoint = 0;
        const std::size_t length = byte >= 0x80 ? utf8Sequence(text, codePoint) : 0;
        if (length == 0) {
            appendByte(out, byte);
            text.remove_prefix(1);
        } else {
            appendCodePoint(out, codePoint);
            text.remove_prefix(length);
        }
    }
    return out;
}

std::string describeFirstCharacter(std::string_view text) {
    std::uint32_t codePoint = 0;
    const std::size_t length = utf8Sequence(text, codePoint);
    return escapeInvisible(text.substr(0, length == 0 ? 1 : length), true);
}

Diagnostics::Diagnostics(Output& out, bool flushBeforeReport)
    : out_(out), flushBeforeReport_(flushBeforeReport) {}

Diagnostics::~Diagnostics() {
    if (captureFile_ != nullptr) {
        std::fclose(captureFile_);
    }
}

void Diagnostics::report(Place place, std::string_view message) {
    if (flushBeforeReport_) {
        out_.flush();
    }
    std::string line = "navmsg: ";
    if (place.kind != Place::Kind::None) {
        line.append(place.kind == Place::Kind::Line       ? "line "
                    : place.kind == Place::Kind::Argument ? "argument "
                                                          : "message ");
        line.append(std::to_string(place.number));
    }
    if (place.digit != 0) {
        line.append(place.kind != Place::Kind::None ? ", digit " : "digit ");
        line.append(std::to_string(place.digit));
    }
    if (place.kind != Place::Kind::None || place.digit != 0) {
        line.append(": ");
    }
    line.append(escapeInvisible(message, false)).push_back('\n');
    writeAll(STDERR_FILENO, line);
}

void Diagnostics::reportLines(Place place, std::string_view text) {
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        report(place, text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
}

LibraryReports::LibraryReports(Diagnostics& diagnostics) {
    if (diagnostics.captureFile_ == nullptr) {
        diagnostics.captureFile_ = std::tmpfile();
    }
    file_ = diagnostics.captureFile_;
    std::fflush(stderr);
    // Without a temporary file the library's reports go straight to standard error,
    // still after the output flushed before them.
    if (file_ == nullptr || ::ftruncate(fileno(file_), 0) != 0 ||
        ::lseek(fileno(file_), 0, SEEK_SET) != 0) {
        return;
    }
    savedStderr_ = ::dup(STDERR_FILENO);
    if (savedStderr_ >= 0 && ::dup2(fileno(file_), STDERR_FILENO) < 0) {
        ::close(savedStderr_);
        savedStderr_ = -1;
    }
}

LibraryReports::~LibraryReports() {
    restore();
}

void LibraryReports::restore() {
    if (savedStderr_ >= 0) {
        std::fflush(stderr);
        ::dup2(savedStderr_, STDERR_FILENO);
        ::close(savedStderr_);
        savedStderr_ = -1;
    }
}

std::string LibraryReports::finish() {
    if (savedStderr_ < 0) {
        return {};
    }
    restore();
    std::string text;
    const int fd = fileno(file_);
    const off_t size = ::lseek(fd, 0, SEEK_END);
    if (size <= 0 || ::lseek(fd, 0, SEEK_SET) != 0) {
        return text;
    }
    text.resize(static_cast<std::size_t>(size));
    std::size_t got = 0;
    while (got < text.size()) {
        const ssize_t n = ::read(fd, text.data() + got, text.size() - got);
        if (n <= 0) {
            break;
        }
        got += static_cast<std::size_t>(n);
    }
    text.resize(got);
    return text;
}

}  // namespace Navmsg
