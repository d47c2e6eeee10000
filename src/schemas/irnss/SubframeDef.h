#ifndef ZELTNAVMSG_SCHEMAS_IRNSS_SUBFRAMEDEF_H
#define ZELTNAVMSG_SCHEMAS_IRNSS_SUBFRAMEDEF_H

#include "schemas/SchemaTypes.h"
#include "schemas/irnss/MessageDataDef.h"
#include "schemas/irnss/Subframe1Def.h"
#include "schemas/irnss/Subframe2Def.h"

namespace ZeltNavMsg::Irnss {

// One L5 SPS subframe after FEC decoding and de-interleaving, without its 16-bit sync
// word: 30 bits of TLM, TOWC, flags and subframe ID, 232 bits of subframe data, the
// CRC-24Q and the tail, 292 bits in all.
class SubframeDef : public BitStructDef {
  public:
    static constexpr int kBits = 292;

    SubframeDef();

    // Subframe ID 0 selects the clock and ephemeris part of subframe 1 (container 1),
    // 1 the ephemeris of subframe 2 (container 2); subframes 3 and 4 (IDs 2 and 3)
    // both carry a message, container 34.
    [[nodiscard]] std::int32_t activeContainerId(ConstBitBuffer buffer) const override;

    Schema::Unsigned tlm;
    Schema::Unsigned towc;
    Schema::Flag alert;
    Schema::Flag autonav;
    Schema::Unsigned subframeId;
    Schema::Unsigned spare;
    Subframe1Def subframe1Data;
    Subframe2Def subframe2Data;
    MessageDataDef messageData;
    Schema::Unsigned crc;
    Schema::Unsigned tail;
};

// The subframe definition, built on first use and never changed; safe to use from any
// thread, and from a host's own static initialisers.
const SubframeDef& irnssSubframeDef();

}  // namespace ZeltNavMsg::Irnss

#endif
