// Construction of definitions: modifiers, absolute ranges, order, checks and arrays.

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>

#include "schemas/SchemaTypes.h"

namespace {

using namespace ZeltNavMsg;
using namespace ZeltNavMsg::Schema;
using Init = BitRange::InitializationType;

// Modifiers no schema uses but the framework honours.
class OrderModifier final : public BitFieldDef::ParamModifier {
  public:
    explicit OrderModifier(int order) : order_(order) {}
    void apply(FieldParams& p) const override { p.order = order_; }

  private:
    int order_;
};
class NumberingModifier final : public BitFieldDef::ParamModifier {
  public:
    explicit NumberingModifier(int scheme) : scheme_(scheme) {}
    void apply(FieldParams& p) const override { p.bitsNumbering = scheme_; }

  private:
    int scheme_;
};

BitStructDef root(int bitsCount = 100) {
    return {nullptr, "root", bits(0, bitsCount), {}};
}

TEST(FieldDefinition, RangesBecomeAbsoluteThroughNesting) {
    BitStructDef frame(nullptr, "frame", bits(0, 100), {});
    BitStructDef block(&frame, "block", bits(38, 40), {});
    const Unsigned field(&block, "field", {BitRange(Init::FirstAndLastBit, 10, 31)});
    EXPECT_EQ(field.ranges()[0], BitRange(Init::FirstAndLastBit, 48, 69));
    EXPECT_EQ(field.totalBitsCount(), 22);
    EXPECT_EQ(field.parent(), &block);

    // The base is the lowest first bit of the parent's ranges, whatever their order.
    BitStructDef split(
        &frame, "split",
        {BitRange(Init::FirstAndLastBit, 60, 69), BitRange(Init::FirstAndLastBit, 20, 29)}, {});
    const Unsigned inSplit(&split, "x", bits(0, 4));
    EXPECT_EQ(inSplit.ranges()[0], BitRange(Init::FirstAndLastBit, 20, 23));
}

TEST(FieldDefinition, ModifierDefaultsAndAccumulation) {
    BitStructDef parent = root();
    const Unsigned plain(&parent, "plain", bits(0, 8));
    EXPECT_EQ(plain.scaleFactor(), 1.0);
    EXPECT_EQ(plain.defaultValue(), 0.0);
    EXPECT_EQ(plain.containerId(), -1);
    EXPECT_EQ(plain.flags(), 0U);
    EXPECT_EQ(plain.units(), "");

    const Unsigned marked(&parent, "marked", bits(8, 8),
                          {flag(Hidden), unit("s"), pow2(3), container(4), flag(NoDefaults),
                           unit("m"), times(5), container(7), ParamsNotModified()});
    EXPECT_EQ(marked.flags(), 9U);   // flags accumulate
    EXPECT_EQ(marked.units(), "m");  // the rest: the last one wins
    EXPECT_EQ(marked.scaleFactor(), 5.0);
    EXPECT_EQ(marked.containerId(), 7);

    EXPECT_EQ(ScaleFactorModifier(-31).scaleFactor(), 4.656612873077393e-10);
    EXPECT_EQ(ScaleFactorModifier(-44, kInterfacePi).scaleFactor(),
              3.1415926535898 / 17592186044416.0);
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

TEST(FieldDefinition, ArrayElementsAreNamedAndLaidEndToEnd) {
    BitStructDef frame = root(300);
    const BitFieldArrayDef<Unsigned, 63> prns(&frame, "SV configuration", bits(10, 189), "PRN-", 3);
    ASSERT_EQ(prns.children().size(), 63U);
    EXPECT_EQ(prns[0].name(), "PRN-1");
    EXPECT_EQ(prns[62].name(), "PRN-63");
    EXPECT_EQ(prns[62].ranges()[0], BitRange(Init::FirstAndLastBit, 10 + 186, 10 + 188));
    EXPECT_EQ(prns.children()[62], &prns[62]);
    EXPECT_EQ(prns.fieldKind(), FieldKind::Array);
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

}  // namespace
