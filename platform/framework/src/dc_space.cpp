/// Coordinates and clipping of a device context.
#include "tavlon/framework/dc.h"

CPoint CDC::GetViewportOrg() const {
    CPoint pt;
    ::GetViewportOrgEx(m_hAttribDC, &pt);
    return pt;
}

CPoint CDC::SetViewportOrg(int x, int y) {
    CPoint ptOld;
    if (m_hDC != m_hAttribDC) ::SetViewportOrgEx(m_hDC, x, y, &ptOld);
    if (m_hAttribDC) ::SetViewportOrgEx(m_hAttribDC, x, y, &ptOld);
    return ptOld;
}

CPoint CDC::GetWindowOrg() const {
    CPoint pt;
    ::GetWindowOrgEx(m_hAttribDC, &pt);
    return pt;
}

CPoint CDC::SetWindowOrg(int x, int y) {
    CPoint ptOld;
    if (m_hDC != m_hAttribDC) ::SetWindowOrgEx(m_hDC, x, y, &ptOld);
    if (m_hAttribDC) ::SetWindowOrgEx(m_hAttribDC, x, y, &ptOld);
    return ptOld;
}

namespace {

/// A size is the distance of two points, whatever the origins are.
template <class Convert>
void ConvertSize(LPSIZE pSize, Convert convert) {
    if (!pSize) return;
    POINT points[2] = {{0, 0}, {pSize->cx, pSize->cy}};
    convert(points);
    *pSize = CPoint(points[1]) - CPoint(points[0]);
}

}  // namespace

void CDC::LPtoDP(LPSIZE pSize) const {
    ConvertSize(pSize, [this](LPPOINT pPoints) { LPtoDP(pPoints, 2); });
}

void CDC::DPtoLP(LPSIZE pSize) const {
    ConvertSize(pSize, [this](LPPOINT pPoints) { DPtoLP(pPoints, 2); });
}

int CDC::SelectClipRgn(CRgn* pRgn) {
    const HRGN hRgn = pRgn ? static_cast<HRGN>(*pRgn) : nullptr;
    int nKind = ERROR;
    if (m_hDC != m_hAttribDC) nKind = ::SelectClipRgn(m_hDC, hRgn);
    return m_hAttribDC ? ::SelectClipRgn(m_hAttribDC, hRgn) : nKind;
}

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2) {
    int nKind = ERROR;
    if (m_hDC != m_hAttribDC) nKind = ::IntersectClipRect(m_hDC, x1, y1, x2, y2);
    return m_hAttribDC ? ::IntersectClipRect(m_hAttribDC, x1, y1, x2, y2) : nKind;
}

int CDC::IntersectClipRect(LPCRECT prc) {
    return IntersectClipRect(prc->left, prc->top, prc->right, prc->bottom);
}

int CDC::ExcludeClipRect(int x1, int y1, int x2, int y2) {
    int nKind = ERROR;
    if (m_hDC != m_hAttribDC) nKind = ::ExcludeClipRect(m_hDC, x1, y1, x2, y2);
    return m_hAttribDC ? ::ExcludeClipRect(m_hAttribDC, x1, y1, x2, y2) : nKind;
}

int CDC::ExcludeClipRect(LPCRECT prc) {
    return ExcludeClipRect(prc->left, prc->top, prc->right, prc->bottom);
}
