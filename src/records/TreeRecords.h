#ifndef ZELTNAVMSG_RECORDS_TREERECORDS_H
#define ZELTNAVMSG_RECORDS_TREERECORDS_H

#include "records/MessageWriter.h"

namespace ZeltNavMsg::Records {

// The records of a definition-tree format (GPS CNAV-2, B-CNAV1, B-CNAV2, IRNSS) whose
// frame bits the writer's bits() already hold, zero-filled to the frame length: the
// fields the listing walk reaches, in its order, with the hidden ones it skips.
void decodeTree(MessageFormat format, MessageWriter& writer);

// The frame length of a definition-tree format; 0 for the others.
[[nodiscard]] std::int32_t treeFrameBits(MessageFormat format) noexcept;

}  // namespace ZeltNavMsg::Records

#endif
