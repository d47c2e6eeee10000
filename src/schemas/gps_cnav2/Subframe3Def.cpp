#include "schemas/gps_cnav2/Subframe3Def.h"

namespace ZeltNavMsg::GpsCNav2 {

using namespace Schema;

Subframe3Def::Subframe3Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                           const Modifiers& modifiers)
    : SelectedByFieldDef(parent, std::move(name), std::move(ranges), modifiers),
      prn(this, "PRN", bits(0, 8)),
      pageId(this, "Page ID", bits(8, 6)),
      messageData(this, "Message data", bits(14, 236), {flag(Hidden)}),
      page1(this, "Page 1 - Time and ionospheric parameters", bits(14, 236),
            {container(1), flag(NoDefaults)}),
      page2(this, "Page 2 - GGTO and EOP parameters", bits(14, 236),
            {container(2), flag(NoDefaults)}),
      page3(this, "Page 3 - Reduced almanacs", bits(14, 236), {container(3), flag(NoDefaults)}),
      page4(this, "Page 4 - Midi almanac", bits(14, 236), {container(4), flag(NoDefaults)}),
      page5(this, "Page 5 - Differential correction", bits(14, 236),
            {container(5), flag(NoDefaults)}),
      page6(this, "Page 6 - Text", bits(14, 236), {container(6), flag(NoDefaults)}),
      page7(this, "Page 7 - SV configuration", bits(14, 236), {container(7), flag(NoDefaults)}),
      crc(this, "CRC", bits(250, 24), {flag(RawHexOnly)}) {
    selectBy(pageId);
}

Subframe3Def::Page1Def::Page1Def(BitStructDef* parent, std::string name,
                                 std::vector<BitRange> ranges, const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      timeParameters(this, "Time parameters", bits(0, 98)),
      ionoParameters(this, "Ionospheric parameters", bits(98, 64)),
      iscL1ca(this, "ISC L1CA", bits(162, 13), kSignedReal, {pow2(-35)}),
      iscL2c(this, "ISC L2C", bits(175, 13), kSignedReal, {pow2(-35)}),
      iscL5i5(this, "ISC L5I5", bits(188, 13), kSignedReal, {pow2(-35)}),
      iscL5q5(this, "ISC L5Q5", bits(201, 13), kSignedReal, {pow2(-35)}),
      reserved(this, "Reserved", bits(214, 22), {flag(Hidden)}) {}

Subframe3Def::Page2Def::Page2Def(BitStructDef* parent, std::string name,
                                 std::vector<BitRange> ranges, const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      ggtoParameters(this, "GGTO parameters", bits(0, 68)),
      eopParameters(this, "EOP parameters", bits(68, 138)),
      reserved(this, "Reserved", bits(206, 30), {flag(Hidden)}) {}

Subframe3Def::Page3Def::Page3Def(BitStructDef* parent, std::string name,
                                 std::vector<BitRange> ranges, const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      wna(this, "WNa", bits(0, 13), {unit("week")}),
      toa(this, "toa", bits(13, 8), {pow2(12), unit("s")}),
      reducedAlmanacs(this, "Reduced almanacs", bits(21, 198)),
      reserved(this, "Reserved", bits(219, 17), {flag(Hidden)}) {}

Subframe3Def::Page4Def::Page4Def(BitStructDef* parent, std::string name,
                                 std::vector<BitRange> ranges, const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      midiAlmanac(this, "Midi almanac", bits(0, 151)),
      reserved(this, "Reserved", bits(151, 85), {flag(Hidden)}) {}

Subframe3Def::Page5Def::Page5Def(BitStructDef* parent, std::string name,
                                 std::vector<BitRange> ranges, const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      topD(this, "top-D", bits(0, 11), {times(300), unit("s")}),
      tod(this, "tOD", bits(11, 11), {times(300), unit("s")}),
      dcDataType(this, "DC data type", bits(22, 1)),
      clockCorrection(this, "Clock differential correction", bits(23, 34)),
      ephemerisCorrection(this, "Ephemeris differential correction", bits(57, 92)),
      reserved(this, "Reserved", bits(149, 87), {flag(Hidden)}) {}

Subframe3Def::Page6Def::Page6Def(BitStructDef* parent, std::string name,
                                 std::vector<BitRange> ranges, const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      textPage(this, "Text page", bits(0, 4)),
      characters(this, "Characters", bits(4, 232)) {}

Subframe3Def::Page7Def::Page7Def(BitStructDef* parent, std::string name,
                                 std::vector<BitRange> ranges, const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      svConfiguration(this, "SV configuration", bits(0, 189)),
      reserved(this, "reserved", bits(189, 47), {flag(Hidden)}) {}  // lower case, as listed

}  // namespace ZeltNavMsg::GpsCNav2
