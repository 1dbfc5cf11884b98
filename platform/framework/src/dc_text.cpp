/// Text of a device context.
#include <algorithm>

#include "tavlon/framework/dc.h"

namespace {

/// A null text is the empty text, a negative length is none.
struct Text {
    Text(LPCSTR psz, int n) : pszText(psz ? psz : ""), nCount(psz ? std::max(n, 0) : 0) {}
    LPCSTR pszText;
    int nCount;
};

}  // namespace

BOOL CDC::TextOut(int x, int y, LPCSTR pszText, int nCount) {
    const Text text(pszText, nCount);
    return ::TextOut(m_hDC, x, y, text.pszText, text.nCount);
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT prc, LPCSTR pszText, UINT nCount, LPINT pDxWidths) {
    const Text text(pszText, static_cast<int>(nCount));
    return ::ExtTextOut(m_hDC, x, y, nOptions, prc, text.pszText, static_cast<UINT>(text.nCount), pDxWidths);
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT prc, const CString& strText, LPINT pDxWidths) {
    return ExtTextOut(x, y, nOptions, prc, strText, static_cast<UINT>(strText.GetLength()), pDxWidths);
}

int CDC::DrawText(LPCSTR pszText, int nCount, LPRECT prc, UINT nFormat) {
    return ::DrawText(m_hDC, pszText ? pszText : "", pszText ? nCount : 0, prc, nFormat);
}

CSize CDC::GetTextExtent(LPCSTR pszText, int nCount) const {
    const Text text(pszText, nCount);
    CSize size;
    ::GetTextExtentPoint32(m_hAttribDC, text.pszText, text.nCount, &size);
    return size;
}
