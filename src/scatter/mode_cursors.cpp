#include "mode_cursors.h"

#include <iterator>

#include "foundation/mem_dc.h"
#include "foundation/select_scope.h"

namespace {
constexpr COLORREF k_clrTransparent = RGB(255, 255, 255);

/// A copy of what `draw` draws on a square of the transparent colour; the caller deletes it.
template <class Draw>
HBITMAP DrawPicture(CDC& dcWindow, int nSide, Draw draw) {
    const CRect rcPicture(0, 0, nSide, nSide);
    CMemDC surface(&dcWindow, &rcPicture);
    surface.FillSolidRect(&rcPicture, k_clrTransparent);
    draw(surface);
    const DWORD dwSide = static_cast<DWORD>(nSide);
    return GetHBitmapFromHDC(surface, dwSide, dwSide);
}

template <class Draw>
void MakeCursor(CWnd& wnd, int nSide, CPoint ptHot, CScatterCursor& cursor, Draw draw) {
    cursor.Destroy();
    CDC* pWindowDC = wnd.GetDC();
    if (pWindowDC == nullptr) return;
    const int nSaved = pWindowDC->SaveDC();
    pWindowDC->IntersectClipRect(0, 0, 0, 0);  // the surface ends with a copy to the window
    CBitmap picture;
    picture.Attach(DrawPicture(*pWindowDC, nSide, draw));
    pWindowDC->RestoreDC(nSaved);
    wnd.ReleaseDC(pWindowDC);
    cursor.CreateFromBitmap(picture, k_clrTransparent, static_cast<DWORD>(ptHot.x),
                            static_cast<DWORD>(ptHot.y));
}

void DrawMagnifierHandle(CDC& dc, COLORREF clr) {
    const POINT points[] = {{10, 15}, {17, 21}, {18, 21}, {20, 19}, {20, 17}, {15, 12}};
    CRgn rgn;
    CBrush brush;
    if (!rgn.CreatePolygonRgn(points, static_cast<int>(std::size(points)), ALTERNATE)) return;
    if (brush.CreateSolidBrush(clr)) dc.FillRgn(&rgn, &brush);
}

void DrawMagnifier(CDC& dc, COLORREF clr) {
    const CRect rcGlints(2, 2, 13, 13);
    DrawNoFillCircle(&dc, 0, 0, 16, 16, clr);
    DrawArc(&dc, rcGlints, CPoint(7, 3), CPoint(3, 7), clr);
    DrawArc(&dc, rcGlints, CPoint(10, 13), CPoint(12, 10), clr);
    DrawMagnifierHandle(dc, clr);
}

void DrawHand(CDC& dc, COLORREF clrOutline, COLORREF clrFill) {
    const POINT points[] = {{2, 8},  {2, 13}, {5, 16}, {5, 18}, {16, 18}, {16, 15}, {17, 14}, {17, 6},
                            {16, 5}, {15, 5}, {14, 6}, {13, 5}, {12, 5},  {11, 6},  {10, 5},  {8, 5},
                            {8, 1},  {7, 0},  {6, 0},  {5, 1},  {5, 8},   {5, 11},  {5, 8},   {2, 8}};
    CBrush brush;
    CPen pen;
    if (!brush.CreateSolidBrush(clrFill) || !pen.CreatePen(PS_SOLID, 1, clrOutline)) return;
    const SelectScope brushScope(dc, brush);
    const SelectScope penScope(dc, pen);
    dc.Polygon(points, static_cast<int>(std::size(points)));
}
}  // namespace

void DrawEnlargeCursor(CWnd& wnd, COLORREF clrCursor, CScatterCursor& cursor) {
    MakeCursor(wnd, 22, CPoint(8, 8), cursor, [clrCursor](CDC& dc) { DrawMagnifier(dc, clrCursor); });
}

void DrawDragCursor(CWnd& wnd, COLORREF clrBack, COLORREF clrCursor, CScatterCursor& cursor) {
    MakeCursor(wnd, 20, CPoint(6, 0), cursor, [=](CDC& dc) { DrawHand(dc, clrCursor, clrBack); });
}

HBITMAP GetHBitmapFromHDC(HDC hdc, DWORD dwWidth, DWORD dwHeight) {
    const int cx = static_cast<int>(dwWidth), cy = static_cast<int>(dwHeight);
    CDC dcCopy;
    CBitmap copy;
    if (!dcCopy.Attach(::CreateCompatibleDC(hdc))) return nullptr;
    if (!copy.Attach(::CreateCompatibleBitmap(hdc, cx, cy))) return nullptr;
    {
        const SelectScope scope(dcCopy, copy);
        if (!::StretchBlt(dcCopy, 0, 0, cx, cy, hdc, 0, 0, cx, cy, SRCCOPY)) return nullptr;
    }
    return static_cast<HBITMAP>(copy.Detach());
}

void DrawNoFillCircle(CDC* pDC, int x1, int y1, int x2, int y2, COLORREF colour) {
    CPen pen;
    if (pDC == nullptr || !pen.CreatePen(PS_SOLID, 1, colour)) return;
    const SelectScope scope(*pDC, pen);
    CGdiObject* pOldBrush = pDC->SelectStockObject(NULL_BRUSH);
    pDC->Ellipse(x1, y1, x2, y2);
    if (pOldBrush != nullptr) pDC->SelectObject(static_cast<CBrush*>(pOldBrush));
}

void DrawArc(CDC* pDC, CRect rect, CPoint ptStart, CPoint ptEnd, COLORREF colour) {
    CPen pen;
    if (pDC == nullptr || !pen.CreatePen(PS_SOLID, 1, colour)) return;
    const SelectScope scope(*pDC, pen);
    pDC->Arc(&rect, ptStart, ptEnd);
}
