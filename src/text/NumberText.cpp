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
    for (std::size_t k = 1; k != pow5.size(); ++k) {
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
    std::uint32_t value;  // below 10^7
    CutOff cut;
};

// floor(m * 2^e * 10^k) for m < 2^53 and 1 <= -(e + k) <= 127, exactly: the product
// m * 5^k in two 64-bit halves, shifted right by -(e + k), and the bits cut off,
// left-aligned as top:low, against one half (top = 2^63, low = 0).
Truncated scale(std::uint64_t m, int e, int k) noexcept {
    const Uint128 product = Uint128{m} * kPow5[static_cast<std::size_t>(k)];
    const auto high = static_cast<std::uint64_t>(product >> 64);
    const auto low = static_cast<std::uint64_t>(product);
    const int shift = -(e + k);
    std::uint64_t value = 0;
    std::uint64_t top = 0;
    std::uint64_t rest = 0;
    if (shift < 64) {
        value = (high << (64 - shift)) | (low >> shift);
        top = low << (64 - shift);
    } else {
        value = high >> (shift - 64);
        top = shift == 64 ? low : high << (128 - shift);
        rest = shift == 64 ? 0 : low;
    }
    constexpr std::uint64_t kHalf = std::uint64_t{1} << 63;
    CutOff cut = CutOff::AboveHalf;
    if (top < kHalf) {
        cut = (top | rest) == 0 ? CutOff::Zero : CutOff::BelowHalf;
    } else if (top == kHalf && rest == 0) {
        cut = CutOff::Half;
    }
    return {static_cast<std::uint32_t>(value), cut};
}

// One decimal digit fewer: the digit dropped joins what was cut off.
Truncated dropDigit(Truncated t) noexcept {
    const std::uint32_t digit = t.value % 10;
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
// digit has the decimal exponent `exponent`, laid out at `p` as "%g" does, with
// fixed-size copies of up to 16 bytes.
char* layOut(char* p, bool negative, std::uint32_t digits, int exponent) noexcept {
    char text[16];  // the six digits, then zeros for the fixed-size copies below
    const std::uint32_t high = digits / 10000;
    const std::uint32_t rest = digits - high * 10000;
    std::memcpy(text, Detail::kDigitPairs + 2 * std::size_t{high}, 2);
    std::memcpy(text + 2, Detail::kDigitPairs + 2 * std::size_t{rest / 100}, 2);
    std::memcpy(text + 4, Detail::kDigitPairs + 2 * std::size_t{rest % 100}, 2);
    std::memset(text + 6, '0', 8);
    std::size_t count = 6;  // significant digits without trailing zeros
    while (text[count - 1] == '0') {
        --count;
    }

    *p = '-';
    p += negative ? 1 : 0;
    if (exponent < -4 || exponent >= 6) {
        p[0] = text[0];
        p[1] = '.';
        std::memcpy(p + 2, text + 1, 8);
        std::size_t length = count > 1 ? count + 1 : 1;
        p[length++] = 'e';
        p[length++] = exponent < 0 ? '-' : '+';
        const auto magnitude = static_cast<std::uint32_t>(exponent < 0 ? -exponent : exponent);
        if (magnitude >= 100) {
            p[length++] = static_cast<char>('0' + magnitude / 100);
        }
        std::memcpy(p + length, Detail::kDigitPairs + 2 * std::size_t{magnitude % 100}, 2);
        return p + length + 2;
    }
    if (exponent >= 0) {
        const auto integerDigits = static_cast<std::size_t>(exponent) + 1;
        std::memcpy(p, text, 8);
        p[integerDigits] = '.';
        std::memcpy(p + integerDigits + 1, text + integerDigits, 8);
        return p + (count <= integerDigits ? integerDigits : count + 1);
    }
    const auto zeros = static_cast<std::size_t>(-exponent - 1);  // after "0."
    constexpr char kZeros[8] = {'0', '.', '0', '0', '0', '0', '0', '0'};
    std::memcpy(p, kZeros, sizeof kZeros);
    std::memcpy(p + 2 + zeros, text, 8);
    return p + 2 + zeros + count;
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
    Truncated scaled{};
    if (k < 0) {
        // A million or more: an integer below 2^64 is divided by 10^-k; any other
        // value goes to the library.
        std::uint64_t n = 0;
        if (e >= 0 && e <= 11) {
            n = m << e;
        } else if (e < 0 && e > -53 && (m & ((std::uint64_t{1} << -e) - 1)) == 0) {
            n = m >> -e;
        } else {
            return writeGByLibrary(p, v);
        }
        const std::uint64_t power = Detail::kPowersOf10[static_cast<std::size_t>(-k)];
        const std::uint64_t rest = n % power;
        const std::uint64_t half = power / 2;
        scaled = {static_cast<std::uint32_t>(n / power), rest == 0      ? CutOff::Zero
                                                         : rest < half  ? CutOff::BelowHalf
                                                         : rest == half ? CutOff::Half
                                                                        : CutOff::AboveHalf};
    } else if (k > kMaxPow5 || e + k >= 0 || e + k < -127) {
        // Below about 1e-22, or a shift that 128 bits cannot take.
        return writeGByLibrary(p, v);
    } else {
        scaled = scale(m, e, k);
    }
    if (scaled.value >= 1000000) {
        scaled = dropDigit(scaled);
        ++exponent;
    }
    std::uint32_t digits = scaled.value;
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
