#ifndef ZELTNAVMSG_LEGACY_SUBFRAMECODER_H
#define ZELTNAVMSG_LEGACY_SUBFRAMECODER_H

#include <cstdint>

#include "legacy/Subframe.h"

namespace ZeltNavMsg::Legacy {

// Word coder of a 300-bit subframe: adds (Encode) or strips (Decode) the word
// protection in place. Stateless apart from its variant flag, so one constant
// instance serves every thread.
class SubframeCoder {
  public:
    explicit constexpr SubframeCoder(std::int32_t variant) noexcept : variant_(variant) {}
    SubframeCoder(const SubframeCoder&) = delete;
    SubframeCoder& operator=(const SubframeCoder&) = delete;
    constexpr virtual ~SubframeCoder() = default;

    // Both return true when a word did not fit the record (see WriteWord).
    virtual bool Encode(subframe_t& sf) const = 0;
    virtual bool Decode(subframe_t& sf) const = 0;

    [[nodiscard]] constexpr std::int32_t variant() const noexcept { return variant_; }

    // The 30-bit word at bits firstBit ... firstBit+29 (counted from 1), first bit
    // most significant. Bits past the end of the data read as zero.
    [[nodiscard]] static std::uint32_t ReadWord(const subframe_t& sf,
                                                std::int32_t firstBit) noexcept;

    // Writes the low 30 bits of `value` at bits firstBit ... firstBit+29, leaving every
    // other bit alone. A word that would end past bit sf.bitCount is not written: the
    // mismatch is reported on the standard error stream and the result is true.
    static bool WriteWord(subframe_t& sf, std::int32_t firstBit, std::uint32_t value);

  private:
    std::int32_t variant_;
};

}  // namespace ZeltNavMsg::Legacy

#endif
