#include "schemas/beidou_cnav1/Subframe3Def.h"

namespace ZeltNavMsg::BeidouCNav1 {

using namespace Schema;

Subframe3Def::Subframe3Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                           const Modifiers& modifiers)
    : SelectedByFieldDef(parent, std::move(name), std::move(ranges), modifiers),
      pageId(this, "Page ID", bits(0, 6)),
      messageData(this, "Message data", bits(6, 234), {flag(Hidden)}),
      page1(this, "Page 1", bits(6, 234)),
      page2(this, "Page 2", bits(6, 234)),
      page3(this, "Page 3", bits(6, 234)),
      page4(this, "Page 4", bits(6, 234)),
      crc(this, "CRC", bits(240, 24), {flag(RawHexOnly)}) {
    selectBy(pageId);
}

Subframe3Def::PageDef::PageDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                               std::int32_t pageId)
    : BitStructDef(parent, std::move(name), std::move(ranges),
                   {container(pageId), flag(NoDefaults)}),
      hs(this, "HS", bits(0, 2)),
      dif(this, "DIF", bits(2, 1)),
      sif(this, "SIF", bits(3, 1)),
      aif(this, "AIF", bits(4, 1)),
      sismai(this, "SISMAI", bits(5, 4)) {}

Subframe3Def::Page1Def::Page1Def(BitStructDef* parent, std::string name,
                                 std::vector<BitRange> ranges)
    : PageDef(parent, std::move(name), std::move(ranges), 1),
      sisaiOe(this, "SISAIoe", bits(9, 5)),
      sisaiOc(this, "SISAIoc", bits(14, 22)),
      ionosphericModel(this, "Ionospheric delay correction model parameters", bits(36, 74)),
      bdtUtcParameters(this, "BDT-UTC time offset parameters", bits(110, 97)),
      rev(this, "Rev", bits(207, 27), {flag(Hidden)}) {}

Subframe3Def::Page2Def::Page2Def(BitStructDef* parent, std::string name,
                                 std::vector<BitRange> ranges)
    : PageDef(parent, std::move(name), std::move(ranges), 2),
      sisaiOc(this, "SISAIoc", bits(9, 22)),
      wnA(this, "WNa", bits(31, 13), {unit("week")}),
      toa(this, "toa", bits(44, 8), {pow2(12), unit("s")}),
      reducedAlmanacs(this, "Reduced almanacs array", bits(52, 152)),
      rev(this, "Rev", bits(204, 30), {flag(Hidden)}) {}

Subframe3Def::Page3Def::Page3Def(BitStructDef* parent, std::string name,
                                 std::vector<BitRange> ranges)
    : PageDef(parent, std::move(name), std::move(ranges), 3),
      sisaiOe(this, "SISAIoe", bits(9, 5)),
      eopParameters(this, "EOP Parameters", bits(14, 138)),
      bgtoParameters(this, "BGTO Parameters", bits(152, 68)),
      rev(this, "Rev", bits(220, 14), {flag(Hidden)}) {}

Subframe3Def::Page4Def::Page4Def(BitStructDef* parent, std::string name,
                                 std::vector<BitRange> ranges)
    : PageDef(parent, std::move(name), std::move(ranges), 4),
      sisaiOc(this, "SISAIoc", bits(9, 22)),
      midiAlmanac(this, "Midi almanac", bits(31, 156)),
      rev(this, "Rev", bits(187, 47), {flag(Hidden)}) {}

}  // namespace ZeltNavMsg::BeidouCNav1
