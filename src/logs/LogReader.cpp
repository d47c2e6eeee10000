#include "zeltnavmsg/LogReader.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <stdexcept>

#include "checks/Crc.h"
#include "logs/RecordBits.h"
#include "zeltnavmsg/SubframeAndPage.h"

namespace ZeltNavMsg {

namespace {

using Logs::le16;
using Logs::le32;
using Logs::MessageBits;

// Twice the largest frame: whatever part of a frame is kept at a refill, the rest of
// it fits behind.
constexpr std::size_t kBufferBytes = 2 * (LogReader::kMaxFrameBytes + 1);

constexpr std::uint8_t kUbxSync1 = 0xB5;
constexpr std::uint8_t kUbxSync2 = 0x62;
constexpr std::uint8_t kSbfSync1 = 0x24;  // '$'
constexpr std::uint8_t kSbfSync2 = 0x40;  // '@'
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

// Byte -> 1 for the first byte of a sync pair.
constexpr std::array<std::uint8_t, 256> kSyncStart = [] {
    std::array<std::uint8_t, 256> table{};
    table[kUbxSync1] = 1;
    table[kSbfSync1] = 1;
    return table;
}();

bool isSyncPair(std::uint8_t first, std::uint8_t second) {
    return (first == kUbxSync1 && second == kUbxSync2) ||
           (first == kSbfSync1 && second == kSbfSync2);
}

// Whether any of the eight bytes of `word` is `byte` (exact: a zero byte of the XOR
// borrows into its own high bit only).
constexpr bool hasByte(std::uint64_t word, std::uint8_t byte) {
    constexpr std::uint64_t kOnes = 0x0101010101010101U;
    constexpr std::uint64_t kHighBits = 0x8080808080808080U;
    const std::uint64_t x = word ^ (kOnes * byte);
    return ((x - kOnes) & ~x & kHighBits) != 0;
}

// The first sync pair at or after `p`, or the last byte before `end` (which may begin a
// pair), or `end`. Eight bytes at a time where none of them can begin a pair.
std::size_t findSyncPair(const std::uint8_t* data, std::size_t p, std::size_t end) {
    while (p + 1 < end) {
        if (p + 8 < end) {
            std::uint64_t word = 0;
            std::memcpy(&word, data + p, sizeof word);
            if (!hasByte(word, kUbxSync1) && !hasByte(word, kSbfSync1)) {
                p += 8;
                continue;
            }
        }
        if (kSyncStart[data[p]] != 0 && isSyncPair(data[p], data[p + 1])) {
            return p;
        }
        ++p;
    }
    return p;
}

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
    std::array<std::uint8_t, kBufferBytes> buffer{};
    std::size_t begin = 0;   // first byte not yet consumed
    std::size_t end = 0;     // end of the bytes held
    std::uint64_t base = 0;  // stream offset of buffer[0]
    const std::uint8_t* pending = nullptr;
    std::size_t pendingSize = 0;
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
        begin = end = 0;
        base = 0;
        pending = nullptr;
        pendingSize = 0;
        finished = false;
        flushedB1c = false;
        stats = {};
        hasTime = false;
        week = 0;
        secondsOfWeek = 0.0;
        b1c.fill(B1cSatellite{});
    }

    enum class Scan { Frame, NeedMore };
    Scan scan(std::size_t& frameSize);
    void refill();
    bool handleFrame(std::size_t size, LogMessage& message);
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

// Looks for the next frame from `begin`. Bytes passed over count as skipped.
Detail::LogReaderState::Scan Detail::LogReaderState::scan(std::size_t& frameSize) {
    const std::uint8_t* const data = buffer.data();
    std::size_t p = begin;
    for (;;) {
        p = findSyncPair(data, p, end);
        stats.skippedBytes += p - begin;
        begin = p;
        if (p + 1 >= end) {
            return Scan::NeedMore;
        }
        const std::size_t held = end - p;
        if (data[p] == kUbxSync1) {
            if (held < kUbxHeader) {
                return Scan::NeedMore;
            }
            const std::size_t size = kUbxHeader + le16(data + p + 4) + 2;
            if (held < size) {
                return Scan::NeedMore;
            }
            std::uint8_t a = 0;
            std::uint8_t b = 0;
            for (std::size_t i = p + 2; i < p + size - 2; ++i) {
                a = static_cast<std::uint8_t>(a + data[i]);
                b = static_cast<std::uint8_t>(b + a);
            }
            if (a == data[p + size - 2] && b == data[p + size - 1]) {
                frameSize = size;
                protocol = LogProtocol::Ubx;
                return Scan::Frame;
            }
            ++stats.ubxBadChecksums;
        } else {
            if (held < kSbfHeader) {
                return Scan::NeedMore;
            }
            const std::size_t size = le16(data + p + 6);
            if (size < kSbfHeader || size % 4 != 0) {
                ++stats.sbfBadLengths;
            } else if (held < size) {
                return Scan::NeedMore;
            } else if (Checks::Crc16XModem::ofBytes(data + p + 4, size - 4) == le16(data + p + 2)) {
                frameSize = size;
                protocol = LogProtocol::Sbf;
                return Scan::Frame;
            } else {
                ++stats.sbfBadCrcs;
            }
        }
        // Not a frame: the search goes on at the next byte.
        ++stats.skippedBytes;
        begin = ++p;
    }
}

void Detail::LogReaderState::refill() {
    if (begin > 0) {
        std::memmove(buffer.data(), buffer.data() + begin, end - begin);
        base += begin;
        end -= begin;
        begin = 0;
    }
    const std::size_t n = std::min(pendingSize, buffer.size() - end);
    std::memcpy(buffer.data() + end, pending, n);
    end += n;
    pending += n;
    pendingSize -= n;
    stats.bytes += n;
    if (pendingSize == 0) {
        pending = nullptr;
    }
}

bool Detail::LogReaderState::handleFrame(std::size_t size, LogMessage& message) {
    const std::uint8_t* frame = buffer.data() + begin;
    frameOffset = base + begin;
    begin += size;
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
        std::size_t frameSize = 0;
        if (s.scan(frameSize) == Detail::LogReaderState::Scan::Frame) {
            if (s.handleFrame(frameSize, message)) {
                return true;
            }
            continue;
        }
        if (s.pendingSize != 0) {
            s.refill();
            continue;
        }
        if (!s.finished) {
            return false;
        }
        // End of the stream: a sync pair left at `begin` starts a frame that was cut.
        if (s.end - s.begin >= 2) {
            ++s.stats.truncatedFrames;
            ++s.stats.skippedBytes;
            ++s.begin;
            continue;
        }
        s.stats.skippedBytes += s.end - s.begin;
        s.begin = s.end;
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
