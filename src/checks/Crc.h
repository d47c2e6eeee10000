#ifndef ZELTNAVMSG_CHECKS_CRC_H
#define ZELTNAVMSG_CHECKS_CRC_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

// Cyclic redundancy checks of the navigation frames (CRC-24Q) and of receiver log
// blocks (CRC-16 XModem): MSB first, no reflection, zero initial value, no final XOR.
// The byte table is computed from the polynomial at compile time, and each instance
// proves its standard check value below.

namespace ZeltNavMsg::Checks {

// Bytes p[0] ... p[7], p[0] most significant; written out so that compilers make it one
// load.
constexpr std::uint64_t loadBigEndian64(const std::uint8_t* p) noexcept {
    return (std::uint64_t{p[0]} << 56) | (std::uint64_t{p[1]} << 48) | (std::uint64_t{p[2]} << 40) |
           (std::uint64_t{p[3]} << 32) | (std::uint64_t{p[4]} << 24) | (std::uint64_t{p[5]} << 16) |
           (std::uint64_t{p[6]} << 8) | std::uint64_t{p[7]};
}

template <unsigned Width, std::uint32_t Poly>
class Crc {
    static_assert(Width >= 8 && Width <= 32);

  public:
    static constexpr std::uint32_t kMask =
        Width == 32 ? 0xFFFFFFFFU : static_cast<std::uint32_t>((std::uint64_t{1} << Width) - 1);
    static constexpr std::uint32_t kTopBit = std::uint32_t{1} << (Width - 1);

    // Register after one bit (0 or 1) more.
    static constexpr std::uint32_t feedBit(std::uint32_t crc, std::uint32_t bit) noexcept {
        const bool top = ((crc & kTopBit) != 0) != (bit != 0);
        crc = (crc << 1) & kMask;
        return top ? crc ^ Poly : crc;
    }

    // Register after one byte more, most significant bit first.
    static constexpr std::uint32_t feedByte(std::uint32_t crc, std::uint8_t byte) noexcept {
        const auto index = static_cast<std::uint8_t>((crc >> (Width - 8)) ^ byte);
        return ((crc << 8) & kMask) ^ kTable[index];
    }

    static constexpr std::uint32_t ofBytes(const std::uint8_t* data, std::size_t count) noexcept {
        std::uint32_t crc = 0;
        for (std::size_t i = 0; i < count; ++i) {
            crc = feedByte(crc, data[i]);
        }
        return crc;
    }

    static constexpr std::uint32_t ofText(std::string_view text) noexcept {
        std::uint32_t crc = 0;
        for (const char c : text) {
            crc = feedByte(crc, static_cast<std::uint8_t>(c));
        }
        return crc;
    }

    // CRC of `count` bits from bit `first` of `data` (bit 0 = most significant bit of
    // data[0]); reads no byte outside those bits. With a zero start the register is the
    // same as for the bits prefixed with zeros to whole bytes, so the odd leading bits go
    // in one at a time and the rest eight bytes at a time, whatever the alignment.
    static constexpr std::uint32_t ofBits(const std::uint8_t* data, std::size_t first,
                                          std::size_t count) noexcept {
        std::uint32_t crc = 0;
        std::size_t bit = first;
        for (const std::size_t lead = first + count % 8; bit < lead; ++bit) {
            crc = feedBit(crc, (data[bit / 8] >> (7 - bit % 8)) & 1U);
        }
        const std::size_t end = first + count;
        const auto shift = static_cast<unsigned>(bit % 8);
        // The register top-aligned in 32 bits, as the slice tables hold it.
        std::uint32_t reg = crc << (32 - Width);
        for (; end - bit >= 64; bit += 64) {
            const std::uint64_t chunk = read64(data + bit / 8, shift);
            const auto high = static_cast<std::uint32_t>(chunk >> 32) ^ reg;
            const auto low = static_cast<std::uint32_t>(chunk);
            reg = kSlices[7][high >> 24] ^ kSlices[6][(high >> 16) & 0xFFU] ^
                  kSlices[5][(high >> 8) & 0xFFU] ^ kSlices[4][high & 0xFFU] ^
                  kSlices[3][low >> 24] ^ kSlices[2][(low >> 16) & 0xFFU] ^
                  kSlices[1][(low >> 8) & 0xFFU] ^ kSlices[0][low & 0xFFU];
        }
        for (; bit < end; bit += 8) {
            const std::size_t byte = bit / 8;
            std::uint32_t window = static_cast<std::uint32_t>(data[byte]) << 8;
            if (shift != 0) {
                window |= data[byte + 1];
            }
            const auto next = static_cast<std::uint8_t>(window >> (8 - shift));
            reg = (reg << 8) ^ kSlices[0][(reg >> 24) ^ next];
        }
        return reg >> (32 - Width);
    }

  private:
    // The 64 bits that start `shift` bits into p[0]: eight bytes, and a ninth when the
    // bits are not byte-aligned.
    static constexpr std::uint64_t read64(const std::uint8_t* p, unsigned shift) noexcept {
        std::uint64_t bits = loadBigEndian64(p);
        if (shift != 0) {
            bits = (bits << shift) | (p[8] >> (8 - shift));
        }
        return bits;
    }

    static constexpr std::array<std::uint32_t, 256> kTable = [] {
        std::array<std::uint32_t, 256> table{};
        for (std::uint32_t byte = 0; byte < 256; ++byte) {
            std::uint32_t crc = byte << (Width - 8);
            for (int i = 0; i < 8; ++i) {
                crc = (crc & kTopBit) != 0 ? ((crc << 1) & kMask) ^ Poly : (crc << 1) & kMask;
            }
            table[byte] = crc;
        }
        return table;
    }();

    // Slicing by eight: kSlices[k][b] is the top-aligned 32-bit register after byte b
    // and then k zero bytes, from a zero register. Eight lookups take eight bytes.
    static constexpr std::array<std::array<std::uint32_t, 256>, 8> kSlices = [] {
        constexpr unsigned kAlign = 32 - Width;
        std::array<std::array<std::uint32_t, 256>, 8> slices{};
        for (std::uint32_t byte = 0; byte < 256; ++byte) {
            slices[0][byte] = kTable[byte] << kAlign;
        }
        for (std::size_t k = 1; k < 8; ++k) {
            for (std::uint32_t byte = 0; byte < 256; ++byte) {
                const std::uint32_t reg = slices[k - 1][byte];
                slices[k][byte] = (reg << 8) ^ slices[0][reg >> 24];
            }
        }
        return slices;
    }();
};

// CRC-24Q of GPS CNAV-2, BeiDou B-CNAV1/B-CNAV2 and IRNSS: x^24 + x^23 + x^18 + x^17 +
// x^14 + x^11 + x^10 + x^7 + x^6 + x^5 + x^4 + x^3 + x + 1.
using Crc24Q = Crc<24, 0x864CFBU>;
// CRC-16-CCITT, XModem variant (x^16 + x^12 + x^5 + 1): receiver log blocks.
using Crc16XModem = Crc<16, 0x1021U>;

static_assert(Crc24Q::ofText("123456789") == 0xCDE703U);
static_assert(Crc16XModem::ofText("123456789") == 0x31C3U);

}  // namespace ZeltNavMsg::Checks

#endif
