// Declarations the framework refuses, with their messages. What the message trees use
// of modifiers, nesting, order, arrays and value kinds shows in every expected listing
// (tests/data/listings); writing fields is no part of decoding.

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "bits/BinArray.h"
#include "schemas/SchemaTypes.h"
#include "support/Thrown.h"

namespace {

using namespace ZeltNavMsg;
using namespace ZeltNavMsg::Schema;

TEST(FieldDefinition, DeclarationChecks) {
    constexpr NumberFormat kUnknown = NumberFormat::UnknownNumberFormat;
    const struct {
        char kind;  // 'U'nsigned, 'S'igned or 'D'ouble (Real)
        int width;  // 0: no range at all
        NumberFormat format;
        std::uint32_t flags;
        const char* message;  // nullptr: accepted
    } cases[] = {
        {'U', 64, kUnknown, 0, nullptr},
        {'U', 65, kUnknown, 0, "BitFieldUnsignedIntDef: field 'x' bits count is more than 64"},
        {'U', 65, kUnknown, Hidden, nullptr},
        {'U', 0, kUnknown, 0, "BitFieldUnsignedIntDef: field 'x' bits count should be positive"},
        {'S', 65, kUnknown, 0, "BitFieldSignedIntDef: field 'x' bits count is more than 64"},
        {'S', 1, kUnknown, 0, "BitFieldSignedIntDef: field 'x' bits count should be more than 1"},
        {'S', 2, kUnknown, 0, nullptr},
        {'D', 8, kUnknown, 0, "BitFieldValueDef: numberFormat can't be UnknownNumberFormat"},
        {'D', 54, kUnsignedReal, 0,
         "BitFieldDoubleDef: field 'x' bits count can't be more than 53 (bits count in mantissa "
         "of type double)"},
        {'D', 53, kSignedReal, 0, nullptr},
        {'D', 1, NumberFormat::SignMagnitudeNumberFormat, 0,
         "BitFieldDoubleDef: field 'x' is signed and bits count should be at least 2 (one bit "
         "for sign and one bit for magnitude)"},
        {'D', 1, kUnsignedReal, 0, nullptr},
        {'D', 0, kUnsignedReal, 0,
         "BitFieldDoubleDef: field 'x' bits count can't be negative or zero"},
        {'D', 8, static_cast<NumberFormat>(9), 0, nullptr},
    };
    for (const auto& c : cases) {
        const std::string what = c.kind + std::to_string(c.width);
        BitStructDef parent(nullptr, "root", bits(0, 200), {});
        const Unsigned before(&parent, "before", bits(0, 1));
        const std::vector<BitRange> ranges =
            c.width > 0 ? bits(0, c.width) : std::vector<BitRange>{};
        try {
            if (c.kind == 'U') {
                Unsigned(&parent, "x", ranges, {flag(c.flags)});
            } else if (c.kind == 'S') {
                Signed(&parent, "x", ranges);
            } else {
                Real(&parent, "x", ranges, c.format);
            }
            EXPECT_EQ(c.message, nullptr) << what << " was accepted";
        } catch (const std::runtime_error& e) {
            ASSERT_NE(c.message, nullptr) << what << ": " << e.what();
            EXPECT_STREQ(e.what(), c.message);
        }
        // Whether it failed or went out of scope, the field is no longer listed.
        ASSERT_EQ(parent.children().size(), 1U) << what;
        EXPECT_EQ(parent.children()[0], &before);
    }
}

TEST(ValueField, WriteDoubleRefusesWhatTheFormatCannotHold) {
    BitStructDef frame(nullptr, "frame", bits(0, 64), {});
    BinArray<64> bits64;
    bits64.fill(0);
    const Real e(&frame, "e", bits(0, 8), kUnsignedReal);
    EXPECT_EQ(
        Testing::thrownMessage<std::runtime_error>([&] { e.writeDouble(bits64.buffer(), -1.0); }),
        "BitFieldDoubleDef::writeDouble: field 'e' is unsigned, but value is negative");
    const Real odd(&frame, "odd", bits(8, 8), static_cast<NumberFormat>(9));
    EXPECT_THROW(odd.writeDouble(bits64.buffer(), -1.0), std::runtime_error);
}

}  // namespace
