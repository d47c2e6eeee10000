#ifndef ZELTNAVMSG_SCHEMAS_IRNSS_MESSAGE18DEF_H
#define ZELTNAVMSG_SCHEMAS_IRNSS_MESSAGE18DEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::Irnss {

// Text characters "CH1" ... "CH25", 8 bits each, shown as their codes.
class TextDataArrayDef : public BitFieldArrayDef<Schema::Unsigned, 25> {
  public:
    TextDataArrayDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                     const Modifiers& modifiers = {})
        : BitFieldArrayDef(parent, std::move(name), std::move(ranges), "CH", 8, modifiers) {}
};

// Message type 18, 220 bits: one block of a text message.
class Message18Def : public BitStructDef {
  public:
    Message18Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                 const Modifiers& modifiers = {});

    Schema::Unsigned numberOfBlocks;
    Schema::Unsigned blockId;
    TextDataArrayDef text;
    Schema::Unsigned spare;
};

}  // namespace ZeltNavMsg::Irnss

#endif
