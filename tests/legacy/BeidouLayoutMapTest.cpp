// BeiDou D1 and D2 subframe and page to layout, on both sides of every boundary.

#include <gtest/gtest.h>

#include <climits>

#include "legacy/BeidouD1Interface.h"
#include "legacy/BeidouD2Interface.h"

namespace {

using ZeltNavMsg::Legacy::subframe_t;
using ZeltNavMsg::Legacy::SubframeIf;

struct LayoutCase {
    int subframe;
    int page;
    int layout;
};

int layoutOf(const SubframeIf& signal, int subframe, int page) {
    subframe_t sf;
    sf.subframe = subframe;
    sf.page = page;
    return signal.GetLayoutId(sf);
}

TEST(BeidouLayoutMap, D1) {
    const LayoutCase cases[] = {
        {1, 0, 2},       {1, 5, 2},  {2, -3, 3},  {3, 0, 4},   {4, 0, 7},   {4, 1, 7},
        {4, 24, 7},      {4, 99, 7}, {5, 0, 0},   {5, 1, 7},   {5, 6, 7},   {5, 7, 8},
        {5, 8, 9},       {5, 9, 10}, {5, 10, 11}, {5, 11, 12}, {5, 23, 12}, {5, 24, 13},
        {5, 25, 0},      {5, -1, 0}, {0, 1, 0},   {6, 1, 0},   {-1, 0, 0},  {INT_MIN, INT_MIN, 0},
        {5, INT_MAX, 0},
    };
    for (const LayoutCase& c : cases) {
        EXPECT_EQ(layoutOf(ZeltNavMsg::Legacy::BEIDOU_D1_Interface, c.subframe, c.page), c.layout)
            << "subframe " << c.subframe << " page " << c.page;
    }
    EXPECT_EQ(ZeltNavMsg::Legacy::BEIDOU_D1_Interface.fields().size(), 133U);
}

TEST(BeidouLayoutMap, D2) {
    const LayoutCase cases[] = {
        {1, 0, 0},    {1, 1, 3},    {1, 2, 4},    {1, 9, 11},      {1, 10, 12},     {1, 11, 0},
        {1, -1, 0},   {2, 0, 13},   {2, 6, 13},   {3, 0, 14},      {4, 77, 15},     {5, 0, 0},
        {5, 1, 17},   {5, 34, 17},  {5, 35, 18},  {5, 36, 19},     {5, 37, 20},     {5, 60, 20},
        {5, 61, 17},  {5, 94, 17},  {5, 95, 20},  {5, 100, 20},    {5, 101, 21},    {5, 102, 22},
        {5, 103, 23}, {5, 115, 23}, {5, 116, 24}, {5, 117, 17},    {5, 120, 17},    {5, 121, 0},
        {5, -35, 0},  {0, 1, 0},    {6, 1, 0},    {INT_MIN, 1, 0}, {5, INT_MAX, 0},
    };
    for (const LayoutCase& c : cases) {
        EXPECT_EQ(layoutOf(ZeltNavMsg::Legacy::BEIDOU_D2_Interface, c.subframe, c.page), c.layout)
            << "subframe " << c.subframe << " page " << c.page;
    }
    EXPECT_EQ(ZeltNavMsg::Legacy::BEIDOU_D2_Interface.fields().size(), 157U);
}

}  // namespace
