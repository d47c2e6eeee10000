#include "Output.h"

#include <unistd.h>

#include <cerrno>
#include <charconv>

namespace Navmsg {

Output::Output(int fd) : fd_(fd) {
    buffer_.reserve(kBlock + kBlock / 4);
}

void Output::putNumber(long number) {
    char digits[24];
    const auto result = std::to_chars(digits, digits + sizeof digits, number);
    put(std::string_view(digits, static_cast<std::size_t>(result.ptr - digits)));
}

void Output::write(std::string_view text) {
    if (keepCrlf_) {
        put(text);
        return;
    }
    for (std::size_t cr = text.find("\r\n"); cr != std::string_view::npos; cr = text.find("\r\n")) {
        put(text.substr(0, cr));
        text.remove_prefix(cr + 1);  // keep the "\n"
    }
    put(text);
}

void Output::writeOut() {
    const char* data = buffer_.data();
    std::size_t left = buffer_.size();
    while (left > 0) {
        const ssize_t written = ::write(fd_, data, left);
        if (written < 0) {
            if (errno == EINTR) {
                continue;
            }
            const int error = errno;
            buffer_.clear();
            throw OutputError{error};
        }
        data += written;
        left -= static_cast<std::size_t>(written);
    }
    buffer_.clear();
}

void Output::close() {
    writeOut();
    // Linux releases the descriptor even when close() is interrupted.
    if (fd_ >= 0 && ::close(fd_) != 0 && errno != EINTR) {
        const int error = errno;
        fd_ = -1;
        throw OutputError{error};
    }
    fd_ = -1;
}

}  // namespace Navmsg
