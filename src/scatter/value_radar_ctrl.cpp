// The value radar's life, data and settings.
#include <tavlon/value_radar.h>

#include "foundation/control_window.h"
#include "foundation/text_copy.h"
#include "points_layer.h"
#include "scatter/core/stock_index.h"

namespace {
constexpr ControlNames k_names{"__myRosePointCtrl__", "__RosePointCtrl__"};
constexpr int k_nMostPoints = 3000;
constexpr int k_nBlockNameLength = 254;
}  // namespace

BEGIN_MESSAGE_MAP(CRoePointCtrl, CWnd)
ON_WM_ERASEBKGND()
ON_WM_PAINT()
ON_WM_SIZE()
ON_WM_MOUSEMOVE()
END_MESSAGE_MAP()

CRoePointCtrl::CRoePointCtrl() : m_strTitle("价值雷达"), m_pIndex(std::make_unique<StockIndex>()) {}

CRoePointCtrl::~CRoePointCtrl() { DeletePointsLayer(*this); }

int CRoePointCtrl::Create(CWnd* pParent, CRect rect, UINT nID) {
    return CreateControlWindow(*this, k_names, pParent, rect, nID);
}

BOOL CRoePointCtrl::PreCreateWindow(CREATESTRUCT& cs) { return UseControlClass(k_names, cs); }

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
    if (m_arrData.GetSize() >= k_nMostPoints) return FALSE;
    const int nHeld = FindStockWithItemData(item);
    if (nHeld >= 0)
        m_arrData[nHeld] = item;
    else
        m_pIndex->Add(item.cMarket, item.szCode, static_cast<int>(m_arrData.Add(item)));
    m_bPointsDirty = m_bRangeDirty = m_bLayerStale = true;
    return TRUE;
}

int CRoePointCtrl::FindStockWithItemData(const tagPointRadarItemData& item) const {
    return m_pIndex->Find(item.cMarket, item.szCode);
}

void CRoePointCtrl::ClearData() {
    m_nActiveBlockId = -1;
    m_arrData.RemoveAll();
    m_arrShown.RemoveAll();
    m_pIndex->Clear();
    m_bLayerStale = true;
    Invalidate();
}

void CRoePointCtrl::ActiveBlockByInfo(int nId, const char* pszName) {
    m_nActiveBlockId = nId;
    CopyText(m_szActiveBlock, CString(pszName, k_nBlockNameLength));
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
