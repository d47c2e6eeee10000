#include "legacy/tables/FieldTables.h"
#include "legacy/tables/LNavFieldBlocks.h"

namespace ZeltNavMsg::Legacy {

using namespace LNav;

// QZSS has no text page. Its NMCT, iono/UTC, almanac and subframe 5 page 25 health
// entries are selected by layout alone (subframe 0, page 0). Layout 9 (subframe 4
// page 25) is never produced by the page mapping, and the layout 10 ids of subframe 5
// print through their subframe number; both kept as the interface defines them.
constexpr std::array<SubframeFieldInfo, kQzssL1caFieldCount> kQzssL1caFields =
    assemble(place(kCommonFields, kAsDeclared), place(kNmctFields, {7, 0, 0}),
             place(kIonoUtcFields, {8, 0, 0}), place(kConfigHealthFields, {9, 4, 25}),
             place(kSubframe5IdFields, {10, 5, 0}), place(kAlmanacFields, {11, 0, 0}),
             place(kAlmanacHealthFields, {12, 0, 0}));

namespace {
constexpr auto kPlanData = planListing(kQzssL1caFields);
}
constinit const ListingPlan kQzssL1caListing = kPlanData.plan();

}  // namespace ZeltNavMsg::Legacy
