// The histogram's life and settings.
#include "histogram_ctrl.h"

#include "foundation/control_window.h"
#include "foundation/text_copy.h"

BEGIN_MESSAGE_MAP(myHistogramCtrl, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
END_MESSAGE_MAP()

namespace {
constexpr ControlNames k_names{"__myHistogramCtrl__", "__HistogramCtrl__"};
}

myHistogramCtrl::myHistogramCtrl() {
    CopyText(m_szYTitle, "数目");
    CopyText(m_szXTitle, "大单");
}

int myHistogramCtrl::Create(CWnd* pParent, CRect rect, UINT nID) {
    return CreateControlWindow(*this, k_names, pParent, rect, nID);
}

BOOL myHistogramCtrl::PreCreateWindow(CREATESTRUCT& cs) { return UseControlClass(k_names, cs); }

BOOL myHistogramCtrl::OnEraseBkgnd(CDC*) { return TRUE; }

void myHistogramCtrl::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    Invalidate();
}

int myHistogramCtrl::Init() {
    m_bars.Clear();
    m_bNewPicture = true;
    return TRUE;
}

int myHistogramCtrl::SetData(tagHistogramData& data) {
    if (!m_bars.Add(data)) return FALSE;
    m_bNewPicture = true;
    return TRUE;
}

int myHistogramCtrl::Play() {
    m_bars.SortIfNeeded();
    Invalidate();
    return TRUE;
}

int myHistogramCtrl::SetIndex(int nId) {
    StoreAndRepaint(*this, m_nSelId, nId);
    return m_bars.Select(nId);
}

void myHistogramCtrl::SetCoordinateShaftColor(COLORREF clr) {
    StoreAndRepaint(*this, m_clrCoordinateShaft, clr);
}
void myHistogramCtrl::SetGirdColor(COLORREF clr) { StoreAndRepaint(*this, m_clrGird, clr); }
void myHistogramCtrl::SetBackColor(COLORREF clr) { StoreAndRepaint(*this, m_clrBack, clr); }
void myHistogramCtrl::SetCoordinateShaftFontColor(COLORREF clr) {
    StoreAndRepaint(*this, m_clrCoordinateShaftFont, clr);
}
void myHistogramCtrl::SetCoordinateShaftTitleColor(COLORREF clr) {
    StoreAndRepaint(*this, m_clrCoordinateShaftTitle, clr);
}
void myHistogramCtrl::SetBorderColor(COLORREF clr) { StoreAndRepaint(*this, m_clrBorder, clr); }
void myHistogramCtrl::DisplayGird(bool bShow) { StoreAndRepaint(*this, m_bDisplayGird, bShow); }

void myHistogramCtrl::SetYTitle(char* text) {
    CopyText(m_szYTitle, text);
    Invalidate();
}

void myHistogramCtrl::SetXTitle(char* text) {
    CopyText(m_szXTitle, text);
    Invalidate();
}
