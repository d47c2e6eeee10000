#ifndef ZELTNAVMSG_SCHEMAS_IRNSS_IONOGRIDCORRECTIONDEF_H
#define ZELTNAVMSG_SCHEMAS_IRNSS_IONOGRIDCORRECTIONDEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::Irnss {

// The vertical delay at one ionospheric grid point and its error indicator, 13 bits.
class IonoGridCorrectionDef : public BitStructDef {
  public:
    IonoGridCorrectionDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                          const Modifiers& modifiers = {});

    Schema::Real givd;
    Schema::Unsigned givei;
};

// Fifteen grid points end to end, "IGP 1" ... "IGP 15".
class IonoGridCorrectionsArrayDef : public BitFieldArrayDef<IonoGridCorrectionDef, 15> {
  public:
    IonoGridCorrectionsArrayDef(BitStructDef* parent, std::string name,
                                std::vector<BitRange> ranges, const Modifiers& modifiers = {})
        : BitFieldArrayDef(parent, std::move(name), std::move(ranges), "IGP ", 13, modifiers) {}
};

}  // namespace ZeltNavMsg::Irnss

#endif
