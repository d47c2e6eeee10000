#include "records/LayoutCases.h"

#include <functional>

#include "legacy/BeidouD1Interface.h"
#include "schemas/beidou_cnav1/FrameDef.h"
#include "schemas/beidou_cnav2/FrameDef.h"
#include "schemas/gps_cnav2/FrameDef.h"
#include "schemas/irnss/SubframeDef.h"

namespace ZeltNavMsg::Testing {

std::string bytesToHex(const std::vector<std::uint8_t>& bytes, std::size_t digits) {
    static constexpr char kDigits[] = "0123456789ABCDEF";
    std::string hex;
    for (std::size_t i = 0; i < digits; ++i) {
        hex += kDigits[(bytes[i / 2] >> (i % 2 == 0 ? 4 : 0)) & 0xF];
    }
    return hex;
}

namespace {

std::vector<std::uint8_t> randomBytes(std::mt19937* rng, std::size_t n) {
    std::vector<std::uint8_t> bytes(n);
    if (rng != nullptr) {
        for (auto& b : bytes) {
            b = static_cast<std::uint8_t>((*rng)());
        }
    }
    return bytes;
}

void addSubframes(std::vector<LayoutCase>& out, std::mt19937* rng, MessageFormat format,
                  std::int32_t subframe, std::int32_t firstPage, std::int32_t lastPage) {
    for (std::int32_t page = firstPage; page <= lastPage; ++page) {
        std::vector<std::uint8_t> bytes = randomBytes(rng, 38);
        if (rng != nullptr &&
            (format == MessageFormat::BeidouD1 || format == MessageFormat::BeidouD2)) {
            // The information bits in the decoded layout, then the BCH code on air.
            Legacy::subframe_t sf;
            sf.bitCount = 300;
            std::copy(bytes.begin(), bytes.end(), sf.data);
            (void)Legacy::BEIDOU_D1_Interface.GetCoder().Encode(sf);
            bytes.assign(sf.data, sf.data + 38);
        }
        out.push_back({format, subframe, page, bytesToHex(bytes, 75), 300});
    }
}

void addFrames(std::vector<LayoutCase>& out, std::mt19937* rng, MessageFormat format,
               std::int32_t bits, const std::function<void(BitBuffer, std::uint64_t)>& select,
               const std::vector<std::uint64_t>& values) {
    for (const std::uint64_t value : values) {
        std::vector<std::uint8_t> bytes = randomBytes(rng, static_cast<std::size_t>(bits + 7) / 8);
        select(BitBuffer(bytes.data(), bits), value);
        out.push_back(
            {format, 0, 0, bytesToHex(bytes, static_cast<std::size_t>(bits + 3) / 4), bits});
    }
}

}  // namespace

std::vector<LayoutCase> layoutCases(std::mt19937* rng) {
    using F = MessageFormat;
    std::vector<LayoutCase> cases;
    for (const F lnav : {F::GpsLNav, F::QzssLNav}) {
        const std::int32_t pages = lnav == F::GpsLNav ? 25 : 30;
        addSubframes(cases, rng, lnav, 1, 0, 0);
        addSubframes(cases, rng, lnav, 2, 0, 0);
        addSubframes(cases, rng, lnav, 3, 0, 0);
        addSubframes(cases, rng, lnav, 4, 1, pages);
        addSubframes(cases, rng, lnav, 5, 1, pages);
    }
    // QZSS subframes 4 and 5 whose SV ID (bits 62-67, after a word 2 ending in 0) names
    // their content: almanac, health, ionosphere and UTC.
    for (const int svId : {1, 10, 51, 56}) {
        for (const int subframe : {4, 5}) {
            std::vector<std::uint8_t> bytes = randomBytes(rng, 38);
            bytes[7] &= 0xEF;  // D30 of word 2: word 3 not inverted
            bytes[7] = static_cast<std::uint8_t>((bytes[7] & 0xFC) | ((svId >> 4) & 0x3));
            bytes[8] = static_cast<std::uint8_t>((bytes[8] & 0x0F) | ((svId & 0xF) << 4));
            cases.push_back({F::QzssLNav, subframe, 3, bytesToHex(bytes, 75), 300});
        }
    }
    addSubframes(cases, rng, F::BeidouD1, 1, 0, 0);
    addSubframes(cases, rng, F::BeidouD1, 2, 0, 0);
    addSubframes(cases, rng, F::BeidouD1, 3, 0, 0);
    addSubframes(cases, rng, F::BeidouD1, 4, 1, 24);
    addSubframes(cases, rng, F::BeidouD1, 5, 1, 24);
    addSubframes(cases, rng, F::BeidouD2, 1, 1, 10);
    addSubframes(cases, rng, F::BeidouD2, 2, 0, 0);
    addSubframes(cases, rng, F::BeidouD2, 3, 0, 0);
    addSubframes(cases, rng, F::BeidouD2, 4, 0, 0);
    addSubframes(cases, rng, F::BeidouD2, 5, 1, 120);

    addFrames(cases, rng, F::GpsCNav2, GpsCNav2::FrameDef::kBits,
              [](BitBuffer b, std::uint64_t v) {
                  GpsCNav2::gpsCNav2FrameDef().subframe3.pageId.write(b, v);
              },
              {0, 1, 2, 3, 4, 5, 6, 7, 8, 63});
    addFrames(cases, rng, F::BeidouCNav1, BeidouCNav1::FrameDef::kBits,
              [](BitBuffer b, std::uint64_t v) {
                  BeidouCNav1::beidouCNav1FrameDef().subframe3.pageId.write(b, v);
              },
              {0, 1, 2, 3, 4, 5});
    addFrames(cases, rng, F::BeidouCNav2, BeidouCNav2::FrameDef::kBits,
              [](BitBuffer b, std::uint64_t v) {
                  BeidouCNav2::beidouCNav2FrameDef().mesType.write(b, v);
              },
              {0, 10, 11, 30, 31, 32, 33, 34, 40, 63});
    addFrames(cases, rng, F::Irnss, Irnss::SubframeDef::kBits,
              [](BitBuffer b, std::uint64_t v) {
                  const Irnss::SubframeDef& def = Irnss::irnssSubframeDef();
                  def.subframeId.write(b, v >> 8);
                  def.messageData.messageId.write(b, v & 0xFF);
              },
              {0x000, 0x100, 0x200, 0x205, 0x207, 0x209, 0x20B, 0x20E, 0x212, 0x21A, 0x31A, 0x23F});
    return cases;
}

}  // namespace ZeltNavMsg::Testing
