#ifndef NAVMSG_LINEREADER_H
#define NAVMSG_LINEREADER_H

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "InputFile.h"

namespace Navmsg {

// Text input read line by line in bounded memory: a line longer than kMaxLine bytes
// is skipped unread (only its number is returned), so input without line ends, such
// as /dev/zero, never grows the buffer. Every read is checked: a directory, a read
// error or a closed standard input throws UsageError naming the input and the
// reason. A UTF-8 byte-order mark at the very start is skipped.
class LineReader {
  public:
    static constexpr std::size_t kMaxLine = std::size_t{1} << 20;

    struct Line {
        std::string_view text;  // without its "\n"; valid until the next call
        long number = 0;        // counted from 1
        bool tooLong = false;   // longer than kMaxLine: `text` is empty
    };

    // `path`, or standard input for "-". Throws UsageError when it cannot be opened.
    explicit LineReader(const std::string& path);
    LineReader(const LineReader&) = delete;
    LineReader& operator=(const LineReader&) = delete;
    ~LineReader();

    // The next line; false at the end of the input.
    bool next(Line& line);

    // The first block of the input (after a byte-order mark), read ahead: enough to
    // tell text from binary before any line is taken.
    std::string_view head();

    // "standard input" or the path, as reports name it.
    [[nodiscard]] const std::string& name() const { return input_.name(); }

  private:
    static constexpr std::size_t kBlock = std::size_t{1} << 16;
    static constexpr std::size_t kCapacity = kMaxLine + kBlock;

    void start();
    // Appends what one read gives at end_; false at the end of the input.
    bool fill();
    // Reads past the rest of an overlong line; the next line starts at begin_.
    void skipRestOfLine();

    InputFile input_;
    std::unique_ptr<char[]> buffer_;
    std::size_t begin_ = 0;    // first byte not yet returned
    std::size_t scanned_ = 0;  // bytes from begin_ known to hold no "\n"
    std::size_t end_ = 0;
    bool started_ = false;
    bool atEnd_ = false;
    long number_ = 0;
};

}  // namespace Navmsg

#endif
