// The price radar's life, items and settings.
#include "price_radar_ctrl.h"

#include <cmath>

#include "foundation/control_window.h"
#include "foundation/text_copy.h"

BEGIN_MESSAGE_MAP(CPriceRadarCtrl, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
END_MESSAGE_MAP()

namespace {
constexpr ControlNames k_names{"__myPriceRadarCtrl__", "__PriceRadarCtrl__"};
}

int CPriceRadarCtrl::Create(CWnd* pParent, CRect rect, UINT nID) {
    return CreateControlWindow(*this, k_names, pParent, rect, nID);
}

BOOL CPriceRadarCtrl::PreCreateWindow(CREATESTRUCT& cs) { return UseControlClass(k_names, cs); }

BOOL CPriceRadarCtrl::OnEraseBkgnd(CDC*) { return TRUE; }

void CPriceRadarCtrl::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    Invalidate();
}

void CPriceRadarCtrl::Init() {
    for (ItemArray& arrItems : m_arrItems) arrItems.RemoveAll();
    m_column = {};
    m_nRadius = 0;
    StoreAndRepaint(*this, m_nSelectId, -1);
}

int CPriceRadarCtrl::SetData(tagPriceRadarItemData data) {
    const bool bAmount = data.dValue > 0 && std::isfinite(data.dValue);
    if (!bAmount || data.nIndex < 0 || data.nIndex >= k_nPriceColumns) return FALSE;
    m_arrItems[data.nIndex].Add(data);
    m_bNewPicture = true;
    return TRUE;
}

void CPriceRadarCtrl::Play() { Invalidate(); }

void CPriceRadarCtrl::SetSelectId(int id) {
    if (id >= 0) StoreAndRepaint(*this, m_nSelectId, id);
}

void CPriceRadarCtrl::SetTitleText(char* text) {
    CopyText(m_szTitle, text);
    Invalidate();
}

void CPriceRadarCtrl::SetTitleFontColor(COLORREF clr) { StoreAndRepaint(*this, m_clrTitleFont, clr); }
void CPriceRadarCtrl::SetBackColor(COLORREF clr) { StoreAndRepaint(*this, m_clrBack, clr); }
void CPriceRadarCtrl::SetTitleBackColor(COLORREF clr) { StoreAndRepaint(*this, m_clrTitleBack, clr); }
void CPriceRadarCtrl::SetLeftBorderColor(COLORREF clr) { StoreAndRepaint(*this, m_border.clrLeft, clr); }
void CPriceRadarCtrl::SetRightBorderColor(COLORREF clr) { StoreAndRepaint(*this, m_border.clrRight, clr); }
void CPriceRadarCtrl::SetTopBorderColor(COLORREF clr) { StoreAndRepaint(*this, m_border.clrTop, clr); }
void CPriceRadarCtrl::SetBottomBorderColor(COLORREF clr) { StoreAndRepaint(*this, m_border.clrBottom, clr); }
void CPriceRadarCtrl::SetTitleFontSize(int nHeight) { StoreAndRepaint(*this, m_nTitleFontSize, nHeight); }
void CPriceRadarCtrl::SetTitleHeight(int nHeight) { StoreAndRepaint(*this, m_nTitleHeight, nHeight); }
void CPriceRadarCtrl::SetLabelHeight(int nHeight) { StoreAndRepaint(*this, m_nLabelHeight, nHeight); }
