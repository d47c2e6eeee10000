#include "schemas/gps_cnav2/Subframe2Def.h"

namespace ZeltNavMsg::GpsCNav2 {

using namespace Schema;

Subframe2Def::Subframe2Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                           const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      wn(this, "WN", bits(0, 13)),
      itow(this, "ITOW", bits(13, 8)),
      top(this, "top", bits(21, 11), {times(300)}),  // scaled, but no units text
      l1cHealth(this, "L1C health", bits(32, 1)),
      uraEdIndex(this, "URAedINDEX", bits(33, 5)),
      ephemeris(this, "Ephemeris", bits(38, 421)),
      uraNed0Index(this, "URAned0INDEX", bits(459, 5)),
      uraNed1Index(this, "URAned1INDEX", bits(464, 3)),
      uraNed2Index(this, "URAned2INDEX", bits(467, 3)),
      clockCorrectionParameters(this, "ClockCorrectionParameters", bits(470, 56)),
      // The group delay keeps the name under which it is listed for B2a.
      tgd(this, "TGDB2ap", bits(526, 13), kSignedReal, {pow2(-35), unit("s")}),
      iscL1Cp(this, "ISCL1Cp", bits(539, 13), kSignedReal, {pow2(-35), unit("s")}),
      iscL1Cd(this, "ISCL1Cd", bits(552, 13), kSignedReal, {pow2(-35), unit("s")}),
      isf(this, "ISF", bits(565, 1)),
      wnOp(this, "WNop", bits(566, 8)),
      reserved(this, "Reserved", bits(574, 2), {flag(Hidden)}),
      crc(this, "CRC", bits(576, 24), {flag(RawHexOnly)}) {}

}  // namespace ZeltNavMsg::GpsCNav2
