#include "LineReader.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "ExitStatus.h"

namespace Navmsg {

namespace {

[[noreturn]] void throwCannotRead(const std::string& name, int error) {
    throw UsageError{"cannot read " + name + ": " + std::strerror(error)};
}

}  // namespace

LineReader::LineReader(const std::string& path) {
    if (path == "-") {
        fd_ = STDIN_FILENO;
        name_ = "standard input";
        return;
    }
    name_ = path;
    fd_ = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd_ < 0) {
        throwCannotRead(name_, errno);
    }
    owned_ = true;
}

LineReader::~LineReader() {
    if (owned_) {
        ::close(fd_);
    }
}

bool LineReader::fill() {
    for (;;) {
        const ssize_t got = ::read(fd_, buffer_.get() + end_, kCapacity - end_);
        if (got > 0) {
            end_ += static_cast<std::size_t>(got);
            return true;
        }
        if (got == 0) {
            atEnd_ = true;
            return false;
        }
        if (errno != EINTR) {
            throwCannotRead(name_, errno);
        }
    }
}

void LineReader::start() {
    started_ = true;
    buffer_ = std::make_unique_for_overwrite<char[]>(kCapacity);
    // A byte-order mark may arrive in pieces from a pipe; a terminal's short first
    // line must not wait for more.
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    while (fill() && end_ < kByteOrderMark.size() &&
           kByteOrderMark.starts_with(std::string_view(buffer_.get(), end_))) {
    }
    if (std::string_view(buffer_.get(), end_).starts_with(kByteOrderMark)) {
        begin_ = kByteOrderMark.size();
    }
}

std::string_view LineReader::head() {
    if (!started_) {
        start();
    }
    return {buffer_.get() + begin_, end_ - begin_};
}

void LineReader::skipRestOfLine() {
    for (;;) {
        const void* newline = std::memchr(buffer_.get() + begin_, '\n', end_ - begin_);
        if (newline != nullptr) {
            begin_ =
                static_cast<std::size_t>(static_cast<const char*>(newline) - buffer_.get()) + 1;
            scanned_ = 0;
            return;
        }
        begin_ = end_ = scanned_ = 0;
        if (!fill()) {
            return;
        }
    }
}

bool LineReader::next(Line& line) {
    if (!started_) {
        start();
    }
    for (;;) {
        char* const first = buffer_.get() + begin_;
        const auto* newline =
            static_cast<const char*>(std::memchr(first + scanned_, '\n', end_ - begin_ - scanned_));
        const std::size_t length =
            newline != nullptr ? static_cast<std::size_t>(newline - first) : end_ - begin_;
        if (length > kMaxLine) {
            line = {{}, ++number_, true};
            skipRestOfLine();
            return true;
        }
        if (newline != nullptr || (atEnd_ && length > 0)) {
            line = {{first, length}, ++number_, false};
            begin_ += newline != nullptr ? length + 1 : length;
            scanned_ = 0;
            return true;
        }
        if (atEnd_) {
            return false;
        }
        // Room for the next read: the partial line moves to the front.
        scanned_ = length;
        std::memmove(buffer_.get(), first, length);
        begin_ = 0;
        end_ = length;
        fill();
    }
}

}  // namespace Navmsg
