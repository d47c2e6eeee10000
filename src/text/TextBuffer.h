#ifndef ZELTNAVMSG_TEXT_TEXTBUFFER_H
#define ZELTNAVMSG_TEXT_TEXTBUFFER_H

#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>

namespace ZeltNavMsg::Text {

// Append-only character buffer for building a whole listing without a heap
// allocation per line. The first few kilobytes live inside the object (a decode
// keeps it on its stack); longer texts move to the heap, doubling as they grow.
//
// The line end is chosen once: the internal layers write "\n", the public entry
// point writes "\r\n" directly instead of converting afterwards.
class TextBuffer {
  public:
    static constexpr std::size_t kInlineCapacity = 8192;

    // inline_ stays uninitialised: nothing is read before it is written.
    // cppcheck-suppress uninitMemberVar
    // `lineEnd` is one or two characters.
    explicit TextBuffer(std::string_view lineEnd = "\n") noexcept
        : lineEnd_(lineEnd),
          lineEndChars_{lineEnd.empty() ? '\n' : lineEnd[0],
                        lineEnd.size() > 1 ? lineEnd[1] : '\0'} {}
    TextBuffer(const TextBuffer&) = delete;
    TextBuffer& operator=(const TextBuffer&) = delete;
    ~TextBuffer() = default;

    // Returns a pointer at which `n` more characters may be written; hand the end
    // of what was written to commit().
    char* reserve(std::size_t n) {
        if (capacity_ - size_ < n) {
            grow(n);
        }
        return data_ + size_;
    }
    void commit(const char* end) noexcept { size_ = static_cast<std::size_t>(end - data_); }

    void append(std::string_view s) {
        char* p = reserve(s.size());
        std::memcpy(p, s.data(), s.size());
        size_ += s.size();
    }
    void append(char c) {
        *reserve(1) = c;
        ++size_;
    }
    void appendRepeated(char c, std::size_t count) {
        char* p = reserve(count);
        std::memset(p, c, count);
        size_ += count;
    }
    void newline() {
        char* p = reserve(2);
        size_ = static_cast<std::size_t>(putLineEnd(p) - data_);
    }
    // Writes the line end at `p`, inside room taken with reserve() (two characters
    // are always stored), and returns its end.
    char* putLineEnd(char* p) const noexcept {
        std::memcpy(p, lineEndChars_, 2);
        return p + lineEnd_.size();
    }

    [[nodiscard]] std::string_view lineEnd() const noexcept { return lineEnd_; }
    [[nodiscard]] std::size_t size() const noexcept { return size_; }
    [[nodiscard]] bool empty() const noexcept { return size_ == 0; }
    [[nodiscard]] std::string_view view() const noexcept { return {data_, size_}; }
    [[nodiscard]] std::string str() const { return std::string(data_, size_); }

    // Drops everything after the first `n` characters.
    void truncate(std::size_t n) noexcept {
        if (n < size_) {
            size_ = n;
        }
    }
    // Inserts `s` at offset `pos` (<= size()), moving the rest back.
    void insert(std::size_t pos, std::string_view s) {
        reserve(s.size());
        std::memmove(data_ + pos + s.size(), data_ + pos, size_ - pos);
        std::memcpy(data_ + pos, s.data(), s.size());
        size_ += s.size();
    }

  private:
    void grow(std::size_t n) {
        std::size_t newCapacity = capacity_ * 2;
        while (newCapacity - size_ < n) {
            newCapacity *= 2;
        }
        auto bigger = std::make_unique_for_overwrite<char[]>(newCapacity);
        std::memcpy(bigger.get(), data_, size_);
        heap_ = std::move(bigger);
        data_ = heap_.get();
        capacity_ = newCapacity;
    }

    std::string_view lineEnd_;
    char lineEndChars_[2];
    std::size_t size_ = 0;
    std::size_t capacity_ = kInlineCapacity;
    char* data_ = inline_;
    std::unique_ptr<char[]> heap_;
    char inline_[kInlineCapacity];
};

}  // namespace ZeltNavMsg::Text

#endif
