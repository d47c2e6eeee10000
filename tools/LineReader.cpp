#include "LineReader.h"

#include <cstring>

namespace Navmsg {

LineReader::LineReader(const std::string& path) : input_(path) {}

LineReader::~LineReader() = default;

bool LineReader::fill() {
    const std::size_t got = input_.read(buffer_.get() + end_, kCapacity - end_);
    end_ += got;
    atEnd_ = got == 0;
    return got > 0;
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
