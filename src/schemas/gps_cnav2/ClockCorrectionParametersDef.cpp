#include "schemas/gps_cnav2/ClockCorrectionParametersDef.h"

namespace ZeltNavMsg::GpsCNav2 {

using namespace Schema;

ClockCorrectionParametersDef::ClockCorrectionParametersDef(BitStructDef* parent, std::string name,
                                                           std::vector<BitRange> ranges,
                                                           const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      af0(this, "af0", bits(0, 26), kSignedReal, {pow2(-35), unit("s")}),
      af1(this, "af1", bits(26, 20), kSignedReal, {pow2(-48), unit("s/s")}),
      af2(this, "af2", bits(46, 10), kSignedReal, {pow2(-60), unit("s/s2")}) {}

}  // namespace ZeltNavMsg::GpsCNav2
