#ifndef ZELTNAVMSG_LEGACY_QZSSL1CAINTERFACE_H
#define ZELTNAVMSG_LEGACY_QZSSL1CAINTERFACE_H

#include "legacy/SubframeCoderGpsLNav.h"
#include "legacy/SubframeIf.h"
#include "legacy/tables/FieldTables.h"

namespace ZeltNavMsg::Legacy {

// QZSS L1 C/A LNAV: GPS words and subframes 1-3; subframes 4 and 5 take their layout
// from the page number.
class QZSS_L1CA_InterfaceType final : public SubframeIf {
  public:
    constexpr QZSS_L1CA_InterfaceType() noexcept
        : SubframeIf(kQzssL1caFields.data(), static_cast<std::int32_t>(kQzssL1caFields.size()),
                     &kQzssL1caListing) {}

    [[nodiscard]] std::int32_t GetLayoutId(const subframe_t& sf) const override;
    [[nodiscard]] const SubframeCoder& GetCoder() const override { return coder_; }

  private:
    SubframeCoderGpsLNav coder_{0};
};

extern const QZSS_L1CA_InterfaceType QZSS_L1CA_Interface;

}  // namespace ZeltNavMsg::Legacy

#endif
