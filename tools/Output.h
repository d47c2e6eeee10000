#ifndef NAVMSG_OUTPUT_H
#define NAVMSG_OUTPUT_H

#include <cstddef>
#include <string>
#include <string_view>

namespace Navmsg {

// A write to the output failed; `error` is the errno value. EPIPE (the reader has
// gone, SIGPIPE ignored) ends the run quietly, anything else with a report.
struct OutputError {
    int error;
};

// Standard output, collected in a buffer of our own and written with write(2) in
// blocks of 64 KiB: one append per piece, no stdio call and no flush per message.
// Every write is checked; the first that fails throws OutputError, so a full disk or
// a closed pipe ends the run instead of letting it report success.
class Output {
  public:
    explicit Output(int fd);
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;
    ~Output() = default;  // close() writes what is left; a destructor cannot report

    // The library ends its lines with "\r\n"; unless they are kept, write() turns
    // them into this platform's "\n", and lineEnd() writes the same.
    void keepCrlf(bool keep) { keepCrlf_ = keep; }

    // `text` as it is.
    void put(std::string_view text) {
        buffer_.append(text);
        if (buffer_.size() >= kBlock) {
            writeOut();
        }
    }
    void putNumber(long number);
    // Lets `write` append to the buffer directly (`write(std::string&)`), then writes
    // out a full block.
    template <class Write>
    void append(Write&& write) {
        write(buffer_);
        if (buffer_.size() >= kBlock) {
            writeOut();
        }
    }
    void lineEnd() { put(keepCrlf_ ? "\r\n" : "\n"); }

    // Text with "\r\n" line ends (the library's), in the chosen line ends.
    void write(std::string_view text);
    // A listing, ended by a line end whatever produced it.
    void writeListing(std::string_view text) {
        write(text);
        if (!text.ends_with('\n')) {
            lineEnd();
        }
    }

    // A listing already in the chosen line ends, ended by one.
    void putListing(std::string_view text) {
        put(text);
        if (!text.ends_with('\n')) {
            lineEnd();
        }
    }

    // Everything written so far, out to the file, pipe or terminal.
    void flush() { writeOut(); }
    // flush(), then closes the descriptor and checks that too (a file system may
    // report a failed write only there).
    void close();

  private:
    static constexpr std::size_t kBlock = std::size_t{1} << 16;
    // Line-end conversion copies this many bytes at a time.
    static constexpr std::size_t kCopyBlock = 16;

    void writeOut();

    int fd_;
    bool keepCrlf_ = false;
    std::string buffer_;
};

}  // namespace Navmsg

#endif
