#ifndef ZELTNAVMSG_RECORDS_LEGACYRECORDS_H
#define ZELTNAVMSG_RECORDS_LEGACYRECORDS_H

#include "legacy/Subframe.h"
#include "records/MessageWriter.h"

namespace ZeltNavMsg::Records {

// The records of a 300-bit subframe (GPS/QZSS LNAV, BeiDou D1/D2) given as the
// listing's record `sf` (data as received, subframe, page, bit count): the table
// entries the listing's plan selects, both passes, with the parity and reserved
// entries the listing leaves out.
void decodeSubframe(MessageFormat format, const Legacy::subframe_t& sf, MessageWriter& writer);

}  // namespace ZeltNavMsg::Records

#endif
