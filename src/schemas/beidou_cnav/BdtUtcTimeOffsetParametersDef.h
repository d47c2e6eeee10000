#ifndef ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV_BDTUTCTIMEOFFSETPARAMETERSDEF_H
#define ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV_BDTUTCTIMEOFFSETPARAMETERSDEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::BeidouCNav::DataBlocks {

// BDT-UTC offset, 97 bits: offset polynomial, leap seconds and the week and day of
// the next leap second. "DN" is 3 bits (a day of the week), one less than in GPS.
class BdtUtcTimeOffsetParametersDef : public BitStructDef {
  public:
    BdtUtcTimeOffsetParametersDef(BitStructDef* parent, std::string name,
                                  std::vector<BitRange> ranges, const Modifiers& modifiers = {});

    Schema::Real a0Utc;
    Schema::Real a1Utc;
    Schema::Real a2Utc;
    Schema::Signed dtls;
    Schema::Unsigned tot;
    Schema::Unsigned wnot;
    Schema::Unsigned wnlsf;
    Schema::Unsigned dn;
    Schema::Signed dtlsf;
};

}  // namespace ZeltNavMsg::BeidouCNav::DataBlocks

#endif
