#include "legacy/QzssL1caInterface.h"

namespace ZeltNavMsg::Legacy {

namespace {
// Pages 1-30 -> layout: 11 almanac, 12 almanac health, 8 iono/UTC, 6 reserved, 7 NMCT.
constexpr std::int32_t kSubframe4Layouts[31] = {
    0,                                   // no page 0
    11, 12, 8, 6, 8,  11, 12, 8, 6, 7,   // pages 1-10
    11, 12, 6, 6, 12, 11, 12, 8, 6, 8,   // pages 11-20
    11, 12, 8, 6, 7,  11, 12, 6, 6, 12,  // pages 21-30
};
constexpr std::int32_t kSubframe5Layouts[31] = {
    0,                                       // no page 0
    11, 11, 12, 11, 8,  11, 11, 11, 11, 7,   // pages 1-10
    12, 11, 11, 11, 12, 11, 11, 11, 11, 8,   // pages 11-20
    11, 11, 11, 11, 7,  11, 11, 11, 11, 12,  // pages 21-30
};
}  // namespace

std::int32_t QZSS_L1CA_InterfaceType::GetLayoutId(const subframe_t& sf) const {
    const bool pageInRange = sf.page >= 1 && sf.page <= 30;
    switch (sf.subframe) {
        case 1:
            return 2;
        case 2:
            return 3;
        case 3:
            return 4;
        case 4:
            return pageInRange ? kSubframe4Layouts[sf.page] : 0;
        case 5:
            return pageInRange ? kSubframe5Layouts[sf.page] : 0;
        default:
            return 0;
    }
}

constinit const QZSS_L1CA_InterfaceType QZSS_L1CA_Interface;

}  // namespace ZeltNavMsg::Legacy
