// The life and the settings that the scatter charts have in common.
#include <tavlon/scatter_ctrl.h>

#include "hit_index.h"
#include "scatter/core/scatter_style.h"
#include "scatter_commands.h"
#include "window_names.h"

BEGIN_MESSAGE_MAP(CScatterCtrl, CWnd)
ON_WM_ERASEBKGND()
ON_WM_PAINT()
ON_WM_SIZE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_MOUSEMOVE()
ON_WM_MOUSELEAVE()
ON_WM_CREATE()
ON_WM_SETCURSOR()
ON_WM_CONTEXTMENU()
ON_WM_KILLFOCUS()
ON_COMMAND(ID_SCATTER_SHOW_ALL, OnDisplayAll)
ON_COMMAND(ID_SCATTER_ENLARGE, OnSelectEnLarge)
ON_UPDATE_COMMAND_UI(ID_SCATTER_ENLARGE, OnUpdateSelectEnLargeCmdUI)
ON_COMMAND(ID_SCATTER_DRAG, OnDragMode)
ON_UPDATE_COMMAND_UI(ID_SCATTER_DRAG, OnDragModeCmdUI)
ON_COMMAND(ID_SCATTER_BIG_POINTS, OnBigPointMode)
ON_COMMAND(ID_SCATTER_SMALL_POINTS, OnSmallPointMode)
ON_WM_INITMENUPOPUP()
END_MESSAGE_MAP()

CScatterCtrl::CScatterCtrl(const ScatterStyle& style, const ControlNames& names, const char* pszTitle)
    : m_style(style), m_strTitle(pszTitle), m_names(names), m_pHits(std::make_unique<HitIndex>()) {}

CScatterCtrl::~CScatterCtrl() = default;

int CScatterCtrl::Create(CWnd* pParent, CRect rect, UINT nID) {
    return CreateControlWindow(*this, m_names, pParent, rect, nID);
}

BOOL CScatterCtrl::PreCreateWindow(CREATESTRUCT& cs) { return UseControlClass(m_names, cs); }

int CScatterCtrl::OnCreate(LPCREATESTRUCT pCreate) {
    if (CWnd::OnCreate(pCreate) == -1) return -1;
    m_bMouseDown = m_bBandShown = false;  // an earlier window may have gone while they were set
    OnCreateCursor();
    return 0;
}

void CScatterCtrl::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    m_bBandShown = false;  // the next move draws it into the new plot rectangle
    MarkStale();
    Invalidate();
}

void CScatterCtrl::OnKillFocus(CWnd* pNewWnd) { CWnd::OnKillFocus(pNewWnd); }

int CScatterCtrl::Init() {
    ClearData();
    return TRUE;
}

int CScatterCtrl::Play() {
    m_bPointsDirty = true;
    CaclPointsInfo();
    if (m_style.bPlayDrawsAnew) m_bLayerStale = true;
    if (m_style.bRangeFollowsData) {
        m_bRangeDirty = true;
        CaclCoordinateShaftPosInfo();
    }
    Invalidate();
    return TRUE;
}

void CScatterCtrl::ClearData() {
    RemoveData();
    m_pHits->bStale = true;
    m_bLayerStale = true;
    Invalidate();
}

void CScatterCtrl::MarkStale() { m_bPointsDirty = m_bLayerStale = true; }

void CScatterCtrl::MarkDataChanged() {
    MarkStale();
    m_bRangeDirty = m_style.bRangeFollowsData;
}

void CScatterCtrl::SetBorderColor(COLORREF clr) { StoreAndRepaint(*this, m_clrBorder, clr); }
void CScatterCtrl::SetCoordinateShaftFontSize(int nHeight) {
    StoreAndRepaint(*this, m_nShaftFontSize, nHeight);
}
void CScatterCtrl::SetCoordinateShaftLineColor(COLORREF clr) { StoreAndRepaint(*this, m_clrShaftLine, clr); }
void CScatterCtrl::SetFontColor(COLORREF clr) { StoreAndRepaint(*this, m_clrFont, clr); }
void CScatterCtrl::SetGirdVisble(bool bVisible) { StoreAndRepaint(*this, m_bGridVisible, bVisible); }

void CScatterCtrl::SetUpdateTime(CTime& time) {
    m_timeUpdate = time;
    StoreAndRepaint(*this, m_bUpdateTimeSet, true);
}
