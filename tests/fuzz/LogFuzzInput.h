#ifndef ZELTNAVMSG_TESTS_FUZZ_LOGFUZZINPUT_H
#define ZELTNAVMSG_TESTS_FUZZ_LOGFUZZINPUT_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "zeltnavmsg/LogReader.h"

namespace ZeltNavMsg::Fuzz {

// One fuzz input through the log reader: the first byte chooses a chunk size, the
// rest is the stream. The stream read in those chunks must give what it gives in one
// piece, and every message must be one Decode takes. Returns what went wrong.
inline std::optional<std::string> checkLogInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return std::nullopt;
    }
    const std::size_t chunk = 1 + data[0] * 97U;
    const std::string_view stream(reinterpret_cast<const char*>(data + 1), size - 1);

    const auto read = [&stream](std::size_t piece, std::string& out) -> std::optional<std::string> {
        LogReader reader;
        LogMessage m;
        const auto drain = [&]() -> std::optional<std::string> {
            while (reader.next(m)) {
                const auto digits = static_cast<std::size_t>((m.bitCount + 3) / 4);
                if (m.hex.size() != digits || m.satellite.size() != 3) {
                    return "message of " + std::to_string(m.hex.size()) + " digits for " +
                           std::to_string(m.bitCount) + " bits";
                }
                for (const char c : m.hex) {
                    if ((c < '0' || c > '9') && (c < 'a' || c > 'f')) {
                        return "not a lower-case hex digit in " + std::string(m.hex);
                    }
                }
                (void)NavMessageDecoder::Decode(m.format, m.subframe, m.page, m.hex);
                out.append(m.satellite).append(m.hex).append(std::to_string(m.page)).append(";");
            }
            return std::nullopt;
        };
        for (std::size_t at = 0; at < stream.size(); at += piece) {
            reader.feed(stream.substr(at, piece));
            if (auto bad = drain()) {
                return bad;
            }
        }
        reader.finish();
        if (auto bad = drain()) {
            return bad;
        }
        const LogReaderStats& s = reader.stats();
        if (s.bytes != stream.size() || s.skippedBytes > s.bytes) {
            return "byte counts " + std::to_string(s.bytes) + "/" + std::to_string(s.skippedBytes);
        }
        return std::nullopt;
    };

    std::string whole;
    std::string pieces;
    if (auto bad = read(stream.size() + 1, whole)) {
        return bad;
    }
    if (auto bad = read(chunk, pieces)) {
        return bad;
    }
    if (whole != pieces) {
        return "chunks of " + std::to_string(chunk) + " read differently";
    }
    return std::nullopt;
}

}  // namespace ZeltNavMsg::Fuzz

#endif
