#include "schemas/beidou_cnav/MidiAlmanacDef.h"

namespace ZeltNavMsg::BeidouCNav::DataBlocks {

using namespace Schema;

MidiAlmanacDef::MidiAlmanacDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                               const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      prnA(this, "PRNa", bits(0, 6)),
      satType(this, "SatType", bits(6, 2)),
      wnA(this, "WNa", bits(8, 13), {unit("week")}),
      toa(this, "toa", bits(21, 8), {pow2(12), unit("s")}),
      e(this, "e", bits(29, 11), kUnsignedReal, {pow2(-16)}),
      deltaI(this, "deltai", bits(40, 11), kSignedReal, {pow2Pi(-14), unit("pi")}),
      sqrtA(this, "sqrtA", bits(51, 17), kUnsignedReal, {pow2(-4), unit("m^-2")}),
      omega0(this, "Omega0", bits(68, 16), kSignedReal, {pow2Pi(-15), unit("pi")}),
      dOmega(this, "dOmega", bits(84, 11), kSignedReal, {pow2Pi(-33), unit("pi/s")}),
      omega(this, "Omega", bits(95, 16), kSignedReal, {pow2Pi(-15), unit("pi")}),
      m0(this, "M0", bits(111, 16), kSignedReal, {pow2Pi(-15), unit("pi")}),
      af0(this, "af0", bits(127, 11), kSignedReal, {pow2(-20), unit("s")}),
      af1(this, "af1", bits(138, 10), kSignedReal, {pow2(-37), unit("s/s")}),
      health(this, "Health", bits(148, 8)) {}

}  // namespace ZeltNavMsg::BeidouCNav::DataBlocks
