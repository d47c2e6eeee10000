#include "schemas/gps_cnav2/FrameDef.h"

namespace ZeltNavMsg::GpsCNav2 {

FrameDef::FrameDef()
    : BitStructDef(nullptr, "GPS CNAV-2 Frame", bits(0, kBits), {}),
      subframe1(this, "Subframe 1", bits(0, 9)),
      subframe2(this, "Subframe 2", bits(9, 600)),
      subframe3(this, "Subframe 3", bits(609, 274)) {}

const FrameDef& gpsCNav2FrameDef() {
    static const FrameDef frame;
    return frame;
}

}  // namespace ZeltNavMsg::GpsCNav2
