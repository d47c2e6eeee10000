// Subframe and page to layout, on both sides of every boundary, and the table sizes.

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <vector>

#include "legacy/BeidouD1Interface.h"
#include "legacy/BeidouD2Interface.h"
#include "legacy/GpsL1caInterface.h"
#include "legacy/QzssL1caInterface.h"

namespace {

using namespace ZeltNavMsg::Legacy;

struct Signal {
    const SubframeIf* table;
    std::size_t fieldCount;
    std::vector<std::array<int, 3>> layouts;  // subframe, page, layout
};

TEST(LayoutMap, EverySignal) {
    // clang-format off
    const Signal signals[] = {
        {&GPS_L1CA_Interface, 228, {
            {1, 0, 2}, {1, 99, 2}, {2, -1, 3}, {3, 7, 4}, {0, 0, 0}, {6, 1, 0}, {4, 0, 0},
            {4, 1, 6}, {4, 2, 12}, {4, 5, 12}, {4, 6, 6}, {4, 7, 12}, {4, 10, 12}, {4, 11, 6},
            {4, 12, 6}, {4, 13, 8}, {4, 14, 6}, {4, 16, 6}, {4, 17, 7}, {4, 18, 9}, {4, 19, 6},
            {4, 24, 6}, {4, 25, 10}, {4, 26, 0}, {5, 0, 0}, {5, 1, 12}, {5, 24, 12}, {5, 25, 13},
            {5, 26, 0}, {5, -1, 0}, {INT_MIN, INT_MIN, 0}, {4, INT_MAX, 0}}},
        {&QZSS_L1CA_Interface, 205, {
            {1, 0, 2}, {2, 5, 3}, {3, 0, 4}, {4, 0, 0}, {4, 1, 11}, {4, 2, 12}, {4, 3, 8},
            {4, 4, 6}, {4, 5, 8}, {4, 10, 7}, {4, 13, 6}, {4, 15, 12}, {4, 25, 7}, {4, 26, 11},
            {4, 29, 6}, {4, 30, 12}, {4, 31, 0}, {5, 1, 11}, {5, 3, 12}, {5, 5, 8}, {5, 10, 7},
            {5, 11, 12}, {5, 20, 8}, {5, 25, 7}, {5, 29, 11}, {5, 30, 12}, {5, 31, 0},
            {5, -30, 0}, {0, 1, 0}}},
        {&BEIDOU_D1_Interface, 133, {
            {1, 0, 2}, {1, 5, 2}, {2, -3, 3}, {3, 0, 4}, {4, 0, 7}, {4, 1, 7}, {4, 24, 7},
            {4, 99, 7}, {5, 0, 0}, {5, 1, 7}, {5, 6, 7}, {5, 7, 8}, {5, 8, 9}, {5, 9, 10},
            {5, 10, 11}, {5, 11, 12}, {5, 23, 12}, {5, 24, 13}, {5, 25, 0}, {5, -1, 0}, {0, 1, 0},
            {6, 1, 0}, {-1, 0, 0}, {INT_MIN, INT_MIN, 0}, {5, INT_MAX, 0}}},
        {&BEIDOU_D2_Interface, 157, {
            {1, 0, 0}, {1, 1, 3}, {1, 2, 4}, {1, 9, 11}, {1, 10, 12}, {1, 11, 0}, {1, -1, 0},
            {2, 0, 13}, {2, 6, 13}, {3, 0, 14}, {4, 77, 15}, {5, 0, 0}, {5, 1, 17}, {5, 34, 17},
            {5, 35, 18}, {5, 36, 19}, {5, 37, 20}, {5, 60, 20}, {5, 61, 17}, {5, 94, 17},
            {5, 95, 20}, {5, 100, 20}, {5, 101, 21}, {5, 102, 22}, {5, 103, 23}, {5, 115, 23},
            {5, 116, 24}, {5, 117, 17}, {5, 120, 17}, {5, 121, 0}, {5, -35, 0}, {0, 1, 0},
            {6, 1, 0}, {INT_MIN, 1, 0}, {5, INT_MAX, 0}}},
    };
    // clang-format on
    for (const Signal& signal : signals) {
        EXPECT_EQ(signal.table->fields().size(), signal.fieldCount);
        for (const auto& [subframe, page, layout] : signal.layouts) {
            subframe_t sf;
            sf.subframe = subframe;
            sf.page = page;
            EXPECT_EQ(signal.table->GetLayoutId(sf), layout)
                << signal.fieldCount << "-entry table, subframe " << subframe << " page " << page;
        }
    }
}

}  // namespace
