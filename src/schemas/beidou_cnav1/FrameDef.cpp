#include "schemas/beidou_cnav1/FrameDef.h"

namespace ZeltNavMsg::BeidouCNav1 {

FrameDef::FrameDef()
    : BitStructDef(nullptr, "B-CNAV1 Frame", bits(0, kBits), {}),
      subframe1(this, "Subframe 1", bits(0, 14)),
      subframe2(this, "Subframe 2", bits(14, 600)),
      subframe3(this, "Subframe 3", bits(614, 264)) {}

const FrameDef& beidouCNav1FrameDef() {
    static const FrameDef frame;
    return frame;
}

}  // namespace ZeltNavMsg::BeidouCNav1
