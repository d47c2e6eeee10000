#ifndef ZELTNAVMSG_BENCH_BASELINE_NAIVETREELISTING_H
#define ZELTNAVMSG_BENCH_BASELINE_NAIVETREELISTING_H

#include <string>
#include <string_view>

#include "fields/BitStructDef.h"

namespace ZeltNavMsg::Baseline {

// The listing of a definition tree made the plain way, straight from the rules of the
// text: the hex parsed into a vector of bits, every field read bit by bit, every line
// built with snprintf ("%g" for real values, "%0*llX" for the raw part) in a
// std::string of its own and joined with "\r\n". It shares nothing with the fast
// listing but the tree (names, ranges, kinds, scales, flags, selectors), so its text
// is the bench's baseline and the tests' yardstick of the fast one.
// `hex` must be valid hex digits without surrounding blanks; `frameBits` is the root's
// length: missing bits are zero, extra ones ignored.
std::string naiveTreeListing(const BitStructDef& root, int frameBits, std::string_view hex);

}  // namespace ZeltNavMsg::Baseline

#endif
