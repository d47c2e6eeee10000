// The public receiver logs of tests/data/receiver-logs against the counts their notes
// give, and against the messages of the same logs that tests/data/real-data holds with
// independently found subframe and page numbers.

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

#include "logs/LogReading.h"
#include "support/RealData.h"
#include "support/SupportedFormats.h"
#include "zeltnavmsg/DecodedMessage.h"

namespace ZeltNavMsg::Testing {
namespace {

std::vector<std::uint32_t> words30(const std::string& hex) {
    std::vector<std::uint32_t> words(10, 0);
    for (std::size_t bit = 0; bit < 4 * hex.size() && bit < 300; ++bit) {
        const auto digit =
            static_cast<std::uint32_t>(std::stoul(hex.substr(bit / 4, 1), nullptr, 16));
        words[bit / 30] = (words[bit / 30] << 1) | ((digit >> (3 - bit % 4)) & 1U);
    }
    return words;
}

// The notes count the LNAV subframes whose ten words pass their parity.
bool passes(const ReadMessage& m) {
    const bool lnav = m.format == MessageFormat::GpsLNav || m.format == MessageFormat::QzssLNav;
    return !lnav || NavMessageDecoder::DecodeFields(m.format, m.subframe, m.page, m.hex).ok();
}

struct LogCounts {
    const char* file;
    std::uint64_t navRecords, unmapped, incomplete, frames;  // frames: good UBX or SBF
    std::int64_t skipped;  // bytes outside frames; -1: not stated (NMEA text)
    std::int32_t week;     // of every time tag
    // Per format: "converted/passing satellites (list, or their number) | subframe/page
    // x count of the passing messages | signal x count".
    std::vector<std::pair<MessageFormat, std::string>> formats;
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
     {{MessageFormat::GpsLNav, "35/34 9 | 1/0x6 2/0x6 3/0x7 4/2x8 5/2x7 | L1CAx35"},
      {MessageFormat::BeidouD1,
       "29/29 C12 C21 C35 C42 C44 C50 | 1/0x6 2/0x5 3/0x6 4/19x6 5/18x6 | B3x29"},
      {MessageFormat::BeidouCNav1, "5/5 C21 C35 C42 C44 C50 | 0/1x3 0/3x2 | B1Cx5"},
      {MessageFormat::BeidouCNav2,
       "36/36 C21 C35 C44 C50 | 0/10x8 0/11x8 0/30x4 0/31x4 0/40x12 | B2ax36"}}},
    {"20230919-114418.ubx",
     954,
     24 + 148 + 12 + 74 + 126 + 108 + 162 + 144,
     0,
     954 + 36,
     -1,
     2280,
     {{MessageFormat::GpsLNav, "54/54 9 | 1/0x9 2/0x18 3/0x9 4/20x9 5/20x9 | L1CAx54"},
      {MessageFormat::QzssLNav,
       "24/24 J02 J03 J04 J07 | 1/0x4 2/0x8 3/0x4 4/20x4 5/20x4 | L1CAx24"},
      {MessageFormat::BeidouD1,
       "78/78 C06 C07 C09 C10 C16 C21 C22 C36 | "
       "1/0x13 2/0x13 3/0x13 4/18x13 5/17x13 5/18x13 | B1x48 B2x30"}}},
    {"pygpsdata_x5_rawnav.log",
     8,
     5,
     0,
     8,
     0,
     2367,
     {{MessageFormat::GpsLNav, "1/1 G01 | 3/0x1 | L1CAx1"},
      {MessageFormat::BeidouD2, "1/1 C05 | 2/1x1 | B1x1"},
      {MessageFormat::Irnss, "1/1 I09 | 2/0x1 | L5x1"}}},
};

template <typename Key>
std::string tally(const std::map<Key, int>& counts) {
    std::string text;
    for (const auto& [key, count] : counts) {
        text.append(text.empty() ? "" : " ").append(key).append("x").append(std::to_string(count));
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
        for (const auto& [format, expected] : log.formats) {
            std::set<std::string> satellites;
            std::map<std::string, int> pages;
            std::map<std::string, int> signals;
            int converted = 0;
            int passing = 0;
            for (const ReadMessage& m : read.messages) {
                if (m.format == format) {
                    ++converted;
                    ++signals[m.signalName];
                    satellites.insert(m.satellite);
                    EXPECT_EQ(NavMessageDecoder::GetSignalTypeFromString(m.satellite, m.signalName),
                              m.signal);
                    if (passes(m)) {
                        ++passing;
                        ++pages[std::to_string(m.subframe) + "/" + std::to_string(m.page)];
                    }
                }
            }
            total += static_cast<std::size_t>(converted);
            std::string got = std::to_string(converted) + "/" + std::to_string(passing);
            for (const std::string& sat : satellites) {
                got.append(" ").append(satellites.size() > 8 ? "" : sat);
            }
            if (satellites.size() > 8) {
                got.resize(got.size() - satellites.size());
                got.append(" ").append(std::to_string(satellites.size()));
            }
            got.append(" | ").append(tally(pages)).append(" | ").append(tally(signals));
            EXPECT_EQ(got, expected) << static_cast<int>(format);
        }
        EXPECT_EQ(total, read.messages.size()) << "messages of a format not expected";
    }
}

// The real-data lines of these logs' broadcasts (their comments name the log: 77 of the
// X20P log, 51 of the ZED-F9P log, 1 of the SBF log) are found among the log's messages
// with the same hex, and the same subframe and page.
TEST(RealLog, MessagesAlsoInRealDataComeOutTheSame) {
    const std::pair<const char*, int> kOverlap[] = {
        {"ublox-x20p.log", 77}, {"20230919-114418.ubx", 51}, {"pygpsdata_x5_rawnav.log", 1}};
    for (const auto& [log, overlap] : kOverlap) {
        const ReadLog read = readLog(loadReceiverLog(log));
        int found = 0;
        for (const SupportedFormat& row : kSupportedFormats) {
            for (const RealMessage& line : loadRealData(row.realDataFile)) {
                for (const ReadMessage& m : read.messages) {
                    if (m.hex == line.hex && m.satellite == line.satellite &&
                        m.format == row.format) {
                        EXPECT_EQ(m.subframe, line.subframe) << line.where;
                        EXPECT_EQ(m.page, line.page) << line.where;
                        ++found;
                        break;
                    }
                }
            }
        }
        EXPECT_EQ(found, overlap) << log;
    }
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
