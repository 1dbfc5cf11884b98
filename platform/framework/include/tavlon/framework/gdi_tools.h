#pragma once

#include "gdi_object.h"

/// The constructors that make their object at once raise CResourceException when the system refuses.
class TAVLON_FRAMEWORK_API CPen : public CGdiObject {
    DECLARE_DYNAMIC(CPen)
public:
    CPen() = default;
    CPen(int nPenStyle, int nWidth, COLORREF crColor);

    static CPen* FromHandle(HPEN hPen);
    operator HPEN() const { return static_cast<HPEN>(m_hObject); }
    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor);
    BOOL CreatePenIndirect(LOGPEN* pLogPen);
    int GetLogPen(LOGPEN* pLogPen) const;
};

class TAVLON_FRAMEWORK_API CBrush : public CGdiObject {
    DECLARE_DYNAMIC(CBrush)
public:
    CBrush() = default;
    explicit CBrush(COLORREF crColor);

    static CBrush* FromHandle(HBRUSH hBrush);
    operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }
    BOOL CreateSolidBrush(COLORREF crColor);
    BOOL CreateBrushIndirect(const LOGBRUSH* pLogBrush);
    BOOL CreateSysColorBrush(int nIndex);
    int GetLogBrush(LOGBRUSH* pLogBrush) const;
};

class TAVLON_FRAMEWORK_API CFont : public CGdiObject {
    DECLARE_DYNAMIC(CFont)
public:
    CFont() = default;

    static CFont* FromHandle(HFONT hFont);
    operator HFONT() const { return static_cast<HFONT>(m_hObject); }
    BOOL CreateFontIndirect(const LOGFONT* pLogFont);
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                    BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                    BYTE nQuality, BYTE nPitchAndFamily, LPCSTR pszFacename);
    int GetLogFont(LOGFONT* pLogFont) const;
};
