#include "text/NumberText.h"

#include <array>
#include <bit>
#include <cstring>

namespace ZeltNavMsg::Text {

namespace {

char* writeGByLibrary(char* p, double v) noexcept {
    return std::to_chars(p, p + kMaxGLength, v, std::chars_format::general, 6).ptr;
}

#if defined(__SIZEOF_INT128__)

__extension__ using Uint128 = unsigned __int128;

// 5^k for the decimal scalings of the exact path: 5^27 < 2^63.
constexpr int kMaxPow5 = 27;
constexpr std::array<std::uint64_t, kMaxPow5 + 1> kPow5 = [] {
    std::array<std::uint64_t, kMaxPow5 + 1> pow5{};
    pow5[0] = 1;
    for (std::size_t k = 1; k < pow5.size(); ++k) {
        pow5[k] = pow5[k - 1] * 5;
    }
    return pow5;
}();

// floor(b * log10(2)), exact for |b| < 1650.
constexpr int floorLog10Pow2(int b) noexcept {
    return (b * 78913) >> 18;
}

// What truncating a number to an integer cut off, against one half.
enum class CutOff { Zero, BelowHalf, Half, AboveHalf };

struct Truncated {
    std::uint64_t value;
    CutOff cut;
};

// floor(m * 2^e * 10^k) for m < 2^53 and 1 <= -(e + k) <= 127, exactly.
Truncated scale(std::uint64_t m, int e, int k) noexcept {
    const Uint128 product = Uint128{m} * kPow5[static_cast<std::size_t>(k)];
    const int shift = -(e + k);
    const Uint128 rest = product << (128 - shift);  // the bits cut off, at the top
    constexpr Uint128 kHalf = Uint128{1} << 127;
    return {static_cast<std::uint64_t>(product >> shift), rest == 0       ? CutOff::Zero
                                                          : rest < kHalf  ? CutOff::BelowHalf
                                                          : rest == kHalf ? CutOff::Half
                                                                          : CutOff::AboveHalf};
}

// One decimal digit fewer: the digit dropped joins what was cut off.
Truncated dropDigit(Truncated t) noexcept {
    const std::uint64_t digit = t.value % 10;
    CutOff cut = CutOff::BelowHalf;
    if (digit > 5 || (digit == 5 && t.cut != CutOff::Zero)) {
        cut = CutOff::AboveHalf;
    } else if (digit == 5) {
        cut = CutOff::Half;
    } else if (digit == 0 && t.cut == CutOff::Zero) {
        cut = CutOff::Zero;
    }
    return {t.value / 10, cut};
}

// The six-digit significand `digits` (100000 ... 999999) of a value whose first
// digit has the decimal exponent `exponent`, laid out as "%g" does. The text is
// put together in a local buffer with fixed-size copies and copied out whole.
char* layOut(char* p, bool negative, std::uint64_t digits, int exponent) noexcept {
    char text[16];  // the six digits, then zeros for the fixed-size copies below
    std::memcpy(text, Detail::kDigitPairs + 2 * (digits / 10000), 2);
    std::memcpy(text + 2, Detail::kDigitPairs + 2 * (digits / 100 % 100), 2);
    std::memcpy(text + 4, Detail::kDigitPairs + 2 * (digits % 100), 2);
    std::memset(text + 6, '0', 10);
    std::size_t count = 6;  // significant digits without trailing zeros
    while (text[count - 1] == '0') {
        --count;
    }

    char buffer[32] = {};
    buffer[0] = '-';
    char* const out = buffer + (negative ? 1 : 0);
    std::size_t length = 0;
    if (exponent < -4 || exponent >= 6) {
        out[0] = text[0];
        out[1] = '.';
        std::memcpy(out + 2, text + 1, 8);
        length = count > 1 ? count + 1 : 1;
        out[length++] = 'e';
        out[length++] = exponent < 0 ? '-' : '+';
        const auto magnitude = static_cast<std::size_t>(exponent < 0 ? -exponent : exponent);
        if (magnitude >= 100) {
            out[length++] = static_cast<char>('0' + magnitude / 100);
        }
        std::memcpy(out + length, Detail::kDigitPairs + 2 * (magnitude % 100), 2);
        length += 2;
    } else if (exponent >= 0) {
        const auto integerDigits = static_cast<std::size_t>(exponent) + 1;
        std::memcpy(out, text, 8);
        out[integerDigits] = '.';
        std::memcpy(out + integerDigits + 1, text + integerDigits, 8);
        length = count <= integerDigits ? integerDigits : count + 1;
    } else {
        const auto zeros = static_cast<std::size_t>(-exponent - 1);  // after "0."
        std::memcpy(out, "0.000000", 8);
        std::memcpy(out + 2 + zeros, text, 8);
        length = 2 + zeros + count;
    }
    std::memcpy(p, buffer, kMaxGLength);
    return p + (out - buffer) + length;
}

#endif

}  // namespace

char* writeG(char* p, double v) noexcept {
#if defined(__SIZEOF_INT128__)
    const auto bits = std::bit_cast<std::uint64_t>(v);
    const auto biasedExponent = static_cast<int>((bits >> 52) & 0x7FF);
    const std::uint64_t fraction = bits & ((std::uint64_t{1} << 52) - 1);
    if (biasedExponent == 0 && fraction == 0) {
        if (bits >> 63) {
            *p++ = '-';
        }
        *p++ = '0';
        return p;
    }
    if (biasedExponent == 0 || biasedExponent == 0x7FF) {  // subnormal, infinite, NaN
        return writeGByLibrary(p, v);
    }
    const std::uint64_t m = fraction | (std::uint64_t{1} << 52);
    const int e = biasedExponent - 1075;  // |v| = m * 2^e, 2^(e+52) <= |v| < 2^(e+53)

    // |v| * 10^k lies in [1e5, 1e7); if it reaches 1e6 the exponent is one more.
    int exponent = floorLog10Pow2(e + 52);
    const int k = 5 - exponent;
    // Outside about 1e-22 ... 1e7, or a shift that 128 bits cannot take.
    if (k < 0 || k > kMaxPow5 || e + k >= 0 || e + k < -127) {
        return writeGByLibrary(p, v);
    }
    Truncated scaled = scale(m, e, k);
    if (scaled.value >= 1000000) {
        scaled = dropDigit(scaled);
        ++exponent;
    }
    std::uint64_t digits = scaled.value;
    if (scaled.cut == CutOff::AboveHalf || (scaled.cut == CutOff::Half && (digits & 1) != 0)) {
        if (++digits == 1000000) {
            digits = 100000;
            ++exponent;
        }
    }
    return layOut(p, (bits >> 63) != 0, digits, exponent);
#else
    return writeGByLibrary(p, v);
#endif
}

}  // namespace ZeltNavMsg::Text
