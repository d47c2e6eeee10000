// Subframe and page to layout, on both sides of every boundary (tests/data/layout-map.tsv),
// and the table sizes.

#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>

#include "legacy/BeidouD1Interface.h"
#include "legacy/BeidouD2Interface.h"
#include "legacy/GpsL1caInterface.h"
#include "legacy/QzssL1caInterface.h"
#include "support/RealData.h"

namespace {

using namespace ZeltNavMsg::Legacy;

TEST(LayoutMap, EverySignal) {
    const std::map<std::string, std::pair<const SubframeIf*, std::size_t>> signals = {
        {"GpsLNav", {&GPS_L1CA_Interface, 228}},
        {"QzssLNav", {&QZSS_L1CA_Interface, 205}},
        {"BeidouD1", {&BEIDOU_D1_Interface, 143}},
        {"BeidouD2", {&BEIDOU_D2_Interface, 174}},
    };
    for (const auto& [name, signal] : signals) {
        EXPECT_EQ(signal.first->fields().size(), signal.second) << name;
    }
    int cases = 0;
    for (const auto& row : ZeltNavMsg::Testing::loadTable("layout-map.tsv")) {
        ASSERT_EQ(row.cells.size(), 3U) << row.where;
        subframe_t sf;
        sf.subframe = std::stoi(row.cells[1]);
        std::istringstream pairs(row.cells[2]);
        for (int layout = 0; pairs >> sf.page && pairs.ignore(1) >> layout; ++cases) {
            EXPECT_EQ(signals.at(row.cells[0]).first->GetLayoutId(sf), layout)
                << row.where << ": page " << sf.page;
        }
    }
    EXPECT_EQ(cases, 121);
}

}  // namespace
