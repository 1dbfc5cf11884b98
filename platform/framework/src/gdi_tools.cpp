#include "tavlon/framework/gdi_tools.h"

#include "gdi_handles.h"
#include "tavlon/framework/exceptions.h"

IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor) {
    if (!CreatePen(nPenStyle, nWidth, crColor)) AfxThrowResourceException();
}

CPen* CPen::FromHandle(HPEN hPen) { return GdiFromHandle<CPen>(hPen); }

BOOL CPen::CreatePen(int nPenStyle, int nWidth, COLORREF crColor) {
    return Attach(::CreatePen(nPenStyle, nWidth, crColor));
}

BOOL CPen::CreatePenIndirect(LOGPEN* pLogPen) { return pLogPen && Attach(::CreatePenIndirect(pLogPen)); }

int CPen::GetLogPen(LOGPEN* pLogPen) const { return GetObject(sizeof(LOGPEN), pLogPen); }

CBrush::CBrush(COLORREF crColor) {
    if (!CreateSolidBrush(crColor)) AfxThrowResourceException();
}

CBrush* CBrush::FromHandle(HBRUSH hBrush) { return GdiFromHandle<CBrush>(hBrush); }

BOOL CBrush::CreateSolidBrush(COLORREF crColor) { return Attach(::CreateSolidBrush(crColor)); }

BOOL CBrush::CreateBrushIndirect(const LOGBRUSH* pLogBrush) {
    return pLogBrush && Attach(::CreateBrushIndirect(pLogBrush));
}

BOOL CBrush::CreateSysColorBrush(int nIndex) { return CreateSolidBrush(::GetSysColor(nIndex)); }

int CBrush::GetLogBrush(LOGBRUSH* pLogBrush) const { return GetObject(sizeof(LOGBRUSH), pLogBrush); }

CFont* CFont::FromHandle(HFONT hFont) { return GdiFromHandle<CFont>(hFont); }

BOOL CFont::CreateFontIndirect(const LOGFONT* pLogFont) {
    return pLogFont && Attach(::CreateFontIndirect(pLogFont));
}

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                       BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision,
                       BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily, LPCSTR pszFacename) {
    return Attach(::CreateFont(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic, bUnderline,
                               cStrikeOut, nCharSet, nOutPrecision, nClipPrecision, nQuality, nPitchAndFamily,
                               pszFacename ? pszFacename : ""));
}

int CFont::GetLogFont(LOGFONT* pLogFont) const { return GetObject(sizeof(LOGFONT), pLogFont); }
