#include "legacy/tables/FieldTables.h"
#include "legacy/tables/LNavFieldBlocks.h"

namespace ZeltNavMsg::Legacy {

namespace {
// Subframe 4 page 17 special message: 22 ASCII characters.
// clang-format off
constexpr SubframeFieldInfo kTextFields[] = {
    field("ch01", {{69, 8}}, kUnsigned, 0.0, nullptr, 7, 4, 17, 0x40, 0, 32),
    field("ch02", {{77, 8}}, kUnsigned, 0.0, nullptr, 7, 4, 17, 0x40, 0, 32),
    field("ch03", {{91, 8}}, kUnsigned, 0.0, nullptr, 7, 4, 17, 0x40, 0, 32),
    field("ch04", {{99, 8}}, kUnsigned, 0.0, nullptr, 7, 4, 17, 0x40, 0, 32),
    field("ch05", {{107, 8}}, kUnsigned, 0.0, nullptr, 7, 4, 17, 0x40, 0, 32),
    field("ch06", {{121, 8}}, kUnsigned, 0.0, nullptr, 7, 4, 17, 0x40, 0, 32),
    field("ch07", {{129, 8}}, kUnsigned, 0.0, nullptr, 7, 4, 17, 0x40, 0, 32),
    field("ch08", {{137, 8}}, kUnsigned, 0.0, nullptr, 7, 4, 17, 0x40, 0, 32),
    field("ch09", {{151, 8}}, kUnsigned, 0.0, nullptr, 7, 4, 17, 0x40, 0, 32),
    field("ch10", {{159, 8}}, kUnsigned, 0.0, nullptr, 7, 4, 17, 0x40, 0, 32),
    field("ch11", {{167, 8}}, kUnsigned, 0.0, nullptr, 7, 4, 17, 0x40, 0, 32),
    field("ch12", {{181, 8}}, kUnsigned, 0.0, nullptr, 7, 4, 17, 0x40, 0, 32),
    field("ch13", {{189, 8}}, kUnsigned, 0.0, nullptr, 7, 4, 17, 0x40, 0, 32),
    field("ch14", {{197, 8}}, kUnsigned, 0.0, nullptr, 7, 4, 17, 0x40, 0, 32),
    field("ch15", {{211, 8}}, kUnsigned, 0.0, nullptr, 7, 4, 17, 0x40, 0, 32),
    field("ch16", {{219, 8}}, kUnsigned, 0.0, nullptr, 7, 4, 17, 0x40, 0, 32),
    field("ch17", {{227, 8}}, kUnsigned, 0.0, nullptr, 7, 4, 17, 0x40, 0, 32),
    field("ch18", {{241, 8}}, kUnsigned, 0.0, nullptr, 7, 4, 17, 0x40, 0, 32),
    field("ch19", {{249, 8}}, kUnsigned, 0.0, nullptr, 7, 4, 17, 0x40, 0, 32),
    field("ch20", {{257, 8}}, kUnsigned, 0.0, nullptr, 7, 4, 17, 0x40, 0, 32),
    field("ch21", {{271, 8}}, kUnsigned, 0.0, nullptr, 7, 4, 17, 0x40, 0, 32),
    field("ch22", {{279, 8}}, kUnsigned, 0.0, nullptr, 7, 4, 17, 0x40, 0, 32),
    field("reserved", {{287, 6}}, kUnsigned, 0.0, nullptr, 7, 4, 17, 0x0, 0, 32),
};
// clang-format on
}  // namespace

using namespace LNav;

constexpr std::array<SubframeFieldInfo, kGpsL1caFieldCount> kGpsL1caFields =
    assemble(place(kCommonFields, kAsDeclared), place(kTextFields, kAsDeclared),
             place(kNmctFields, {8, 4, 13}), place(kIonoUtcFields, {9, 4, 18}),
             place(kConfigHealthFields, {10, 4, 25}), place(kSubframe5IdFields, {11, 5, 0}),
             place(kAlmanacFields, {12, 0, 0}), place(kAlmanacHealthFields, {13, 5, 25}));

namespace {
constexpr auto kPlanData = planListing(kGpsL1caFields);
}
constinit const ListingPlan kGpsL1caListing = kPlanData.plan();

}  // namespace ZeltNavMsg::Legacy
