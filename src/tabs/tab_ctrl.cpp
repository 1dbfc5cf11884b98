#include "tab_ctrl.h"

#include "../foundation/control_window.h"

BEGIN_MESSAGE_MAP(CMyTabControl, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
END_MESSAGE_MAP()

namespace {
constexpr ControlNames k_names{"__myTabCtrl__", "__TabCtrl__", TRUE};
}

int CMyTabControl::Create(CWnd* pParent, CRect rect, UINT nID, tagTabCtrlStyle style) {
    if (!CreateControlWindow(*this, k_names, pParent, rect, nID)) return FALSE;
    m_eStyle = style;
    return TRUE;
}

BOOL CMyTabControl::PreCreateWindow(CREATESTRUCT& cs) { return UseControlClass(k_names, cs); }

BOOL CMyTabControl::OnEraseBkgnd(CDC*) { return TRUE; }

void CMyTabControl::OnPaint() {
    PaintOffScreen(*this, [this](CDC& dc, const CRect& rcClient) { dc.FillSolidRect(rcClient, m_clrBack); });
}

void CMyTabControl::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    Invalidate(FALSE);
}

int CMyTabControl::AddItem(tagTabItemData item) {
    const int nPosition = static_cast<int>(m_arrItems.Add(item));
    Invalidate();
    return nPosition;
}

void CMyTabControl::ClearContent() {
    m_arrItems.RemoveAll();
    StoreAndRepaint(*this, m_nActive, -1);
}

int CMyTabControl::GetActiveId() {
    return m_nActive >= 0 && m_nActive < m_arrItems.GetSize() ? m_arrItems[m_nActive].nId : -1;
}

void CMyTabControl::SelectTabById(int id) {
    for (int i = 0; i < m_arrItems.GetSize(); ++i) {
        if (m_arrItems[i].nId == id) return StoreAndRepaint(*this, m_nActive, i);
    }
}

void CMyTabControl::SetBackColor(COLORREF clr) { StoreAndRepaint(*this, m_clrBack, clr); }
void CMyTabControl::SetFontColor(COLORREF clr) { StoreAndRepaint(*this, m_clrFont, clr); }
void CMyTabControl::SetActiveTabBackColor(COLORREF clr) { StoreAndRepaint(*this, m_clrActiveTabBack, clr); }
void CMyTabControl::SetActiveTabFontColor(COLORREF clr) { StoreAndRepaint(*this, m_clrActiveTabFont, clr); }
void CMyTabControl::SetNormalTabBackColor(COLORREF clr) { StoreAndRepaint(*this, m_clrNormalTabBack, clr); }
void CMyTabControl::SetFontSize(int nHeight) { StoreAndRepaint(*this, m_nFontSize, nHeight); }
void CMyTabControl::SetFontBold(bool bBold) { StoreAndRepaint(*this, m_bFontBold, bBold ? 1 : 0); }
