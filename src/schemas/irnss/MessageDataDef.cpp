#include "schemas/irnss/MessageDataDef.h"

namespace ZeltNavMsg::Irnss {

using namespace Schema;

// Each body is declared with its message type as container id and NoDefaults, so
// that writing defaults does not go through seven overlapping layouts.
MessageDataDef::MessageDataDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                               const Modifiers& modifiers)
    : SelectedByFieldDef(parent, std::move(name), std::move(ranges), modifiers),
      messageId(this, "Message ID", bits(0, 6)),
      messageBody(this, "Message data", bits(6, 220), {flag(Hidden)}),
      message5(this, "Message type 5 - Ionospheric grid corrections", bits(6, 220),
               {container(5), flag(NoDefaults)}),
      message7(this, "Message type 7 - Almanac", bits(6, 220), {container(7), flag(NoDefaults)}),
      message9(this, "Message type 9 - UTC and GPS time offsets", bits(6, 220),
               {container(9), flag(NoDefaults)}),
      message11(this, "Message type 11 - EOP and ionospheric parameters", bits(6, 220),
                {container(11), flag(NoDefaults)}),
      message14(this, "Message type 14 - Differential corrections", bits(6, 220),
                {container(14), flag(NoDefaults)}),
      message18(this, "Message type 18 - Text", bits(6, 220), {container(18), flag(NoDefaults)}),
      message26(this, "Message type 26 - UTC and GNSS time offsets", bits(6, 220),
                {container(26), flag(NoDefaults)}),
      prnId(this, "PRN ID", bits(226, 6)) {
    selectBy(messageId);
}

}  // namespace ZeltNavMsg::Irnss
