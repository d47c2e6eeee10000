#include "schemas/gps_cnav2/ReducedAlmanacDef.h"

namespace ZeltNavMsg::GpsCNav2 {

using namespace Schema;

ReducedAlmanacDef::ReducedAlmanacDef(BitStructDef* parent, std::string name,
                                     std::vector<BitRange> ranges, const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      prn(this, "PRN", bits(0, 8)),
      deltaA(this, "DeltaA", bits(8, 8), kSignedReal, {pow2(9), unit("m")}),
      omega0(this, "Omega0", bits(16, 7), kSignedReal, {pow2Pi(-6), unit("pi")}),
      phi0(this, "Phi0", bits(23, 7), kSignedReal, {pow2Pi(-6), unit("pi")}),
      l1Health(this, "L1 Health", bits(30, 1)),
      l2Health(this, "L2 Health", bits(31, 1)),
      l5Health(this, "L5 Health", bits(32, 1)) {}

}  // namespace ZeltNavMsg::GpsCNav2
