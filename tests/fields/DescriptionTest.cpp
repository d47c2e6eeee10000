// The readable description of small trees: indentation, headings, the raw-hex rule,
// hidden, transparent and raw-hex-only members, variants.

#include <gtest/gtest.h>

#include <string>

#include "bits/BinArray.h"
#include "schemas/SchemaTypes.h"

namespace {

using namespace ZeltNavMsg;
using namespace ZeltNavMsg::Schema;

// The worked example: a subframe whose specific data is one structure.
class ExampleDataDef : public BitStructDef {
  public:
    ExampleDataDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                   const Modifiers& modifiers = {})
        : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
          week(this, "week", bits(0, 10), {unit("WN")}),
          idot(this, "IDOT", bits(10, 14), kSignedReal, {pow2(-43), unit("pi/s")}) {}
    Unsigned week;
    Real idot;
};

class ExampleDef : public BitStructDef {
  public:
    ExampleDef()
        : BitStructDef(nullptr, "IRNSS Subframe", bits(0, 32), {}),
          subframeId(this, "Subframe ID", bits(0, 2)),
          spare(this, "Spare", bits(2, 6), {flag(Hidden)}),
          data(this, "Subframe specific data", bits(8, 24)) {}
    Unsigned subframeId;
    Unsigned spare;
    ExampleDataDef data;
};

TEST(Description, WorkedExample) {
    const ExampleDef def;
    BinArray<32> frameBits;
    frameBits.fill(0);
    def.subframeId.writeRaw(frameBits.buffer(), 1);
    def.spare.writeRaw(frameBits.buffer(), 0x3F);
    def.data.week.writeRaw(frameBits.buffer(), 512);
    def.data.idot.writeRaw(frameBits.buffer(), 0x3FFF);
    EXPECT_EQ(BitStructDef::makeReadableDescription(def, frameBits),
              "IRNSS Subframe\n"
              "\tSubframe ID: 1\n"
              "\tSubframe specific data\n"
              "\t\tweek: 512 WN, Raw hex:200\n"
              "\t\tIDOT: -1.13687e-13 pi/s, Raw hex:3FFF");
    // A member on its own, at any level.
    EXPECT_EQ(def.data.week.makeReadableDescription(frameBits.buffer(), 3),
              "\t\t\tweek: 512 WN, Raw hex:200");
}

struct LineCase {
    const char* name;
    int width;
    std::uint64_t raw;
    const char* units;
    std::uint32_t flags;
    const char* line;
};

TEST(Description, RawHexRule) {
    const LineCase cases[] = {
        {"week", 10, 9, "WN", 0, "week: 9 WN, Raw hex:009"},  // padded hex differs
        {"IODEC", 4, 9, "", 0, "IODEC: 9"},                   // same text: no raw part
        {"UDRA", 8, 0, "", 0, "UDRA: 0, Raw hex:00"},
        {"code", 4, 12, "", 0, "code: 12, Raw hex:C"},
        {"CRC", 24, 0x3E44C8, "", RawHexOnly, "CRC: 3E44C8"},
        {"CRC", 4, 5, "s", RawHexOnly, "CRC: "},  // decimal equals hex: nothing after ": "
        {"all", 64, ~0ULL, "", 0, "all: 18446744073709551615, Raw hex:FFFFFFFFFFFFFFFF"},
    };
    for (const LineCase& c : cases) {
        BitStructDef frame(nullptr, "frame", bits(0, 64), {});
        const Unsigned field(&frame, c.name, bits(0, c.width), {unit(c.units), flag(c.flags)});
        BinArray<64> frameBits;
        frameBits.fill(0);
        field.writeRaw(frameBits.buffer(), c.raw);
        EXPECT_EQ(field.makeReadableDescription(frameBits.buffer(), 0), c.line);
    }
    BitStructDef frame(nullptr, "frame", bits(0, 8), {});
    const Flag health(&frame, "L1 Health", bits(0, 1));
    const Real zero(&frame, "e", bits(1, 7), kUnsignedReal);
    BinArray<8> frameBits;
    frameBits.fill(0x80);
    EXPECT_EQ(health.makeReadableDescription(frameBits.buffer(), 0), "L1 Health: 1");
    EXPECT_EQ(zero.makeReadableDescription(frameBits.buffer(), 0), "e: 0, Raw hex:00");
}

// A selector read from the structure's own first field.
class VariantsDef : public SelectedByFieldDef {
  public:
    VariantsDef()
        : SelectedByFieldDef(nullptr, "Message", bits(0, 16), {}),
          type(this, "Type", bits(0, 4)),
          one(this, "Body 1", bits(4, 12), {container(1)}),
          two(this, "Body 2", bits(4, 12), {container(2)}),
          secret(this, "Secret", bits(4, 12), {container(2), flag(Hidden)}),
          tail(this, "Tail", bits(12, 4)) {
        selectBy(type);
    }
    Unsigned type;
    Unsigned one;
    Unsigned two;
    Unsigned secret;
    Unsigned tail;
};

TEST(Description, VariantsFollowTheSelector) {
    const VariantsDef def;
    BinArray<16> frameBits;
    frameBits.fill(0);
    def.one.writeRaw(frameBits.buffer(), 0xABC);
    const std::string heading = "Message\n\tType: ";
    def.type.writeRaw(frameBits.buffer(), 1);
    EXPECT_EQ(def.makeReadableDescription(frameBits.buffer(), 0),
              heading + "1\n\tBody 1: 2748, Raw hex:ABC\n\tTail: 12, Raw hex:C");
    def.type.writeRaw(frameBits.buffer(), 2);
    EXPECT_EQ(def.makeReadableDescription(frameBits.buffer(), 0),
              heading + "2\n\tBody 2: 2748, Raw hex:ABC\n\tTail: 12, Raw hex:C");
    def.type.writeRaw(frameBits.buffer(), 9);
    EXPECT_EQ(def.makeReadableDescription(frameBits.buffer(), 0),
              heading + "9\n\tTail: 12, Raw hex:C");

    // Without a selector no variant ever shows.
    BitStructDef plain(nullptr, "Plain", bits(0, 8), {});
    const Unsigned member(&plain, "member", bits(0, 8), {container(-1)});
    const Unsigned variant(&plain, "variant", bits(0, 8), {container(0)});
    EXPECT_EQ(plain.activeContainerId(frameBits.buffer()), -1);
    EXPECT_EQ(plain.makeReadableDescription(frameBits.buffer(), 0),
              "Plain\n\tmember: 154, Raw hex:9A");
}

TEST(Description, TransparentAndEmptyStructures) {
    BitStructDef frame(nullptr, "Frame", bits(0, 16), {});
    BitStructDef message(&frame, "Message", bits(0, 16), {});
    const Unsigned first(&message, "WN", bits(0, 4));
    BitStructDef common(&message, "Common fields", bits(4, 8), {flag(Transparent)});
    const Unsigned inCommon(&common, "SatType", bits(0, 2));
    const Unsigned alsoInCommon(&common, "DIF", bits(2, 1));
    BitStructDef nothing(&message, "Nothing", bits(12, 4), {flag(Transparent)});
    const Unsigned hidden(&nothing, "Rev", bits(0, 4), {flag(Hidden)});
    BitStructDef empty(&message, "Empty", bits(12, 4), {});
    const Unsigned last(&message, "IODE", bits(12, 4));
    BinArray<16> frameBits;
    frameBits.fill(0);
    EXPECT_EQ(frame.makeReadableDescription(frameBits.buffer(), 0),
              "Frame\n"
              "\tMessage\n"
              "\t\tWN: 0\n"
              "\t\tSatType: 0\n"  // transparent: no heading, members at the message's level
              "\t\tDIF: 0\n"
              "\n"  // the empty transparent structure still takes its separator
              "\t\tEmpty\n"
              "\t\tIODE: 0");
    // A transparent structure alone prints its members at its own level.
    EXPECT_EQ(common.makeReadableDescription(frameBits.buffer(), 1), "\tSatType: 0\n\tDIF: 0");
    EXPECT_EQ(nothing.makeReadableDescription(frameBits.buffer(), 1), "");
}

}  // namespace
