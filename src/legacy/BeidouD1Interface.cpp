#include "legacy/BeidouD1Interface.h"

namespace ZeltNavMsg::Legacy {

std::int32_t BEIDOU_D1_InterfaceType::GetLayoutId(const subframe_t& sf) const {
    switch (sf.subframe) {
        case 1:
            return 2;
        case 2:
            return 3;
        case 3:
            return 4;
        case 4:
            return 7;  // almanac of SVs 1-24, whatever the page
        case 5:
            if (sf.page >= 1 && sf.page <= 6) {
                return 7;  // almanac of SVs 25-30
            }
            if (sf.page >= 7 && sf.page <= 10) {
                return sf.page + 1;  // 8, 9 health; 10 time offsets; 11 UTC
            }
            if (sf.page >= 11 && sf.page <= 23) {
                return 12;  // almanac with AmID
            }
            return sf.page == 24 ? 13 : 0;  // health of SVs 31-43
        default:
            return 0;
    }
}

constinit const BEIDOU_D1_InterfaceType BEIDOU_D1_Interface;

}  // namespace ZeltNavMsg::Legacy
