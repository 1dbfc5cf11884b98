/// Who keeps which object alive: contexts, saved states, the system.
#include <gtest/gtest.h>

#include <cstring>

#include "gdi/picture.h"

namespace {

using gdi_test::Picture;

class GdiObjects : public testing::Test {
protected:
    HDC m_dc = CreateCompatibleDC(nullptr);
    void TearDown() override { DeleteDC(m_dc); }
};

TEST_F(GdiObjects, ABitmapIsInOneMemoryContextAtATime) {
    HBITMAP bitmap = CreateBitmap(3, 3, 1, 32, nullptr);
    HDC other = CreateCompatibleDC(nullptr);
    HGDIOBJ old = SelectObject(m_dc, bitmap);
    EXPECT_NE(nullptr, old);
    EXPECT_EQ(nullptr, SelectObject(other, bitmap));
    EXPECT_EQ(bitmap, SelectObject(m_dc, old));
    EXPECT_EQ(old, SelectObject(other, bitmap));
    DeleteDC(other);
    EXPECT_EQ(old, SelectObject(m_dc, bitmap));  // a deleted context lets go
    SelectObject(m_dc, old);
    DeleteObject(bitmap);
}

TEST_F(GdiObjects, DeletingASelectedObjectWaits) {
    HPEN pen = CreatePen(PS_SOLID, 1, RGB(1, 2, 3));
    SelectObject(m_dc, pen);
    EXPECT_TRUE(DeleteObject(pen));
    LOGPEN record{};
    EXPECT_NE(0, GetObjectA(pen, sizeof record, &record));
    EXPECT_EQ(RGB(1, 2, 3), record.lopnColor);
    EXPECT_EQ(pen, SelectObject(m_dc, GetStockObject(BLACK_PEN)));
    EXPECT_EQ(0u, GetObjectType(pen));
    EXPECT_EQ(nullptr, SelectObject(m_dc, pen));
    EXPECT_FALSE(DeleteObject(pen));
}

TEST_F(GdiObjects, ASavedStateSurvivesTheDeletionOfItsObjects) {
    HPEN pen = CreatePen(PS_SOLID, 1, 0);
    EXPECT_EQ(1, SaveDC(m_dc));
    SelectObject(m_dc, pen);
    EXPECT_EQ(2, SaveDC(m_dc));
    SelectObject(m_dc, GetStockObject(WHITE_PEN));
    EXPECT_TRUE(DeleteObject(pen));
    EXPECT_FALSE(RestoreDC(m_dc, 3) || RestoreDC(m_dc, 0) || RestoreDC(m_dc, -3));
    EXPECT_TRUE(RestoreDC(m_dc, 1));
    EXPECT_EQ(GetStockObject(BLACK_PEN), GetCurrentObject(m_dc, OBJ_PEN));
    EXPECT_FALSE(RestoreDC(m_dc, -1));
}

TEST_F(GdiObjects, StockObjectsStay) {
    HGDIOBJ pen = GetStockObject(BLACK_PEN);
    EXPECT_TRUE(DeleteObject(pen));
    EXPECT_EQ(static_cast<DWORD>(OBJ_PEN), GetObjectType(pen));
    EXPECT_EQ(nullptr, GetStockObject(-1));
    EXPECT_EQ(nullptr, GetStockObject(9));
    EXPECT_TRUE(DeleteObject(GetSysColorBrush(COLOR_WINDOW)));
    EXPECT_EQ(static_cast<DWORD>(OBJ_BRUSH), GetObjectType(GetSysColorBrush(COLOR_WINDOW)));
}

TEST_F(GdiObjects, CompatibleBitmapsFollowTheContext) {
    Picture picture(2, 2);
    struct Case {
        HDC dc;
        int bits, bytes;
    };
    for (const Case& c : {Case{m_dc, 1, 2}, Case{picture.Dc(), 32, 36}}) {
        HBITMAP bitmap = CreateCompatibleBitmap(c.dc, 9, 4);
        BITMAP record{};
        GetObjectA(bitmap, sizeof record, &record);
        EXPECT_EQ(c.bits, record.bmBitsPixel);
        EXPECT_EQ(c.bytes, record.bmWidthBytes);
        DeleteObject(bitmap);
    }
}

TEST_F(GdiObjects, MemoryHolds) {
    for (int i = 0; i < 20000; ++i) ASSERT_TRUE(DeleteObject(CreatePen(PS_SOLID, 1, 0)));
}

}  // namespace
