#ifndef ZELTNAVMSG_RECORDS_LAYOUTNAMES_H
#define ZELTNAVMSG_RECORDS_LAYOUTNAMES_H

#include <cstdint>
#include <span>
#include <string>

#include "bits/BitBuffer.h"
#include "zeltnavmsg/NavMessageDecoder.h"

// Short readable names of the layouts the decoders choose, for DecodedMessage::layout:
// "Subframe 4 page 18: ionosphere and UTC", "Message type 30: clock, ionosphere and
// group delays".

namespace ZeltNavMsg::Records {

// A 300-bit subframe decoded with layout `layoutId` of its format's table; `svId`
// is given (>= 0) when the layout was chosen by the QZSS SV ID rather than the page.
void appendLegacyLayout(MessageFormat format, std::int32_t subframe, std::int32_t page,
                        std::int32_t layoutId, std::int32_t svId, std::string& out);

// A frame decoded by its tree; `variants` are the container ids of the variant
// structures the walk entered, outermost first.
void appendTreeLayout(MessageFormat format, ConstBitBuffer bits,
                      std::span<const std::int32_t> variants, std::string& out);

}  // namespace ZeltNavMsg::Records

#endif
