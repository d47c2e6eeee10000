// Reading and writing the value kinds (their text: the listing tests).

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "bits/BinArray.h"
#include "schemas/SchemaTypes.h"
#include "support/Thrown.h"

namespace {

using namespace ZeltNavMsg;
using namespace ZeltNavMsg::Schema;

struct Fixture {
    BitStructDef frame{nullptr, "frame", bits(0, 64), {}};
    BinArray<64> bits64;
    Fixture() { bits64.fill(0); }
    BitBuffer buffer() { return bits64.buffer(); }
};

TEST(ValueField, UnsignedReadsScaledByItsIntegerMultiplier) {
    Fixture f;
    const Unsigned plain(&f.frame, "plain", bits(2, 10));
    const Unsigned doubled(&f.frame, "doubled", bits(2, 10), {times(2.0)});
    const Unsigned fraction(&f.frame, "fraction", bits(2, 10), {times(0.75)});
    plain.writeRaw(f.buffer(), 0x3FF);
    EXPECT_EQ(plain.valueToString(f.buffer()), "1023");
    EXPECT_EQ(doubled.valueToString(f.buffer()), "2046");
    EXPECT_EQ(fraction.read(f.buffer()), 0U);  // a multiplier below 1 truncates to 0
    EXPECT_THROW(fraction.write(f.buffer(), 5), std::runtime_error);

    doubled.write(f.buffer(), 11);  // 11 / 2 = 5
    EXPECT_EQ(plain.read(f.buffer()), 5U);
    const Unsigned wide(&f.frame, "wide", bits(0, 64));
    wide.writeRaw(f.buffer(), ~0ULL);
    EXPECT_EQ(wide.valueToString(f.buffer()), "18446744073709551615");
}

TEST(ValueField, SignedReadsTwosComplement) {
    Fixture f;
    const Signed s(&f.frame, "s", bits(4, 4));
    s.writeRaw(f.buffer(), 0b1110);
    EXPECT_EQ(s.read(f.buffer()), -2);
    EXPECT_EQ(s.valueToString(f.buffer()), "-2");

    const Signed scaled(&f.frame, "scaled", bits(4, 4), {times(4)});
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

// No schema modifier sets a default value; the framework still writes one.
class DefaultValueModifier final : public BitFieldDef::ParamModifier {
  public:
    explicit DefaultValueModifier(double v) : value_(v) {}
    void apply(FieldParams& p) const override { p.defaultValue = value_; }

  private:
    double value_;
};

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
