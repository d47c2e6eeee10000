#ifndef ZELTNAVMSG_NAVMESSAGEDECODER_H
#define ZELTNAVMSG_NAVMESSAGEDECODER_H

#include <cstdint>
#include <exception>
#include <stdexcept>
#include <string>
#include <string_view>

#include "zeltnavmsg/Export.h"

namespace ZeltNavMsg {

class DecodedMessage;  // zeltnavmsg/DecodedMessage.h

// Signal of a satellite system. The numeric values are part of the interface.
enum class SignalType : std::int32_t {
    GpsL1CA = 0,
    GpsL1P = 1,
    GpsL1CAP = 2,
    GpsL1C = 3,
    GpsL2P = 4,
    GpsL2C = 5,
    GpsL5 = 6,
    GlonassL1 = 7,
    GlonassL2 = 8,
    GalileoE1 = 9,
    GalileoE5a = 10,
    GalileoE5b = 11,
    GalileoE6 = 12,
    BeidouB1I = 13,
    BeidouB2I = 14,
    BeidouB3I = 15,
    BeidouB1C = 16,
    BeidouB2a = 17,
    QzssL1CA = 18,
    QzssL2C = 19,
    QzssL5 = 20,
    IrnssL5 = 21,
    SbasL1 = 22,
    SbasL5 = 23,
};

// Navigation message format. The numeric values are part of the interface.
enum class MessageFormat : std::int32_t {
    GpsLNav = 0,
    GpsCNav2 = 1,
    CNav = 2,  // shared by GPS and QZSS
    GlonassFdma = 3,
    GalileoINav = 4,
    GalileoFNav = 5,
    BeidouD1 = 6,
    BeidouD2 = 7,
    BeidouCNav1 = 8,
    BeidouCNav2 = 9,
    QzssLNav = 10,
    Irnss = 11,
    Sbas = 12,
};

// The library's own refusal: unknown names, bad hex digits, unsupported formats.
// Derives directly from std::exception so that a host can tell it apart from
// std::runtime_error and the other standard errors that report internal faults.
class ZELTNAVMSG_API DecodingError : public std::exception {
  public:
    DecodingError();
    explicit DecodingError(const std::string& message);
    explicit DecodingError(const char* message);

    [[nodiscard]] const char* what() const noexcept override;

  private:
    // std::runtime_error keeps the text in a reference-counted buffer, so copying
    // a DecodingError (as throwing and catching by value do) never throws.
    std::runtime_error message_;
};

// Entry point of the library. All operations are static, hold no state and may be
// called from any number of threads at once.
class ZELTNAVMSG_API NavMessageDecoder {
  public:
    NavMessageDecoder() = default;

    // Signal of satellite `satIdStr` (only its first letter is looked at) named
    // `signalTypeStr`, e.g. ("G05", "L1CA") -> GpsL1CA, ("C11", "B2a") -> BeidouB2a.
    // Throws std::invalid_argument for an empty satIdStr, DecodingError otherwise.
    static SignalType GetSignalTypeFromString(std::string_view satIdStr,
                                              std::string_view signalTypeStr);

    // Message format named `messageFormatStr` for satellite `satIdStr`,
    // e.g. ("G05", "CNAV2") -> GpsCNav2, ("C30", "CNAV2") -> BeidouCNav2.
    static MessageFormat GetMessageFormatFromString(std::string_view satIdStr,
                                                    std::string_view messageFormatStr);

    // Name of the default format of the satellite's system: "LNAV", "D1" or "IRNSS".
    static std::string GetDefaultMessageFormatString(std::string_view satIdStr);

    // Human-readable listing of every field of one message given as hex text
    // (first digit = first four transmitted bits). Lines end with "\r\n".
    //
    // Errors: DecodingError for a non-hex character or an unsupported format;
    // std::out_of_range for an empty hex string; std::length_error for more than
    // 38 bytes of a 300-bit subframe format.
    static std::string Decode(MessageFormat format, std::int32_t subframeNumber,
                              std::int32_t pageNumber, std::string_view hexString);
    // The same listing appended to `out`, its lines ended by `lineEnd`: "\r\n" as above,
    // or "\n" (anything else throws std::invalid_argument). A caller decoding many
    // messages reuses one string, and one writing "\n" text needs no conversion. On an
    // error `out` is left as it was.
    static void Decode(MessageFormat format, std::int32_t subframeNumber, std::int32_t pageNumber,
                       std::string_view hexString, std::string& out,
                       std::string_view lineEnd = "\r\n");

    // Every field of the same message as data (zeltnavmsg/DecodedMessage.h), from the
    // same walk as the listing, with the interface documents' values. The input is
    // checked as Decode checks it: the same errors, messages and order.
    static DecodedMessage DecodeFields(MessageFormat format, std::int32_t subframeNumber,
                                       std::int32_t pageNumber, std::string_view hexString);
    // The same into `out`, reusing its storage.
    static void DecodeFields(MessageFormat format, std::int32_t subframeNumber,
                             std::int32_t pageNumber, std::string_view hexString,
                             DecodedMessage& out);
};

}  // namespace ZeltNavMsg

#endif
