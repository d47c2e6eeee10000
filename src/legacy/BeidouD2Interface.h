#ifndef ZELTNAVMSG_LEGACY_BEIDOUD2INTERFACE_H
#define ZELTNAVMSG_LEGACY_BEIDOUD2INTERFACE_H

#include "legacy/SubframeCoderBeidouNav.h"
#include "legacy/SubframeIf.h"
#include "legacy/tables/FieldTables.h"

namespace ZeltNavMsg::Legacy {

// BeiDou D2 (GEO): subframe 1 pages 1-10 carry the clock and ephemeris in ten parts
// (layouts 3-12), subframes 2-4 one layout each, subframe 5 pages health, almanac,
// time offsets and UTC.
class BEIDOU_D2_InterfaceType final : public SubframeIf {
  public:
    constexpr BEIDOU_D2_InterfaceType() noexcept
        : SubframeIf(kBeidouD2Fields.data(), static_cast<std::int32_t>(kBeidouD2Fields.size()),
                     &kBeidouD2Listing) {}

    [[nodiscard]] std::int32_t GetLayoutId(const subframe_t& sf) const override;
    [[nodiscard]] const SubframeCoder& GetCoder() const override { return coder_; }

  private:
    SubframeCoderBeidouNav coder_{1};
};

extern const BEIDOU_D2_InterfaceType BEIDOU_D2_Interface;

}  // namespace ZeltNavMsg::Legacy

#endif
