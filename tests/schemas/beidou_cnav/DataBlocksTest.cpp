// The BeiDou CNAV data blocks as built, read through the B-CNAV1 frame, which nests
// every one of them.

#include <gtest/gtest.h>

#include <string>

#include "schemas/beidou_cnav1/FrameDef.h"
#include "support/TreeChecks.h"

namespace {

using ZeltNavMsg::BitStructDef;

struct Block {
    const BitStructDef& def;
    int bits;
};

// Each block once, as B-CNAV1 nests it, with the size of its broadcast layout.
TEST(BeidouCNavDataBlocks, EveryBlockIsTiledByItsMembers) {
    const auto& frame = ZeltNavMsg::BeidouCNav1::beidouCNav1FrameDef();
    const auto& sf2 = frame.subframe2;
    const auto& sf3 = frame.subframe3;
    const Block blocks[] = {
        {sf2.ephemerisI, 203},
        {sf2.ephemerisII, 222},
        {sf2.clockCorrection, 69},
        {sf3.page1.ionosphericModel, 74},
        {sf3.page1.bdtUtcParameters, 97},
        {sf3.page1.sisaiOc, 22},
        {sf3.page3.eopParameters, 138},
        {sf3.page3.bgtoParameters, 68},
        {sf3.page2.reducedAlmanacs[0], 38},
        {sf3.page4.midiAlmanac, 156},
    };
    for (const Block& block : blocks) {
        SCOPED_TRACE(block.def.name());
        EXPECT_EQ(block.def.totalBitsCount(), block.bits);
        // Exactly tiled and of the broadcast size: the members' widths add up to it.
        ZeltNavMsg::Testing::expectTiled(block.def);
    }
}

}  // namespace
