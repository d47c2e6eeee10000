#include "schemas/beidou_cnav/EphemerisIDef.h"

namespace ZeltNavMsg::BeidouCNav::DataBlocks {

using namespace Schema;

EphemerisIDef::EphemerisIDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                             const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      toe(this, "toe", bits(0, 11), {times(300), unit("s")}),
      satType(this, "SatType", bits(11, 2)),
      deltaA(this, "deltaA", bits(13, 26), kSignedReal, {pow2(-9), unit("m")}),
      dA(this, "dA", bits(39, 25), kSignedReal, {pow2(-21), unit("m/s")}),
      deltaN0(this, "deltaN0", bits(64, 17), kSignedReal, {pow2Pi(-44), unit("pi/s")}),
      dDeltaN0(this, "dDeltaN0", bits(81, 23), kSignedReal, {pow2Pi(-57), unit("pi/s^2")}),
      m0(this, "M0", bits(104, 33), kSignedReal, {pow2Pi(-32), unit("pi")}),
      e(this, "e", bits(137, 33), kUnsignedReal, {pow2(-34)}),
      w(this, "w", bits(170, 33), kSignedReal, {pow2Pi(-32), unit("pi")}) {}

}  // namespace ZeltNavMsg::BeidouCNav::DataBlocks
