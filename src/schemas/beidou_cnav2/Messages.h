#ifndef ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV2_MESSAGES_H
#define ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV2_MESSAGES_H

#include "schemas/SchemaTypes.h"
#include "schemas/beidou_cnav/BdtUtcTimeOffsetParametersDef.h"
#include "schemas/beidou_cnav/BgtoParametersDef.h"
#include "schemas/beidou_cnav/ClockCorrectionParametersDef.h"
#include "schemas/beidou_cnav/EopParametersDef.h"
#include "schemas/beidou_cnav/EphemerisIDef.h"
#include "schemas/beidou_cnav/EphemerisIIDef.h"
#include "schemas/beidou_cnav/IonosphericDelayCorrectionModelParametersDef.h"
#include "schemas/beidou_cnav/MidiAlmanacDef.h"
#include "schemas/beidou_cnav/ReducedAlmanacDef.h"
#include "schemas/beidou_cnav/SisaiOcDef.h"
#include "schemas/beidou_cnav2/MessageDef.h"
#include "schemas/beidou_cnav2/ReducedAlamanacsArrayDef.h"

// The eight message types of the B2a frame, each 234 bits ending in a hidden "Rev".
// Message 10 starts with the week number; all others with the health status "HS".

namespace ZeltNavMsg::BeidouCNav2 {

// Week number, IODE and the first half of the ephemeris.
class Message10Def : public MessageDef {
  public:
    Message10Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges);
    Schema::Unsigned wn;
    CommonFieldsDef commonFields;
    Schema::Unsigned iode;
    BeidouCNav::DataBlocks::EphemerisIDef ephemerisI;
};

// The second half of the ephemeris.
class Message11Def : public MessageDef {
  public:
    Message11Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges);
    Schema::Unsigned hs;
    CommonFieldsDef commonFields;
    BeidouCNav::DataBlocks::EphemerisIIDef ephemerisII;
};

// Clock, group delays and the ionospheric model. The three group delays carry no
// scale and no units here: they list as raw signed counts (of 2^-34 s).
class Message30Def : public MessageDef {
  public:
    Message30Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges);
    Schema::Unsigned hs;
    CommonFieldsDef commonFields;
    BeidouCNav::DataBlocks::ClockCorrectionParametersDef clockCorrection;
    Schema::Unsigned iodc;
    Schema::Real tgdB2ap;
    Schema::Real iscB2ad;
    BeidouCNav::DataBlocks::IonosphericDelayCorrectionModelParametersDef ionosphericModel;
    Schema::Real tgdB1cp;
    Schema::Unsigned rev;
};

// Clock and three reduced almanac entries; "WNa" and "toa" carry no units here.
class Message31Def : public MessageDef {
  public:
    Message31Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges);
    Schema::Unsigned hs;
    CommonFieldsDef commonFields;
    BeidouCNav::DataBlocks::ClockCorrectionParametersDef clockCorrection;
    Schema::Unsigned iodc;
    Schema::Unsigned wnA;
    Schema::Unsigned toa;
    ReducedAlamanacsArrayDef reducedAlmanacs;
    Schema::Unsigned rev;
};

// Clock and Earth orientation parameters.
class Message32Def : public MessageDef {
  public:
    Message32Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges);
    Schema::Unsigned hs;
    CommonFieldsDef commonFields;
    BeidouCNav::DataBlocks::ClockCorrectionParametersDef clockCorrection;
    Schema::Unsigned iodc;
    BeidouCNav::DataBlocks::EopParametersDef eopParameters;
    Schema::Unsigned rev;
};

// Clock, BDT-GNSS time offset and one reduced almanac entry.
class Message33Def : public MessageDef {
  public:
    Message33Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges);
    Schema::Unsigned hs;
    CommonFieldsDef commonFields;
    BeidouCNav::DataBlocks::ClockCorrectionParametersDef clockCorrection;
    BeidouCNav::DataBlocks::BgtoParametersDef bgtoParameters;
    BeidouCNav::DataBlocks::ReducedAlmanacDef reducedAlmanac;
    Schema::Unsigned iodc;
    Schema::Unsigned wnA;
    Schema::Unsigned toa;
    Schema::Unsigned rev;
};

// Accuracy, clock and the BDT-UTC offset.
class Message34Def : public MessageDef {
  public:
    Message34Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges);
    Schema::Unsigned hs;
    CommonFieldsDef commonFields;
    BeidouCNav::DataBlocks::SisaiOcDef sisaiOc;
    BeidouCNav::DataBlocks::ClockCorrectionParametersDef clockCorrection;
    Schema::Unsigned iodc;
    BeidouCNav::DataBlocks::BdtUtcTimeOffsetParametersDef bdtUtcParameters;
    Schema::Unsigned rev;
};

// Accuracy and one midi almanac entry.
class Message40Def : public MessageDef {
  public:
    Message40Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges);
    Schema::Unsigned hs;
    CommonFieldsDef commonFields;
    Schema::Unsigned sisaiOe;
    BeidouCNav::DataBlocks::SisaiOcDef sisaiOc;
    BeidouCNav::DataBlocks::MidiAlmanacDef midiAlmanac;
    Schema::Unsigned rev;
};

}  // namespace ZeltNavMsg::BeidouCNav2

#endif
