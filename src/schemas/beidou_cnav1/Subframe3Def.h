#ifndef ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV1_SUBFRAME3DEF_H
#define ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV1_SUBFRAME3DEF_H

#include <cstdint>

#include "schemas/SchemaTypes.h"
#include "schemas/beidou_cnav/BdtUtcTimeOffsetParametersDef.h"
#include "schemas/beidou_cnav/BgtoParametersDef.h"
#include "schemas/beidou_cnav/EopParametersDef.h"
#include "schemas/beidou_cnav/IonosphericDelayCorrectionModelParametersDef.h"
#include "schemas/beidou_cnav/MidiAlmanacDef.h"
#include "schemas/beidou_cnav/ReducedAlmanacDef.h"
#include "schemas/beidou_cnav/SisaiOcDef.h"

namespace ZeltNavMsg::BeidouCNav1 {

// Subframe 3, 264 bits: page number, one of four pages over the same 234 bits, CRC.
// The page shown is the one whose container id is the "Page ID"; any other page
// number shows no page.
class Subframe3Def : public SelectedByFieldDef {
  public:
    // The status fields every page starts with. A page is a variant of the subframe
    // whose container id is its page number, and declares NoDefaults so that writing
    // defaults does not go through four overlapping layouts.
    class PageDef : public BitStructDef {
      public:
        PageDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                std::int32_t pageId);
        Schema::Unsigned hs;
        Schema::Flag dif;
        Schema::Flag sif;
        Schema::Flag aif;
        Schema::Unsigned sismai;
    };

    // "Reduced almanac 1" ... "Reduced almanac 4", 38 bits each.
    class ReducedAlamanacsArrayDef
        : public BitFieldArrayDef<BeidouCNav::DataBlocks::ReducedAlmanacDef, 4> {
      public:
        ReducedAlamanacsArrayDef(BitStructDef* parent, std::string name,
                                 std::vector<BitRange> ranges, const Modifiers& modifiers = {})
            : BitFieldArrayDef(parent, std::move(name), std::move(ranges), "Reduced almanac ", 38,
                               modifiers) {}
    };

    // Orbit accuracy, ionospheric model and BDT-UTC offset.
    class Page1Def : public PageDef {
      public:
        Page1Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges);
        Schema::Unsigned sisaiOe;
        BeidouCNav::DataBlocks::SisaiOcDef sisaiOc;
        BeidouCNav::DataBlocks::IonosphericDelayCorrectionModelParametersDef ionosphericModel;
        BeidouCNav::DataBlocks::BdtUtcTimeOffsetParametersDef bdtUtcParameters;
        Schema::Unsigned rev;
    };

    // Four reduced almanac entries with their reference week and time.
    class Page2Def : public PageDef {
      public:
        Page2Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges);
        BeidouCNav::DataBlocks::SisaiOcDef sisaiOc;
        Schema::Unsigned wnA;
        Schema::Unsigned toa;
        ReducedAlamanacsArrayDef reducedAlmanacs;
        Schema::Unsigned rev;
    };

    // Earth orientation and BDT-GNSS time offset.
    class Page3Def : public PageDef {
      public:
        Page3Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges);
        Schema::Unsigned sisaiOe;
        BeidouCNav::DataBlocks::EopParametersDef eopParameters;
        BeidouCNav::DataBlocks::BgtoParametersDef bgtoParameters;
        Schema::Unsigned rev;
    };

    // One midi almanac entry.
    class Page4Def : public PageDef {
      public:
        Page4Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges);
        BeidouCNav::DataBlocks::SisaiOcDef sisaiOc;
        BeidouCNav::DataBlocks::MidiAlmanacDef midiAlmanac;
        Schema::Unsigned rev;
    };

    Subframe3Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                 const Modifiers& modifiers = {});

    Schema::Unsigned pageId;
    Schema::Unsigned messageData;  // the 234 page bits as one hidden raw field
    Page1Def page1;
    Page2Def page2;
    Page3Def page3;
    Page4Def page4;
    Schema::Unsigned crc;
};

}  // namespace ZeltNavMsg::BeidouCNav1

#endif
