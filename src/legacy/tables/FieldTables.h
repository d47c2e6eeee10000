#ifndef ZELTNAVMSG_LEGACY_TABLES_FIELDTABLES_H
#define ZELTNAVMSG_LEGACY_TABLES_FIELDTABLES_H

#include <array>
#include <cstddef>

#include "legacy/ListingPlan.h"
#include "legacy/SubframeFieldInfo.h"

namespace ZeltNavMsg::Legacy {

inline constexpr std::size_t kGpsL1caFieldCount = 228;
inline constexpr std::size_t kQzssL1caFieldCount = 205;

// Constant-initialised: usable from any static initialiser of a host.
extern const std::array<SubframeFieldInfo, kGpsL1caFieldCount> kGpsL1caFields;
extern const std::array<SubframeFieldInfo, kQzssL1caFieldCount> kQzssL1caFields;

// Their printing plans (planListing of each table), made at compile time.
extern const ListingPlan kGpsL1caListing;
extern const ListingPlan kQzssL1caListing;

}  // namespace ZeltNavMsg::Legacy

#endif
