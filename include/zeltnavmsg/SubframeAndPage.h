#ifndef ZELTNAVMSG_SUBFRAMEANDPAGE_H
#define ZELTNAVMSG_SUBFRAMEANDPAGE_H

#include <cstdint>
#include <span>
#include <string_view>

#include "zeltnavmsg/Export.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace ZeltNavMsg {

// The subframe and page numbers that NavMessageDecoder::Decode takes, as a message's
// own bits carry them.
struct SubframeAndPage {
    std::int32_t subframe = 0;
    std::int32_t page = 0;
};

// Reads the subframe and page of one message from its bits. Stateless; any number of
// threads may call it at once.
//
//   GpsLNav, QzssLNav  subframe ID of the HOW; for subframes 4 and 5 the page that the
//                      TOW count gives (25 pages of 30 s each, counted from the start of
//                      the week), 0 otherwise
//   BeidouD1           FraID; Pnum for subframes 4 and 5, 0 otherwise
//   BeidouD2           FraID; Pnum for subframes 1, 2 and 5, 0 otherwise
//   GpsCNav2           subframe 0, page = subframe 3 page number
//   BeidouCNav1        subframe 0, page = subframe 3 PageID
//   BeidouCNav2        subframe 0, page = MesType
//   Irnss              subframe ID + 1; the message ID for subframes 3 and 4, 0 otherwise
//
// The legacy formats read the words as received (interleaved and with parity, data
// bits inverted after D30 = 1), as Decode takes them. Bits the input does not reach
// read as zero; bits past the message are ignored.
class ZELTNAVMSG_API MessageNumbering {
  public:
    // From hex text as Decode takes it. Errors as Decode reports them: DecodingError
    // for a character that is not a hex digit or a format that is not decoded,
    // std::out_of_range for empty or all-white-space text.
    static SubframeAndPage GetSubframeAndPage(MessageFormat format, std::string_view hexString);

    // From bits packed first bit first (bit 0 = most significant bit of bytes[0]).
    // DecodingError for a format that is not decoded.
    static SubframeAndPage GetSubframeAndPage(MessageFormat format,
                                              std::span<const std::uint8_t> bytes);
};

}  // namespace ZeltNavMsg

#endif
