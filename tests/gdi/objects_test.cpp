/// Handles, selection, deletion, fresh device contexts, saved states.
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

TEST_F(GdiObjects, SelectingAnswersTheOldObject) {
    HPEN pen = CreatePen(PS_SOLID, 2, 0);
    HBRUSH brush = CreateSolidBrush(0);
    HFONT font = CreateFontA(12, 0, 0, 0, FW_NORMAL, 0, 0, 0, 1, 0, 0, 0, 0, "x");
    EXPECT_EQ(GetStockObject(BLACK_PEN), SelectObject(m_dc, pen));
    EXPECT_EQ(GetStockObject(WHITE_BRUSH), SelectObject(m_dc, brush));
    EXPECT_EQ(GetStockObject(SYSTEM_FONT), SelectObject(m_dc, font));
    EXPECT_EQ(pen, SelectObject(m_dc, GetStockObject(NULL_PEN)));
    EXPECT_EQ(brush, GetCurrentObject(m_dc, OBJ_BRUSH));
    DeleteDC(m_dc), m_dc = CreateCompatibleDC(nullptr);
    for (HGDIOBJ object : {HGDIOBJ(pen), HGDIOBJ(brush), HGDIOBJ(font)}) EXPECT_TRUE(DeleteObject(object));
}

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

TEST_F(GdiObjects, StockObjectsStay) {
    HGDIOBJ pen = GetStockObject(BLACK_PEN);
    EXPECT_TRUE(DeleteObject(pen));
    EXPECT_EQ(static_cast<DWORD>(OBJ_PEN), GetObjectType(pen));
    EXPECT_EQ(nullptr, GetStockObject(-1));
    EXPECT_EQ(nullptr, GetStockObject(9));
    EXPECT_EQ(pen, GetStockObject(BLACK_PEN));
    EXPECT_TRUE(DeleteObject(GetSysColorBrush(COLOR_WINDOW)));
    EXPECT_EQ(static_cast<DWORD>(OBJ_BRUSH), GetObjectType(GetSysColorBrush(COLOR_WINDOW)));
}

TEST_F(GdiObjects, CompatibleBitmapsFollowTheContext) {
    HBITMAP mono = CreateCompatibleBitmap(m_dc, 9, 4);
    BITMAP record{};
    GetObjectA(mono, sizeof record, &record);
    EXPECT_EQ(1, record.bmBitsPixel);
    EXPECT_EQ(2, record.bmWidthBytes);
    Picture picture(2, 2);
    HBITMAP colour = CreateCompatibleBitmap(picture.Dc(), 9, 4);
    GetObjectA(colour, sizeof record, &record);
    EXPECT_EQ(32, record.bmBitsPixel);
    EXPECT_EQ(36, record.bmWidthBytes);
    GetObjectA(picture.Bitmap(), sizeof record, &record);
    EXPECT_NE(nullptr, record.bmBits);
    DeleteObject(mono), DeleteObject(colour);
}

TEST_F(GdiObjects, SavedStates) {
    EXPECT_EQ(1, SaveDC(m_dc));
    SetTextColor(m_dc, RGB(1, 1, 1));
    SetROP2(m_dc, R2_XORPEN);
    MoveToEx(m_dc, 5, 6, nullptr);
    HPEN pen = CreatePen(PS_SOLID, 1, 0);
    SelectObject(m_dc, pen);
    EXPECT_EQ(2, SaveDC(m_dc));
    SelectObject(m_dc, GetStockObject(WHITE_PEN));
    EXPECT_TRUE(DeleteObject(pen));  // held by the saved state
    EXPECT_FALSE(RestoreDC(m_dc, 3));
    EXPECT_FALSE(RestoreDC(m_dc, 0));
    EXPECT_FALSE(RestoreDC(m_dc, -3));
    EXPECT_TRUE(RestoreDC(m_dc, 1));
    EXPECT_EQ(0u, GetTextColor(m_dc));
    EXPECT_EQ(R2_COPYPEN, GetROP2(m_dc));
    EXPECT_EQ(GetStockObject(BLACK_PEN), GetCurrentObject(m_dc, OBJ_PEN));
    EXPECT_FALSE(RestoreDC(m_dc, -1));
}

TEST_F(GdiObjects, AttributesRefuseValuesOutOfRange) {
    EXPECT_EQ(0, SetBkMode(m_dc, 3));
    EXPECT_EQ(0, SetROP2(m_dc, 17));
    EXPECT_EQ(0, SetPolyFillMode(m_dc, 0));
    EXPECT_EQ(0, SetStretchBltMode(m_dc, 9));
    EXPECT_EQ(OPAQUE, GetBkMode(m_dc));
    EXPECT_EQ(R2_COPYPEN, GetROP2(m_dc));
    SetTextAlign(m_dc, 0xffffffff);
    EXPECT_EQ(0xffffu, GetTextAlign(m_dc));
    EXPECT_EQ(RGB(0, 0, 0), SetTextColor(m_dc, RGB(9, 9, 9)));
    EXPECT_EQ(RGB(9, 9, 9), SetTextColor(m_dc, RGB(1, 1, 1)));
}

}  // namespace
