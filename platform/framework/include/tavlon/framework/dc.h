#pragma once

#include "bitmap.h"
#include "gdi_tools.h"
#include "rect.h"
#include "region.h"
#include "text.h"

/// A device context. Output goes to m_hDC, questions about attributes go to m_hAttribDC; usually both are the
/// same. The destructor deletes the context that the object still holds. SelectObject gives the object
/// selected before.
class TAVLON_FRAMEWORK_API CDC : public CObject {
    DECLARE_DYNAMIC(CDC)
public:
    CDC() = default;
    ~CDC() override;

    HDC m_hDC = nullptr;
    HDC m_hAttribDC = nullptr;
    BOOL m_bPrinting = FALSE;

    static CDC* FromHandle(HDC hDC);
    operator HDC() const { return m_hDC; }
    HDC GetSafeHdc() const { return m_hDC; }
    BOOL IsPrinting() const { return m_bPrinting; }

    BOOL Attach(HDC hDC);  ///< FALSE for a null handle, and when the object holds a context already.
    HDC Detach();
    BOOL CreateCompatibleDC(CDC* pDC);  ///< Null: compatible with the screen.
    BOOL DeleteDC();
    int SaveDC();
    BOOL RestoreDC(int nSavedDC);
    int GetDeviceCaps(int nIndex) const { return ::GetDeviceCaps(m_hAttribDC, nIndex); }

    CGdiObject* SelectStockObject(int nIndex);
    CPen* SelectObject(CPen* pPen);
    CBrush* SelectObject(CBrush* pBrush);
    CFont* SelectObject(CFont* pFont);
    CBitmap* SelectObject(CBitmap* pBitmap);
    int SelectObject(CRgn* pRgn);  ///< Makes the region the clip region; gives its kind.
    CGdiObject* SelectObject(CGdiObject* pObject);
    HGDIOBJ SelectObject(HGDIOBJ hObject);
    CPen* GetCurrentPen() const;
    CBrush* GetCurrentBrush() const;
    CFont* GetCurrentFont() const;
    CBitmap* GetCurrentBitmap() const;

    COLORREF GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
    COLORREF GetTextColor() const { return ::GetTextColor(m_hAttribDC); }
    int GetBkMode() const { return ::GetBkMode(m_hAttribDC); }
    int GetROP2() const { return ::GetROP2(m_hAttribDC); }
    int GetPolyFillMode() const { return ::GetPolyFillMode(m_hAttribDC); }
    int GetStretchBltMode() const { return ::GetStretchBltMode(m_hAttribDC); }
    UINT GetTextAlign() const { return ::GetTextAlign(m_hAttribDC); }
    int GetMapMode() const { return ::GetMapMode(m_hAttribDC); }
    COLORREF SetBkColor(COLORREF clr) { return SetBoth(::SetBkColor, clr); }
    COLORREF SetTextColor(COLORREF clr) { return SetBoth(::SetTextColor, clr); }
    int SetBkMode(int nMode) { return SetBoth(::SetBkMode, nMode); }
    int SetROP2(int nDrawMode) { return SetBoth(::SetROP2, nDrawMode); }
    int SetPolyFillMode(int nMode) { return SetBoth(::SetPolyFillMode, nMode); }
    int SetStretchBltMode(int nMode) { return SetBoth(::SetStretchBltMode, nMode); }
    UINT SetTextAlign(UINT nFlags) { return SetBoth(::SetTextAlign, nFlags); }
    int SetMapMode(int nMapMode) { return SetBoth(::SetMapMode, nMapMode); }

    CPoint GetViewportOrg() const;
    CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT pt) { return SetViewportOrg(pt.x, pt.y); }
    CPoint GetWindowOrg() const;
    CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT pt) { return SetWindowOrg(pt.x, pt.y); }
    void LPtoDP(LPPOINT pPoints, int nCount = 1) const { ::LPtoDP(m_hAttribDC, pPoints, nCount); }
    void LPtoDP(LPRECT prc) const { LPtoDP(reinterpret_cast<LPPOINT>(prc), 2); }
    void LPtoDP(LPSIZE pSize) const;
    void DPtoLP(LPPOINT pPoints, int nCount = 1) const { ::DPtoLP(m_hAttribDC, pPoints, nCount); }
    void DPtoLP(LPRECT prc) const { DPtoLP(reinterpret_cast<LPPOINT>(prc), 2); }
    void DPtoLP(LPSIZE pSize) const;

    int GetClipBox(LPRECT prc) const { return ::GetClipBox(m_hAttribDC, prc); }
    int SelectClipRgn(CRgn* pRgn);
    int IntersectClipRect(int x1, int y1, int x2, int y2);
    int IntersectClipRect(LPCRECT prc);
    int ExcludeClipRect(int x1, int y1, int x2, int y2);
    int ExcludeClipRect(LPCRECT prc);
    virtual BOOL PtVisible(int x, int y) const { return ::PtVisible(m_hDC, x, y); }
    BOOL PtVisible(POINT pt) const { return PtVisible(pt.x, pt.y); }
    virtual BOOL RectVisible(LPCRECT prc) const { return ::RectVisible(m_hDC, prc); }

    CPoint GetCurrentPosition() const;
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT pt) { return MoveTo(pt.x, pt.y); }
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT pt) { return LineTo(pt.x, pt.y); }
    BOOL Polyline(const POINT* pPoints, int nCount) { return ::Polyline(m_hDC, pPoints, nCount); }
    BOOL Polygon(const POINT* pPoints, int nCount) { return ::Polygon(m_hDC, pPoints, nCount); }
    BOOL Rectangle(int x1, int y1, int x2, int y2) { return ::Rectangle(m_hDC, x1, y1, x2, y2); }
    BOOL Rectangle(LPCRECT prc) { return Rectangle(prc->left, prc->top, prc->right, prc->bottom); }
    BOOL Ellipse(int x1, int y1, int x2, int y2) { return ::Ellipse(m_hDC, x1, y1, x2, y2); }
    BOOL Ellipse(LPCRECT prc) { return Ellipse(prc->left, prc->top, prc->right, prc->bottom); }
    BOOL Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
        return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL Arc(LPCRECT prc, POINT ptStart, POINT ptEnd);
    BOOL Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
        return ::Pie(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL Pie(LPCRECT prc, POINT ptStart, POINT ptEnd);

    void FillRect(LPCRECT prc, CBrush* pBrush);
    void FrameRect(LPCRECT prc, CBrush* pBrush);
    void InvertRect(LPCRECT prc) { ::InvertRect(m_hDC, prc); }
    /// Leaves the colour as the background colour.
    void FillSolidRect(LPCRECT prc, COLORREF clr) {
        ::SetBkColor(m_hDC, clr);
        ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, prc, nullptr, 0, nullptr);
    }
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr);
    /// A one-pixel frame inside the rectangle; leaves the last colour as the background colour.
    void Draw3dRect(LPCRECT prc, COLORREF clrTopLeft, COLORREF clrBottomRight);
    void Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight);
    BOOL FillRgn(CRgn* pRgn, CBrush* pBrush);

    BOOL PatBlt(int x, int y, int cx, int cy, DWORD dwRop) { return ::PatBlt(m_hDC, x, y, cx, cy, dwRop); }
    BOOL BitBlt(int x, int y, int cx, int cy, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop) {
        return ::BitBlt(m_hDC, x, y, cx, cy, pSrcDC ? pSrcDC->m_hDC : nullptr, xSrc, ySrc, dwRop);
    }
    BOOL StretchBlt(int x, int y, int cx, int cy, CDC* pSrcDC, int xSrc, int ySrc, int cxSrc, int cySrc,
                    DWORD dwRop);
    BOOL TransparentBlt(int x, int y, int cx, int cy, CDC* pSrcDC, int xSrc, int ySrc, int cxSrc, int cySrc,
                        UINT clrTransparent);
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    COLORREF GetPixel(POINT pt) const { return GetPixel(pt.x, pt.y); }
    COLORREF SetPixel(int x, int y, COLORREF clr) { return ::SetPixel(m_hDC, x, y, clr); }
    COLORREF SetPixel(POINT pt, COLORREF clr) { return SetPixel(pt.x, pt.y, clr); }
    BOOL SetPixelV(int x, int y, COLORREF clr) { return ::SetPixelV(m_hDC, x, y, clr); }
    BOOL SetPixelV(POINT pt, COLORREF clr) { return SetPixelV(pt.x, pt.y, clr); }

    // A null text draws as the empty text; a negative DrawText length means up to the terminator.
    virtual BOOL TextOut(int x, int y, LPCSTR pszText, int nCount);
    BOOL TextOut(int x, int y, const CString& strText) { return TextOut(x, y, strText, strText.GetLength()); }
    virtual BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT prc, LPCSTR pszText, UINT nCount,
                            LPINT pDxWidths);
    BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT prc, const CString& strText, LPINT pDxWidths);
    virtual int DrawText(LPCSTR pszText, int nCount, LPRECT prc, UINT nFormat);
    int DrawText(const CString& strText, LPRECT prc, UINT nFormat) {
        return DrawText(strText, strText.GetLength(), prc, nFormat);
    }
    CSize GetTextExtent(LPCSTR pszText, int nCount) const;
    CSize GetTextExtent(const CString& strText) const { return GetTextExtent(strText, strText.GetLength()); }
    BOOL GetTextMetrics(TEXTMETRIC* pMetrics) const { return ::GetTextMetrics(m_hAttribDC, pMetrics); }

private:
    template <class Setter, class Value>
    Value SetBoth(Setter pfnSet, Value value) {
        Value old{};
        if (m_hDC != m_hAttribDC) old = static_cast<Value>(pfnSet(m_hDC, value));
        return m_hAttribDC ? static_cast<Value>(pfnSet(m_hAttribDC, value)) : old;
    }
    template <class Object>
    Object* SelectTyped(Object* pObject);
};
