#ifndef ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV1_FRAMEDEF_H
#define ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV1_FRAMEDEF_H

#include "schemas/SchemaTypes.h"
#include "schemas/beidou_cnav1/Subframe1Def.h"
#include "schemas/beidou_cnav1/Subframe2Def.h"
#include "schemas/beidou_cnav1/Subframe3Def.h"

namespace ZeltNavMsg::BeidouCNav1 {

// One B1C navigation frame as decoded bits: 14-bit subframe 1, 600-bit subframe 2 and
// 264-bit subframe 3, 878 bits in all.
class FrameDef : public BitStructDef {
  public:
    static constexpr int kBits = 878;

    FrameDef();

    Subframe1Def subframe1;
    Subframe2Def subframe2;
    Subframe3Def subframe3;
};

// The frame definition, built on first use and never changed; safe to use from any
// thread, and from a host's own static initialisers.
const FrameDef& beidouCNav1FrameDef();

}  // namespace ZeltNavMsg::BeidouCNav1

#endif
