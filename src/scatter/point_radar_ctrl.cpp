#include "point_radar_ctrl.h"

#include "../foundation/control_window.h"

BEGIN_MESSAGE_MAP(CPointRadarCtrl, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
END_MESSAGE_MAP()

namespace {
constexpr ControlNames k_names{"__myPointRadarCtrl__", "__PointRadarCtrl__"};
}

CPointRadarCtrl::CPointRadarCtrl() { SetFullRange(); }

int CPointRadarCtrl::Create(CWnd* pParent, CRect rect, UINT nID) {
    return CreateControlWindow(*this, k_names, pParent, rect, nID);
}

BOOL CPointRadarCtrl::PreCreateWindow(CREATESTRUCT& cs) { return UseControlClass(k_names, cs); }

BOOL CPointRadarCtrl::PreTranslateMessage(MSG* pMsg) {
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_ESCAPE) ShowFullRange();
    return CWnd::PreTranslateMessage(pMsg);
}

void CPointRadarCtrl::OnPaint() {
    PaintOffScreen(*this, [this](CDC& dc, const CRect& rcClient) { dc.FillSolidRect(rcClient, m_clrBack); });
}

BOOL CPointRadarCtrl::OnEraseBkgnd(CDC*) { return TRUE; }

void CPointRadarCtrl::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    MarkStale();
    Invalidate();
}

void CPointRadarCtrl::SetFullRange() {
    m_dMinX = 0.0, m_dMaxX = 100.0;
    m_dMinY = -10.0, m_dMaxY = 10.0;
}

void CPointRadarCtrl::ShowFullRange() {
    SetFullRange();
    MarkStale();
    Invalidate();
}

void CPointRadarCtrl::MarkStale() { m_bPointsDirty = m_bLayerStale = true; }

int CPointRadarCtrl::Init() {
    ClearData();
    return TRUE;
}

int CPointRadarCtrl::Play() {
    MarkStale();
    Invalidate();
    return TRUE;
}

void CPointRadarCtrl::ClearData() {
    ClearPoints();
    m_bLayerStale = true;
    m_bUpdateTimeSet = false;
    Invalidate();
}

int CPointRadarCtrl::SetData(tagPointRadarItemData data) {
    if (!StorePoint(data)) return FALSE;
    MarkStale();
    return TRUE;
}

void CPointRadarCtrl::ActiveBlockByInfo(int id, const char* text) {
    ActivateBlock(id, text);
    MarkStale();
    Invalidate();
}

void CPointRadarCtrl::SetGirdVisble(bool bShow) { StoreAndRepaint(*this, m_bGridVisible, bShow); }
void CPointRadarCtrl::SetCoordinateShaftFontSize(int nHeight) {
    StoreAndRepaint(*this, m_nShaftFontSize, nHeight);
}
void CPointRadarCtrl::SetGateBkColor(COLORREF clr) { StoreAndRepaint(*this, m_clrGateBack, clr); }
void CPointRadarCtrl::SetCoordinateShaftLineColor(COLORREF clr) {
    StoreAndRepaint(*this, m_clrShaftLine, clr);
}
void CPointRadarCtrl::SetFontColor(COLORREF clr) { StoreAndRepaint(*this, m_clrFont, clr); }
void CPointRadarCtrl::SetBorderColor(COLORREF clr) { StoreAndRepaint(*this, m_clrBorder, clr); }

void CPointRadarCtrl::SetSouthGate(double dX, double dY) {
    m_dSouthGateX = dX;
    StoreAndRepaint(*this, m_dSouthGateY, dY);
}

void CPointRadarCtrl::SetWestGate(double dX, double dY) {
    m_dWestGateX = dX;
    StoreAndRepaint(*this, m_dWestGateY, dY);
}

void CPointRadarCtrl::SetUpdateTime(CTime& time) {
    m_timeUpdate = time;
    StoreAndRepaint(*this, m_bUpdateTimeSet, true);
}
