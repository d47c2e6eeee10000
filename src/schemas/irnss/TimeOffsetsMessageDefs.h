#ifndef ZELTNAVMSG_SCHEMAS_IRNSS_TIMEOFFSETSMESSAGEDEFS_H
#define ZELTNAVMSG_SCHEMAS_IRNSS_TIMEOFFSETSMESSAGEDEFS_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::Irnss {

// The 220-bit body shared by message types 9 and 26: the UTC offset with its leap
// second parameters, then the offset to a second system.
class TimeOffsetsMessageDef : public BitStructDef {
  public:
    TimeOffsetsMessageDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                          const Modifiers& modifiers = {});

    Schema::Real a0utc;
    Schema::Real a1utc;
    Schema::Real a2utc;
    Schema::Signed deltaTls;
    Schema::Unsigned toutc;
    Schema::Unsigned wnoutc;
    Schema::Unsigned wnlsf;
    Schema::Unsigned dn;
    Schema::Signed deltaTlsf;
    Schema::Real a0;
    Schema::Real a1;
    Schema::Real a2;
    Schema::Unsigned tot;
    Schema::Unsigned wnot;
    Schema::Unsigned gnssId;
    Schema::Unsigned spare;
};

// Message type 9: UTC and GPS time offsets.
class Message9Def : public TimeOffsetsMessageDef {
  public:
    using TimeOffsetsMessageDef::TimeOffsetsMessageDef;
};

// Message type 26: UTC and GNSS time offsets, "GNSS ID" naming the system.
class Message26Def : public TimeOffsetsMessageDef {
  public:
    using TimeOffsetsMessageDef::TimeOffsetsMessageDef;
};

}  // namespace ZeltNavMsg::Irnss

#endif
