#include "zeltnavmsg/LogReader.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <stdexcept>

#include "checks/Crc.h"
#include "logs/ByteScan.h"
#include "logs/RecordBits.h"
#include "zeltnavmsg/SubframeAndPage.h"

namespace ZeltNavMsg {

namespace {

using Logs::le16;
using Logs::le32;
using Logs::MessageBits;

// Twice the largest frame: a frame cut by the end of a fed span is held here with room
// to spare, so the held bytes move to the front seldom.
constexpr std::size_t kBufferBytes = 2 * (LogReader::kMaxFrameBytes + 1);

using Logs::kUbxSync1;
constexpr std::size_t kUbxHeader = 6;
constexpr std::size_t kSbfHeader = 8;
constexpr std::size_t kSbfTimeEnd = 14;
constexpr std::size_t kSbfBody = 20;     // raw navigation blocks: NAVBits start here
constexpr std::size_t kFrameWords = 57;  // NAVBits of the L1C and B1C frame blocks

// UBX messages the reader looks at (class << 8 | id).
constexpr std::uint16_t kNavTimeGps = 0x0120;
constexpr std::uint16_t kRxmSfrbx = 0x0213;
constexpr std::uint16_t kRxmRawx = 0x0215;

// SBF raw navigation blocks.
constexpr std::uint16_t kGpsRawCa = 4017;
constexpr std::uint16_t kQzsRawL1Ca = 4066;
constexpr std::uint16_t kBdsRaw = 4047;
constexpr std::uint16_t kNavicRaw = 4093;
constexpr std::uint16_t kBdsRawB1c = 4218;
constexpr std::uint16_t kBdsRawB2a = 4219;
constexpr std::uint16_t kGpsRawL1c = 4221;
constexpr std::uint16_t kQzsRawL1c = 4227;
// Raw navigation blocks of signals this library does not decode: GPS L2C and L5,
// GLONASS, Galileo I/NAV, F/NAV and CNAV, SBAS L1 and L5.
constexpr std::uint16_t kUnmappedSbfRawNav[] = {4018, 4019, 4020, 4021, 4022,
                                                4023, 4024, 4026, 4067, 4068};

constexpr std::uint32_t kSbfTowUnknown = 0xFFFFFFFFU;
constexpr std::uint16_t kSbfWeekUnknown = 0xFFFF;
constexpr std::int32_t kSecondsPerWeek = 604800;

// What the reader knows of a signal: its system letter, enum value and name.
struct SignalInfo {
    char letter;
    SignalType signal;
    const char* name;
};

constexpr SignalInfo kGpsL1Ca{'G', SignalType::GpsL1CA, "L1CA"};
constexpr SignalInfo kGpsL1c{'G', SignalType::GpsL1C, "L1C"};
constexpr SignalInfo kQzssL1Ca{'J', SignalType::QzssL1CA, "L1CA"};
constexpr SignalInfo kQzssL1Cb{'J', SignalType::QzssL1CA, "L1CB"};
constexpr SignalInfo kQzssL1c{'J', SignalType::GpsL1C, "L1C"};
constexpr SignalInfo kBeidouB1I{'C', SignalType::BeidouB1I, "B1"};
constexpr SignalInfo kBeidouB2I{'C', SignalType::BeidouB2I, "B2"};
constexpr SignalInfo kBeidouB3I{'C', SignalType::BeidouB3I, "B3"};
constexpr SignalInfo kBeidouB1C{'C', SignalType::BeidouB1C, "B1C"};
constexpr SignalInfo kBeidouB2a{'C', SignalType::BeidouB2a, "B2a"};
constexpr SignalInfo kIrnssL5{'I', SignalType::IrnssL5, "L5"};

// BeiDou GEO satellites broadcast D2, the others D1.
MessageFormat beidouFormat(std::uint32_t prn) {
    return prn <= 5 || prn >= 59 ? MessageFormat::BeidouD2 : MessageFormat::BeidouD1;
}

// B-CNAV1 from u-blox comes as three records per frame: subframe 3 and subframe 2 of
// the frame that just ended, then subframe 1 of the one that began. A pair is sent
// when the next subframe 1 shows the following SOH.
struct B1cSatellite {
    static constexpr std::size_t kSf2Bytes = 76;  // 19 words, 600 bits used
    static constexpr std::size_t kSf3Bytes = 36;  // 9 words, 264 bits used

    bool haveSf1 = false;
    std::uint32_t prn = 0;
    std::uint32_t soh = 0;
    bool haveSf3 = false;
    std::array<std::uint8_t, kSf3Bytes> sf3{};
    bool havePair = false;
    std::array<std::uint8_t, kSf2Bytes> pairSf2{};
    std::array<std::uint8_t, kSf3Bytes> pairSf3{};
};

constexpr std::uint32_t kB1cSohCount = 200;  // SOH counts 18 s steps of the hour
constexpr std::size_t kBeidouPrns = 64;

}  // namespace

struct Detail::LogReaderState {
    // Frames are read where the fed bytes lie. Only a frame that the end of a fed span
    // cuts is copied here, and the next spans' bytes after it as far as it needs them.
    std::array<std::uint8_t, kBufferBytes> buffer{};
    std::size_t begin = 0;   // first byte not yet consumed
    std::size_t end = 0;     // end of the bytes held; 0 when none are
    std::size_t held = 0;    // buffer[0, held) came from earlier spans, the rest from `pending`
    std::uint64_t base = 0;  // stream offset of buffer[0]
    const std::uint8_t* pending = nullptr;
    std::size_t pendingSize = 0;
    // While bytes are held: the count copied from `pending`, so buffer[held, end) holds
    // pending[0, pendingAt). Otherwise the first byte of `pending` not yet consumed.
    std::size_t pendingAt = 0;
    std::uint64_t pendingBase = 0;  // stream offset of pending[0]
    bool finished = false;
    bool flushedB1c = false;
    LogReaderStats stats;

    bool hasTime = false;
    std::int32_t week = 0;
    double secondsOfWeek = 0.0;

    std::array<B1cSatellite, kBeidouPrns> b1c{};

    // The message being handed out.
    MessageBits bits;
    std::array<char, 4> satellite{};
    std::array<char, 2 * MessageBits::kBytes> hex{};
    LogProtocol protocol = LogProtocol::Ubx;
    std::uint64_t frameOffset = 0;
    // Time tag of the frame being handled.
    bool frameHasTime = false;
    std::int32_t frameWeek = 0;
    double frameSeconds = 0.0;

    void clear() noexcept {
        begin = end = held = 0;
        base = 0;
        pending = nullptr;
        pendingSize = pendingAt = 0;
        pendingBase = 0;
        finished = false;
        flushedB1c = false;
        stats = {};
        hasTime = false;
        week = 0;
        secondsOfWeek = 0.0;
        b1c.fill(B1cSatellite{});
    }

    enum class Read { Message, NeedMore };
    Read read(const std::uint8_t* data, std::size_t& at, std::size_t stop, std::uint64_t offset,
              std::size_t& needed, LogMessage& message);
    void holdRest();
    void topUp(std::size_t needed);
    void releasePending() noexcept;
    bool handleFrame(const std::uint8_t* frame, std::size_t size, LogMessage& message);
    bool handleUbx(const std::uint8_t* frame, std::size_t size, LogMessage& message);
    bool handleSbf(const std::uint8_t* block, std::size_t size, LogMessage& message);
    bool sfrbx(const std::uint8_t* payload, std::size_t size, LogMessage& message);
    bool b1cRecord(std::uint32_t svId, const std::uint8_t* words, std::size_t count,
                   LogMessage& message);
    bool sbfRawNav(std::uint16_t number, const std::uint8_t* block, std::size_t size,
                   LogMessage& message);
    bool emit(const SignalInfo& signal, std::uint32_t number, MessageFormat format,
              LogMessage& message);
};

// Reads the frames of data[at, stop), the span's first byte at stream offset `offset`,
// until one completes a message (Message), or until a frame that may begin at `at`
// needs `needed` bytes from there, more than there are (NeedMore). Bytes passed over
// count as skipped.
Detail::LogReaderState::Read Detail::LogReaderState::read(const std::uint8_t* data, std::size_t& at,
                                                          std::size_t stop, std::uint64_t offset,
                                                          std::size_t& needed,
                                                          LogMessage& message) {
    std::size_t p = at;
    for (;;) {
        p = Logs::findSync(data, p, stop);
        stats.skippedBytes += p - at;
        at = p;
        const std::size_t there = stop - p;
        if (there < 2) {
            needed = 2;
            return Read::NeedMore;
        }
        std::size_t size = 0;
        if (data[p] == kUbxSync1) {
            if (there < kUbxHeader) {
                needed = kUbxHeader;
                return Read::NeedMore;
            }
            size = kUbxHeader + le16(data + p + 4) + 2;
            if (there < size) {
                needed = size;
                return Read::NeedMore;
            }
            const Logs::Fletcher8 sums = Logs::fletcher8(data + p + 2, size - 4);
            if (((sums.a ^ data[p + size - 2]) & 0xFFU) == 0 &&
                ((sums.b ^ data[p + size - 1]) & 0xFFU) == 0) {
                protocol = LogProtocol::Ubx;
            } else {
                ++stats.ubxBadChecksums;
                size = 0;
            }
        } else {
            if (there < kSbfHeader) {
                needed = kSbfHeader;
                return Read::NeedMore;
            }
            size = le16(data + p + 6);
            if (size < kSbfHeader || size % 4 != 0) {
                ++stats.sbfBadLengths;
                size = 0;
            } else if (there < size) {
                needed = size;
                return Read::NeedMore;
            } else if (Checks::Crc16XModem::ofBits(data + p + 4, 0, 8 * (size - 4)) ==
                       le16(data + p + 2)) {
                protocol = LogProtocol::Sbf;
            } else {
                ++stats.sbfBadCrcs;
                size = 0;
            }
        }
        if (size == 0) {
            // Not a frame: the search goes on at the next byte.
            ++stats.skippedBytes;
            at = ++p;
            continue;
        }
        frameOffset = offset + p;
        at = p += size;
        if (handleFrame(data + p - size, size, message)) {
            return Read::Message;
        }
    }
}

// The rest of the fed span, a frame's beginning, is held for the next span.
void Detail::LogReaderState::holdRest() {
    const std::size_t n = pendingSize - pendingAt;
    std::memcpy(buffer.data(), pending + pendingAt, n);
    base = pendingBase + pendingAt;
    begin = 0;
    end = held = n;
    pendingAt = pendingSize;
}

// Copies from the fed span until `needed` bytes from `begin` are held, or the span is
// all copied.
void Detail::LogReaderState::topUp(std::size_t needed) {
    if (begin + needed > buffer.size()) {
        std::memmove(buffer.data(), buffer.data() + begin, end - begin);
        base += begin;
        held -= begin;
        end -= begin;
        begin = 0;
    }
    const std::size_t n = std::min(pendingSize - pendingAt, begin + needed - end);
    std::memcpy(buffer.data() + end, pending + pendingAt, n);
    end += n;
    pendingAt += n;
}

// The fed span is read: it goes back to the caller, and what is held is all older.
void Detail::LogReaderState::releasePending() noexcept {
    pending = nullptr;
    pendingSize = pendingAt = 0;
    held = end;
}

bool Detail::LogReaderState::handleFrame(const std::uint8_t* frame, std::size_t size,
                                         LogMessage& message) {
    if (protocol == LogProtocol::Ubx) {
        ++stats.ubxFrames;
        return handleUbx(frame, size, message);
    }
    ++stats.sbfBlocks;
    return handleSbf(frame, size, message);
}

bool Detail::LogReaderState::handleUbx(const std::uint8_t* frame, std::size_t size,
                                       LogMessage& message) {
    const auto kind = static_cast<std::uint16_t>((frame[2] << 8) | frame[3]);
    const std::uint8_t* payload = frame + kUbxHeader;
    const std::size_t length = size - kUbxHeader - 2;
    switch (kind) {
        case kRxmSfrbx:
            frameHasTime = hasTime;
            frameWeek = week;
            frameSeconds = secondsOfWeek;
            return sfrbx(payload, length, message);
        case kRxmRawx:
            if (length >= 16) {
                double tow = 0.0;
                std::uint64_t raw = 0;
                for (int i = 7; i >= 0; --i) {
                    raw = (raw << 8) | payload[i];
                }
                std::memcpy(&tow, &raw, sizeof tow);
                if (tow >= 0.0 && tow < kSecondsPerWeek) {
                    hasTime = true;
                    secondsOfWeek = tow;
                    week = le16(payload + 8);
                }
            }
            return false;
        case kNavTimeGps:
            // Used when the receiver marks both time of week and week valid.
            if (length >= 16 && (payload[11] & 3U) == 3U) {
                const auto itow = static_cast<std::int64_t>(le32(payload));
                const auto ftow = static_cast<std::int32_t>(le32(payload + 4));
                std::int32_t weekNumber = static_cast<std::int16_t>(le16(payload + 8));
                double tow = static_cast<double>(itow) * 1e-3 + static_cast<double>(ftow) * 1e-9;
                if (tow < 0.0) {
                    tow += kSecondsPerWeek;
                    --weekNumber;
                }
                hasTime = true;
                secondsOfWeek = tow;
                week = weekNumber;
            }
            return false;
        default:
            return false;
    }
}

bool Detail::LogReaderState::sfrbx(const std::uint8_t* payload, std::size_t size,
                                   LogMessage& message) {
    ++stats.navRecords;
    if (size < 8 || size != 8 + 4 * std::size_t{payload[4]}) {
        ++stats.malformedRecords;
        return false;
    }
    const std::uint32_t gnss = payload[0];
    const std::uint32_t sv = payload[1];
    const std::uint32_t sig = payload[2];
    const std::size_t count = payload[4];
    const std::uint8_t* words = payload + 8;

    const SignalInfo* signal = nullptr;
    MessageFormat format = MessageFormat::GpsLNav;
    if (gnss == 0 && sig == 0) {
        signal = &kGpsL1Ca;
    } else if (gnss == 5 && (sig == 0 || sig == 12)) {
        signal = sig == 0 ? &kQzssL1Ca : &kQzssL1Cb;
        format = MessageFormat::QzssLNav;
    } else if (gnss == 3) {
        switch (sig) {
            case 0:
            case 1:
                signal = &kBeidouB1I;
                break;
            case 2:
            case 3:
                signal = &kBeidouB2I;
                break;
            case 4:
            case 10:
                signal = &kBeidouB3I;
                break;
            case 6:
                if (sv == 0 || sv >= kBeidouPrns) {
                    ++stats.malformedRecords;
                    return false;
                }
                return b1cRecord(sv, words, count, message);
            case 8:
                signal = &kBeidouB2a;
                format = MessageFormat::BeidouCNav2;
                break;
            default:
                break;
        }
        if (format != MessageFormat::BeidouCNav2) {
            format = beidouFormat(sv);
        }
    }
    if (signal == nullptr) {
        ++stats.unmappedSignals;
        return false;
    }
    const bool svInRange = sv >= 1 && (gnss == 5 ? sv <= 10 : sv < kBeidouPrns);
    const std::size_t expected = format == MessageFormat::BeidouCNav2 ? 9 : 10;
    if (!svInRange || count != expected) {
        ++stats.malformedRecords;
        return false;
    }

    bits.clear();
    if (format == MessageFormat::BeidouCNav2) {
        std::array<std::uint8_t, 36> raw{};
        Logs::wordsToBits(words, 9, raw.data());
        bits.appendBits(raw.data(), 0, 288);
    } else {
        std::array<std::uint32_t, 10> stored{};
        for (std::size_t i = 0; i < stored.size(); ++i) {
            stored[i] = le32(words + 4 * i);
        }
        if (gnss == 3) {
            Logs::appendBeidouWords(stored, bits);
        } else {
            Logs::appendLNavWords(stored, bits);
        }
    }
    return emit(*signal, sv, format, message);
}

bool Detail::LogReaderState::b1cRecord(std::uint32_t svId, const std::uint8_t* words,
                                       std::size_t count, LogMessage& message) {
    B1cSatellite& sat = b1c[svId];
    switch (count) {
        case 9: {  // subframe 3: it waits for its subframe 2
            std::array<std::uint8_t, B1cSatellite::kSf3Bytes> raw{};
            Logs::wordsToBits(words, count, raw.data());
            if (sat.haveSf3) {
                ++stats.incompleteFrames;
            }
            sat.haveSf3 = Logs::crc24Passes(raw.data(), 0, 240);
            if (sat.haveSf3) {
                sat.sf3 = raw;
            } else {
                ++stats.failedChecks;
            }
            return false;
        }
        case 19: {  // subframe 2: with the waiting subframe 3, a pair
            std::array<std::uint8_t, B1cSatellite::kSf2Bytes> raw{};
            Logs::wordsToBits(words, count, raw.data());
            if (!Logs::crc24Passes(raw.data(), 0, 576)) {
                ++stats.failedChecks;
                stats.incompleteFrames += sat.haveSf3 ? 1 : 0;
                sat.haveSf3 = false;
                return false;
            }
            if (!sat.haveSf3) {
                ++stats.incompleteFrames;
                return false;
            }
            stats.incompleteFrames += sat.havePair ? 1 : 0;
            sat.havePair = true;
            sat.pairSf2 = raw;
            sat.pairSf3 = sat.sf3;
            sat.haveSf3 = false;
            return false;
        }
        case 3: {  // subframe 1 of the next frame: sends the pair of the previous one
            std::array<std::uint8_t, 12> raw{};
            Logs::wordsToBits(words, count, raw.data());
            if (!Logs::b1cSubframe1Passes(raw.data())) {
                ++stats.failedChecks;
                return false;
            }
            const std::uint32_t prn = Logs::readBits(raw.data(), 0, 6);
            const std::uint32_t soh = Logs::readBits(raw.data(), 21, 8);
            const bool send = sat.havePair && sat.haveSf1 && soh == (sat.soh + 1) % kB1cSohCount;
            if (sat.havePair && !send) {
                ++stats.incompleteFrames;
            }
            if (send) {
                bits.clear();
                bits.append(sat.prn, 6);
                bits.append(sat.soh, 8);
                bits.appendBits(sat.pairSf2.data(), 0, 600);
                bits.appendBits(sat.pairSf3.data(), 0, 264);
            }
            sat.havePair = false;
            sat.haveSf1 = true;
            sat.prn = prn;
            sat.soh = soh;
            return send && emit(kBeidouB1C, svId, MessageFormat::BeidouCNav1, message);
        }
        default:
            ++stats.malformedRecords;
            return false;
    }
}

bool Detail::LogReaderState::handleSbf(const std::uint8_t* block, std::size_t size,
                                       LogMessage& message) {
    const auto number = static_cast<std::uint16_t>(le16(block + 4) & 0x1FFFU);
    switch (number) {
        case kGpsRawCa:
        case kQzsRawL1Ca:
        case kBdsRaw:
        case kNavicRaw:
        case kBdsRawB1c:
        case kBdsRawB2a:
        case kGpsRawL1c:
        case kQzsRawL1c:
            ++stats.navRecords;
            if (size < kSbfTimeEnd) {
                ++stats.malformedRecords;
                return false;
            }
            {
                const std::uint32_t tow = le32(block + 8);
                const std::uint16_t wnc = le16(block + 12);
                frameHasTime = tow != kSbfTowUnknown && wnc != kSbfWeekUnknown;
                frameWeek = wnc;
                frameSeconds = static_cast<double>(tow) * 1e-3;
            }
            return sbfRawNav(number, block, size, message);
        default:
            if (std::find(std::begin(kUnmappedSbfRawNav), std::end(kUnmappedSbfRawNav), number) !=
                std::end(kUnmappedSbfRawNav)) {
                ++stats.navRecords;
                ++stats.unmappedSignals;
            }
            return false;
    }
}

bool Detail::LogReaderState::sbfRawNav(std::uint16_t number, const std::uint8_t* block,
                                       std::size_t size, LogMessage& message) {
    const bool frame = number == kBdsRawB1c || number == kGpsRawL1c || number == kQzsRawL1c;
    const std::size_t words = frame ? kFrameWords : (number == kBdsRawB2a ? 18 : 10);
    if (size < kSbfBody + 4 * words) {
        ++stats.malformedRecords;
        return false;
    }
    const std::uint32_t svid = block[14];
    const std::uint8_t* navBits = block + kSbfBody;

    // SVID numbering: 1-37 GPS, 141-180 and 223-245 BeiDou, 181-187 QZSS, 191-197 and
    // 216-222 NavIC.
    std::uint32_t prn = 0;
    char letter = 'G';
    if (svid >= 1 && svid <= 37) {
        prn = svid;
    } else if (svid >= 141 && svid <= 180) {
        prn = svid - 140;
        letter = 'C';
    } else if (svid >= 223 && svid <= 245) {
        prn = svid - 182;
        letter = 'C';
    } else if (svid >= 181 && svid <= 187) {
        prn = svid - 180;
        letter = 'J';
    } else if (svid >= 191 && svid <= 197) {
        prn = svid - 190;
        letter = 'I';
    } else if (svid >= 216 && svid <= 222) {
        prn = svid - 208;
        letter = 'I';
    }

    const SignalInfo* signal = nullptr;
    MessageFormat format = MessageFormat::GpsLNav;
    switch (number) {
        case kGpsRawCa:
            signal = &kGpsL1Ca;
            break;
        case kQzsRawL1Ca:
            signal = &kQzssL1Ca;
            format = MessageFormat::QzssLNav;
            break;
        case kBdsRaw:
            switch (block[17] & 0x1FU) {  // Source: the signal number
                case 28:
                    signal = &kBeidouB1I;
                    break;
                case 29:
                    signal = &kBeidouB2I;
                    break;
                case 30:
                    signal = &kBeidouB3I;
                    break;
                default:
                    ++stats.unmappedSignals;
                    return false;
            }
            format = beidouFormat(prn);
            break;
        case kNavicRaw:
            signal = &kIrnssL5;
            format = MessageFormat::Irnss;
            break;
        case kBdsRawB1c:
            signal = &kBeidouB1C;
            format = MessageFormat::BeidouCNav1;
            break;
        case kBdsRawB2a:
            signal = &kBeidouB2a;
            format = MessageFormat::BeidouCNav2;
            break;
        case kGpsRawL1c:
            signal = &kGpsL1c;
            format = MessageFormat::GpsCNav2;
            break;
        default:
            signal = &kQzssL1c;
            format = MessageFormat::GpsCNav2;
            break;
    }
    if (prn == 0 || letter != signal->letter) {
        ++stats.malformedRecords;
        return false;
    }
    // The receiver's own parity or CRC verdict (both subframes for the L1C and B1C
    // frames).
    if (block[15] == 0 || (frame && block[16] == 0)) {
        ++stats.failedChecks;
        return false;
    }

    std::array<std::uint8_t, 4 * kFrameWords> raw{};
    Logs::wordsToBits(navBits, words, raw.data());
    bits.clear();
    switch (format) {
        case MessageFormat::GpsLNav:
        case MessageFormat::QzssLNav:
        case MessageFormat::BeidouD1:
        case MessageFormat::BeidouD2: {
            std::array<std::uint32_t, 10> stored{};
            for (std::size_t i = 0; i < stored.size(); ++i) {
                // LNAV: one right-aligned word per U4; BeiDou: 300 bits packed.
                stored[i] = signal->letter == 'C' ? Logs::readBits(raw.data(), 30 * i, 30)
                                                  : le32(navBits + 4 * i);
            }
            if (signal->letter == 'C') {
                Logs::appendBeidouWords(stored, bits);
            } else {
                Logs::appendLNavWords(stored, bits);
            }
            break;
        }
        case MessageFormat::Irnss:
            bits.appendBits(raw.data(), 0, 292);
            break;
        case MessageFormat::BeidouCNav2:
            // The first 288 of the 576 bits: the message ahead of its LDPC parity.
            if (!Logs::crc24Passes(raw.data(), 0, 264)) {
                ++stats.failedChecks;
                return false;
            }
            bits.appendBits(raw.data(), 0, 288);
            break;
        case MessageFormat::BeidouCNav1: {
            // Symbols: subframe 1 (72), 2 (1200) and 3 (528); the LDPC codes are
            // systematic, so the data lead subframes 2 and 3.
            constexpr std::size_t kSf2 = 72;
            constexpr std::size_t kSf3 = kSf2 + 1200;
            if (!Logs::b1cSubframe1Passes(raw.data()) ||
                !Logs::crc24Passes(raw.data(), kSf2, 576) ||
                !Logs::crc24Passes(raw.data(), kSf3, 240)) {
                ++stats.failedChecks;
                return false;
            }
            bits.append(Logs::readBits(raw.data(), 0, 6), 6);
            bits.append(Logs::readBits(raw.data(), 21, 8), 8);
            bits.appendBits(raw.data(), kSf2, 600);
            bits.appendBits(raw.data(), kSf3, 264);
            break;
        }
        default: {  // GPS CNAV-2: subframe 1 (52), 2 (1200) and 3 (548)
            constexpr std::size_t kSf2 = 52;
            constexpr std::size_t kSf3 = kSf2 + 1200;
            const std::int32_t toi = Logs::l1cToi(raw.data(), 0);
            if (toi < 0 || !Logs::crc24Passes(raw.data(), kSf2, 576) ||
                !Logs::crc24Passes(raw.data(), kSf3, 250)) {
                ++stats.failedChecks;
                return false;
            }
            bits.append(static_cast<std::uint32_t>(toi), 9);
            bits.appendBits(raw.data(), kSf2, 600);
            bits.appendBits(raw.data(), kSf3, 274);
            break;
        }
    }
    return emit(*signal, prn, format, message);
}

bool Detail::LogReaderState::emit(const SignalInfo& signal, std::uint32_t number,
                                  MessageFormat format, LogMessage& message) {
    satellite[0] = signal.letter;
    satellite[1] = static_cast<char>('0' + number / 10 % 10);
    satellite[2] = static_cast<char>('0' + number % 10);
    const std::size_t digits = Logs::writeHex(bits, hex.data());
    const SubframeAndPage numbers = MessageNumbering::GetSubframeAndPage(
        format, std::span<const std::uint8_t>(bits.bytes.data(), (bits.bitCount + 7) / 8));

    message.satellite = std::string_view(satellite.data(), 3);
    message.signal = signal.signal;
    message.signalName = signal.name;
    message.format = format;
    message.subframe = numbers.subframe;
    message.page = numbers.page;
    message.hex = std::string_view(hex.data(), digits);
    message.bitCount = static_cast<std::int32_t>(bits.bitCount);
    message.protocol = protocol;
    message.streamOffset = frameOffset;
    message.hasTime = frameHasTime;
    message.week = frameHasTime ? frameWeek : 0;
    message.secondsOfWeek = frameHasTime ? frameSeconds : 0.0;
    ++stats.messages;
    return true;
}

LogReader::LogReader() : state_(std::make_unique<Detail::LogReaderState>()) {}
LogReader::~LogReader() = default;
LogReader::LogReader(LogReader&& other) noexcept = default;
LogReader& LogReader::operator=(LogReader&& other) noexcept = default;

void LogReader::feed(std::span<const std::uint8_t> bytes) {
    Detail::LogReaderState& s = *state_;
    if (s.finished) {
        throw std::logic_error("LogReader::feed: the stream is finished; reset() starts another");
    }
    if (s.pendingSize != 0) {
        throw std::logic_error(
            "LogReader::feed: bytes of the previous feed are unread; call next() until false");
    }
    s.pending = bytes.data();
    s.pendingSize = bytes.size();
    s.pendingAt = 0;
    s.pendingBase = s.stats.bytes;
    s.stats.bytes += bytes.size();
}

void LogReader::feed(std::string_view bytes) {
    feed(std::span<const std::uint8_t>(reinterpret_cast<const std::uint8_t*>(bytes.data()),
                                       bytes.size()));
}

void LogReader::finish() {
    state_->finished = true;
}

bool LogReader::next(LogMessage& message) {
    Detail::LogReaderState& s = *state_;
    for (;;) {
        if (s.end != 0 && s.begin >= s.held) {
            // Whatever is left of the held bytes was copied from the fed span: go on there.
            s.pendingAt = s.begin - s.held;
            s.begin = s.end = s.held = 0;
        }
        const bool holding = s.end != 0;
        const std::uint8_t* const data = holding ? s.buffer.data() : s.pending;
        std::size_t& at = holding ? s.begin : s.pendingAt;
        const std::size_t stop = holding ? s.end : s.pendingSize;
        std::size_t needed = 0;
        if (s.read(data, at, stop, holding ? s.base : s.pendingBase, needed, message) ==
            Detail::LogReaderState::Read::Message) {
            return true;
        }
        if (holding && s.begin >= s.held) {
            continue;
        }
        if (holding && s.pendingAt < s.pendingSize) {
            s.topUp(needed);
            continue;
        }
        if (!s.finished) {
            if (!holding && at < stop) {
                s.holdRest();
            }
            s.releasePending();
            return false;
        }
        // End of the stream: a sync pair left at `at` starts a frame that was cut.
        if (stop - at >= 2) {
            ++s.stats.truncatedFrames;
            ++s.stats.skippedBytes;
            ++at;
            continue;
        }
        s.stats.skippedBytes += stop - at;
        s.begin = s.end = s.held = 0;
        s.releasePending();
        if (!s.flushedB1c) {
            s.flushedB1c = true;
            for (B1cSatellite& sat : s.b1c) {
                s.stats.incompleteFrames += (sat.haveSf3 ? 1 : 0) + (sat.havePair ? 1 : 0);
                sat = B1cSatellite{};
            }
        }
        return false;
    }
}

const LogReaderStats& LogReader::stats() const noexcept {
    return state_->stats;
}

void LogReader::reset() noexcept {
    state_->clear();
}

}  // namespace ZeltNavMsg
