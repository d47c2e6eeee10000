#ifndef ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV2_FRAMEDEF_H
#define ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV2_FRAMEDEF_H

#include "schemas/SchemaTypes.h"
#include "schemas/beidou_cnav2/Messages.h"

namespace ZeltNavMsg::BeidouCNav2 {

// One B2a frame as decoded bits, 288 in all: PRN, message type, seconds of week, the
// 234-bit payload of the message type and the CRC. The payload shown is the message
// whose container id is the "MesType"; any other type shows no payload.
class FrameDef : public SelectedByFieldDef {
  public:
    static constexpr int kBits = 288;

    FrameDef();

    Schema::Unsigned prn;
    Schema::Unsigned mesType;
    Schema::Unsigned sow;
    Schema::Unsigned messageData;  // the payload as one hidden raw field
    Message10Def message10;
    Message11Def message11;
    Message30Def message30;
    Message31Def message31;
    Message32Def message32;
    Message33Def message33;
    Message34Def message34;
    Message40Def message40;
    Schema::Unsigned crc;
};

// The frame definition, built on first use and never changed; safe to use from any
// thread, and from a host's own static initialisers.
const FrameDef& beidouCNav2FrameDef();

}  // namespace ZeltNavMsg::BeidouCNav2

#endif
