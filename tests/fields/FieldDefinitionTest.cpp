// Declarations: where nested ranges land, what the modifiers leave, how arrays are
// built, and what the framework refuses, with its messages. Writing values, which no
// decode does, at the boundaries of its rounding and its defaults.

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

TEST(FieldDefinition, RangesModifiersAndArrays) {
    BitStructDef frame(nullptr, "frame", bits(0, 300), {});
    BitStructDef block(&frame, "block", bits(38, 40), {});
    const Unsigned field(&block, "field", bits(10, 22));
    EXPECT_EQ(field.ranges()[0], BitRange(BitRange::InitializationType::FirstAndLastBit, 48, 69));
    EXPECT_EQ(field.scaleFactor(), 1.0);
    EXPECT_EQ(field.defaultValue(), 0.0);
    EXPECT_EQ(field.containerId(), -1);

    const Unsigned marked(&frame, "marked", bits(0, 8),
                          {flag(Hidden), unit("s"), pow2(-31), container(4), flag(NoDefaults),
                           unit("m"), container(7)});
    EXPECT_EQ(marked.flags(), 9U);   // flags accumulate
    EXPECT_EQ(marked.units(), "m");  // the rest: the last one wins
    EXPECT_EQ(marked.scaleFactor(), 4.656612873077393e-10);
    EXPECT_EQ(marked.containerId(), 7);

    const BitFieldArrayDef<Unsigned, 63> prns(&frame, "SV configuration", bits(10, 189), "PRN-", 3);
    ASSERT_EQ(prns.children().size(), 63U);
    EXPECT_EQ(prns[0].name(), "PRN-1");
    EXPECT_EQ(prns[62].name(), "PRN-63");
    EXPECT_EQ(prns[62].ranges()[0],
              BitRange(BitRange::InitializationType::FirstAndLastBit, 10 + 186, 10 + 188));
}

// An element type that refuses to be built as its fourth element.
int liveElements = 0;
class Fragile : public Unsigned {
  public:
    Fragile(BitStructDef* parent, const std::string& name, std::vector<BitRange> ranges)
        : Unsigned(parent, name, std::move(ranges)) {
        if (name == "E4") {
            throw std::runtime_error("refused");
        }
        ++liveElements;
    }
    Fragile(const Fragile&) = delete;
    Fragile& operator=(const Fragile&) = delete;
    ~Fragile() override { --liveElements; }
};

TEST(FieldDefinition, ArrayIsBuiltAllOrNothing) {
    BitStructDef frame(nullptr, "frame", bits(0, 64), {});
    EXPECT_THROW((BitFieldArrayDef<Fragile, 6>(&frame, "array", bits(0, 48), "E", 8)),
                 std::runtime_error);
    EXPECT_EQ(liveElements, 0);  // the three built elements were destroyed, once each
    EXPECT_TRUE(frame.children().empty());
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

TEST(ValueField, WriteDoubleRoundsHalfAwayFromZero) {
    const struct {
        double value;
        NumberFormat format;
        std::uint8_t code;
    } cases[] = {
        {-0.5, NumberFormat::TwosComplementNumberFormat, 0xFF},
        {-0.5, NumberFormat::SignMagnitudeNumberFormat, 0x81},
        {-0.5, NumberFormat::TwosComplementNumberFormatAlt, 0xFF},
        {2.5, NumberFormat::TwosComplementNumberFormat, 0x03},
        {-2.4, NumberFormat::SignMagnitudeNumberFormat, 0x82},
        {255.5, NumberFormat::UnsignedNumberFormat, 0x00},  // 256 masked to 8 bits
        {254.5, NumberFormat::UnsignedNumberFormatAlt, 0xFF},
    };
    for (const auto& c : cases) {
        BitStructDef frame(nullptr, "frame", bits(0, 24), {});
        BinArray<24> frameBits;
        frameBits.fill(0);
        const Real d(&frame, "d", bits(8, 8), c.format);
        d.writeDouble(frameBits.buffer(), c.value);
        EXPECT_EQ(frameBits.data()[1], c.code) << c.value << " " << static_cast<int>(c.format);
        EXPECT_EQ(frameBits.data()[0] | frameBits.data()[2], 0);  // neighbours untouched
    }
}

// No schema modifier sets a default value; the framework still writes one.
class DefaultValueModifier final : public BitFieldDef::ParamModifier {
  public:
    explicit DefaultValueModifier(double v) : value_(v) {}
    void apply(FieldParams& p) const override { p.defaultValue = value_; }

  private:
    double value_;
};

TEST(ValueField, WriteDefaults) {
    BitStructDef frame(nullptr, "frame", bits(0, 48), {});
    BinArray<48> frameBits;
    frameBits.fill(0xFF);
    BitStructDef block(&frame, "block", bits(8, 40), {});
    const Unsigned a(&block, "a", bits(0, 8), {DefaultValueModifier(200.9)});
    const Real b(&block, "b", bits(8, 8), kSignedReal, {pow2(-2), DefaultValueModifier(-1.25)});
    const Signed c(&block, "c", bits(16, 8), {DefaultValueModifier(-3.7)});
    const Flag d(&block, "d", bits(24, 1), {DefaultValueModifier(0.5)});
    const Flag zero(&block, "zero", bits(25, 1));
    BitStructDef frozen(&block, "frozen", bits(26, 6), {flag(NoDefaults)});
    const Unsigned e(&frozen, "e", bits(0, 6));
    // Variants are all written, in order: the later one wins where they overlap.
    const Unsigned v1(&block, "v1", bits(32, 8), {container(1), DefaultValueModifier(0x11)});
    const Unsigned v2(&block, "v2", bits(36, 4), {container(2), DefaultValueModifier(0x2)});
    BitBuffer buffer = frameBits.buffer();
    block.writeDefault(buffer);
    const std::uint8_t expected[] = {0xFF, 200, 0xFB, 0xFD, 0xBF, 0x12};
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        EXPECT_EQ(frameBits.data()[i], expected[i]) << "byte " << i;
    }
}

}  // namespace
