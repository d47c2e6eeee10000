#include "legacy/GpsL1caInterface.h"

namespace ZeltNavMsg::Legacy {

namespace {
// Subframe 4 pages 1-25 -> layout: 6 reserved, 12 almanac, 8 NMCT, 7 text,
// 9 iono/UTC, 10 A-S and health.
constexpr std::int32_t kSubframe4Layouts[26] = {
    0,                                     // no page 0
    6, 12, 12, 12, 12, 6, 12, 12, 12, 12,  // pages 1-10
    6, 6,  8,  6,  6,  6, 7,  9,  6,  6,   // pages 11-20
    6, 6,  6,  6,  10,                     // pages 21-25
};
}  // namespace

std::int32_t GPS_L1CA_InterfaceType::GetLayoutId(const subframe_t& sf) const {
    switch (sf.subframe) {
        case 1:
            return 2;
        case 2:
            return 3;
        case 3:
            return 4;
        case 4:
            return sf.page >= 1 && sf.page <= 25 ? kSubframe4Layouts[sf.page] : 0;
        case 5:
            if (sf.page >= 1 && sf.page <= 24) {
                return 12;
            }
            return sf.page == 25 ? 13 : 0;
        default:
            return 0;
    }
}

constinit const GPS_L1CA_InterfaceType GPS_L1CA_Interface;

}  // namespace ZeltNavMsg::Legacy
