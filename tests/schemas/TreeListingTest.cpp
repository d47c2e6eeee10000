// The definition-tree formats: listings against the plain snprintf listing of the same
// tree, unknown IRNSS messages, and the tiling of every structure of every tree (scales,
// units and the layout of each message: tests/data/listings).

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "baseline/NaiveTreeListing.h"
#include "fields/BitFieldValueDef.h"
#include "schemas/beidou_cnav1/FrameDef.h"
#include "schemas/beidou_cnav2/FrameDef.h"
#include "schemas/gps_cnav2/FrameDef.h"
#include "schemas/irnss/SubframeDef.h"
#include "support/RealData.h"
#include "support/SubframeBits.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using namespace ZeltNavMsg;
using namespace ZeltNavMsg::Testing;
using ZeltNavMsg::Baseline::naiveTreeListing;

struct TreeFormat {
    MessageFormat format;
    const BitStructDef* root;
    int bits;
};

const TreeFormat kTrees[] = {
    {MessageFormat::GpsCNav2, &GpsCNav2::gpsCNav2FrameDef(), 883},
    {MessageFormat::BeidouCNav1, &BeidouCNav1::beidouCNav1FrameDef(), 878},
    {MessageFormat::BeidouCNav2, &BeidouCNav2::beidouCNav2FrameDef(), 288},
    {MessageFormat::Irnss, &Irnss::irnssSubframeDef(), 292},
};

// A "Message ID" without a layout shows its ID and the PRN only, whatever the body
// holds: the unknown message 0's listing with another ID (bits 30-35: the low two bits
// of digit 7 and digit 8).
TEST(TreeListing, IrnssUnknownMessageShowsIdAndPrnOnly) {
    const ExpectedListing message0 = loadExpectedListing("irnss/message-0.txt");
    ASSERT_EQ(message0.lines[7], "\t\tMessage ID: 0, Raw hex:00");
    for (const unsigned id : {1U, 6U, 8U, 10U, 17U, 19U, 25U, 27U, 33U, 63U}) {
        static constexpr char kDigits[] = "0123456789ABCDEF";
        const std::string raw = {kDigits[id >> 4], kDigits[id & 0xF]};
        std::string hex = message0.hex;
        hex[7] = kDigits[(std::stoi(hex.substr(7, 1), nullptr, 16) & 0xC) | (id >> 4)];
        hex[8] = raw[1];
        std::vector<std::string> expected = message0.lines;
        expected[7] = "\t\tMessage ID: " + std::to_string(id) + ", Raw hex:" + raw;
        EXPECT_EQ(splitLines(NavMessageDecoder::Decode(MessageFormat::Irnss, 0, 0, hex)), expected)
            << id;
    }
}

// The values the interface documents quote, each at its frame position (from bit 1).
TEST(TreeListing, QuotedValues) {
    const struct {
        MessageFormat format;
        std::vector<std::array<std::uint64_t, 3>> fields;  // first bit, width, value
        std::vector<std::string> lines;                    // consecutive lines of the listing
    } cases[] = {
        {MessageFormat::BeidouCNav1,  // "SOH" counts 18 s
         {{7, 8, 200}},
         {"\tSubframe 1", "\t\tPRN: 0, Raw hex:00", "\t\tSOH: 3600, Raw hex:C8"}},
        {MessageFormat::BeidouCNav1,  // page 1: "alpha1", 10 bits of 1/8 TECu, all ones
         {{615, 6, 1}, {657, 10, 0x3FF}},
         {"\t\t\tIonospheric delay correction model parameters",
          "\t\t\t\talpha1: 127.875 TECu, Raw hex:3FF", "\t\t\t\talpha2: 0 TECu, Raw hex:00"}},
        {MessageFormat::BeidouCNav2,  // "SOW" counts 3 s
         {{13, 18, 100000}},
         {"B-CNAV2 Frame", "\tPRN: 0, Raw hex:00", "\tMesType: 0, Raw hex:00",
          "\tSOW: 300000, Raw hex:186A0", "\tCRC: 000000"}},
        {MessageFormat::BeidouCNav2,  // message 30: "alpha1" all ones
         {{7, 6, 30}, {146, 10, 0x3FF}},
         {"\t\tIonospheric delay correction model parameters",
          "\t\t\talpha1: 127.875 TECu, Raw hex:3FF", "\t\t\talpha2: 0 TECu, Raw hex:00"}},
        {MessageFormat::BeidouCNav2,  // message 10: the common fields without a heading
         {{7, 6, 10}, {31, 13, 1052}, {44, 10, 0b101'1001'110U}},
         {"\tMessage type 10 data", "\t\tWN: 1052, Raw hex:041C", "\t\tDIF (B2a): 1",
          "\t\tSIF (B2a): 0", "\t\tAIF (B2a): 1", "\t\tSISMAI: 9", "\t\tDIF (B1C): 1",
          "\t\tSIF (B1C): 1", "\t\tAIF (B1C): 0", "\t\tIODE: 0, Raw hex:00"}},
    };
    for (const auto& c : cases) {
        SubframeBits frame(c.format == MessageFormat::BeidouCNav1 ? 878 : 288);
        for (const auto& [first, width, value] : c.fields) {
            frame.put(static_cast<int>(first), static_cast<int>(width), value);
        }
        const std::vector<std::string> lines =
            splitLines(NavMessageDecoder::Decode(c.format, 0, 0, frame.hex()));
        const auto at = std::find(lines.begin(), lines.end(), c.lines.front());
        ASSERT_LE(c.lines.size(), static_cast<std::size_t>(lines.end() - at)) << c.lines.front();
        expectSameLines({at, at + static_cast<std::ptrdiff_t>(c.lines.size())}, c.lines);
    }
}

const BitFieldValueDef* findField(const BitStructDef& def, const std::string& name) {
    for (const BitFieldDef* child : def.children()) {
        const BitFieldValueDef* found =
            child->isStruct()       ? findField(static_cast<const BitStructDef&>(*child), name)
            : child->name() == name ? static_cast<const BitFieldValueDef*>(child)
                                    : nullptr;
        if (found != nullptr) {
            return found;
        }
    }
    return nullptr;
}

// Random frames with each selector value (known and unknown) forced, against the plain
// listing: the 8-byte window reads at every offset, the chunked copies and "%g" on
// arbitrary values, which the expected listings cannot all cover.
TEST(TreeListing, FastListingEqualsThePlainOne) {
    const std::vector<std::vector<int>> selectorValues = {
        {1, 2, 3, 4, 5, 6, 7, 0, 9},                     // "Page ID"
        {1, 2, 3, 4, 0, 5},                              // "Page ID"
        {10, 11, 30, 31, 32, 33, 34, 40, 0, 63},         // "MesType"
        {0x100, 0x200, 5, 7, 9, 11, 14, 18, 26, 0, 63},  // 0x100 + "Subframe ID", "Message ID"
    };
    std::mt19937 random(11);
    for (std::size_t f = 0; f < std::size(kTrees); ++f) {
        const TreeFormat& tree = kTrees[f];
        const char* selectorName = f < 2 ? "Page ID" : f == 2 ? "MesType" : "Message ID";
        for (const int value : selectorValues[f]) {
            for (int trial = 0; trial < 12; ++trial) {
                std::vector<std::uint8_t> bytes(static_cast<std::size_t>(tree.bits + 7) / 8);
                std::generate(bytes.begin(), bytes.end(),
                              [&] { return static_cast<std::uint8_t>(random()); });
                const BitBuffer buffer(bytes.data(), tree.bits);
                if (value >= 0x100) {  // IRNSS subframes 1 and 2
                    findField(*tree.root, "Subframe ID")
                        ->writeRaw(buffer, static_cast<std::uint64_t>((value >> 8) - 1));
                } else {
                    if (tree.format == MessageFormat::Irnss) {  // subframes 3 and 4 carry messages
                        findField(*tree.root, "Subframe ID")
                            ->writeRaw(buffer, static_cast<std::uint64_t>(2 + trial % 2));
                    }
                    findField(*tree.root, selectorName)
                        ->writeRaw(buffer, static_cast<std::uint64_t>(value));
                }
                std::string hex;
                for (int i = 0; i < (tree.bits + 3) / 4; ++i) {
                    const std::uint8_t b = bytes[static_cast<std::size_t>(i / 2)];
                    hex += "0123456789ABCDEF"[i % 2 == 0 ? b >> 4 : b & 0xF];
                }
                ASSERT_EQ(NavMessageDecoder::Decode(tree.format, 0, 0, hex),
                          naiveTreeListing(*tree.root, tree.bits, hex))
                    << selectorName << " " << value << ": " << hex;
            }
        }
    }
}

// How often each bit of `def` is covered by `members`; a member reaching outside fails.
std::vector<int> coverage(const BitStructDef& def, const std::vector<const BitFieldDef*>& members) {
    const int base = def.ranges().front().firstBitIndex();
    std::vector<int> count(static_cast<std::size_t>(def.totalBitsCount()), 0);
    for (const BitFieldDef* m : members) {
        for (const BitRange& r : m->ranges()) {
            for (int i = r.firstBitIndex() - base; i <= r.lastBitIndex() - base; ++i) {
                if (i < 0 || i >= def.totalBitsCount()) {
                    ADD_FAILURE() << "'" << m->name() << "' reaches outside its structure";
                    return count;
                }
                ++count[static_cast<std::size_t>(i)];
            }
        }
    }
    return count;
}

// Checks, for `def` and every structure below it, that its members tile it exactly: every
// bit belongs to exactly one member, for the always-present members together with each
// variant in turn. A hidden always-present member that spans exactly the bits of the
// variant (a raw placeholder for the page data) is left out when a variant is counted.
void expectTiled(const BitStructDef& def, const std::string& path = "") {
    const std::string here = path + "/" + def.name();
    ASSERT_EQ(def.ranges().size(), 1U) << here;
    std::set<int> containers;
    for (const BitFieldDef* child : def.children()) {
        if (child->containerId() >= 0) {
            containers.insert(child->containerId());
        }
        if (child->isStruct()) {
            expectTiled(static_cast<const BitStructDef&>(*child), here);
        }
    }
    if (containers.empty()) {
        containers.insert(-1);  // the always-present members alone
    }
    for (const int c : containers) {
        std::vector<const BitFieldDef*> members;
        for (const BitFieldDef* m : def.children()) {
            if (m->containerId() >= 0 && m->containerId() == c) {
                members.push_back(m);
            }
        }
        const std::vector<int> variantBits = coverage(def, members);
        for (const BitFieldDef* m : def.children()) {
            if (m->containerId() < 0 &&
                !(m->hasFlag(Hidden) && coverage(def, {m}) == variantBits)) {
                members.push_back(m);
            }
        }
        const std::vector<int> count = coverage(def, members);
        const auto bit = std::find_if(count.begin(), count.end(), [](int n) { return n != 1; });
        EXPECT_TRUE(bit == count.end())
            << here << " variant " << c << ": relative bit " << bit - count.begin()
            << " is covered " << *bit << " times";
    }
}

TEST(TreeLayout, EveryStructureIsTiledByItsMembers) {
    for (const TreeFormat& f : kTrees) {
        EXPECT_EQ(f.root->totalBitsCount(), f.bits);
        expectTiled(*f.root);
    }
    // The BeiDou CNAV data blocks as B-CNAV1 nests them: tiled (above), and their sizes.
    const auto& sf2 = BeidouCNav1::beidouCNav1FrameDef().subframe2;
    const auto& sf3 = BeidouCNav1::beidouCNav1FrameDef().subframe3;
    const std::pair<const BitStructDef*, int> blocks[] = {
        {&sf2.ephemerisI, 203},
        {&sf2.ephemerisII, 222},
        {&sf2.clockCorrection, 69},
        {&sf3.page1.ionosphericModel, 74},
        {&sf3.page1.bdtUtcParameters, 97},
        {&sf3.page1.sisaiOc, 22},
        {&sf3.page3.eopParameters, 138},
        {&sf3.page3.bgtoParameters, 68},
        {&sf3.page2.reducedAlmanacs[0], 38},
        {&sf3.page4.midiAlmanac, 156},
    };
    for (const auto& [block, size] : blocks) {
        EXPECT_EQ(block->totalBitsCount(), size) << block->name();
    }
}

}  // namespace
