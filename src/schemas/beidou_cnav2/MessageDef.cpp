#include "schemas/beidou_cnav2/MessageDef.h"

namespace ZeltNavMsg::BeidouCNav2 {

using namespace Schema;

MessageDef::MessageDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                       std::int32_t messageType)
    : BitStructDef(parent, std::move(name), std::move(ranges),
                   {container(messageType), flag(NoDefaults)}) {}

CommonFieldsDef::CommonFieldsDef(BitStructDef* parent, std::string name,
                                 std::vector<BitRange> ranges)
    : BitStructDef(parent, std::move(name), std::move(ranges), {flag(Transparent)}),
      difB2a(this, "DIF (B2a)", bits(0, 1)),
      sifB2a(this, "SIF (B2a)", bits(1, 1)),
      aifB2a(this, "AIF (B2a)", bits(2, 1)),
      sismai(this, "SISMAI", bits(3, 4)),
      difB1c(this, "DIF (B1C)", bits(7, 1)),
      sifB1c(this, "SIF (B1C)", bits(8, 1)),
      aifB1c(this, "AIF (B1C)", bits(9, 1)) {}

}  // namespace ZeltNavMsg::BeidouCNav2
