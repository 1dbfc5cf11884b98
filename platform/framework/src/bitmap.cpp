#include "tavlon/framework/bitmap.h"

#include "gdi_handles.h"
#include "tavlon/framework/dc.h"
#include "tavlon/framework/module.h"

IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)

CBitmap* CBitmap::FromHandle(HBITMAP hBitmap) { return GdiFromHandle<CBitmap>(hBitmap); }

BOOL CBitmap::LoadBitmap(UINT nIDResource) { return LoadBitmap(MAKEINTRESOURCE(nIDResource)); }

BOOL CBitmap::LoadBitmap(LPCSTR pszResourceName) {
    return Attach(::LoadBitmap(AfxFindResourceHandle(pszResourceName, RT_BITMAP), pszResourceName));
}

BOOL CBitmap::CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitCount, const void* pBits) {
    return Attach(::CreateBitmap(nWidth, nHeight, nPlanes, nBitCount, pBits));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight) {
    return pDC && Attach(::CreateCompatibleBitmap(pDC->m_hDC, nWidth, nHeight));
}

int CBitmap::GetBitmap(BITMAP* pBitMap) const { return GetObject(sizeof(BITMAP), pBitMap); }
