#include "bits/BitUtils.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace ZeltNavMsg {

namespace {

constexpr bool wholeBytes(std::int32_t first, std::int32_t width) noexcept {
    return first % 8 == 0 && width % 8 == 0 && width <= 64;
}

// Bits first ... first+width-1 (width 1 to 64) right-aligned.
std::uint64_t readRun(const std::uint8_t* p, std::int32_t first, std::int32_t width) noexcept {
    const std::uint8_t* byte = p + first / 8;
    if (wholeBytes(first, width)) {
        std::uint64_t v = 0;
        for (std::int32_t i = 0; i < width / 8; ++i) {
            v = (v << 8) | byte[i];
        }
        return v;
    }
    const std::int32_t last = first + width - 1;
    const std::int32_t byteCount = last / 8 - first / 8 + 1;  // at most 9
    // The first byte keeps only its bits from `first` on; they all fit with the others
    // once the bits after `last` are shifted out of the last byte.
    std::uint64_t v = byte[0] & (0xFFU >> (first % 8));
    const std::int32_t tail = 7 - last % 8;
    if (byteCount == 9) {
        for (std::int32_t i = 1; i < 8; ++i) {
            v = (v << 8) | byte[i];
        }
        return (v << (8 - tail)) | (static_cast<std::uint64_t>(byte[8]) >> tail);
    }
    for (std::int32_t i = 1; i < byteCount; ++i) {
        v = (v << 8) | byte[i];
    }
    return v >> tail;
}

void writeRun(std::uint8_t* p, std::int32_t first, std::int32_t width,
              std::uint64_t value) noexcept {
    std::uint8_t* byte = p + first / 8;
    if (wholeBytes(first, width)) {
        for (std::int32_t i = width / 8 - 1; i >= 0; --i, value >>= 8) {
            byte[i] = static_cast<std::uint8_t>(value);
        }
        return;
    }
    // Bit by bit from the last bit backwards, byte-masked: short runs and boundaries.
    for (std::int32_t i = first + width - 1; i >= first; --i, value >>= 1) {
        const auto mask = static_cast<std::uint8_t>(0x80U >> (i % 8));
        std::uint8_t& b = p[i / 8];
        b = (value & 1U) != 0 ? static_cast<std::uint8_t>(b | mask)
                              : static_cast<std::uint8_t>(b & ~mask);
    }
}

}  // namespace

std::uint64_t BitUtils::readBits(const BitRange& range, ConstBitBuffer buffer) noexcept {
    std::int32_t first = range.firstBitIndex();
    std::int32_t width = range.bitsCount();
    if (width > 64) {
        first += width - 64;
        width = 64;
    }
    return readRun(buffer.data(), first, width);
}

void BitUtils::writeBits(const BitRange& range, BitBuffer buffer, std::uint64_t value) noexcept {
    std::int32_t first = range.firstBitIndex();
    std::int32_t width = range.bitsCount();
    if (width > 64) {
        writeRun(buffer.data(), first, width - 64, 0);  // zero-extension of the value
        first += width - 64;
        width = 64;
    }
    writeRun(buffer.data(), first, width, value);
}

std::uint64_t BitUtils::readBits(std::span<const BitRange> ranges, ConstBitBuffer buffer) noexcept {
    std::uint64_t result = 0;
    for (const BitRange& r : ranges) {
        const std::int32_t w = r.bitsCount();
        result = (w >= 64 ? 0 : result << w) | readBits(r, buffer);
    }
    return result;
}

void BitUtils::writeBits(std::span<const BitRange> ranges, BitBuffer buffer,
                         std::uint64_t value) noexcept {
    std::int64_t remaining = 0;
    for (const BitRange& r : ranges) {
        remaining += r.bitsCount();
    }
    for (const BitRange& r : ranges) {
        remaining -= r.bitsCount();
        writeBits(r, buffer, remaining >= 64 ? 0 : value >> remaining);
    }
}

void BitUtils::copyBits(const BitRange& dstRange, BitBuffer dst, const BitRange& srcRange,
                        ConstBitBuffer src) {
    using Init = BitRange::InitializationType;
    std::int32_t count = dstRange.bitsCount();
    std::int32_t dstFirst = dstRange.firstBitIndex();
    std::int32_t srcFirst = srcRange.firstBitIndex();
    if (dstFirst % 8 == 0 && srcFirst % 8 == 0 && count > 64) {
        const std::int32_t bytes = count / 8;
        std::memmove(dst.data() + dstFirst / 8, src.data() + srcFirst / 8,
                     static_cast<std::size_t>(bytes));
        count -= bytes * 8;
        if (count == 0) {
            return;
        }
        dstFirst += bytes * 8;
        srcFirst += bytes * 8;
    }
    while (count > 0) {
        const std::int32_t chunk = std::min(count, 64);
        const BitRange from(Init::FirstBitAndCount, srcFirst, chunk);
        const BitRange to(Init::FirstBitAndCount, dstFirst, chunk);
        writeBits(to, dst, readBits(from, src));
        srcFirst += chunk;
        dstFirst += chunk;
        count -= chunk;
    }
}

void BitUtils::convertHexStringToBinArray(const char* text, std::size_t length, std::uint8_t* dst,
                                          std::int32_t bitCount) {
    if (text == nullptr) {
        return;
    }
    const BitBuffer buffer(dst, bitCount);
    const std::int32_t digits = (bitCount + 3) / 4;
    for (std::int32_t k = 0; k < digits; ++k) {
        unsigned digit = 0;
        if (static_cast<std::size_t>(k) < length) {
            const char c = text[k];
            if (c >= '0' && c <= '9') {
                digit = static_cast<unsigned>(c - '0');
            } else if (c >= 'A' && c <= 'F') {
                digit = static_cast<unsigned>(c - 'A' + 10);
            } else if (c >= 'a' && c <= 'f') {
                digit = static_cast<unsigned>(c - 'a' + 10);
            } else {
                throw std::runtime_error(
                    "BitUtils::convertHexStringToBinArray: hexString should contain only hex "
                    "digits (0-9, A-F, a-f)");
            }
        }
        const std::int32_t first = 4 * k;
        const std::int32_t last = std::min(first + 3, bitCount - 1);
        const std::int32_t width = last - first + 1;
        writeBits(BitRange(BitRange::InitializationType::FirstAndLastBit, first, last), buffer,
                  digit >> (4 - width));
    }
}

std::uint64_t BitUtils::encodeSignedNumber(std::uint64_t magnitude, bool isNegative,
                                           std::int32_t width, NumberFormat format) {
    if (!isNegative) {
        return magnitude;
    }
    const std::int32_t w = std::clamp(width, 1, 64);
    switch (format) {
        case NumberFormat::TwosComplementNumberFormat:
        case NumberFormat::TwosComplementNumberFormatAlt:
            return (~magnitude + 1) & lowBitsMask(w);
        case NumberFormat::SignMagnitudeNumberFormat:
            return magnitude | (std::uint64_t{1} << (w - 1));
        default:
            throw std::runtime_error(
                "encodeSignedNumber: only signed number formats are supported");
    }
}

std::int64_t BitUtils::decodeSignedNumber(std::uint64_t raw, std::int32_t width,
                                          NumberFormat format) {
    const std::int32_t w = std::clamp(width, 1, 64);
    // A one-bit field has no magnitude bits: its mask is taken as all ones.
    const std::uint64_t magnitudeMask = w == 1 ? ~std::uint64_t{0} : lowBitsMask(w - 1);
    const std::uint64_t magnitude = raw & magnitudeMask;
    if (((raw >> (w - 1)) & 1U) == 0) {
        return static_cast<std::int64_t>(magnitude);
    }
    switch (format) {
        case NumberFormat::TwosComplementNumberFormat:
        case NumberFormat::TwosComplementNumberFormatAlt:
            return static_cast<std::int64_t>(raw | ~lowBitsMask(w));
        case NumberFormat::SignMagnitudeNumberFormat:
            return static_cast<std::int64_t>(~magnitude + 1);
        default:
            throw std::runtime_error("decodeSignedNumber: Unknown number format");
    }
}

double BitUtils::readDouble(std::uint64_t raw, double scale, std::int32_t width,
                            NumberFormat format) {
    if (isUnsignedFormat(format)) {
        return static_cast<double>(raw & lowBitsMask(width)) * scale;
    }
    return static_cast<double>(decodeSignedNumber(raw, width, format)) * scale;
}

LimitedSizeString<21> BitUtils::unsignedToString(std::uint64_t value) {
    LimitedSizeString<21> reversed;
    do {
        reversed.push_back(static_cast<char>('0' + value % 10));
        value /= 10;
    } while (value != 0);
    LimitedSizeString<21> text;
    for (std::size_t i = reversed.size(); i > 0; --i) {
        text.push_back(reversed[i - 1]);
    }
    return text;
}

LimitedSizeString<21> BitUtils::signedToString(std::int32_t value) {
    LimitedSizeString<21> reversed;
    std::int32_t rest = value;
    do {
        const std::int32_t remainder = rest % 10;  // negative for a negative value
        reversed.push_back(static_cast<char>('0' + (remainder < 0 ? -remainder : remainder)));
        rest /= 10;
    } while (rest != 0);
    if (value < 0) {
        reversed.push_back('-');
    }
    LimitedSizeString<21> text;
    for (std::size_t i = reversed.size(); i > 0; --i) {
        text.push_back(reversed[i - 1]);
    }
    return text;
}

}  // namespace ZeltNavMsg
