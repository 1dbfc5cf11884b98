#include "star_chart_ctrl.h"

#include "window_names.h"

namespace {
constexpr UINT k_nStarKindMessage = WM_USER + 2;
}

BEGIN_MESSAGE_MAP(CPointStartCtrl, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
ON_MESSAGE(k_nStarKindMessage, OnStarKind)
END_MESSAGE_MAP()

int CPointStartCtrl::Create(CWnd* pParent, CRect rect, UINT nID) {
    return CreateControlWindow(*this, k_rosePointNames, pParent, rect, nID);
}

BOOL CPointStartCtrl::PreCreateWindow(CREATESTRUCT& cs) { return UseControlClass(k_rosePointNames, cs); }

void CPointStartCtrl::OnPaint() {
    PaintOffScreen(*this, [this](CDC& dc, const CRect& rcClient) { dc.FillSolidRect(rcClient, m_clrBack); });
}

BOOL CPointStartCtrl::OnEraseBkgnd(CDC*) { return TRUE; }

void CPointStartCtrl::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    m_bPointsDirty = m_bLayerStale = true;
    Invalidate();
}

LRESULT CPointStartCtrl::OnStarKind(WPARAM wKind, LPARAM) {
    m_nStarKind = static_cast<int>(wKind);
    if (m_nStarKind == 12 || m_nStarKind == 14) m_strValueLabel = "强庄能量";
    Invalidate();
    return 0;
}

void CPointStartCtrl::MarkStale() { m_bPointsDirty = m_bRangeDirty = m_bLayerStale = true; }

int CPointStartCtrl::Init() {
    ClearData();
    return TRUE;
}

int CPointStartCtrl::Play() {
    MarkStale();
    Invalidate();
    return TRUE;
}

void CPointStartCtrl::ClearData() {
    m_arrData.RemoveAll();
    m_records.clear();
    m_index.Clear();
    m_bLayerStale = true;
    Invalidate();
}

int CPointStartCtrl::SetData(tagmyStarData data) {
    constexpr int k_nFull = k_nMostStocks + 1;
    const bool bChecked = data.dwCheckB != 0 && data.fCheckC >= 0 && data.fCheckA >= 0;  // false for NaN
    if (m_arrData.GetSize() >= k_nFull || !bChecked) return FALSE;
    const int nHeld = m_index.Find(data.cMarket, data.szCode);
    if (nHeld >= 0) {
        CMyItem& held = m_arrData[nHeld];
        *held.pData = data;
        held = {data.fEnergy, data.fNetBuy, held.pData};
    } else {
        CMyItem item{data.fEnergy, data.fNetBuy, &m_records.emplace_back(data)};
        m_index.Add(data.cMarket, data.szCode, static_cast<int>(m_arrData.Add(item)));
    }
    MarkStale();
    return TRUE;
}

void CPointStartCtrl::SetCoordinateShaftFontSize(int nHeight) {
    StoreAndRepaint(*this, m_nShaftFontSize, nHeight);
}
void CPointStartCtrl::SetCoordinateShaftLineColor(COLORREF clr) {
    StoreAndRepaint(*this, m_clrShaftLine, clr);
}
void CPointStartCtrl::SetFontColor(COLORREF clr) { StoreAndRepaint(*this, m_clrFont, clr); }
void CPointStartCtrl::SetGirdVisble(bool bShow) { StoreAndRepaint(*this, m_bGridVisible, bShow); }
void CPointStartCtrl::SetBorderColor(COLORREF clr) { StoreAndRepaint(*this, m_clrBorder, clr); }

void CPointStartCtrl::SetUpdateTime(CTime& time) {
    m_timeUpdate = time;
    StoreAndRepaint(*this, m_bUpdateTimeSet, true);
}
