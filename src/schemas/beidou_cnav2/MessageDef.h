#ifndef ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV2_MESSAGEDEF_H
#define ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV2_MESSAGEDEF_H

#include <cstdint>

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::BeidouCNav2 {

// The 234 payload bits of one message type. Each message is a variant of the frame
// whose container id is its type number, and declares NoDefaults so that writing
// defaults does not go through eight overlapping layouts.
class MessageDef : public BitStructDef {
  public:
    MessageDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
               std::int32_t messageType);
};

// Integrity flags of B2a and B1C and the SISMAI, 10 bits. Transparent: its fields are
// listed at the level of the message that holds it, under no heading of their own.
class CommonFieldsDef : public BitStructDef {
  public:
    CommonFieldsDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges);

    Schema::Flag difB2a;
    Schema::Flag sifB2a;
    Schema::Flag aifB2a;
    Schema::Unsigned sismai;
    Schema::Flag difB1c;
    Schema::Flag sifB1c;
    Schema::Flag aifB1c;
};

}  // namespace ZeltNavMsg::BeidouCNav2

#endif
