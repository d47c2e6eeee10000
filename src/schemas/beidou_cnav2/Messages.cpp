#include "schemas/beidou_cnav2/Messages.h"

namespace ZeltNavMsg::BeidouCNav2 {

using namespace Schema;

Message10Def::Message10Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges)
    : MessageDef(parent, std::move(name), std::move(ranges), 10),
      wn(this, "WN", bits(0, 13)),
      commonFields(this, "Common fields", bits(13, 10)),
      iode(this, "IODE", bits(23, 8)),
      ephemerisI(this, "Ephemeris I", bits(31, 203)) {}

Message11Def::Message11Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges)
    : MessageDef(parent, std::move(name), std::move(ranges), 11),
      hs(this, "HS", bits(0, 2)),
      commonFields(this, "Common fields", bits(2, 10)),
      ephemerisII(this, "Ephemeris II", bits(12, 222)) {}

Message30Def::Message30Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges)
    : MessageDef(parent, std::move(name), std::move(ranges), 30),
      hs(this, "HS", bits(0, 2)),
      commonFields(this, "Common fields", bits(2, 10)),
      clockCorrection(this, "Clock correction parameters", bits(12, 69)),
      iodc(this, "IODC", bits(81, 10)),
      tgdB2ap(this, "TGDB2ap", bits(91, 12), kSignedReal),
      iscB2ad(this, "ISCB2ad", bits(103, 12), kSignedReal),
      ionosphericModel(this, "Ionospheric delay correction model parameters", bits(115, 74)),
      tgdB1cp(this, "TGDB1Cp", bits(189, 12), kSignedReal),
      rev(this, "Rev", bits(201, 33), {flag(Hidden)}) {}

Message31Def::Message31Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges)
    : MessageDef(parent, std::move(name), std::move(ranges), 31),
      hs(this, "HS", bits(0, 2)),
      commonFields(this, "Common fields", bits(2, 10)),
      clockCorrection(this, "Clock correction parameters", bits(12, 69)),
      iodc(this, "IODC", bits(81, 10)),
      wnA(this, "WNa", bits(91, 13)),
      toa(this, "toa", bits(104, 8), {pow2(12)}),
      reducedAlmanacs(this, "Reduced almanacs", bits(112, 114)),
      rev(this, "Rev", bits(226, 8), {flag(Hidden)}) {}

Message32Def::Message32Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges)
    : MessageDef(parent, std::move(name), std::move(ranges), 32),
      hs(this, "HS", bits(0, 2)),
      commonFields(this, "Common fields", bits(2, 10)),
      clockCorrection(this, "Clock correction parameters", bits(12, 69)),
      iodc(this, "IODC", bits(81, 10)),
      eopParameters(this, "EOP Parameters", bits(91, 138)),
      rev(this, "Rev", bits(229, 5), {flag(Hidden)}) {}

Message33Def::Message33Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges)
    : MessageDef(parent, std::move(name), std::move(ranges), 33),
      hs(this, "HS", bits(0, 2)),
      commonFields(this, "Common fields", bits(2, 10)),
      clockCorrection(this, "Clock correction parameters", bits(12, 69)),
      bgtoParameters(this, "BGTO Parameters", bits(81, 68)),
      reducedAlmanac(this, "Reduced almanac", bits(149, 38)),
      iodc(this, "IODC", bits(187, 10)),
      wnA(this, "WNa", bits(197, 13)),
      toa(this, "toa", bits(210, 8), {pow2(12)}),
      rev(this, "Rev", bits(218, 16), {flag(Hidden)}) {}

Message34Def::Message34Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges)
    : MessageDef(parent, std::move(name), std::move(ranges), 34),
      hs(this, "HS", bits(0, 2)),
      commonFields(this, "Common fields", bits(2, 10)),
      sisaiOc(this, "SISAIoc", bits(12, 22)),
      clockCorrection(this, "Clock correction parameters", bits(34, 69)),
      iodc(this, "IODC", bits(103, 10)),
      bdtUtcParameters(this, "BDT-UTC time offset parameters", bits(113, 97)),
      rev(this, "Rev", bits(210, 24), {flag(Hidden)}) {}

Message40Def::Message40Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges)
    : MessageDef(parent, std::move(name), std::move(ranges), 40),
      hs(this, "HS", bits(0, 2)),
      commonFields(this, "Common fields", bits(2, 10)),
      sisaiOe(this, "SISAIoe", bits(12, 5)),
      sisaiOc(this, "SISAIoc", bits(17, 22)),
      midiAlmanac(this, "Midi almanac", bits(39, 156)),
      rev(this, "Rev", bits(195, 39), {flag(Hidden)}) {}

}  // namespace ZeltNavMsg::BeidouCNav2
