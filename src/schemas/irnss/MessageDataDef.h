#ifndef ZELTNAVMSG_SCHEMAS_IRNSS_MESSAGEDATADEF_H
#define ZELTNAVMSG_SCHEMAS_IRNSS_MESSAGEDATADEF_H

#include "schemas/SchemaTypes.h"
#include "schemas/irnss/Message11Def.h"
#include "schemas/irnss/Message14Def.h"
#include "schemas/irnss/Message18Def.h"
#include "schemas/irnss/Message5Def.h"
#include "schemas/irnss/Message7Def.h"
#include "schemas/irnss/TimeOffsetsMessageDefs.h"

namespace ZeltNavMsg::Irnss {

// The data of subframes 3 and 4, 232 bits: message ID, a 220-bit body, PRN ID. The
// body shown is the message whose container id is the "Message ID"; any other
// message type (the null message 0 included) shows no body.
class MessageDataDef : public SelectedByFieldDef {
  public:
    MessageDataDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                   const Modifiers& modifiers = {});

    Schema::Unsigned messageId;
    Schema::Unsigned messageBody;  // the 220 body bits as one hidden raw field
    Message5Def message5;
    Message7Def message7;
    Message9Def message9;
    Message11Def message11;
    Message14Def message14;
    Message18Def message18;
    Message26Def message26;
    Schema::Unsigned prnId;
};

}  // namespace ZeltNavMsg::Irnss

#endif
