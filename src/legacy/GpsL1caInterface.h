#ifndef ZELTNAVMSG_LEGACY_GPSL1CAINTERFACE_H
#define ZELTNAVMSG_LEGACY_GPSL1CAINTERFACE_H

#include "legacy/SubframeCoderGpsLNav.h"
#include "legacy/SubframeIf.h"
#include "legacy/tables/FieldTables.h"

namespace ZeltNavMsg::Legacy {

// GPS L1 C/A LNAV: layouts 2-4 for subframes 1-3, and for subframes 4 and 5 the
// layout of the page's content (reserved, almanac, NMCT, text, iono/UTC, health).
class GPS_L1CA_InterfaceType final : public SubframeIf {
  public:
    constexpr GPS_L1CA_InterfaceType() noexcept
        : SubframeIf(kGpsL1caFields.data(), static_cast<std::int32_t>(kGpsL1caFields.size()),
                     &kGpsL1caListing) {}

    [[nodiscard]] std::int32_t GetLayoutId(const subframe_t& sf) const override;
    [[nodiscard]] const SubframeCoder& GetCoder() const override { return coder_; }

  private:
    SubframeCoderGpsLNav coder_{0};
};

extern const GPS_L1CA_InterfaceType GPS_L1CA_Interface;

}  // namespace ZeltNavMsg::Legacy

#endif
