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
    // data[0]). With a zero start the register is the same as for the bits prefixed
    // with zeros to whole bytes, so the odd leading bits go in one at a time and the
    // rest a byte at a time, whatever the alignment.
    static constexpr std::uint32_t ofBits(const std::uint8_t* data, std::size_t first,
                                          std::size_t count) noexcept {
        std::uint32_t crc = 0;
        std::size_t bit = first;
        for (const std::size_t lead = first + count % 8; bit < lead; ++bit) {
            crc = feedBit(crc, (data[bit / 8] >> (7 - bit % 8)) & 1U);
        }
        const std::size_t end = first + count;
        const auto shift = static_cast<unsigned>(bit % 8);
        for (; bit < end; bit += 8) {
            const std::size_t byte = bit / 8;
            std::uint32_t window = static_cast<std::uint32_t>(data[byte]) << 8;
            if (shift != 0) {
                window |= data[byte + 1];
            }
            crc = feedByte(crc, static_cast<std::uint8_t>(window >> (8 - shift)));
        }
        return crc;
    }

  private:
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
