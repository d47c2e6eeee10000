#ifndef ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV1_SUBFRAME1DEF_H
#define ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV1_SUBFRAME1DEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::BeidouCNav1 {

// Subframe 1 after decoding its BCH words: PRN and seconds of hour, 14 bits.
class Subframe1Def : public BitStructDef {
  public:
    Subframe1Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                 const Modifiers& modifiers = {});

    Schema::Unsigned prn;
    Schema::Unsigned soh;
};

}  // namespace ZeltNavMsg::BeidouCNav1

#endif
