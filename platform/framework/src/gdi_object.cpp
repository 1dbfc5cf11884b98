#include "tavlon/framework/gdi_object.h"

#include "gdi_handles.h"

IMPLEMENT_DYNAMIC(CGdiObject, CObject)

CGdiObject::~CGdiObject() { DeleteObject(); }

CGdiObject* GdiFromAnyHandle(HGDIOBJ hObject) {
    switch (::GetObjectType(hObject)) {
        case OBJ_PEN:
            return GdiFromHandle<CPen>(hObject);
        case OBJ_BRUSH:
            return GdiFromHandle<CBrush>(hObject);
        case OBJ_FONT:
            return GdiFromHandle<CFont>(hObject);
        case OBJ_BITMAP:
            return GdiFromHandle<CBitmap>(hObject);
        case OBJ_REGION:
            return GdiFromHandle<CRgn>(hObject);
        default:
            return GdiFromHandle<CGdiObject>(hObject);
    }
}

CGdiObject* CGdiObject::FromHandle(HGDIOBJ hObject) {
    CGdiObject* pOwner = hObject ? GetThreadState().gdiOwners.Find(hObject) : nullptr;
    return pOwner ? pOwner : GdiFromAnyHandle(hObject);
}

BOOL CGdiObject::Attach(HGDIOBJ hObject) {
    if (!hObject) return FALSE;
    if (hObject == m_hObject) return TRUE;
    DeleteObject();
    m_hObject = hObject;
    GetThreadState().gdiOwners.Add(hObject, this);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach() {
    const HGDIOBJ hObject = m_hObject;
    ThreadState* pState = FindThreadState();
    if (hObject && pState) pState->gdiOwners.Remove(hObject, this);
    m_hObject = nullptr;
    return hObject;
}

BOOL CGdiObject::DeleteObject() { return m_hObject ? ::DeleteObject(Detach()) : FALSE; }

int CGdiObject::GetObject(int nCount, LPVOID pObject) const {
    return m_hObject ? ::GetObject(m_hObject, nCount, pObject) : 0;
}

BOOL CGdiObject::CreateStockObject(int nIndex) { return Attach(::GetStockObject(nIndex)); }
