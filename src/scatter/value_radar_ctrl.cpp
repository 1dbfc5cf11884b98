// The value radar's life, data and settings.
#include <tavlon/value_radar.h>

#include "window_names.h"

BEGIN_MESSAGE_MAP(CRoePointCtrl, CWnd)
ON_WM_ERASEBKGND()
ON_WM_PAINT()
ON_WM_SIZE()
ON_WM_MOUSEMOVE()
END_MESSAGE_MAP()

CRoePointCtrl::CRoePointCtrl() : m_strTitle("价值雷达") {}

CRoePointCtrl::~CRoePointCtrl() = default;

int CRoePointCtrl::Create(CWnd* pParent, CRect rect, UINT nID) {
    return CreateControlWindow(*this, k_rosePointNames, pParent, rect, nID);
}

BOOL CRoePointCtrl::PreCreateWindow(CREATESTRUCT& cs) { return UseControlClass(k_rosePointNames, cs); }

int CRoePointCtrl::Init() {
    ClearData();
    return TRUE;
}

int CRoePointCtrl::Play() {
    m_bPointsDirty = true;
    CaclPointsInfo();
    m_bRangeDirty = true;
    CaclCoordinateShaftPosInfo();
    Invalidate();
    return TRUE;
}

int CRoePointCtrl::SetData(tagPointRadarItemData item) {
    if (!StorePoint(item)) return FALSE;
    m_bPointsDirty = m_bRangeDirty = m_bLayerStale = true;
    return TRUE;
}

void CRoePointCtrl::ClearData() {
    ClearPoints();
    m_bLayerStale = true;
    Invalidate();
}

void CRoePointCtrl::ActiveBlockByInfo(int nId, const char* pszName) {
    ActivateBlock(nId, pszName);
    m_bLayerStale = m_bPointsDirty = true;
    Invalidate();
}

void CRoePointCtrl::SetBorderColor(COLORREF clr) { StoreAndRepaint(*this, m_clrBorder, clr); }
void CRoePointCtrl::SetCoordinateShaftFontSize(int nHeight) {
    StoreAndRepaint(*this, m_nShaftFontSize, nHeight);
}
void CRoePointCtrl::SetCoordinateShaftLineColor(COLORREF clr) { StoreAndRepaint(*this, m_clrShaftLine, clr); }
void CRoePointCtrl::SetFontColor(COLORREF clr) { StoreAndRepaint(*this, m_clrFont, clr); }
void CRoePointCtrl::SetGateBkColor(COLORREF clr) { StoreAndRepaint(*this, m_clrGateBack, clr); }
void CRoePointCtrl::SetGirdVisble(bool bVisible) { StoreAndRepaint(*this, m_bGridVisible, bVisible); }

void CRoePointCtrl::SetGate(double dX, double dY) {
    m_dGateX = dX;
    m_dGateY = dY;
    Invalidate();
}

void CRoePointCtrl::SetTitle(CString& strTitle) { m_strTitle = strTitle; }

void CRoePointCtrl::SetUpdateTime(CTime& time) {
    m_timeUpdate = time;
    m_bUpdateTimeSet = true;
    Invalidate();
}

void CRoePointCtrl::SetDisplayBigPoint(bool bBig) {
    m_bBigPoint = bBig;
    m_bLayerStale = true;
    Invalidate();
}
