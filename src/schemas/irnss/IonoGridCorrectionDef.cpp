#include "schemas/irnss/IonoGridCorrectionDef.h"

namespace ZeltNavMsg::Irnss {

using namespace Schema;

IonoGridCorrectionDef::IonoGridCorrectionDef(BitStructDef* parent, std::string name,
                                             std::vector<BitRange> ranges,
                                             const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      givd(this, "GIVD", bits(0, 9), kUnsignedReal, {pow2(-3), unit("m")}),
      givei(this, "GIVEI", bits(9, 4)) {}

}  // namespace ZeltNavMsg::Irnss
