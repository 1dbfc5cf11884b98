#include "tab_ctrl.h"

#include <iterator>

#include "foundation/control_window.h"
#include "tab_layout.h"
#include "tab_paint.h"

BEGIN_MESSAGE_MAP(CMyTabControl, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

namespace {
constexpr ControlNames k_names{"__myTabCtrl__", "__TabCtrl__", TRUE};

/// A value that is none of the four makes a strip of the first style: tabs that can be seen and clicked.
tagTabCtrlStyle KnownStyle(tagTabCtrlStyle style) {
    return style >= TAB_HORZ_CHAMFER && style <= TAB_VERT_NONE ? style : TAB_HORZ_CHAMFER;
}
}  // namespace

int CMyTabControl::Create(CWnd* pParent, CRect rect, UINT nID, tagTabCtrlStyle style) {
    if (!CreateControlWindow(*this, k_names, pParent, rect, nID)) return FALSE;
    // Repainted, since whoever was told of the new window may have had it painted already.
    StoreAndRepaint(*this, m_eStyle, KnownStyle(style));
    return TRUE;
}

BOOL CMyTabControl::PreCreateWindow(CREATESTRUCT& cs) { return UseControlClass(k_names, cs); }

BOOL CMyTabControl::OnEraseBkgnd(CDC*) { return TRUE; }

void CMyTabControl::OnPaint() {
    PaintOffScreen(*this, [this](CDC& dc, const CRect& rcClient) { PaintTabStrip(dc, rcClient, *this); });
}

void CMyTabControl::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    Invalidate(FALSE);
}

void CMyTabControl::OnLButtonDown(UINT nFlags, CPoint point) {
    CRect rcClient;
    GetClientRect(&rcClient);
    const int nTab = TabAt(m_eStyle, rcClient, TabCount(), point);
    if (nTab >= 0) {
        StoreAndRepaint(*this, m_nActive, nTab);
        NotifyParent();
    }
    CWnd::OnLButtonDown(nFlags, point);
}

/// Posted: the parent may destroy the strip, or itself, when it is told.
void CMyTabControl::NotifyParent() const {
    const HWND hParent = ::GetParent(m_hWnd);
    if (hParent != nullptr) ::PostMessage(hParent, WM_COMMAND, static_cast<UINT>(GetDlgCtrlID()), 0);
}

int CMyTabControl::AddItem(tagTabItemData item) {
    *std::prev(std::end(item.szText)) = '\0';  // the host's text may fill its field
    const int nPosition = static_cast<int>(m_arrItems.Add(item));
    Invalidate();
    return nPosition;
}

void CMyTabControl::ClearContent() {
    m_arrItems.RemoveAll();
    StoreAndRepaint(*this, m_nActive, -1);
}

int CMyTabControl::GetActiveId() {
    return m_nActive >= 0 && m_nActive < TabCount() ? m_arrItems[m_nActive].nId : -1;
}

void CMyTabControl::SelectTabById(int id) {
    for (int i = 0; i < TabCount(); ++i) {
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
