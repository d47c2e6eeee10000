// The readable description of a tree with the shapes the message trees do not all have,
// against the plain snprintf listing (bench/baseline/NaiveTreeListing) on random bits:
// the message trees themselves are checked by the expected listings and the same
// comparison (tests/schemas).

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "baseline/NaiveTreeListing.h"
#include "bits/BinArray.h"
#include "fields/ReadableDescription.h"
#include "schemas/SchemaTypes.h"

namespace {

using namespace ZeltNavMsg;
using namespace ZeltNavMsg::Schema;

// A selector with a hidden variant member and values that select nothing; variants in a
// structure without a selector; a transparent structure, and one whose only member is
// hidden; an empty structure; a raw-hex-only field short enough for its hex to equal its
// decimal text; a flag, signed, real and 64-bit fields.
class OddTreeDef : public SelectedByFieldDef {
  public:
    static constexpr int kBits = 160;

    OddTreeDef()
        : SelectedByFieldDef(nullptr, "Odd", bits(0, kBits), {}),
          type(this, "Type", bits(0, 4)),
          one(this, "Body 1", bits(4, 12), {container(1)}),
          two(this, "Body 2", bits(4, 12), {container(2), unit("m")}),
          secret(this, "Secret", bits(4, 12), {container(2), flag(Hidden)}),
          crc(this, "CRC", bits(16, 4), {flag(RawHexOnly), unit("s")}),
          health(this, "L1 Health", bits(20, 1)),
          plain(this, "Plain", bits(21, 27), {}),
          member(&plain, "member", bits(0, 8), {container(-1)}),
          variant(&plain, "variant", bits(8, 8), {container(0)}),
          common(&plain, "Common", bits(16, 11), {flag(Transparent)}),
          satType(&common, "SatType", bits(0, 3)),
          idot(&common, "IDOT", bits(3, 8), kSignedReal, {pow2(-43), unit("pi/s")}),
          nothing(this, "Nothing", bits(48, 4), {flag(Transparent)}),
          rev(&nothing, "Rev", bits(0, 4), {flag(Hidden)}),
          empty(this, "Empty", bits(52, 4), {}),
          s(this, "s", bits(56, 8)),
          e(this, "e", bits(64, 32), kUnsignedReal, {pow2(-33)}),
          all(this, "all", bits(96, 64)) {
        selectBy(type);
    }
    Unsigned type;
    Unsigned one;
    Unsigned two;
    Unsigned secret;
    Unsigned crc;
    Flag health;
    BitStructDef plain;
    Unsigned member;
    Unsigned variant;
    BitStructDef common;
    Unsigned satType;
    Real idot;
    BitStructDef nothing;
    Unsigned rev;
    BitStructDef empty;
    Signed s;
    Real e;
    Unsigned all;
};

TEST(Description, OddShapesPrintAsThePlainListing) {
    const OddTreeDef def;
    std::mt19937 random(5);
    for (int trial = 0; trial < 400; ++trial) {
        BinArray<OddTreeDef::kBits> frame;
        std::string hex;
        for (int i = 0; i < OddTreeDef::kBits / 8; ++i) {
            frame.data()[i] = static_cast<std::uint8_t>(random());
            hex += "0123456789ABCDEF"[frame.data()[i] >> 4];
            hex += "0123456789ABCDEF"[frame.data()[i] & 0xF];
        }
        Text::TextBuffer out("\r\n");
        Describe::appendText(def, frame.buffer(), 0, out);
        ASSERT_EQ(out.str(), Baseline::naiveTreeListing(def, OddTreeDef::kBits, hex)) << hex;
        // Both listings take the variant from the structure: whose choice is checked here.
        EXPECT_EQ(out.str().find("\tBody 1:") != std::string::npos, (frame.data()[0] >> 4) == 1);
        EXPECT_EQ(out.str().find("\tvariant:"), std::string::npos);
    }
}

// A message part whose layout its first two bits choose: a listed variant, a real
// variant in metres, or none (values 0 and 3), and a hidden placeholder for them.
class SwitchDef : public SelectedByFieldDef {
  public:
    SwitchDef(BitStructDef* parent, std::string name, std::int32_t first)
        : SelectedByFieldDef(parent, std::move(name), bits(first, 12), {}),
          kind(this, "Kind", bits(0, 2)),
          rest(this, "Rest", bits(2, 10), {flag(Hidden)}),
          a(this, "A", bits(2, 10), {container(1)}),
          b(this, "B", bits(2, 10), kSignedReal, {container(2), pow2(-3), unit("m")}) {
        selectBy(kind);
    }
    Unsigned kind;
    Unsigned rest;
    Unsigned a;
    Real b;
};

// Two parts side by side, each choosing its own variant: every pair of choices is a
// layout of its own, as the plain listing (which asks each structure as it goes) shows.
TEST(Description, SideBySideVariantsTakeEveryPairOfChoices) {
    BitStructDef root(nullptr, "Pair", bits(0, 24), {});
    const SwitchDef first(&root, "First", 0);
    const SwitchDef second(&root, "Second", 12);
    std::mt19937 random(7);
    for (unsigned kinds = 0; kinds < 16; ++kinds) {
        const std::uint32_t payload = random() & 0x3FF3FFU;  // both kinds cleared
        const std::uint32_t word = payload | ((kinds >> 2) << 22) | ((kinds & 3U) << 10);
        BinArray<24> frame;
        std::string hex;
        for (int i = 0; i < 3; ++i) {
            frame.data()[i] = static_cast<std::uint8_t>(word >> (16 - 8 * i));
        }
        for (int i = 5; i >= 0; --i) {
            hex += "0123456789ABCDEF"[(word >> (4 * i)) & 0xF];
        }
        Text::TextBuffer out("\r\n");
        Describe::appendText(root, frame.buffer(), 0, out);
        EXPECT_EQ(out.str(), Baseline::naiveTreeListing(root, 24, hex)) << hex;
    }
}

// The worked example: a subframe whose specific data is one structure.
TEST(Description, WorkedExample) {
    BitStructDef root(nullptr, "IRNSS Subframe", bits(0, 32), {});
    const Unsigned subframeId(&root, "Subframe ID", bits(0, 2));
    const Unsigned spare(&root, "Spare", bits(2, 6), {flag(Hidden)});
    BitStructDef data(&root, "Subframe specific data", bits(8, 24), {});
    const Unsigned week(&data, "week", bits(0, 10), {unit("WN")});
    const Real idot(&data, "IDOT", bits(10, 14), kSignedReal, {pow2(-43), unit("pi/s")});
    BinArray<32> frame;
    frame.fill(0);
    subframeId.writeRaw(frame.buffer(), 1);
    spare.writeRaw(frame.buffer(), 0x3F);
    week.writeRaw(frame.buffer(), 512);
    idot.writeRaw(frame.buffer(), 0x3FFF);
    EXPECT_EQ(BitStructDef::makeReadableDescription(root, frame),
              "IRNSS Subframe\n"
              "\tSubframe ID: 1\n"
              "\tSubframe specific data\n"
              "\t\tweek: 512 WN, Raw hex:200\n"
              "\t\tIDOT: -1.13687e-13 pi/s, Raw hex:3FFF");
}

// Written out by hand, not only against the plain listing: a transparent structure has
// no heading and lists its members at its parent's level; one with nothing visible still
// takes its line break (an empty line); an empty structure is its heading alone; an
// unnamed structure at level 0 has an empty heading, so no line break follows it.
TEST(Description, TransparentEmptyAndUnnamedStructures) {
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
              "Frame\n\tMessage\n\t\tWN: 0\n\t\tSatType: 0\n\t\tDIF: 0\n\n\t\tEmpty\n"
              "\t\tIODE: 0");
    BitStructDef unnamed(nullptr, "", bits(0, 16), {});
    const Unsigned member(&unnamed, "x", bits(0, 4));
    EXPECT_EQ(unnamed.makeReadableDescription(frameBits.buffer(), 0), "\tx: 0");
    EXPECT_EQ(unnamed.makeReadableDescription(frameBits.buffer(), 1), "\t\n\t\tx: 0");
}

}  // namespace
