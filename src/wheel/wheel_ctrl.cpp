// The sector wheel's life and its answers to size and mouse.
#include "wheel_ctrl.h"

#include "foundation/control_window.h"
#include "foundation/library.h"
#include "resources/resource.h"

IMPLEMENT_DYNAMIC(TavlonBR, CWnd)

BEGIN_MESSAGE_MAP(TavlonBR, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
ON_WM_MOUSEMOVE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONDBLCLK()
END_MESSAGE_MAP()

namespace {
constexpr ControlNames k_names{"__TavlonBR__", "__ChartBRCtrl__"};
constexpr UINT k_nSectorMessage = WM_USER + 301;  // to the parent: the selected sector was double-clicked

/// The first area that holds the point, or -1.
int FindArea(CArray<tagmyBRAreaInfo, tagmyBRAreaInfo&>& areas, CPoint point) {
    for (int i = 0; i < areas.GetSize(); ++i)
        if (::PtInRect(&areas[i].rect, point)) return i;
    return -1;
}
}  // namespace

int TavlonBR::Create(CWnd* pParent, CRect rect, UINT nID) {
    if (!CreateControlWindow(*this, k_names, pParent, rect, nID)) return FALSE;
    m_hParent = pParent->GetSafeHwnd();
    m_nID = nID;
    return TRUE;
}

BOOL TavlonBR::PreCreateWindow(CREATESTRUCT& cs) { return UseControlClass(k_names, cs); }

BOOL TavlonBR::PreTranslateMessage(MSG* pMsg) { return PreTranslateTakingFocus(*this, pMsg); }

BOOL TavlonBR::OnEraseBkgnd(CDC*) { return TRUE; }

void TavlonBR::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    CRect rcClient;
    GetClientRect(&rcClient);
    m_layout = LayoutWheel(rcClient);
    Invalidate();
}

void TavlonBR::ReDraw() { Invalidate(); }

int TavlonBR::HitTest(CPoint point) {
    const int nDot = FindArea(m_arrDotArea, point);
    return nDot >= 0 ? nDot : FindArea(m_arrLabelArea, point);
}

void TavlonBR::OnMouseMove(UINT nFlags, CPoint point) {
    const bool bSector = HitTest(point) >= 0;
    ::SetCursor(bSector ? ::LoadCursor(LibraryInstance(), MAKEINTRESOURCE(IDC_POINTING_HAND))
                        : ::LoadCursor(nullptr, IDC_ARROW));
    CWnd::OnMouseMove(nFlags, point);
}

void TavlonBR::OnLButtonDown(UINT nFlags, CPoint point) {
    const int nSector = HitTest(point);
    if (nSector >= 0) m_nSelect = nSector;
    Invalidate();
    CWnd::OnLButtonDown(nFlags, point);
}

void TavlonBR::OnLButtonDblClk(UINT nFlags, CPoint point) {
    const int nSector = HitTest(point);
    if (m_hParent != nullptr && nSector >= 0) m_nSelect = nSector;
    if (m_hParent != nullptr && m_nSelect != -1) ::PostMessage(m_hParent, k_nSectorMessage, 0, 0);
    CWnd::OnLButtonDblClk(nFlags, point);
}
