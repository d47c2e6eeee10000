#ifndef ZELTNAVMSG_SCHEMAS_GPS_CNAV2_SUBFRAME3DEF_H
#define ZELTNAVMSG_SCHEMAS_GPS_CNAV2_SUBFRAME3DEF_H

#include "schemas/SchemaTypes.h"
#include "schemas/gps_cnav2/CharacterArrayDefs.h"
#include "schemas/gps_cnav2/DifferentialCorrectionDefs.h"
#include "schemas/gps_cnav2/EopParametersDef.h"
#include "schemas/gps_cnav2/GgtoParametersDef.h"
#include "schemas/gps_cnav2/IonoParametersDef.h"
#include "schemas/gps_cnav2/MidiAlmanacDef.h"
#include "schemas/gps_cnav2/ReducedAlmanacDef.h"
#include "schemas/gps_cnav2/TimeParametersDef.h"

namespace ZeltNavMsg::GpsCNav2 {

// Subframe 3, 274 bits: PRN, page number, one of seven pages over the same 236 bits,
// CRC. The page shown is the one whose container id is the "Page ID"; any other page
// number shows no page.
class Subframe3Def : public SelectedByFieldDef {
  public:
    // Each page is declared with its page number as container id and NoDefaults, so
    // that writing defaults does not go through seven overlapping layouts.
    class Page1Def : public BitStructDef {
      public:
        Page1Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                 const Modifiers& modifiers = {});
        TimeParametersDef timeParameters;
        IonoParametersDef ionoParameters;
        Schema::Real iscL1ca;
        Schema::Real iscL2c;
        Schema::Real iscL5i5;
        Schema::Real iscL5q5;
        Schema::Unsigned reserved;
    };

    class Page2Def : public BitStructDef {
      public:
        Page2Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                 const Modifiers& modifiers = {});
        GgtoParametersDef ggtoParameters;
        EopParametersDef eopParameters;
        Schema::Unsigned reserved;
    };

    class Page3Def : public BitStructDef {
      public:
        Page3Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                 const Modifiers& modifiers = {});
        Schema::Unsigned wna;
        Schema::Unsigned toa;
        ReducedAlamanacsArrayDef reducedAlmanacs;
        Schema::Unsigned reserved;
    };

    class Page4Def : public BitStructDef {
      public:
        Page4Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                 const Modifiers& modifiers = {});
        MidiAlmanacDef midiAlmanac;
        Schema::Unsigned reserved;  // 85 bits: allowed because hidden
    };

    class Page5Def : public BitStructDef {
      public:
        Page5Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                 const Modifiers& modifiers = {});
        Schema::Unsigned topD;
        Schema::Unsigned tod;
        Schema::Flag dcDataType;
        ClockDifferentialCorrectionDef clockCorrection;
        EphemerisDifferentialCorrectionDef ephemerisCorrection;
        Schema::Unsigned reserved;
    };

    class Page6Def : public BitStructDef {
      public:
        Page6Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                 const Modifiers& modifiers = {});
        Schema::Unsigned textPage;
        BitFieldCharArrayDef characters;
    };

    class Page7Def : public BitStructDef {
      public:
        Page7Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                 const Modifiers& modifiers = {});
        SvConfigArrayDef svConfiguration;
        Schema::Unsigned reserved;
    };

    Subframe3Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                 const Modifiers& modifiers = {});

    Schema::Unsigned prn;
    Schema::Unsigned pageId;
    Schema::Unsigned messageData;  // the 236 page bits as one hidden raw field
    Page1Def page1;
    Page2Def page2;
    Page3Def page3;
    Page4Def page4;
    Page5Def page5;
    Page6Def page6;
    Page7Def page7;
    Schema::Unsigned crc;
};

}  // namespace ZeltNavMsg::GpsCNav2

#endif
