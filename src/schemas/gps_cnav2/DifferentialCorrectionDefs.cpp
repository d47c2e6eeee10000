#include "schemas/gps_cnav2/DifferentialCorrectionDefs.h"

namespace ZeltNavMsg::GpsCNav2 {

using namespace Schema;

ClockDifferentialCorrectionDef::ClockDifferentialCorrectionDef(BitStructDef* parent,
                                                               std::string name,
                                                               std::vector<BitRange> ranges,
                                                               const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      prn(this, "PRN", bits(0, 8)),
      deltaAf0(this, "deltaAf0", bits(8, 13), kSignedReal, {pow2(-35), unit("s")}),
      deltaAf1(this, "deltaAf1", bits(21, 8), kSignedReal, {pow2(-51), unit("s/s")}),
      udra(this, "UDRA", bits(29, 5)) {}

EphemerisDifferentialCorrectionDef::EphemerisDifferentialCorrectionDef(BitStructDef* parent,
                                                                       std::string name,
                                                                       std::vector<BitRange> ranges,
                                                                       const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      prn(this, "PRN", bits(0, 8)),
      deltaAlpha(this, "deltaAlpha", bits(8, 14), kSignedReal, {pow2(-34)}),
      deltaBeta(this, "deltaBeta", bits(22, 14), kSignedReal, {pow2(-34)}),
      deltaGamma(this, "deltaGamma", bits(36, 15), kSignedReal, {pow2Pi(-32), unit("pi")}),
      deltai(this, "deltai", bits(51, 12), kSignedReal, {pow2Pi(-32), unit("pi")}),
      deltaOmega(this, "deltaOmega", bits(63, 12), kSignedReal, {pow2Pi(-32), unit("pi")}),
      deltaA(this, "deltaA", bits(75, 12), kSignedReal, {pow2(-9), unit("m")}),
      dUdra(this, "dUDRA", bits(87, 5), kSignedReal) {}

}  // namespace ZeltNavMsg::GpsCNav2
