#include "risk_bar_ctrl.h"

#include "numbered.h"

IMPLEMENT_DYNAMIC(TavlonRiskBar, CWnd)

namespace {
constexpr ControlNames k_names{"__TavlonRiskBar__", "__TavlonRiskBar__"};
constexpr int k_nLeftMargin = 20;
constexpr int k_nRightMargin = 30;
}  // namespace

TavlonRiskBar::TavlonRiskBar() : CGaugeCtrl(k_names) {
    m_title.strText = "大盘风险分析";
    m_strExplain =
        "   该刻度从左至右，标识大盘的风险程序，绿色为风险度低，红色为风险度高区域，"
        "两个箭头分别代表中长期风险区间和短期风险区间，"
        "投资者可按照自己的投资风险选取适合自己的操作方式";
}

void TavlonRiskBar::SetData(int nValue, int nWhich) {
    if (nValue >= 0 && nValue <= 100) StoreNumbered(m_nRisk, nWhich, nValue);
}

void TavlonRiskBar::SetLineColor(COLORREF clr, int nWhich) { StoreNumbered(m_clrArrow, nWhich, clr); }

void TavlonRiskBar::LayOut(const CRect& rcClient) {
    const int nFifth = rcClient.Height() / 5;
    m_rcTitle = CRect(rcClient.left + 3, rcClient.top + 5, rcClient.right, rcClient.top + 5 + nFifth);
    m_rcScale = CRect(rcClient.left + k_nLeftMargin, m_rcTitle.bottom, rcClient.right - k_nRightMargin,
                      m_rcTitle.bottom + 2 * nFifth);
    m_rcExplain = CRect(m_rcScale.left, m_rcScale.bottom + nFifth / 2, m_rcScale.right, rcClient.bottom);
}
