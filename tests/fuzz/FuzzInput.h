#ifndef ZELTNAVMSG_TESTS_FUZZ_FUZZINPUT_H
#define ZELTNAVMSG_TESTS_FUZZ_FUZZINPUT_H

#include <cstddef>
#include <cstdint>
#include <istream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The fuzz target's reading of its input bytes, the rules it checks every Decode call
// against, and its seeds. Shared by the libFuzzer target, the seed writer and the unit
// test that replays seeds and kept findings in every build.
//
// Input layout:
//   format, subframe, page   one number each
//   mode                     one byte; bit 0 clear: the rest of the input is the hex
//                            text as it is (any bytes: NUL, white space, non-ASCII);
//                            bit 0 set: the rest are bits, written as two hex digits per
//                            byte, bit 1 upper-case, bit 2 dropping the last digit (an
//                            odd count), bit 3 with white space around them
// A number is one byte b: b - 16 for b < 0xF0 (so -16 ... 223), 0xF0 INT32_MIN,
// 0xF1 INT32_MAX, any other the next four bytes as a little-endian int32.

namespace ZeltNavMsg::Fuzz {

struct Request {
    std::int32_t format = 0;
    std::int32_t subframe = 0;
    std::int32_t page = 0;
    std::string_view hex;  // into the input bytes, or into `storage`
    std::unique_ptr<char[]> storage;
};

[[nodiscard]] Request parseInput(const std::uint8_t* data, std::size_t size);

[[nodiscard]] std::vector<std::uint8_t> encodeInput(std::int32_t format, std::int32_t subframe,
                                                    std::int32_t page, std::string_view hex,
                                                    bool asBits);

// Decodes the request: a listing, or the documented error with its message for the
// input. Returns what is wrong, or nothing.
[[nodiscard]] std::optional<std::string> checkRequest(const Request& request);

// Every message of a batch file (lines "SAT FORMAT SUBFRAME PAGE HEX") and the sample
// of every supported format, each as text and as bits, and a few hostile inputs.
[[nodiscard]] std::vector<std::vector<std::uint8_t>> makeSeeds(std::istream& batchFile);

}  // namespace ZeltNavMsg::Fuzz

#endif
