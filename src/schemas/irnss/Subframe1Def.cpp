#include "schemas/irnss/Subframe1Def.h"

namespace ZeltNavMsg::Irnss {

using namespace Schema;

// Semicircle quantities are scaled by the power of two alone: the listing shows them
// in semicircles, with the units text "pi/s".
Subframe1Def::Subframe1Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                           const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      week(this, "week", bits(0, 10), {unit("WN")}),
      af0(this, "af0", bits(10, 22), kSignedReal, {pow2(-31), unit("s")}),
      af1(this, "af1", bits(32, 16), kSignedReal, {pow2(-43), unit("s/s")}),
      af2(this, "af2", bits(48, 8), kSignedReal, {pow2(-55), unit("s/s^2")}),
      ura(this, "URA", bits(56, 4)),
      toc(this, "toc", bits(60, 16), {times(16), unit("s")}),
      tgd(this, "TGD", bits(76, 8), kSignedReal, {pow2(-31), unit("s")}),
      deltaN(this, "deltaN", bits(84, 22), kSignedReal, {pow2(-41), unit("pi/s")}),
      iodec(this, "IODEC", bits(106, 8)),
      reserved(this, "Reserved", bits(114, 10), {flag(Hidden)}),
      l5Flag(this, "L5 Flag", bits(124, 1)),
      sFlag(this, "S Flag", bits(125, 1)),
      cuc(this, "Cuc", bits(126, 15), kSignedReal, {pow2(-28), unit("rad")}),
      cus(this, "Cus", bits(141, 15), kSignedReal, {pow2(-28), unit("rad")}),
      cic(this, "Cic", bits(156, 15), kSignedReal, {pow2(-28), unit("rad")}),
      cis(this, "Cis", bits(171, 15), kSignedReal, {pow2(-28), unit("rad")}),
      crc(this, "Crc", bits(186, 15), kSignedReal, {pow2(-4), unit("m")}),
      crs(this, "Crs", bits(201, 15), kSignedReal, {pow2(-4), unit("m")}),
      idot(this, "IDOT", bits(216, 14), kSignedReal, {pow2(-43), unit("pi/s")}),
      spare(this, "Spare", bits(230, 2), {flag(Hidden)}) {}

}  // namespace ZeltNavMsg::Irnss
