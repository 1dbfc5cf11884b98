// The points that a radar holds, and its active block.
#include <gtest/gtest.h>
#include <tavlon/point_store.h>

#include <algorithm>
#include <string>

#include "radar_window.h"

namespace {
/// A copy: records are packed, so that nothing may refer to their values.
double XOf(const PointStore& store, INT_PTR i) { return store.m_arrData[i].dX; }
}  // namespace

TEST(PointStore, OnePointAStock) {
    PointStore store;
    tagPointRadarItemData first = Point("a", 1, 1), other = Point("a", 2, 2, 0, 2), again = Point("a", 3, 3);
    for (tagPointRadarItemData* pItem : {&first, &other, &again}) EXPECT_TRUE(store.StorePoint(*pItem));
    ASSERT_EQ(2, store.m_arrData.GetSize());
    EXPECT_EQ(3, XOf(store, 0)) << "replaced where it stands";
    EXPECT_EQ(2, XOf(store, 1));
    EXPECT_EQ(1, store.FindStockWithItemData(other));
    EXPECT_EQ(-1, store.FindStockWithItemData(Point("A", 1, 1)));
}

TEST(PointStore, ClearKeepsTheBlockName) {
    PointStore store;
    tagPointRadarItemData item = Point("a", 1, 1);
    store.StorePoint(item);
    store.m_arrShown.Add(item);
    store.ActivateBlock(7, "银行");
    store.ClearPoints();
    EXPECT_EQ(0, store.m_arrData.GetSize() + store.m_arrShown.GetSize());
    EXPECT_EQ(-1, store.FindStockWithItemData(item));
    EXPECT_EQ(-1, store.m_nActiveBlockId);
    EXPECT_STREQ("银行", store.m_szActiveBlock);
}

TEST(PointStore, BlockNameIsCut) {
    PointStore store;
    for (const std::size_t nLength : {0u, 1u, 253u, 254u, 255u, 256u, 5000u}) {
        store.ActivateBlock(1, std::string(nLength, 'n').c_str());
        EXPECT_EQ(std::string(std::min<std::size_t>(nLength, 254), 'n'), store.m_szActiveBlock);
    }
    store.ActivateBlock(2, nullptr);
    EXPECT_EQ(2, store.m_nActiveBlockId);
    EXPECT_STREQ("", store.m_szActiveBlock);
}
