#include "tavlon/framework/dc.h"

#include "thread_state.h"

IMPLEMENT_DYNAMIC(CDC, CObject)

CDC::~CDC() { DeleteDC(); }

CDC* CDC::FromHandle(HDC hDC) {
    if (!hDC) return nullptr;
    ThreadState& state = GetThreadState();
    if (CDC* pOwner = state.dcOwners.Find(hDC)) return pOwner;
    return state.Temporary<CDC>(hDC);
}

BOOL CDC::Attach(HDC hDC) {
    if (!hDC || m_hDC) return FALSE;
    m_hDC = m_hAttribDC = hDC;
    GetThreadState().dcOwners.Add(hDC, this);
    return TRUE;
}

HDC CDC::Detach() {
    const HDC hDC = m_hDC;
    ThreadState* pState = FindThreadState();
    if (hDC && pState) pState->dcOwners.Remove(hDC, this);
    m_hDC = m_hAttribDC = nullptr;
    return hDC;
}

BOOL CDC::CreateCompatibleDC(CDC* pDC) {
    return !m_hDC && Attach(::CreateCompatibleDC(pDC ? pDC->m_hDC : nullptr));
}

BOOL CDC::DeleteDC() { return m_hDC ? ::DeleteDC(Detach()) : FALSE; }

int CDC::SaveDC() {
    const int nAttrib = m_hAttribDC && m_hAttribDC != m_hDC ? ::SaveDC(m_hAttribDC) : 0;
    return m_hDC ? ::SaveDC(m_hDC) : nAttrib;
}

BOOL CDC::RestoreDC(int nSavedDC) {
    const BOOL bDone = m_hDC && ::RestoreDC(m_hDC, nSavedDC);
    if (m_hAttribDC == m_hDC || !m_hAttribDC) return bDone;
    return ::RestoreDC(m_hAttribDC, nSavedDC) && (bDone || !m_hDC);
}

// The two point pairs of the corner and ray operations.

BOOL CDC::Arc(LPCRECT prc, POINT ptStart, POINT ptEnd) {
    return Arc(prc->left, prc->top, prc->right, prc->bottom, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
}

BOOL CDC::Pie(LPCRECT prc, POINT ptStart, POINT ptEnd) {
    return Pie(prc->left, prc->top, prc->right, prc->bottom, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
}

CPoint CDC::GetCurrentPosition() const {
    CPoint pt;
    ::GetCurrentPositionEx(m_hAttribDC, &pt);
    return pt;
}

CPoint CDC::MoveTo(int x, int y) {
    CPoint ptOld;
    if (m_hDC != m_hAttribDC) ::MoveToEx(m_hDC, x, y, &ptOld);
    if (m_hAttribDC) ::MoveToEx(m_hAttribDC, x, y, &ptOld);
    return ptOld;
}

BOOL CDC::LineTo(int x, int y) {
    if (m_hAttribDC && m_hAttribDC != m_hDC) ::MoveToEx(m_hAttribDC, x, y, nullptr);
    return ::LineTo(m_hDC, x, y);
}
