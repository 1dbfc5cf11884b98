#include "support/print.h"
#include "test_window.h"

namespace {

/// A memory context with a bitmap in it.
class MemoryDC : public CDC {
public:
    MemoryDC(int cx, int cy) {
        const HDC hScreen = ::GetDC(nullptr);
        EXPECT_TRUE(CreateCompatibleDC(CDC::FromHandle(hScreen)));
        EXPECT_TRUE(m_bitmap.CreateCompatibleBitmap(CDC::FromHandle(hScreen), cx, cy));
        ::ReleaseDC(nullptr, hScreen);
        m_pOld = SelectObject(&m_bitmap);
    }
    ~MemoryDC() override { SelectObject(m_pOld); }

    CBitmap m_bitmap;
    CBitmap* m_pOld;
};

TEST(FrameworkGdi, SelectingGivesTheObjectSelectedBefore) {
    MemoryDC dc(8, 8);
    CPen pen1(PS_SOLID, 1, RGB(1, 2, 3)), pen2(PS_SOLID, 1, RGB(4, 5, 6));
    CPen* pStock = dc.SelectObject(&pen1);
    EXPECT_NE(nullptr, pStock);
    EXPECT_EQ(::GetStockObject(BLACK_PEN), pStock->m_hObject);
    EXPECT_EQ(RUNTIME_CLASS(CPen), pStock->GetRuntimeClass());
    EXPECT_EQ(RUNTIME_CLASS(CBrush), dc.SelectStockObject(NULL_BRUSH)->GetRuntimeClass());
    EXPECT_EQ(RUNTIME_CLASS(CFont), CGdiObject::FromHandle(::GetStockObject(SYSTEM_FONT))->GetRuntimeClass());
    EXPECT_EQ(nullptr, CGdiObject::FromHandle(nullptr));
    EXPECT_EQ(&pen1, dc.SelectObject(&pen2));  // the owner itself, no stand-in
    EXPECT_EQ(&pen2, dc.GetCurrentPen());
    EXPECT_EQ(&pen2, dc.SelectStockObject(NULL_PEN));
    dc.SelectObject(pStock);
    EXPECT_EQ(&dc.m_bitmap, dc.GetCurrentBitmap());
    CPen none;
    EXPECT_EQ(nullptr, dc.SelectObject(&none));
    EXPECT_EQ(nullptr, dc.SelectObject(static_cast<CPen*>(nullptr)));
    EXPECT_EQ(::GetStockObject(BLACK_PEN), dc.GetCurrentPen()->m_hObject);
}

TEST(FrameworkGdi, ObjectsOwnTheirHandles) {
    LOGPEN log = {};
    CPen pen;
    EXPECT_FALSE(pen.DeleteObject());
    EXPECT_TRUE(pen.CreatePen(PS_SOLID, 3, RGB(9, 8, 7)));
    EXPECT_EQ(static_cast<int>(sizeof log), pen.GetLogPen(&log));
    EXPECT_EQ(3, log.lopnWidth.x);
    const HPEN hFirst = pen;
    EXPECT_TRUE(pen.CreatePen(PS_SOLID, 1, 0));  // deletes the first
    EXPECT_EQ(0u, ::GetObjectType(hFirst));
    EXPECT_EQ(&pen, CPen::FromHandle(pen));
    EXPECT_NE(static_cast<CGdiObject*>(&pen), CBrush::FromHandle(reinterpret_cast<HBRUSH>(pen.m_hObject)));
    const HGDIOBJ hPen = pen.Detach();
    CPen* pTemporary = CPen::FromHandle(static_cast<HPEN>(hPen));
    EXPECT_EQ(pTemporary, CPen::FromHandle(static_cast<HPEN>(hPen)));
    AfxFreeTemporaryObjects();
    EXPECT_EQ(static_cast<DWORD>(OBJ_PEN), ::GetObjectType(hPen));  // the temporary object did not own it
    ::DeleteObject(hPen);
    EXPECT_FALSE(pen.Attach(nullptr));
}

TEST(FrameworkGdi, SolidFillLeavesItsColourAsBackground) {
    MemoryDC dc(8, 8);
    dc.FillSolidRect(CRect(0, 0, 8, 8), RGB(10, 20, 30));
    dc.FillSolidRect(2, 2, 3, 3, RGB(200, 100, 50));
    EXPECT_EQ(RGB(200, 100, 50), dc.GetBkColor());
    dc.Draw3dRect(CRect(0, 0, 8, 8), RGB(1, 1, 1), RGB(2, 2, 2));
    CBrush none;
    dc.FillRect(CRect(0, 0, 8, 8), &none);
    dc.FillRect(CRect(0, 0, 8, 8), nullptr);
    struct Case {
        int x, y;
        COLORREF clr;
    };
    for (const Case& c :
         {Case{4, 4, RGB(200, 100, 50)}, Case{5, 2, RGB(10, 20, 30)}, Case{0, 0, RGB(1, 1, 1)},
          Case{7, 7, RGB(2, 2, 2)}, Case{7, 0, RGB(2, 2, 2)}, Case{1, 1, RGB(10, 20, 30)}})
        EXPECT_EQ(c.clr, dc.GetPixel(c.x, c.y)) << c.x << "," << c.y;
}

TEST(FrameworkGdi, AttributesAreRemembered) {
    MemoryDC dc(4, 4);
    const int nSaved = dc.SaveDC();
    dc.SetBkMode(TRANSPARENT), dc.MoveTo(1, 2);
    EXPECT_EQ(CPoint(1, 2), dc.MoveTo(3, 3));
    EXPECT_TRUE(dc.RestoreDC(nSaved));
    EXPECT_EQ(OPAQUE, dc.GetBkMode());
    EXPECT_EQ(CPoint(0, 0), dc.SetViewportOrg(5, 6));
    CPoint pt(1, 1);
    CSize size(4, 5);
    dc.LPtoDP(&pt), dc.DPtoLP(&size);
    EXPECT_EQ(CPoint(6, 7), pt);
    EXPECT_EQ(CSize(4, 5), size) << "an origin moves no size";
}

TEST(FrameworkGdi, ABorrowedContextSurvivesItsBorrower) {
    MemoryDC dc(4, 4);
    {
        CDC borrower;
        borrower.m_hDC = dc.m_hDC, borrower.m_hAttribDC = dc.m_hAttribDC, borrower.m_bPrinting = TRUE;
        borrower.FillSolidRect(0, 0, 4, 4, RGB(7, 7, 7));
        EXPECT_TRUE(borrower.IsPrinting());
        borrower.m_hDC = borrower.m_hAttribDC = nullptr;
    }
    EXPECT_EQ(RGB(7, 7, 7), dc.GetPixel(3, 3));
    EXPECT_EQ(&dc, CDC::FromHandle(dc.m_hDC));
    CDC none;
    EXPECT_FALSE(none.DeleteDC() || none.Attach(nullptr) || dc.CreateCompatibleDC(nullptr));
    EXPECT_EQ(0, none.SaveDC());
    EXPECT_FALSE(none.LineTo(1, 1));
}

TEST(FrameworkGdi, TextTakesNullAsEmpty) {
    MemoryDC dc(40, 20);
    CRect rc(0, 0, 40, 20);
    EXPECT_TRUE(dc.GetTextExtent(nullptr, 5) == CSize(0, 0));
    EXPECT_EQ(0, dc.GetTextExtent("abc", -1).cx);
    EXPECT_LT(dc.GetTextExtent("a").cx, dc.GetTextExtent(CString("ab")).cx);
    dc.TextOut(0, 0, nullptr, 4), dc.DrawText(nullptr, -1, rc, DT_SINGLELINE), dc.TextOut(0, 0, "x", -3);
    TEXTMETRIC metrics;
    ASSERT_TRUE(dc.GetTextMetrics(&metrics));
    EXPECT_EQ(metrics.tmHeight, dc.DrawText(CString("ab"), rc, DT_SINGLELINE));
}

TEST(FrameworkGdi, Regions) {
    CRgn cross, bar, none;
    EXPECT_TRUE(cross.CreateRectRgn(0, 4, 10, 6) && bar.CreateRectRgnIndirect(CRect(4, 0, 6, 10)));
    EXPECT_EQ(COMPLEXREGION, cross.CombineRgn(&cross, &bar, RGN_OR));
    EXPECT_FALSE(none.EqualRgn(&cross) || cross.EqualRgn(nullptr));
    CRect rc(1, 2, 3, 4);
    EXPECT_EQ(ERROR, none.CombineRgn(&cross, &bar, RGN_OR));
    EXPECT_EQ(ERROR, none.GetRgnBox(&rc));
    EXPECT_TRUE(rc.IsRectNull() && !none.PtInRegion(0, 0));
    MemoryDC dc(10, 10);
    EXPECT_EQ(COMPLEXREGION, dc.SelectObject(&cross));
    EXPECT_TRUE(dc.PtVisible(5, 0) && !dc.PtVisible(0, 0) && !dc.RectVisible(CRect(0, 0, 4, 4)));
}

}  // namespace
