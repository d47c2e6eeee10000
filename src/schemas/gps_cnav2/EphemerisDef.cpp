#include "schemas/gps_cnav2/EphemerisDef.h"

namespace ZeltNavMsg::GpsCNav2 {

using namespace Schema;

EphemerisDef::EphemerisDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                           const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      toe(this, "toe", bits(0, 11), {times(300), unit("s")}),
      deltaA(this, "deltaA", bits(11, 26), kSignedReal, {pow2(-9), unit("m")}),
      dA(this, "dA", bits(37, 25), kSignedReal, {pow2(-21), unit("m/s")}),
      deltaN0(this, "deltaN0", bits(62, 17), kSignedReal, {pow2Pi(-44), unit("pi/s")}),
      dDeltaN0(this, "dDeltaN0", bits(79, 23), kSignedReal, {pow2Pi(-57), unit("pi/s^2")}),
      m0(this, "M0", bits(102, 33), kSignedReal, {pow2Pi(-32), unit("pi")}),
      e(this, "e", bits(135, 33), kUnsignedReal, {pow2(-34)}),
      w(this, "w", bits(168, 33), kSignedReal, {pow2Pi(-32), unit("pi")}),
      omega0(this, "Omega0", bits(201, 33), kSignedReal, {pow2Pi(-32), unit("pi")}),
      i0(this, "i0", bits(234, 33), kSignedReal, {pow2Pi(-32), unit("pi")}),
      dOmega(this, "dOmega", bits(267, 17), kSignedReal, {pow2Pi(-44), unit("pi/s")}),
      di0(this, "di0", bits(284, 15), kSignedReal, {pow2Pi(-44), unit("pi/s")}),
      cis(this, "Cis", bits(299, 16), kSignedReal, {pow2(-30), unit("rad")}),
      cic(this, "Cic", bits(315, 16), kSignedReal, {pow2(-30), unit("rad")}),
      crs(this, "Crs", bits(331, 24), kSignedReal, {pow2(-8), unit("m")}),
      crc(this, "Crc", bits(355, 24), kSignedReal, {pow2(-8), unit("m")}),
      cus(this, "Cus", bits(379, 21), kSignedReal, {pow2(-30), unit("rad")}),
      cuc(this, "Cuc", bits(400, 21), kSignedReal, {pow2(-30), unit("rad")}) {}

}  // namespace ZeltNavMsg::GpsCNav2
