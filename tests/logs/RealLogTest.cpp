// The public receiver logs of tests/data/receiver-logs against the counts their notes
// give, and against the messages of the same logs that tests/data/real-data holds with
// independently found subframe and page numbers.

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "legacy/SubframeCoderGpsLNav.h"
#include "logs/LogReading.h"

namespace ZeltNavMsg::Testing {
namespace {

const char* formatName(MessageFormat format) {
    switch (format) {
        case MessageFormat::GpsLNav:
            return "GpsLNav";
        case MessageFormat::QzssLNav:
            return "QzssLNav";
        case MessageFormat::BeidouD1:
            return "BeidouD1";
        case MessageFormat::BeidouD2:
            return "BeidouD2";
        case MessageFormat::BeidouCNav1:
            return "BeidouCNav1";
        case MessageFormat::BeidouCNav2:
            return "BeidouCNav2";
        case MessageFormat::Irnss:
            return "Irnss";
        default:
            return "other";
    }
}

std::vector<std::uint32_t> words30(const std::string& hex) {
    std::vector<std::uint32_t> words(10, 0);
    for (std::size_t bit = 0; bit < 4 * hex.size() && bit < 300; ++bit) {
        const auto digit =
            static_cast<std::uint32_t>(std::stoul(hex.substr(bit / 4, 1), nullptr, 16));
        words[bit / 30] = (words[bit / 30] << 1) | ((digit >> (3 - bit % 4)) & 1U);
    }
    return words;
}

// All ten words pass the LNAV parity: each received word is what the library's word
// coder makes of its source data bits (D_i xor D30*) after the received previous word.
bool lnavParityPasses(const std::string& hex) {
    std::uint32_t previous = 0;
    for (const std::uint32_t received : words30(hex)) {
        const std::uint32_t data = (previous & 1U) != 0 ? received ^ 0x3FFFFFC0U : received;
        if (Legacy::SubframeCoderGpsLNav::EncodeWord(data, previous, false) != received) {
            return false;
        }
        previous = received;
    }
    return true;
}

bool passes(const ReadMessage& m) {
    const bool lnav = m.format == MessageFormat::GpsLNav || m.format == MessageFormat::QzssLNav;
    return !lnav || lnavParityPasses(m.hex);
}

struct FormatCounts {
    MessageFormat format;
    int converted;
    int passing;
    const char* satellites;  // the list, or their number
    const char* pages;       // subframe/page x count, of the passing messages
    const char* signals;     // signal name x count
};

struct LogCounts {
    const char* file;
    std::uint64_t navRecords;
    std::uint64_t unmapped;
    std::uint64_t incomplete;
    std::uint64_t frames;  // good UBX frames or SBF blocks
    std::int64_t skipped;  // bytes outside them; -1: the NMEA test below counts them
    std::int32_t week;     // of every time tag
    std::vector<FormatCounts> formats;
};

// The receiver logs' notes: records per signal, converted messages and their
// satellites, subframes and pages.
const LogCounts kLogs[] = {
    {"ublox-x20p.log",
     408,
     12 + 10 + 120 + 67 + 6 + 58,
     5,
     408 + 5 * 29,
     221 + 1,
     2408,
     {{MessageFormat::GpsLNav, 35, 34, "9", "1/0x6 2/0x6 3/0x7 4/2x8 5/2x7", "L1CAx35"},
      {MessageFormat::BeidouD1, 29, 29, "C12 C21 C35 C42 C44 C50",
       "1/0x6 2/0x5 3/0x6 4/19x6 5/18x6", "B3x29"},
      {MessageFormat::BeidouCNav1, 5, 5, "C21 C35 C42 C44 C50", "0/1x3 0/3x2", "B1Cx5"},
      {MessageFormat::BeidouCNav2, 36, 36, "C21 C35 C44 C50", "0/10x8 0/11x8 0/30x4 0/31x4 0/40x12",
       "B2ax36"}}},
    {"20230919-114418.ubx",
     954,
     24 + 148 + 12 + 74 + 126 + 108 + 162 + 144,
     0,
     954 + 36,
     -1,
     2280,
     {{MessageFormat::GpsLNav, 54, 54, "9", "1/0x9 2/0x18 3/0x9 4/20x9 5/20x9", "L1CAx54"},
      {MessageFormat::QzssLNav, 24, 24, "J02 J03 J04 J07", "1/0x4 2/0x8 3/0x4 4/20x4 5/20x4",
       "L1CAx24"},
      {MessageFormat::BeidouD1, 78, 78, "C06 C07 C09 C10 C16 C21 C22 C36",
       "1/0x13 2/0x13 3/0x13 4/18x13 5/17x13 5/18x13", "B1x48 B2x30"}}},
    {"pygpsdata_x5_rawnav.log",
     8,
     5,
     0,
     8,
     0,
     2367,
     {{MessageFormat::GpsLNav, 1, 1, "G01", "3/0x1", "L1CAx1"},
      {MessageFormat::BeidouD2, 1, 1, "C05", "2/1x1", "B1x1"},
      {MessageFormat::Irnss, 1, 1, "I09", "2/0x1", "L5x1"}}},
};

template <typename Key>
std::string tally(const std::map<Key, int>& counts, const auto& name) {
    std::string text;
    for (const auto& [key, count] : counts) {
        if (!text.empty()) {
            text += ' ';
        }
        text.append(name(key)).append("x").append(std::to_string(count));
    }
    return text;
}

TEST(RealLog, CountsPerFormatAsTheLogNotesState) {
    for (const LogCounts& log : kLogs) {
        SCOPED_TRACE(log.file);
        const std::string bytes = loadReceiverLog(log.file);
        const ReadLog read = readLog(bytes);
        const LogReaderStats& s = read.stats;
        EXPECT_EQ(s.bytes, bytes.size());
        EXPECT_EQ(s.navRecords, log.navRecords);
        EXPECT_EQ(s.unmappedSignals, log.unmapped);
        EXPECT_EQ(s.incompleteFrames, log.incomplete);
        EXPECT_EQ(s.ubxFrames + s.sbfBlocks, log.frames);
        EXPECT_EQ(s.ubxBadChecksums + s.sbfBadCrcs + s.sbfBadLengths + s.truncatedFrames +
                      s.malformedRecords + s.failedChecks,
                  0U);
        EXPECT_EQ(s.messages, read.messages.size());
        if (log.skipped >= 0) {
            EXPECT_EQ(s.skippedBytes, static_cast<std::uint64_t>(log.skipped));
        }

        std::size_t total = 0;
        for (const FormatCounts& f : log.formats) {
            SCOPED_TRACE(formatName(f.format));
            std::set<std::string> satellites;
            std::map<std::pair<int, int>, int> pages;
            std::map<std::string, int> signals;
            int converted = 0;
            int passing = 0;
            for (const ReadMessage& m : read.messages) {
                if (m.format != f.format) {
                    continue;
                }
                ++converted;
                ++signals[m.signalName];
                satellites.insert(m.satellite);
                EXPECT_EQ(NavMessageDecoder::GetSignalTypeFromString(m.satellite, m.signalName),
                          m.signal);
                if (passes(m)) {
                    ++passing;
                    ++pages[{m.subframe, m.page}];
                }
            }
            total += static_cast<std::size_t>(converted);
            EXPECT_EQ(converted, f.converted);
            EXPECT_EQ(passing, f.passing);
            std::string sats;
            for (const std::string& sat : satellites) {
                sats.append(sats.empty() ? "" : " ").append(sat);
            }
            if (std::isdigit(static_cast<unsigned char>(f.satellites[0])) != 0) {
                EXPECT_EQ(std::to_string(satellites.size()), f.satellites);
            } else {
                EXPECT_EQ(sats, f.satellites);
            }
            EXPECT_EQ(tally(pages,
                            [](const std::pair<int, int>& k) {
                                return std::to_string(k.first) + "/" + std::to_string(k.second);
                            }),
                      f.pages);
            EXPECT_EQ(tally(signals, [](const std::string& k) { return k; }), f.signals);
        }
        EXPECT_EQ(total, read.messages.size()) << "messages of a format not expected";
    }
}

// The NMEA sentences between the frames of the ZED-F9P log are all that is skipped. A
// sentence is "$G...*hh\r\n" in printable text with the XOR of its characters as hh.
TEST(RealLog, OnlyTheNmeaTextIsSkipped) {
    const std::string bytes = loadReceiverLog("20230919-114418.ubx");
    std::uint64_t nmea = 0;
    int sentences = 0;
    for (std::size_t at = bytes.find("$G"); at != std::string::npos;
         at = bytes.find("$G", at + 1)) {
        unsigned sum = 0;
        std::size_t star = at + 1;
        for (; star < bytes.size() && bytes[star] != '*' && std::isprint(bytes[star]) != 0;
             ++star) {
            sum ^= static_cast<unsigned char>(bytes[star]);
        }
        if (star + 4 < bytes.size() && bytes[star] == '*' &&
            bytes.compare(star + 3, 2, "\r\n") == 0 &&
            std::stoul(bytes.substr(star + 1, 2), nullptr, 16) == sum) {
            nmea += star + 5 - at;
            ++sentences;
        }
    }
    EXPECT_EQ(sentences, 1296);
    EXPECT_EQ(readLog(bytes).stats.skippedBytes, nmea);
}

// Every message of real-data taken from one of these logs comes out of the reader with
// the same hex, subframe and page.
TEST(RealLog, MessagesAlsoInRealDataComeOutTheSame) {
    const std::map<std::string, std::string> logOfOrigin = {
        {"gpsd-x20p", "ublox-x20p.log"},
        {"qzsl6tool", "20230919-114418.ubx"},
        {"pysbf2-rawnav", "pygpsdata_x5_rawnav.log"}};
    std::map<std::string, ReadLog> reads;
    for (const auto& [origin, file] : logOfOrigin) {
        reads[origin] = readLog(loadReceiverLog(file));
    }
    std::map<std::string, int> checked;
    for (const char* table : {"gps_lnav", "qzss_lnav", "beidou_d1", "beidou_d2", "beidou_cnav1",
                              "beidou_cnav2", "irnss", "gps_cnav2"}) {
        std::ifstream file(std::string(ZELTNAVMSG_TEST_DATA_DIR) + "/real-data/" + table + ".tsv");
        ASSERT_TRUE(file.good()) << table;
        std::string origin;
        for (std::string line; std::getline(file, line);) {
            if (line.starts_with("# origin=")) {
                origin = line.substr(9, line.find(' ', 9) - 9);
                continue;
            }
            if (line.empty() || line.front() == '#') {
                continue;
            }
            const auto found = reads.find(origin);
            origin.clear();
            if (found == reads.end()) {
                continue;
            }
            std::istringstream cells(line);
            std::string format, sat, hex;
            int subframe = 0;
            int page = 0;
            cells >> format >> sat >> subframe >> page >> hex;
            const ReadMessage* same = nullptr;
            for (const ReadMessage& m : found->second.messages) {
                if (m.hex == hex && m.satellite == sat && formatName(m.format) == format) {
                    same = &m;
                }
            }
            ASSERT_NE(same, nullptr) << table << ": " << sat << " " << hex;
            EXPECT_EQ(same->subframe, subframe) << table << ": " << sat << " " << hex;
            EXPECT_EQ(same->page, page) << table << ": " << sat << " " << hex;
            ++checked[found->first];
        }
    }
    EXPECT_EQ(checked["gpsd-x20p"], 77);
    EXPECT_EQ(checked["qzsl6tool"], 51);
    EXPECT_EQ(checked["pysbf2-rawnav"], 1);
}

// Receiver time: SBF's TOW is the end of the subframe (HOW TOW count x 6 s, NavIC TOWC
// x 12 s); the UBX epoch before a subframe follows its end by less than a second and a
// half (RXM-RAWX's receiver clock a few milliseconds early).
TEST(RealLog, TimeTagsFollowTheEndOfTheSubframe) {
    for (const LogCounts& log : kLogs) {
        SCOPED_TRACE(log.file);
        const bool sbf = log.frames == 8;
        for (const ReadMessage& m : readLog(loadReceiverLog(log.file)).messages) {
            ASSERT_TRUE(m.hasTime) << m.satellite;
            EXPECT_EQ(m.week, log.week) << m.satellite;
            const std::vector<std::uint32_t> words = words30(m.hex);
            double end = -1;
            if (m.format == MessageFormat::GpsLNav || m.format == MessageFormat::QzssLNav) {
                const std::uint32_t how = (words[0] & 1U) != 0 ? ~words[1] : words[1];
                end = 6.0 * ((how >> 13) & 0x1FFFFU);
            } else if (m.format == MessageFormat::Irnss) {
                end = 12.0 * ((words[0] >> 5) & 0x1FFFFU);
            } else {
                continue;
            }
            const double lag = m.secondsOfWeek - end;
            EXPECT_TRUE(sbf ? lag == 0.0 : (lag > -0.05 && lag < 1.5))
                << m.satellite << " time " << m.secondsOfWeek << " subframe end " << end;
        }
    }
}

}  // namespace
}  // namespace ZeltNavMsg::Testing
