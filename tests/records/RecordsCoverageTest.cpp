// The records of a message account for every bit of its layout exactly once (whole
// LNAV words aside): the cheapest net for a shifted or overlapping table entry.

#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "records/LayoutCases.h"
#include "zeltnavmsg/DecodedMessage.h"

namespace ZeltNavMsg {
namespace {

// Every bit in [0, layoutBits) is covered once; returns a description of the faults.
std::string coverageFaults(const DecodedMessage& m, std::int32_t layoutBits) {
    std::vector<std::string> owner(static_cast<std::size_t>(layoutBits));
    std::ostringstream faults;
    for (const DecodedField& f : m.fields()) {
        if (f.role() == FieldRole::Word) {
            continue;
        }
        std::int32_t width = 0;
        for (const BitSegment& s : f.bits()) {
            width += s.count;
            for (std::int32_t b = s.first; b < s.first + s.count; ++b) {
                if (b < 0 || b >= layoutBits) {
                    faults << f.path() << " reaches bit " << b << "; ";
                } else if (!owner[static_cast<std::size_t>(b)].empty()) {
                    faults << f.path() << " and " << owner[static_cast<std::size_t>(b)]
                           << " share bit " << b << "; ";
                    break;
                } else {
                    owner[static_cast<std::size_t>(b)] = std::string(f.path());
                }
            }
        }
        if (width != f.bitCount()) {
            faults << f.path() << " has " << f.bitCount() << " bits in segments of " << width
                   << "; ";
        }
    }
    for (std::int32_t b = 0; b < layoutBits; ++b) {
        if (owner[static_cast<std::size_t>(b)].empty()) {
            std::int32_t last = b;
            while (last + 1 < layoutBits && owner[static_cast<std::size_t>(last + 1)].empty()) {
                ++last;
            }
            faults << "no field has bits " << b << "-" << last << "; ";
            b = last;
        }
    }
    return faults.str();
}

// Zero and random bits, so that no field's bits hide behind a neighbour's value.
TEST(RecordCoverage, EveryLayoutOfEveryFormat) {
    std::mt19937 rng(12);
    for (std::mt19937* source : {static_cast<std::mt19937*>(nullptr), &rng}) {
        for (const Testing::LayoutCase& c : Testing::layoutCases(source)) {
            const DecodedMessage m =
                NavMessageDecoder::DecodeFields(c.format, c.subframe, c.page, c.hex);
            EXPECT_EQ(coverageFaults(m, c.layoutBits), "") << m.layout();
        }
    }
}

}  // namespace
}  // namespace ZeltNavMsg
