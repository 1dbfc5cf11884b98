#pragma once

#include "gdi_object.h"

class CDC;

class TAVLON_FRAMEWORK_API CBitmap : public CGdiObject {
    DECLARE_DYNAMIC(CBitmap)
public:
    CBitmap() = default;

    static CBitmap* FromHandle(HBITMAP hBitmap);
    operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }
    BOOL LoadBitmap(UINT nIDResource);  ///< Found along the resource chain.
    BOOL LoadBitmap(LPCSTR pszResourceName);
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitCount, const void* pBits);
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    int GetBitmap(BITMAP* pBitMap) const;
};
