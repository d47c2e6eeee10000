#include "schemas/gps_cnav2/MidiAlmanacDef.h"

namespace ZeltNavMsg::GpsCNav2 {

using namespace Schema;

MidiAlmanacDef::MidiAlmanacDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                               const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      wna(this, "WNa", bits(0, 13), {unit("week")}),
      toa(this, "toa", bits(13, 8), {pow2(12), unit("s")}),
      prna(this, "PRNa", bits(21, 8)),
      l1Health(this, "L1 Health", bits(29, 1)),
      l2Health(this, "L2 Health", bits(30, 1)),
      l5Health(this, "L5 Health", bits(31, 1)),
      e(this, "e", bits(32, 11), kUnsignedReal, {pow2(-16)}),
      deltai(this, "deltai", bits(43, 11), kSignedReal, {pow2Pi(-14), unit("pi")}),
      dOmega(this, "dOmega", bits(54, 11), kSignedReal, {pow2Pi(-33), unit("pi/s")}),
      sqrtA(this, "sqrtA", bits(65, 17), kUnsignedReal, {pow2(-4), unit("m^-2")}),
      omega0(this, "Omega0", bits(82, 16), kSignedReal, {pow2Pi(-15), unit("pi")}),
      w(this, "W", bits(98, 16), kSignedReal, {pow2Pi(-15), unit("pi")}),
      m0(this, "M0", bits(114, 16), kSignedReal, {pow2Pi(-15), unit("pi")}),
      af0(this, "af0", bits(130, 11), kSignedReal, {pow2(-20), unit("s")}),
      af1(this, "af1", bits(141, 10), kSignedReal, {pow2(-37), unit("s/s")}) {}

}  // namespace ZeltNavMsg::GpsCNav2
