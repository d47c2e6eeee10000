#ifndef ZELTNAVMSG_BITS_LIMITEDSIZESTRING_H
#define ZELTNAVMSG_BITS_LIMITEDSIZESTRING_H

#include <cstddef>
#include <stdexcept>
#include <string_view>

namespace ZeltNavMsg {

// Text of at most C characters in a fixed buffer; never allocates.
template <std::size_t C>
class LimitedSizeString {
  public:
    // Throws std::runtime_error "LimitedSizeString: not enough capacity" when full.
    void push_back(char c) {
        if (size_ == C) {
            throw std::runtime_error("LimitedSizeString: not enough capacity");
        }
        text_[size_++] = c;
        text_[size_] = '\0';
    }
    void append(std::string_view s) {
        for (const char c : s) {
            push_back(c);
        }
    }

    [[nodiscard]] std::size_t size() const noexcept { return size_; }
    [[nodiscard]] static constexpr std::size_t capacity() noexcept { return C; }
    [[nodiscard]] const char* c_str() const noexcept { return text_; }
    [[nodiscard]] std::string_view view() const noexcept { return {text_, size_}; }
    [[nodiscard]] char operator[](std::size_t i) const noexcept { return text_[i]; }

  private:
    char text_[C + 1] = {};
    std::size_t size_ = 0;
};

}  // namespace ZeltNavMsg

#endif
