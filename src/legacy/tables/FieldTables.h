#ifndef ZELTNAVMSG_LEGACY_TABLES_FIELDTABLES_H
#define ZELTNAVMSG_LEGACY_TABLES_FIELDTABLES_H

#include <array>
#include <cstddef>

#include "legacy/ListingPlan.h"
#include "legacy/SubframeFieldInfo.h"

namespace ZeltNavMsg::Legacy {

inline constexpr std::size_t kGpsL1caFieldCount = 228;
inline constexpr std::size_t kQzssL1caFieldCount = 205;
inline constexpr std::size_t kBeidouD1FieldCount = 143;
inline constexpr std::size_t kBeidouD2FieldCount = 174;

// Constant-initialised: usable from any static initialiser of a host.
extern const std::array<SubframeFieldInfo, kGpsL1caFieldCount> kGpsL1caFields;
extern const std::array<SubframeFieldInfo, kQzssL1caFieldCount> kQzssL1caFields;
extern const std::array<SubframeFieldInfo, kBeidouD1FieldCount> kBeidouD1Fields;
extern const std::array<SubframeFieldInfo, kBeidouD2FieldCount> kBeidouD2Fields;

// Their printing plans (planListing of each table), made at compile time.
extern const ListingPlan kGpsL1caListing;
extern const ListingPlan kQzssL1caListing;
extern const ListingPlan kBeidouD1Listing;
extern const ListingPlan kBeidouD2Listing;

}  // namespace ZeltNavMsg::Legacy

#endif
