// The records of a message account for every bit of its layout exactly once (whole
// LNAV words aside): the cheapest net for a shifted or overlapping table entry.

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "schemas/beidou_cnav1/FrameDef.h"
#include "schemas/beidou_cnav2/FrameDef.h"
#include "schemas/gps_cnav2/FrameDef.h"
#include "schemas/irnss/SubframeDef.h"
#include "support/RealData.h"
#include "zeltnavmsg/DecodedMessage.h"

namespace ZeltNavMsg {
namespace {

std::string toHex(const std::vector<std::uint8_t>& bytes, std::size_t digits) {
    static constexpr char kDigits[] = "0123456789ABCDEF";
    std::string hex;
    for (std::size_t i = 0; i < digits; ++i) {
        hex += kDigits[(bytes[i / 2] >> (i % 2 == 0 ? 4 : 0)) & 0xF];
    }
    return hex;
}

// Every bit in [0, layoutBits) is covered once; returns a description of the faults.
std::string coverageFaults(const DecodedMessage& m, std::int32_t layoutBits) {
    std::vector<std::string> owner(static_cast<std::size_t>(layoutBits));
    std::ostringstream faults;
    for (const DecodedField& f : m.fields()) {
        if (f.role() == FieldRole::Word) {
            continue;
        }
        std::int32_t width = 0;
        for (const BitSegment& s : f.bits()) {
            width += s.count;
            for (std::int32_t b = s.first; b < s.first + s.count; ++b) {
                if (b < 0 || b >= layoutBits) {
                    faults << f.path() << " reaches bit " << b << "; ";
                } else if (!owner[static_cast<std::size_t>(b)].empty()) {
                    faults << f.path() << " and " << owner[static_cast<std::size_t>(b)]
                           << " share bit " << b << "; ";
                    break;
                } else {
                    owner[static_cast<std::size_t>(b)] = std::string(f.path());
                }
            }
        }
        if (width != f.bitCount()) {
            faults << f.path() << " has " << f.bitCount() << " bits in segments of " << width
                   << "; ";
        }
    }
    for (std::int32_t b = 0; b < layoutBits; ++b) {
        if (owner[static_cast<std::size_t>(b)].empty()) {
            std::int32_t last = b;
            while (last + 1 < layoutBits && owner[static_cast<std::size_t>(last + 1)].empty()) {
                ++last;
            }
            faults << "no field has bits " << b << "-" << last << "; ";
            b = last;
        }
    }
    return faults.str();
}

struct SubframeLayouts {
    MessageFormat format;
    std::vector<std::pair<int, int>> subframePages;
};

std::vector<std::pair<int, int>> pages(int subframe, int first, int last) {
    std::vector<std::pair<int, int>> result;
    for (int p = first; p <= last; ++p) {
        result.emplace_back(subframe, p);
    }
    return result;
}

std::vector<std::pair<int, int>> join(std::initializer_list<std::vector<std::pair<int, int>>> parts) {
    std::vector<std::pair<int, int>> all;
    for (const auto& p : parts) {
        all.insert(all.end(), p.begin(), p.end());
    }
    return all;
}

TEST(RecordCoverage, EverySubframeLayoutOfTheTables) {
    const std::vector<SubframeLayouts> cases = {
        {MessageFormat::GpsLNav,
         join({pages(1, 0, 0), pages(2, 0, 0), pages(3, 0, 0), pages(4, 1, 25), pages(5, 1, 25)})},
        {MessageFormat::QzssLNav,
         join({pages(1, 0, 0), pages(2, 0, 0), pages(3, 0, 0), pages(4, 1, 30), pages(5, 1, 30)})},
        {MessageFormat::BeidouD1,
         join({pages(1, 0, 0), pages(2, 0, 0), pages(3, 0, 0), pages(4, 1, 24), pages(5, 1, 24)})},
        {MessageFormat::BeidouD2,
         join({pages(1, 1, 10), pages(2, 0, 0), pages(3, 0, 0), pages(4, 0, 0), pages(5, 1, 120)})},
    };
    const std::string zeros(75, '0');
    for (const SubframeLayouts& c : cases) {
        for (const auto& [subframe, page] : c.subframePages) {
            const DecodedMessage m = NavMessageDecoder::DecodeFields(c.format, subframe, page, zeros);
            EXPECT_EQ(coverageFaults(m, 300), "") << m.layout();
        }
    }
    // QZSS subframes 4 and 5 by SV ID (bits 62-67): almanac, health, ionosphere/UTC.
    for (const int svId : {1, 10, 51, 56}) {
        std::vector<std::uint8_t> bytes(38);
        for (int b = 0; b < 6; ++b) {
            if ((svId >> (5 - b)) & 1) {
                bytes[static_cast<std::size_t>(62 + b) / 8] |=
                    static_cast<std::uint8_t>(0x80 >> ((62 + b) % 8));
            }
        }
        for (const int subframe : {4, 5}) {
            const DecodedMessage m =
                NavMessageDecoder::DecodeFields(MessageFormat::QzssLNav, subframe, 3, toHex(bytes, 75));
            EXPECT_EQ(coverageFaults(m, 300), "") << m.layout();
        }
    }
}

// Frames with each page or message type set, the unknown ones included.
TEST(RecordCoverage, EveryFrameLayoutOfTheTrees) {
    struct Case {
        MessageFormat format;
        std::int32_t bits;
        std::function<void(BitBuffer, std::uint64_t)> select;
        std::vector<std::uint64_t> values;
    };
    const std::vector<Case> cases = {
        {MessageFormat::GpsCNav2, GpsCNav2::FrameDef::kBits,
         [](BitBuffer b, std::uint64_t v) { GpsCNav2::gpsCNav2FrameDef().subframe3.pageId.write(b, v); },
         {0, 1, 2, 3, 4, 5, 6, 7, 8, 63}},
        {MessageFormat::BeidouCNav1, BeidouCNav1::FrameDef::kBits,
         [](BitBuffer b, std::uint64_t v) {
             BeidouCNav1::beidouCNav1FrameDef().subframe3.pageId.write(b, v);
         },
         {0, 1, 2, 3, 4, 5}},
        {MessageFormat::BeidouCNav2, BeidouCNav2::FrameDef::kBits,
         [](BitBuffer b, std::uint64_t v) { BeidouCNav2::beidouCNav2FrameDef().mesType.write(b, v); },
         {0, 10, 11, 30, 31, 32, 33, 34, 40, 63}},
        {MessageFormat::Irnss, Irnss::SubframeDef::kBits,
         [](BitBuffer b, std::uint64_t v) {
             const Irnss::SubframeDef& def = Irnss::irnssSubframeDef();
             def.subframeId.write(b, v >> 8);
             def.messageData.messageId.write(b, v & 0xFF);
         },
         {0x000, 0x100, 0x200, 0x205, 0x207, 0x209, 0x20B, 0x20E, 0x212, 0x21A, 0x31A, 0x23F}},
    };
    for (const Case& c : cases) {
        for (const std::uint64_t value : c.values) {
            std::vector<std::uint8_t> bytes(static_cast<std::size_t>(c.bits + 7) / 8);
            c.select(BitBuffer(bytes.data(), c.bits), value);
            const DecodedMessage m = NavMessageDecoder::DecodeFields(
                c.format, 0, 0, toHex(bytes, static_cast<std::size_t>(c.bits + 3) / 4));
            EXPECT_EQ(coverageFaults(m, c.bits), "") << m.layout();
        }
    }
}

}  // namespace
}  // namespace ZeltNavMsg
