#include "legacy/BeidouD2Interface.h"

namespace ZeltNavMsg::Legacy {

namespace {

// Subframe 5 pages 1-120 -> layout: 17 no page-specific entries, 18 and 19 health,
// 20 almanac, 21 time offsets, 22 UTC, 23 almanac with AmID, 24 health of SVs 31-43.
constexpr std::int32_t subframe5Layout(std::int32_t page) {
    if ((page >= 1 && page <= 34) || (page >= 61 && page <= 94) || (page >= 117 && page <= 120)) {
        return 17;
    }
    if ((page >= 37 && page <= 60) || (page >= 95 && page <= 100)) {
        return 20;
    }
    if (page >= 103 && page <= 115) {
        return 23;
    }
    switch (page) {
        case 35:
            return 18;
        case 36:
            return 19;
        case 101:
            return 21;
        case 102:
            return 22;
        case 116:
            return 24;
        default:
            return 0;
    }
}

}  // namespace

std::int32_t BEIDOU_D2_InterfaceType::GetLayoutId(const subframe_t& sf) const {
    switch (sf.subframe) {
        case 1:
            return sf.page >= 1 && sf.page <= 10 ? sf.page + 2 : 0;
        case 2:
            return 13;
        case 3:
            return 14;
        case 4:
            return 15;
        case 5:
            return subframe5Layout(sf.page);
        default:
            return 0;
    }
}

constinit const BEIDOU_D2_InterfaceType BEIDOU_D2_Interface;

}  // namespace ZeltNavMsg::Legacy
