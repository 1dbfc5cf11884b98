#include "gauge_ctrl.h"

#include "foundation/text_copy.h"
#include "foundation/toolkit.h"

BEGIN_MESSAGE_MAP(CGaugeCtrl, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
END_MESSAGE_MAP()

int CGaugeCtrl::Create(CWnd* pParent, CRect rect, UINT nID) {
    return CreateControlWindow(*this, m_names, pParent, rect, nID);
}

BOOL CGaugeCtrl::PreCreateWindow(CREATESTRUCT& cs) { return UseControlClass(m_names, cs); }

BOOL CGaugeCtrl::PreTranslateMessage(MSG* pMsg) { return PreTranslateTakingFocus(*this, pMsg); }

void CGaugeCtrl::ReDraw() { Invalidate(); }

void CGaugeCtrl::SetColor(COLORREF clrBack, COLORREF clrText) {
    m_clrBack = clrBack;
    m_clrText = clrText;
}

void CGaugeCtrl::OnPaint() {
    PaintOffScreen(*this, [this](CDC& dc, const CRect& rcClient) {
        dc.FillSolidRect(rcClient, m_clrBack);
        m_border.Draw(dc, rcClient);
        DrawGauge(dc);
    });
}

BOOL CGaugeCtrl::OnEraseBkgnd(CDC*) { return TRUE; }

void CGaugeCtrl::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    CRect rcClient;
    GetClientRect(&rcClient);
    LayOut(rcClient);
    Invalidate();
}

void GaugeTitle::Draw(CDC& dc, const CRect& rcBand) const {
    constexpr std::size_t k_nMaxBytes = 63;
    constexpr int k_nHeight = 14;
    constexpr int k_nMargin = 5;
    const std::string_view text = WholeCharacters(strText.GetString(), k_nMaxBytes);
    CFont* const pOldFont = SelectKaiTiFont(&dc, k_nHeight);
    const COLORREF clrOld = dc.SetTextColor(clr);
    dc.TextOut(rcBand.left + k_nMargin, rcBand.top + k_nMargin, text.data(), static_cast<int>(text.size()));
    dc.SetTextColor(clrOld);
    dc.SelectObject(pOldFont);
}
