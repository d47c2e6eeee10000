#ifndef ZELTNAVMSG_LOGREADER_H
#define ZELTNAVMSG_LOGREADER_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "zeltnavmsg/Export.h"
#include "zeltnavmsg/NavMessageDecoder.h"

// Navigation messages out of a receiver's binary log: u-blox UBX (RXM-SFRBX) and
// Septentrio SBF raw-navigation blocks, in any mix with other data, turned into the
// input NavMessageDecoder::Decode takes.

namespace ZeltNavMsg {

namespace Detail {
struct LogReaderState;  // the reader's buffer and state, private to the library
}  // namespace Detail

enum class LogProtocol : std::uint8_t {
    Ubx = 0,  // u-blox UBX frame
    Sbf = 1,  // Septentrio SBF block
};

// One navigation message found in a log.
//
// The string views point into the reader (satellite, hex) or at constant text
// (signalName); they stay valid until the next call of next() or reset() on the same
// reader, or its destruction. Copy what must live longer.
struct LogMessage {
    std::string_view satellite;  // "G05", "C21", "J02", "I09"
    SignalType signal = SignalType::GpsL1CA;
    // The library's name of the signal where it has one, so that
    // GetSignalTypeFromString(satellite, signalName) gives `signal`: "L1CA", "B1", "B2",
    // "B3", "B1C", "B2a", "L5", "L1C"; "L1CB" for QZSS L1C/B, which reports QzssL1CA.
    std::string_view signalName;
    MessageFormat format = MessageFormat::GpsLNav;
    // As MessageNumbering::GetSubframeAndPage reads them from the bits.
    std::int32_t subframe = 0;
    std::int32_t page = 0;
    // The message bits, first transmitted bit first, as lower-case hex digits: the text
    // Decode takes. Legacy subframes keep their parity and interleaving as transmitted.
    std::string_view hex;
    std::int32_t bitCount = 0;  // bits of the message; the last digit is zero-padded

    LogProtocol protocol = LogProtocol::Ubx;
    // Offset in the stream of the first byte of the frame or block that completed the
    // message (for B-CNAV1 from u-blox, the subframe 1 record that follows it).
    std::uint64_t streamOffset = 0;

    // The receiver's time tag, GPS week and seconds of week (GPS time), when the log
    // has one:
    //   SBF  the block's TOW and WNc: the receiver time at the end of the subframe or
    //        frame (absent when the block marks them as not available);
    //   UBX  the latest RXM-RAWX (rcvTow, week) or valid NAV-TIMEGPS (iTOW + fTOW,
    //        week) before the frame: the receiver's last navigation epoch, a little
    //        after the end of the subframe; absent before the first of them.
    bool hasTime = false;
    std::int32_t week = 0;
    double secondsOfWeek = 0.0;
};

// What the reader met, counted since construction or reset(). Nothing here stops it.
struct LogReaderStats {
    std::uint64_t bytes = 0;            // bytes scanned
    std::uint64_t skippedBytes = 0;     // bytes outside every good frame and block
    std::uint64_t ubxFrames = 0;        // UBX frames with a good checksum, any class
    std::uint64_t sbfBlocks = 0;        // SBF blocks with a good CRC, any number
    std::uint64_t ubxBadChecksums = 0;  // UBX sync and length, checksum wrong
    std::uint64_t sbfBadCrcs = 0;       // SBF sync and length, CRC wrong
    std::uint64_t sbfBadLengths = 0;    // SBF sync with a length under 8 or not a multiple of 4
    // A sync and header whose frame the end of the stream cut (counted by finish()).
    std::uint64_t truncatedFrames = 0;

    std::uint64_t navRecords = 0;       // RXM-SFRBX frames and SBF raw-navigation blocks
    std::uint64_t unmappedSignals = 0;  // records of a signal this library does not decode
    // Records whose length, word count or satellite number does not fit their signal.
    std::uint64_t malformedRecords = 0;
    // Records that failed a check made before conversion: SBF CRCPassed = 0, B-CNAV1
    // subframe 1 BCH and subframe 2/3 CRC, and the CRCs guarding the SBF B1C, B2a and
    // L1C frame layouts.
    std::uint64_t failedChecks = 0;
    // B-CNAV1 frames from u-blox whose subframe 2 and 3 records made no message: a
    // pair without the subframe 1 records before and after it, or a record without its
    // partner. One per frame.
    std::uint64_t incompleteFrames = 0;
    std::uint64_t messages = 0;  // messages yielded by next()
};

// Pull reader of a byte stream. Typical use:
//
//   LogReader reader;
//   LogMessage message;
//   while (more input) {
//       reader.feed(chunk);
//       while (reader.next(message)) { ... }
//   }
//   reader.finish();
//   while (reader.next(message)) { ... }
//
// Chunks may have any size and split frames anywhere. A frame is taken when its sync
// bytes, length and checksum (UBX: 8-bit Fletcher; SBF: CRC-16) agree; otherwise the
// search goes on at the next byte, so other data between frames (NMEA text, other
// binary messages) is skipped. Memory is fixed at construction (a buffer of twice the
// largest frame either protocol allows, about 128 KiB, and per-satellite state), whatever
// the stream's length. One reader serves one stream and one thread at a time; readers
// are independent of each other.
class ZELTNAVMSG_API LogReader {
  public:
    // The largest UBX frame (65535 payload bytes, 8 of framing); SBF blocks are shorter.
    static constexpr std::size_t kMaxFrameBytes = 65543;

    LogReader();
    ~LogReader();
    // A moved-from reader may only be assigned to or destroyed.
    LogReader(LogReader&& other) noexcept;
    LogReader& operator=(LogReader&& other) noexcept;
    LogReader(const LogReader&) = delete;
    LogReader& operator=(const LogReader&) = delete;

    // Hands over the next bytes of the stream. They are not copied at once: the bytes
    // must stay valid and unchanged until next() has returned false. Throws
    // std::logic_error when bytes of the previous feed() are still unread or after
    // finish().
    void feed(std::span<const std::uint8_t> bytes);
    void feed(std::string_view bytes);

    // The end of the stream: next() then reads out what is left, counts a frame the
    // stream cut as truncated and drops B-CNAV1 records still waiting for partners.
    void finish();

    // The next message, if the bytes handed over so far complete one; false when more
    // input (or finish()) is needed, or when the stream is done.
    [[nodiscard]] bool next(LogMessage& message);

    [[nodiscard]] const LogReaderStats& stats() const noexcept;

    // Forgets the stream, its state and the counts: ready for a new stream.
    void reset() noexcept;

  private:
    std::unique_ptr<Detail::LogReaderState> state_;
};

}  // namespace ZeltNavMsg

#endif
