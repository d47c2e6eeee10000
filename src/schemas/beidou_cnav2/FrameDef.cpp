#include "schemas/beidou_cnav2/FrameDef.h"

namespace ZeltNavMsg::BeidouCNav2 {

using namespace Schema;

FrameDef::FrameDef()
    : SelectedByFieldDef(nullptr, "B-CNAV2 Frame", bits(0, kBits), {}),
      prn(this, "PRN", bits(0, 6)),
      mesType(this, "MesType", bits(6, 6)),
      sow(this, "SOW", bits(12, 18), {times(3)}),  // counted in 3 s units
      messageData(this, "Message data", bits(30, 234), {flag(Hidden)}),
      message10(this, "Message type 10 data", bits(30, 234)),
      message11(this, "Message type 11 data", bits(30, 234)),
      message30(this, "Message type 30 data", bits(30, 234)),
      message31(this, "Message type 31 data", bits(30, 234)),
      message32(this, "Message type 32 data", bits(30, 234)),
      message33(this, "Message type 33 data", bits(30, 234)),
      message34(this, "Message type 34 data", bits(30, 234)),
      message40(this, "Message type 40 data", bits(30, 234)),
      crc(this, "CRC", bits(264, 24), {flag(RawHexOnly)}) {
    selectBy(mesType);
}

const FrameDef& beidouCNav2FrameDef() {
    static const FrameDef frame;
    return frame;
}

}  // namespace ZeltNavMsg::BeidouCNav2
