// The fast listing of every frame format against the plain snprintf listing of the
// same tree, on random frames with each selector value (known and unknown) forced.
// This covers what the expected listings cannot all cover: the 8-byte window reads at
// every offset, the chunked copies and the integer "%g" on arbitrary values.

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "fields/BitFieldValueDef.h"
#include "schemas/beidou_cnav1/FrameDef.h"
#include "schemas/beidou_cnav2/FrameDef.h"
#include "schemas/gps_cnav2/FrameDef.h"
#include "schemas/irnss/SubframeDef.h"
#include "support/NaiveTreeListing.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using namespace ZeltNavMsg;

const BitFieldValueDef* findField(const BitStructDef& def, const std::string& name) {
    for (const BitFieldDef* child : def.children()) {
        if (child->isStruct()) {
            if (const auto* found = findField(static_cast<const BitStructDef&>(*child), name)) {
                return found;
            }
        } else if (child->name() == name) {
            return static_cast<const BitFieldValueDef*>(child);
        }
    }
    return nullptr;
}

struct TreeCase {
    MessageFormat format;
    const BitStructDef& root;
    int bits;
    std::vector<std::pair<std::string, std::vector<int>>> selectors;  // field, values to force
};

std::string hexOf(const std::vector<std::uint8_t>& bytes, int bits) {
    static constexpr char kDigits[] = "0123456789ABCDEF";
    std::string hex;
    for (int i = 0; i < (bits + 3) / 4; ++i) {
        const std::uint8_t b = bytes[static_cast<std::size_t>(i / 2)];
        hex += kDigits[i % 2 == 0 ? b >> 4 : b & 0xF];
    }
    return hex;
}

TEST(TreeListingCrossCheck, FastListingEqualsThePlainOne) {
    const std::vector<TreeCase> cases = {
        {MessageFormat::GpsCNav2,
         GpsCNav2::gpsCNav2FrameDef(),
         883,
         {{"Page ID", {1, 2, 3, 4, 5, 6, 7, 0, 9}}}},
        {MessageFormat::BeidouCNav1,
         BeidouCNav1::beidouCNav1FrameDef(),
         878,
         {{"Page ID", {1, 2, 3, 4, 0, 5}}}},
        {MessageFormat::BeidouCNav2,
         BeidouCNav2::beidouCNav2FrameDef(),
         288,
         {{"MesType", {10, 11, 30, 31, 32, 33, 34, 40, 0, 63}}}},
        {MessageFormat::Irnss,
         Irnss::irnssSubframeDef(),
         292,
         {{"Subframe ID", {0, 1}}, {"Message ID", {5, 7, 9, 11, 14, 18, 26, 0, 63}}}},
    };
    std::mt19937 random(11);
    int compared = 0;
    for (const TreeCase& c : cases) {
        for (const auto& [selectorName, values] : c.selectors) {
            const BitFieldValueDef* selector = findField(c.root, selectorName);
            ASSERT_NE(selector, nullptr) << selectorName;
            for (const int value : values) {
                for (int trial = 0; trial < 12; ++trial) {
                    std::vector<std::uint8_t> bytes(static_cast<std::size_t>((c.bits + 7) / 8));
                    for (auto& b : bytes) {
                        b = static_cast<std::uint8_t>(random());
                    }
                    const BitBuffer buffer(bytes.data(), c.bits);
                    selector->writeRaw(buffer, static_cast<std::uint64_t>(value));
                    if (selectorName == "Message ID") {  // IRNSS: subframes 3 and 4 carry messages
                        findField(c.root, "Subframe ID")
                            ->writeRaw(buffer, static_cast<std::uint64_t>(2 + trial % 2));
                    }
                    const std::string hex = hexOf(bytes, c.bits);
                    ASSERT_EQ(NavMessageDecoder::Decode(c.format, 0, 0, hex),
                              Testing::naiveTreeListing(c.root, c.bits, hex))
                        << selectorName << " " << value << ": " << hex;
                    ++compared;
                }
            }
        }
    }
    EXPECT_EQ(compared, 12 * (9 + 6 + 10 + 2 + 9));
}

}  // namespace
