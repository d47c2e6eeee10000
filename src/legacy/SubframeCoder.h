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

    // Word `word` (0 ... 9) of received subframe `sf` as Decode would leave it, `sf`
    // unchanged: a few fields can be read without decoding every word. Reads no word
    // after `word`.
    [[nodiscard]] virtual std::uint32_t DecodedWord(const subframe_t& sf,
                                                    std::int32_t word) const noexcept = 0;

    static constexpr std::int32_t kWordBits = 30;

    [[nodiscard]] constexpr std::int32_t variant() const noexcept { return variant_; }

    // The 30-bit word at bits firstBit ... firstBit+29 (counted from 1), first bit
    // most significant. Bits past the end of the data read as zero.
    [[nodiscard]] static std::uint32_t ReadWord(const subframe_t& sf,
                                                std::int32_t firstBit) noexcept {
        const std::int64_t index = std::int64_t{firstBit} - 1;
        // cppcheck-suppress knownConditionTrueFalse ; false for a word near the end
        if (index >= 0 && index / 8 + 5 <= subframe_t::kDataBytes) {
            return static_cast<std::uint32_t>(readFiveBytes(sf.data + index / 8) >>
                                              (10 - index % 8)) &
                   kWordMask;
        }
        return ReadWordAtEdge(sf, firstBit);
    }

    // Writes the low 30 bits of `value` at bits firstBit ... firstBit+29, leaving every
    // other bit alone. A word that would end past bit sf.bitCount is not written: the
    // mismatch is reported on the standard error stream and the result is true.
    static bool WriteWord(subframe_t& sf, std::int32_t firstBit, std::uint32_t value) {
        const std::int64_t index = std::int64_t{firstBit} - 1;
        // cppcheck-suppress knownConditionTrueFalse ; false for a word near the end
        if (index >= 0 && index / 8 + 5 <= subframe_t::kDataBytes && index + 30 <= sf.bitCount) {
            // The five bytes go back whole; those bits the word does not cover keep
            // their value.
            std::uint8_t* const bytes = sf.data + index / 8;
            const auto shift = static_cast<int>(10 - index % 8);
            std::uint64_t window = readFiveBytes(bytes);
            window &= ~(std::uint64_t{kWordMask} << shift);
            window |= std::uint64_t{value & kWordMask} << shift;
            for (int i = 0; i < 5; ++i) {
                bytes[i] = static_cast<std::uint8_t>(window >> (32 - 8 * i));
            }
            return false;
        }
        return WriteWordAtEdge(sf, firstBit, value);
    }

  private:
    static constexpr std::uint32_t kWordMask = 0x3FFFFFFFU;

    // Bytes p[0] ... p[4] as one number, p[0] most significant.
    static std::uint64_t readFiveBytes(const std::uint8_t* p) noexcept {
        std::uint64_t window = 0;
        for (int i = 0; i < 5; ++i) {
            window = (window << 8) | p[i];
        }
        return window;
    }

    // The general cases: words that hang over either end of the data, and words
    // that do not fit the record's bit count (reported).
    [[nodiscard]] static std::uint32_t ReadWordAtEdge(const subframe_t& sf,
                                                      std::int32_t firstBit) noexcept;
    static bool WriteWordAtEdge(subframe_t& sf, std::int32_t firstBit, std::uint32_t value);

    std::int32_t variant_;
};

}  // namespace ZeltNavMsg::Legacy

#endif
