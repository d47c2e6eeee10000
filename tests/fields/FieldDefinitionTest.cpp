// Definitions: modifiers, absolute ranges, order, checks and arrays (array names and
// positions: the GPS CNAV-2 and BeiDou expected listings), and reading and writing the
// value kinds (their text: the listing tests).

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>

#include "bits/BinArray.h"
#include "schemas/SchemaTypes.h"
#include "support/Thrown.h"

namespace {

using namespace ZeltNavMsg;
using namespace ZeltNavMsg::Schema;
using Init = BitRange::InitializationType;

// Modifiers no schema uses but the framework honours: one parameter set to a value.
template <auto Param, class Value>
class Setting final : public BitFieldDef::ParamModifier {
  public:
    explicit Setting(Value value) : value_(value) {}
    void apply(FieldParams& p) const override { p.*Param = value_; }

  private:
    Value value_;
};
using OrderModifier = Setting<&FieldParams::order, int>;
using NumberingModifier = Setting<&FieldParams::bitsNumbering, int>;
using DefaultValueModifier = Setting<&FieldParams::defaultValue, double>;

BitStructDef root(int bitsCount = 100) {
    return {nullptr, "root", bits(0, bitsCount), {}};
}

// Nesting itself is what every message tree's listing shows; a structure of several
// ranges counts from the lowest first bit, whatever their order.
TEST(FieldDefinition, RangesCountFromTheParentsLowestBit) {
    BitStructDef frame(nullptr, "frame", bits(0, 100), {});
    BitStructDef split(
        &frame, "split",
        {BitRange(Init::FirstAndLastBit, 60, 69), BitRange(Init::FirstAndLastBit, 20, 29)}, {});
    const Unsigned inSplit(&split, "x", bits(0, 4));
    EXPECT_EQ(inSplit.ranges()[0], BitRange(Init::FirstAndLastBit, 20, 23));
}

// Flags accumulate; for units, scale and container the last modifier wins.
TEST(FieldDefinition, ModifiersAccumulateOrOverride) {
    BitStructDef parent = root();
    const Unsigned marked(&parent, "marked", bits(8, 8),
                          {flag(Hidden), unit("s"), pow2(3), container(4), flag(NoDefaults),
                           unit("m"), times(5), container(7), ParamsNotModified()});
    EXPECT_EQ(marked.flags(), 9U);
    EXPECT_EQ(marked.units(), "m");
    EXPECT_EQ(marked.scaleFactor(), 5.0);
    EXPECT_EQ(marked.containerId(), 7);
}

TEST(FieldDefinition, ChildrenSortedByOrderStably) {
    BitStructDef parent = root();
    const Unsigned a(&parent, "a", bits(0, 1), {OrderModifier(2)});
    const Unsigned b(&parent, "b", bits(1, 1), {OrderModifier(1)});
    const Unsigned c(&parent, "c", bits(2, 1), {OrderModifier(2)});
    const Unsigned d(&parent, "d", bits(3, 1));
    std::string names;
    for (const BitFieldDef* child : parent.children()) {
        names += child->name();
    }
    EXPECT_EQ(names, "dbac");
}

TEST(FieldDefinition, ChildRangesFollowTheParentsNumbering) {
    BitStructDef frame = root(300);
    BitStructDef oneBased(&frame, "oneBased", bits(0, 300), {NumberingModifier(1)});
    const Unsigned first(&oneBased, "first", {BitRange(Init::FirstAndLastBit, 1, 8)});
    EXPECT_EQ(first.ranges()[0], BitRange(Init::FirstAndLastBit, 0, 7));
    BitStructDef fromEnd(&frame, "fromEnd", bits(0, 300), {NumberingModifier(3)});
    const Unsigned last(&fromEnd, "last", {BitRange(Init::FirstAndLastBit, 1, 8)});
    EXPECT_EQ(last.ranges()[0], BitRange(Init::FirstAndLastBit, 292, 299));
    BitStructDef bad(&frame, "bad", bits(0, 300), {NumberingModifier(9)});
    EXPECT_THROW(Unsigned(&bad, "x", bits(0, 1)), std::runtime_error);
    EXPECT_THROW(Unsigned(&oneBased, "x", bits(0, 1)), std::invalid_argument);  // one-based 0
}

struct CheckCase {
    const char* what;
    std::function<void(BitStructDef*)> declare;
    const char* message;  // nullptr: accepted
};

TEST(FieldDefinition, DeclarationChecks) {
    const std::vector<CheckCase> cases = {
        {"U 64", [](BitStructDef* p) { Unsigned(p, "u", bits(0, 64)); }, nullptr},
        {"U 65", [](BitStructDef* p) { Unsigned(p, "u", bits(0, 65)); },
         "BitFieldUnsignedIntDef: field 'u' bits count is more than 64"},
        {"U 65 hidden", [](BitStructDef* p) { Unsigned(p, "u", bits(0, 65), {flag(Hidden)}); },
         nullptr},
        {"U none", [](BitStructDef* p) { Unsigned(p, "u", {}); },
         "BitFieldUnsignedIntDef: field 'u' bits count should be positive"},
        {"S 65", [](BitStructDef* p) { Signed(p, "s", bits(0, 65)); },
         "BitFieldSignedIntDef: field 's' bits count is more than 64"},
        {"S 1", [](BitStructDef* p) { Signed(p, "s", bits(0, 1)); },
         "BitFieldSignedIntDef: field 's' bits count should be more than 1"},
        {"S 2", [](BitStructDef* p) { Signed(p, "s", bits(0, 2)); }, nullptr},
        {"D format 0",
         [](BitStructDef* p) { Real(p, "d", bits(0, 8), NumberFormat::UnknownNumberFormat); },
         "BitFieldValueDef: numberFormat can't be UnknownNumberFormat"},
        {"D 54", [](BitStructDef* p) { Real(p, "d", bits(0, 54), kUnsignedReal); },
         "BitFieldDoubleDef: field 'd' bits count can't be more than 53 (bits count in mantissa of "
         "type double)"},
        {"D 53", [](BitStructDef* p) { Real(p, "d", bits(0, 53), kSignedReal); }, nullptr},
        {"D signed 1",
         [](BitStructDef* p) { Real(p, "d", bits(0, 1), NumberFormat::SignMagnitudeNumberFormat); },
         "BitFieldDoubleDef: field 'd' is signed and bits count should be at least 2 (one bit for "
         "sign and "
         "one bit for magnitude)"},
        {"D unsigned 1", [](BitStructDef* p) { Real(p, "d", bits(0, 1), kUnsignedReal); }, nullptr},
        {"D none", [](BitStructDef* p) { Real(p, "d", {}, kUnsignedReal); },
         "BitFieldDoubleDef: field 'd' bits count can't be negative or zero"},
        {"D format 9",
         [](BitStructDef* p) { Real(p, "d", bits(0, 8), static_cast<NumberFormat>(9)); }, nullptr},
    };
    for (const CheckCase& c : cases) {
        BitStructDef parent = root(200);
        const Unsigned before(&parent, "before", bits(0, 1));
        try {
            c.declare(&parent);
            EXPECT_EQ(c.message, nullptr) << c.what << " was accepted";
        } catch (const std::runtime_error& e) {
            ASSERT_NE(c.message, nullptr) << c.what << ": " << e.what();
            EXPECT_STREQ(e.what(), c.message);
        }
        // Whether it failed or went out of scope, the field is no longer listed.
        ASSERT_EQ(parent.children().size(), 1U) << c.what;
        EXPECT_EQ(parent.children()[0], &before);
    }
}

// An element type that refuses to be built as its fourth element.
int liveElements = 0;
class Fragile : public Unsigned {
  public:
    Fragile(BitStructDef* parent, std::string name, std::vector<BitRange> ranges)
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
    BitStructDef frame = root();
    EXPECT_THROW((BitFieldArrayDef<Fragile, 6>(&frame, "array", bits(0, 48), "E", 8)),
                 std::runtime_error);
    EXPECT_EQ(liveElements, 0);  // the three built elements were destroyed, once each
    EXPECT_TRUE(frame.children().empty());
    {
        const BitFieldArrayDef<Fragile, 3> fine(&frame, "array", bits(0, 24), "E", 8);
        EXPECT_EQ(liveElements, 3);
    }
    EXPECT_EQ(liveElements, 0);
}

struct Fixture {
    BitStructDef frame{nullptr, "frame", bits(0, 64), {}};
    BinArray<64> bits64;
    Fixture() { bits64.fill(0); }
    BitBuffer buffer() { return bits64.buffer(); }
};

TEST(ValueField, IntegersThroughTheirMultiplier) {
    Fixture f;
    const Unsigned plain(&f.frame, "plain", bits(2, 10));
    const Unsigned doubled(&f.frame, "doubled", bits(2, 10), {times(2.0)});
    const Unsigned fraction(&f.frame, "fraction", bits(2, 10), {times(0.75)});
    plain.writeRaw(f.buffer(), 0x3FF);
    EXPECT_EQ(doubled.valueToString(f.buffer()), "2046");
    EXPECT_EQ(fraction.read(f.buffer()), 0U);  // a multiplier below 1 truncates to 0
    EXPECT_THROW(fraction.write(f.buffer(), 5), std::runtime_error);
    doubled.write(f.buffer(), 11);  // 11 / 2 = 5
    EXPECT_EQ(plain.read(f.buffer()), 5U);

    const Signed s(&f.frame, "s", bits(14, 4));
    const Signed scaled(&f.frame, "scaled", bits(14, 4), {times(4)});
    s.writeRaw(f.buffer(), 0b1110);
    EXPECT_EQ(s.valueToString(f.buffer()), "-2");
    scaled.write(f.buffer(), -3);  // -3 / 4 = 0, sign of the value: two's complement 0
    EXPECT_EQ(s.read(f.buffer()), 0);
    scaled.write(f.buffer(), -9);  // -2
    EXPECT_EQ(scaled.read(f.buffer()), -8);
    const Signed wide(&f.frame, "wide", bits(0, 64));
    wide.writeRaw(f.buffer(), 0x8000000000000000ULL);
    EXPECT_EQ(wide.valueToString(f.buffer()), "-9223372036854775808");
}

TEST(ValueField, WriteDoubleRoundsHalfAwayFromZero) {
    const struct {
        double value;
        NumberFormat format;
        std::uint64_t code;
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
        Fixture f;
        const Real d(&f.frame, "d", bits(8, 8), c.format);
        d.writeDouble(f.buffer(), c.value);
        EXPECT_EQ(d.readRaw(f.buffer()), c.code)
            << c.value << " format " << static_cast<int>(c.format);
        EXPECT_EQ(f.bits64.data()[0], 0);  // neighbours untouched
        EXPECT_EQ(f.bits64.data()[2], 0);
    }
    Fixture f;
    const Real d(&f.frame, "e", bits(0, 8), kUnsignedReal);
    EXPECT_EQ(Testing::thrownMessage<std::runtime_error>([&] { d.writeDouble(f.buffer(), -1.0); }),
              "BitFieldDoubleDef::writeDouble: field 'e' is unsigned, but value is negative");
    const Real odd(&f.frame, "odd", bits(8, 8), static_cast<NumberFormat>(9));
    EXPECT_THROW(odd.writeDouble(f.buffer(), -1.0), std::runtime_error);
}

TEST(ValueField, WriteDefaults) {
    Fixture f;
    f.bits64.fill(0xFF);
    BitBuffer buffer = f.buffer();
    BitStructDef block(&f.frame, "block", bits(8, 40), {});
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
    block.writeDefault(buffer);
    EXPECT_EQ(f.bits64.data()[0], 0xFF);
    EXPECT_EQ(f.bits64.data()[1], 200);   // truncated
    EXPECT_EQ(f.bits64.data()[2], 0xFB);  // -1.25 / 0.25 = -5
    EXPECT_EQ(f.bits64.data()[3], 0xFD);  // -3
    EXPECT_EQ(f.bits64.data()[4], 0xBF);  // d = 1, zero = 0, frozen untouched
    EXPECT_EQ(f.bits64.data()[5], 0x12);
}

}  // namespace
