#ifndef ZELTNAVMSG_TEXT_PADDEDTEXT_H
#define ZELTNAVMSG_TEXT_PADDEDTEXT_H

#include <cstddef>
#include <cstring>
#include <string_view>
#include <vector>

namespace ZeltNavMsg::Text {

// Short texts of a listing are copied in 16-byte chunks: one vector load and store
// each, where a memcpy of a run-time length would be a call. The source may then be
// read, and the destination written, up to kCopySlack bytes past the text's end.
inline constexpr std::size_t kCopySlack = 16;

// Copies n bytes in chunks, the first whatever n (most texts take one); `src` must be
// readable and `dst` writable for n rounded up to a multiple of kCopySlack, and at
// least kCopySlack. Returns dst + n.
inline char* copyChunks(char* dst, const char* src, std::size_t n) noexcept {
    std::memcpy(dst, src, kCopySlack);
    for (std::size_t i = kCopySlack; i < n; i += kCopySlack) {
        std::memcpy(dst + i, src + i, kCopySlack);
    }
    return dst + n;
}

// A constant text stored with kCopySlack readable bytes after it.
class PaddedText {
  public:
    PaddedText() : chars_(kCopySlack, '\0') {}
    explicit PaddedText(std::string_view text)
        : chars_(text.size() + kCopySlack, '\0'), size_(text.size()) {
        std::memcpy(chars_.data(), text.data(), text.size());
    }

    [[nodiscard]] std::size_t size() const noexcept { return size_; }
    [[nodiscard]] std::string_view view() const noexcept { return {chars_.data(), size_}; }
    // Copies the text to `dst` (writable for size() + kCopySlack bytes); returns its end.
    char* copyTo(char* dst) const noexcept { return copyChunks(dst, chars_.data(), size_); }

  private:
    std::vector<char> chars_;
    std::size_t size_ = 0;
};

}  // namespace ZeltNavMsg::Text

#endif
