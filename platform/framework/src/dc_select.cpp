#include "gdi_handles.h"
#include "tavlon/framework/dc.h"

HGDIOBJ CDC::SelectObject(HGDIOBJ hObject) {
    HGDIOBJ hOld = nullptr;
    if (m_hDC != m_hAttribDC) hOld = ::SelectObject(m_hDC, hObject);
    if (m_hAttribDC) hOld = ::SelectObject(m_hAttribDC, hObject);
    return hOld;
}

template <class Object>
Object* CDC::SelectTyped(Object* pObject) {
    return pObject ? GdiFromHandle<Object>(SelectObject(pObject->m_hObject)) : nullptr;
}

CPen* CDC::SelectObject(CPen* pPen) { return SelectTyped(pPen); }
CBrush* CDC::SelectObject(CBrush* pBrush) { return SelectTyped(pBrush); }
CFont* CDC::SelectObject(CFont* pFont) { return SelectTyped(pFont); }
CBitmap* CDC::SelectObject(CBitmap* pBitmap) { return SelectTyped(pBitmap); }

CGdiObject* CDC::SelectObject(CGdiObject* pObject) {
    if (auto* pRgn = dynamic_cast<CRgn*>(pObject))
        return SelectObject(pRgn), nullptr;  // no region is given back
    return pObject ? GdiFromAnyHandle(SelectObject(pObject->m_hObject)) : nullptr;
}

CGdiObject* CDC::SelectStockObject(int nIndex) {
    return GdiFromAnyHandle(SelectObject(::GetStockObject(nIndex)));
}

int CDC::SelectObject(CRgn* pRgn) { return pRgn ? SelectClipRgn(pRgn) : ERROR; }

CPen* CDC::GetCurrentPen() const { return GdiFromHandle<CPen>(::GetCurrentObject(m_hAttribDC, OBJ_PEN)); }
CBrush* CDC::GetCurrentBrush() const {
    return GdiFromHandle<CBrush>(::GetCurrentObject(m_hAttribDC, OBJ_BRUSH));
}
CFont* CDC::GetCurrentFont() const { return GdiFromHandle<CFont>(::GetCurrentObject(m_hAttribDC, OBJ_FONT)); }

CBitmap* CDC::GetCurrentBitmap() const {
    return GdiFromHandle<CBitmap>(::GetCurrentObject(m_hAttribDC, OBJ_BITMAP));
}
