#ifndef ZELTNAVMSG_BITS_BITBUFFER_H
#define ZELTNAVMSG_BITS_BITBUFFER_H

#include <cstdint>
#include <stdexcept>
#include <type_traits>

namespace ZeltNavMsg {

namespace Impl {

// A non-owning view of bytes holding `bitsCount` bits. The count is a declaration:
// the bit operations do not check ranges against it.
template <typename P>
class BitBufferWrapper {
  public:
    // Throws std::runtime_error "BitBufferWrapper: ptr is 0" or
    // "BitBufferWrapper: bitsCount should be positive", checked in that order.
    BitBufferWrapper(P ptr, std::int32_t bitsCount) : ptr_(ptr), bitsCount_(bitsCount) {
        if (ptr_ == nullptr) {
            throw std::runtime_error("BitBufferWrapper: ptr is 0");
        }
        if (bitsCount_ < 1) {
            throw std::runtime_error("BitBufferWrapper: bitsCount should be positive");
        }
    }

    // A view of mutable bytes is also a view of constant ones.
    template <typename Q>
    requires(!std::is_same_v<Q, P> && std::is_convertible_v<Q, P>)
        // cppcheck-suppress noExplicitConstructor ; the conversion is meant to be implicit
        BitBufferWrapper(const BitBufferWrapper<Q>& other)
    noexcept  // NOLINT(google-explicit-constructor)
        : ptr_(other.data()), bitsCount_(other.bitsCount()) {}

    [[nodiscard]] P data() const noexcept { return ptr_; }
    [[nodiscard]] std::int32_t bitsCount() const noexcept { return bitsCount_; }

  private:
    P ptr_;
    std::int32_t bitsCount_;
};

}  // namespace Impl

using BitBuffer = Impl::BitBufferWrapper<std::uint8_t*>;
using ConstBitBuffer = Impl::BitBufferWrapper<const std::uint8_t*>;

}  // namespace ZeltNavMsg

#endif
