// The reader on streams as hosts hand them over: in chunks of any size, cut inside
// frames, damaged, mixed with other bytes, or ended early.

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>

#include "fuzz/LogFuzzInput.h"
#include "logs/LogReading.h"

namespace ZeltNavMsg::Testing {
namespace {

void expectSameMessages(const std::vector<ReadMessage>& got,
                        const std::vector<ReadMessage>& expected) {
    ASSERT_EQ(got.size(), expected.size());
    for (std::size_t i = 0; i < got.size(); ++i) {
        EXPECT_TRUE(got[i].sameAs(expected[i])) << "message " << i << ": " << got[i].satellite;
    }
}

TEST(LogStream, ChunkSizeChangesNothing) {
    for (const char* file : {"ublox-x20p.log", "20230919-114418.ubx", "pygpsdata_x5_rawnav.log"}) {
        const std::string bytes = loadReceiverLog(file);
        const ReadLog whole = readLog(bytes);
        for (const std::size_t chunk : {1U, 3U, 64U, 4093U, 65543U, 65544U, 150001U}) {
            const ReadLog pieces = readLog(bytes, chunkCuts(bytes.size(), chunk));
            EXPECT_TRUE(pieces.messages == whole.messages) << file << " in chunks of " << chunk;
            EXPECT_TRUE(pieces.stats == whole.stats) << file << " in chunks of " << chunk;
        }
    }
}

// Two chunks meeting at every byte of a frame, its sync and checksum bytes included.
TEST(LogStream, FrameCutAtEveryOffset) {
    for (const char* file : {"ublox-x20p.log", "pygpsdata_x5_rawnav.log"}) {
        const std::string bytes = loadReceiverLog(file);
        const ReadLog whole = readLog(bytes);
        ASSERT_FALSE(whole.messages.empty());
        const std::size_t first = whole.messages.front().streamOffset;
        // The UBX frame's length field, or the SBF block's.
        const std::size_t size = bytes[first] == '$'
                                     ? static_cast<std::uint8_t>(bytes[first + 6]) +
                                           256U * static_cast<std::uint8_t>(bytes[first + 7])
                                     : 8U + static_cast<std::uint8_t>(bytes[first + 4]) +
                                           256U * static_cast<std::uint8_t>(bytes[first + 5]);
        for (std::size_t cut = first; cut <= first + size; ++cut) {
            const ReadLog two = readLog(bytes, {cut});
            ASSERT_TRUE(two.messages == whole.messages) << file << " cut at " << cut;
            ASSERT_TRUE(two.stats == whole.stats) << file << " cut at " << cut;
        }
    }
}

// One damaged byte: that frame is skipped and counted, the next one is found.
TEST(LogStream, DamagedFrameIsSkippedAndCounted) {
    struct Case {
        const char* file;
        std::size_t message;  // whose frame gets the damaged byte
        std::uint64_t LogReaderStats::*counter;
    };
    for (const Case& c : {Case{"ublox-x20p.log", 0, &LogReaderStats::ubxBadChecksums},
                          Case{"ublox-x20p.log", 40, &LogReaderStats::ubxBadChecksums},
                          Case{"ublox-x20p.log", 80, &LogReaderStats::ubxBadChecksums},
                          Case{"pygpsdata_x5_rawnav.log", 1, &LogReaderStats::sbfBadCrcs}}) {
        std::string bytes = loadReceiverLog(c.file);
        const ReadLog whole = readLog(bytes);
        ASSERT_LT(c.message, whole.messages.size());
        const std::size_t frame = whole.messages[c.message].streamOffset;
        bytes[frame + 20] = static_cast<char>(bytes[frame + 20] ^ 0x10);

        const ReadLog damaged = readLog(bytes);
        std::vector<ReadMessage> expected = whole.messages;
        expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(c.message));
        EXPECT_TRUE(damaged.messages == expected) << c.file;
        EXPECT_EQ(damaged.stats.*c.counter, 1U) << c.file;
        EXPECT_EQ(damaged.stats.ubxFrames + damaged.stats.sbfBlocks,
                  whole.stats.ubxFrames + whole.stats.sbfBlocks - 1)
            << c.file;
        EXPECT_EQ(damaged.stats.navRecords, whole.stats.navRecords - 1) << c.file;
    }
}

// Before every frame that carries a message: text, random bytes, and sync pairs that
// start no frame (a bad UBX checksum, an SBF length that cannot be, a bad SBF CRC, and
// a UBX length that reaches past the next frames).
TEST(LogStream, GarbageBetweenFramesIsSkipped) {
    std::mt19937 rng(5);
    for (const char* file : {"ublox-x20p.log", "pygpsdata_x5_rawnav.log"}) {
        const std::string bytes = loadReceiverLog(file);
        const ReadLog whole = readLog(bytes);
        std::string mixed;
        std::size_t from = 0;
        for (const ReadMessage& m : whole.messages) {
            mixed.append(bytes, from, m.streamOffset - from);
            from = m.streamOffset;
            mixed += "$GPGSA,A,3,04,05,,09,12,,,24,,,,,2.5,1.3,2.1*39\r\n";
            for (int i = 0; i < 50; ++i) {
                mixed += static_cast<char>(rng() % 0x20);  // no sync byte among them
            }
            mixed += std::string("\xB5\x62\x02\x13\x04\x00\x01\x02\x03\x04\x00\x00", 12);
            mixed += std::string("$@\x00\x00\xB1\x0F\x0A\x00", 8);
            mixed += std::string("$@\x12\x34\xB1\x0F\x0C\x00\x00\x00\x00\x00", 12);
        }
        mixed.append(bytes, from);
        const std::size_t longFrame = mixed.size();
        mixed += std::string("\xB5\x62\x01\x01\xFF\xFF", 6);
        mixed += bytes;  // the time tags before the first message come again

        const ReadLog read = readLog(mixed);
        std::vector<ReadMessage> expected = whole.messages;
        expected.insert(expected.end(), whole.messages.begin(), whole.messages.end());
        expectSameMessages(read.messages, expected);
        // In pieces, the frames that a failed one hid are found again where it was held.
        for (const std::size_t chunk : {7U, 1000U, 70000U}) {
            const ReadLog pieces = readLog(mixed, chunkCuts(mixed.size(), chunk));
            EXPECT_TRUE(pieces.messages == read.messages) << file << " in chunks of " << chunk;
            EXPECT_TRUE(pieces.stats == read.stats) << file << " in chunks of " << chunk;
        }
        // The long frame fails its checksum, or is cut by the end of the stream.
        const bool cut = mixed.size() - longFrame < LogReader::kMaxFrameBytes;
        const std::uint64_t garbage = whole.messages.size();
        EXPECT_EQ(read.stats.ubxBadChecksums, garbage + (cut ? 0 : 1)) << file;
        EXPECT_EQ(read.stats.truncatedFrames, cut ? 1U : 0U) << file;
        EXPECT_EQ(read.stats.sbfBadLengths, garbage) << file;
        EXPECT_EQ(read.stats.sbfBadCrcs, garbage) << file;
    }
}

// A stream that ends inside a frame: the frames before it are all read, the cut one
// is counted, nothing is made up.
TEST(LogStream, StreamEndingInsideAFrame) {
    const std::string bytes = loadReceiverLog("pygpsdata_x5_rawnav.log");
    const ReadLog whole = readLog(bytes);
    const std::size_t last = whole.messages.back().streamOffset;
    for (const std::size_t keep : {last + 1, last + 2, last + 8, last + 59}) {
        const ReadLog cut = readLog(std::string_view(bytes).substr(0, keep));
        std::vector<ReadMessage> expected(whole.messages.begin(), whole.messages.end() - 1);
        EXPECT_TRUE(cut.messages == expected) << keep;
        EXPECT_EQ(cut.stats.truncatedFrames, keep == last + 1 ? 0U : 1U) << keep;
    }
}

// The fuzz entry's checks hold on the real logs, read in chunks of 1 and 486 bytes.
TEST(LogStream, FuzzChecksHoldOnTheLogs) {
    for (const char* file : {"ublox-x20p.log", "20230919-114418.ubx", "pygpsdata_x5_rawnav.log"}) {
        for (const std::string& input :
             {'\x00' + loadReceiverLog(file), '\x05' + loadReceiverLog(file)}) {
            const auto* data = reinterpret_cast<const std::uint8_t*>(input.data());
            EXPECT_FALSE(Fuzz::checkLogInput(data, input.size())) << file;
        }
    }
}

// Bytes beyond the reader's buffer stay the caller's until next() has read them.
TEST(LogStream, FeedOnlyOnceTheBytesBeforeAreRead) {
    const std::string longLog = loadReceiverLog("20230919-114418.ubx");
    ASSERT_GT(longLog.size(), 2 * LogReader::kMaxFrameBytes + 2);
    LogReader reader;
    LogMessage m;
    reader.feed(longLog);
    ASSERT_TRUE(reader.next(m));
    EXPECT_THROW(reader.feed("$@"), std::logic_error);
    while (reader.next(m)) {
    }
    reader.feed("$@");
    reader.finish();
    EXPECT_THROW(reader.feed("$@"), std::logic_error);
    EXPECT_FALSE(reader.next(m));
    EXPECT_EQ(reader.stats().truncatedFrames, 1U);
}

}  // namespace
}  // namespace ZeltNavMsg::Testing
