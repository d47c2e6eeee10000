#include "schemas/beidou_cnav/EphemerisIIDef.h"

namespace ZeltNavMsg::BeidouCNav::DataBlocks {

using namespace Schema;

EphemerisIIDef::EphemerisIIDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                               const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      omega0(this, "Omega0", bits(0, 33), kSignedReal, {pow2Pi(-32), unit("pi")}),
      i0(this, "i0", bits(33, 33), kSignedReal, {pow2Pi(-32), unit("pi")}),
      dOmega(this, "dOmega", bits(66, 19), kSignedReal, {pow2Pi(-44), unit("pi/s")}),
      di0(this, "di0", bits(85, 15), kSignedReal, {pow2Pi(-44), unit("pi/s")}),
      cis(this, "Cis", bits(100, 16), kSignedReal, {pow2(-30), unit("rad")}),
      cic(this, "Cic", bits(116, 16), kSignedReal, {pow2(-30), unit("rad")}),
      crs(this, "Crs", bits(132, 24), kSignedReal, {pow2(-8), unit("m")}),
      crc(this, "Crc", bits(156, 24), kSignedReal, {pow2(-8), unit("m")}),
      cus(this, "Cus", bits(180, 21), kSignedReal, {pow2(-30), unit("rad")}),
      cuc(this, "Cuc", bits(201, 21), kSignedReal, {pow2(-30), unit("rad")}) {}

}  // namespace ZeltNavMsg::BeidouCNav::DataBlocks
