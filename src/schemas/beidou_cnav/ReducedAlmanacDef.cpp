#include "schemas/beidou_cnav/ReducedAlmanacDef.h"

namespace ZeltNavMsg::BeidouCNav::DataBlocks {

using namespace Schema;

ReducedAlmanacDef::ReducedAlmanacDef(BitStructDef* parent, std::string name,
                                     std::vector<BitRange> ranges, const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      prnA(this, "PRNa", bits(0, 6)),
      satType(this, "SatType", bits(6, 2)),
      deltaA(this, "DeltaA", bits(8, 8), kSignedReal, {pow2(9), unit("m")}),
      omega0(this, "Omega0", bits(16, 7), kSignedReal, {pow2Pi(-6), unit("pi")}),
      phi0(this, "Phi0", bits(23, 7), kSignedReal, {pow2Pi(-6), unit("pi")}),
      health(this, "Health", bits(30, 8)) {}

}  // namespace ZeltNavMsg::BeidouCNav::DataBlocks
