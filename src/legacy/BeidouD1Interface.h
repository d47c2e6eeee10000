#ifndef ZELTNAVMSG_LEGACY_BEIDOUD1INTERFACE_H
#define ZELTNAVMSG_LEGACY_BEIDOUD1INTERFACE_H

#include "legacy/SubframeCoderBeidouNav.h"
#include "legacy/SubframeIf.h"
#include "legacy/tables/FieldTables.h"

namespace ZeltNavMsg::Legacy {

// BeiDou D1 (MEO/IGSO): layouts 2-4 for subframes 1-3, the almanac (7) for subframe 4
// and subframe 5 pages 1-6, then health, time offsets, UTC, almanac and health pages.
class BEIDOU_D1_InterfaceType final : public SubframeIf {
  public:
    constexpr BEIDOU_D1_InterfaceType() noexcept
        : SubframeIf(kBeidouD1Fields.data(), static_cast<std::int32_t>(kBeidouD1Fields.size()),
                     &kBeidouD1Listing) {}

    [[nodiscard]] std::int32_t GetLayoutId(const subframe_t& sf) const override;
    [[nodiscard]] const SubframeCoder& GetCoder() const override { return coder_; }

  private:
    SubframeCoderBeidouNav coder_{1};
};

extern const BEIDOU_D1_InterfaceType BEIDOU_D1_Interface;

}  // namespace ZeltNavMsg::Legacy

#endif
