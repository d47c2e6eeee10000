#include "Output.h"

#include <unistd.h>

#include <bit>
#include <cerrno>
#include <charconv>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

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
    // Copied into the buffer with each "\r" before a "\n" left out.
    const std::size_t start = buffer_.size();
    buffer_.resize(start + text.size() + kCopyBlock);
    char* to = buffer_.data() + start;
    const char* from = text.data();
    const char* const end = from + text.size();
    const auto crLf = [&] {  // `from` at a "\r"
        if (from + 1 == end || from[1] != '\n') {
            *to++ = '\r';  // a lone carriage return stays
        }
        ++from;
    };
#if defined(__SSE2__)
    // Sixteen bytes a step, stored whole: up to the first "\r" they are in place.
    while (end - from >= static_cast<std::ptrdiff_t>(kCopyBlock)) {
        const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(to), block);
        const int crs = _mm_movemask_epi8(_mm_cmpeq_epi8(block, _mm_set1_epi8('\r')));
        if (crs == 0) {
            from += kCopyBlock;
            to += kCopyBlock;
            continue;
        }
        const int before = std::countr_zero(static_cast<unsigned>(crs));
        from += before;
        to += before;
        crLf();
    }
#endif
    while (from != end) {
        const auto* cr =
            static_cast<const char*>(std::memchr(from, '\r', static_cast<std::size_t>(end - from)));
        const char* const stop = cr == nullptr ? end : cr;
        std::memcpy(to, from, static_cast<std::size_t>(stop - from));
        to += stop - from;
        from = stop;
        if (cr != nullptr) {
            crLf();
        }
    }
    buffer_.resize(static_cast<std::size_t>(to - buffer_.data()));
    if (buffer_.size() >= kBlock) {
        writeOut();
    }
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
