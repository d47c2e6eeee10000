#ifndef ZELTNAVMSG_BENCH_BASELINE_NAIVELEGACYLISTING_H
#define ZELTNAVMSG_BENCH_BASELINE_NAIVELEGACYLISTING_H

#include <cstdint>
#include <string>
#include <string_view>

#include "legacy/SubframeIf.h"

namespace ZeltNavMsg::Baseline {

// The listing of a legacy subframe made the plain way, straight from the rules of
// the text: bytes parsed into a vector, fields read bit by bit, every piece printed
// by snprintf into a 64-byte scratch buffer and appended as a C string, each pass in
// a std::string of its own, "\n" turned into "\r\n" at the end. It shares nothing
// with the fast listing but the field tables, the layout map and the word coder, so
// its text is the bench's baseline and the tests' yardstick of the fast one.
// `hex` must be valid hex digits, at most 76 of them, without surrounding blanks.
std::string naiveLegacyListing(const Legacy::SubframeIf& signal, std::int32_t subframe,
                               std::int32_t page, std::string_view hex);

}  // namespace ZeltNavMsg::Baseline

#endif
