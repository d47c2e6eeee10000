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

}  // namespace
