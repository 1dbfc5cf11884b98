// The market risk gauge's picture.
#include "foundation/saturate.h"
#include "foundation/select_scope.h"
#include "foundation/toolkit.h"
#include "risk_bar_ctrl.h"

namespace {
constexpr char k_szLong[] = "中长期风险区间";
constexpr char k_szShort[] = "短期风险区间";
constexpr int k_nTextHeight = 12;
constexpr int k_nSteps = 5;
constexpr int k_nScaleHeight = 10;
constexpr int k_nStemGap = 11;   // from the scale to where an arrow's head begins
constexpr int k_nHeadWidth = 5;  // to each side
constexpr int k_nHeadLength = 9;

/// A pen and a brush of one colour, selected.
class InkScope {
public:
    InkScope(CDC& dc, COLORREF clr) : m_dc(dc) {
        if (m_pen.CreatePen(PS_SOLID, 1, clr)) m_pOldPen = dc.SelectObject(&m_pen);
        if (m_brush.CreateSolidBrush(clr)) m_pOldBrush = dc.SelectObject(&m_brush);
    }
    ~InkScope() {
        if (m_pOldPen != nullptr) m_dc.SelectObject(m_pOldPen);
        if (m_pOldBrush != nullptr) m_dc.SelectObject(m_pOldBrush);
    }
    InkScope(const InkScope&) = delete;
    InkScope& operator=(const InkScope&) = delete;

private:
    CDC& m_dc;
    CPen m_pen;
    CBrush m_brush;
    CPen* m_pOldPen = nullptr;
    CBrush* m_pOldBrush = nullptr;
};

/// From the scale's end along a row to x, then up or down to the head.
void DrawArrow(CDC& dc, COLORREF clr, CPoint ptStart, int x, int yHead, int nPoint) {
    const InkScope ink(dc, clr);
    dc.MoveTo(ptStart);
    dc.LineTo(x, ptStart.y);
    dc.LineTo(x, yHead);
    const POINT corners[] = {{x - k_nHeadWidth, yHead}, {x + k_nHeadWidth, yHead}, {x, yHead + nPoint}};
    dc.Polygon(corners, 3);
}
}  // namespace

/// Where the five steps stand.
struct TavlonRiskBar::Scale {
    CSize szLong;  ///< Of the labels.
    CSize szShort;
    int nWidth;  ///< Of all steps; negative in a narrow window.
    float fStep;
    CPoint ptCorner;  ///< Left top of the first.

    int StepX(int i) const { return SaturateToInt(static_cast<double>(ptCorner.x + i * fStep)); }
    /// The middle of a step, counted from 1.
    int MiddleX(int nStep) const { return SaturateToInt(ptCorner.x + (nWidth * (nStep / 5.0) - fStep / 2)); }
};

void TavlonRiskBar::DrawGauge(CDC& dc) {
    const UINT nOldAlign = dc.SetTextAlign(TA_LEFT | TA_TOP);
    dc.SetBkColor(BackColour());
    m_title.Draw(dc, m_rcTitle);
    dc.SetTextColor(TextColour());
    CFont* const pOldFont = SelectKaiTiFont(&dc, k_nTextHeight);
    DrawExplain(dc);
    DrawScale(dc);
    dc.SelectObject(pOldFont);
    dc.SetTextAlign(nOldAlign);
}

void TavlonRiskBar::DrawExplain(CDC& dc) { dc.DrawText(m_strExplain, &m_rcExplain, DT_WORDBREAK); }

void TavlonRiskBar::DrawScale(CDC& dc) {
    Scale scale;
    scale.szLong = dc.GetTextExtent(k_szLong);
    scale.szShort = dc.GetTextExtent(k_szShort);
    scale.nWidth = m_rcScale.Width() - scale.szShort.cx - scale.szLong.cx;
    scale.fStep = static_cast<float>(scale.nWidth / 5.0);
    scale.ptCorner = CPoint(m_rcScale.left + scale.szLong.cx, m_rcScale.top + m_rcScale.Height() / 2 - 5);
    DrawSteps(dc, scale);
    dc.TextOut(m_rcScale.left, m_rcScale.top, k_szLong);
    DrawLongArrow(dc, scale);
    dc.SetTextAlign(TA_RIGHT | TA_BOTTOM);
    dc.TextOut(m_rcScale.right, m_rcScale.bottom, k_szShort);
    DrawShortArrow(dc, scale);
}

void TavlonRiskBar::DrawSteps(CDC& dc, const Scale& scale) {
    const CPoint pt = scale.ptCorner;
    dc.SetTextAlign(TA_RIGHT | TA_TOP);
    dc.TextOut(pt.x - 5, pt.y - 1, "低");
    dc.SetTextAlign(TA_LEFT | TA_TOP);
    dc.TextOut(m_rcScale.right - scale.szShort.cx + 5, pt.y - 1, "高");
    for (int i = 0; i < k_nSteps; ++i) {
        const CRect rc(scale.StepX(i), pt.y, scale.StepX(i + 1), pt.y + k_nScaleHeight);
        dc.FillSolidRect(&rc, m_clrScale[i]);
    }
    dc.SetBkColor(BackColour());  // of the labels; the steps were drawn with it
}

void TavlonRiskBar::DrawLongArrow(CDC& dc, const Scale& scale) {
    if (m_nRisk[0] < 1 || m_nRisk[0] > k_nSteps) return;
    const CPoint ptStart(scale.ptCorner.x, m_rcScale.top + scale.szLong.cy / 2);
    DrawArrow(dc, m_clrArrow[0], ptStart, scale.MiddleX(m_nRisk[0]), scale.ptCorner.y - k_nStemGap,
              k_nHeadLength);
}

void TavlonRiskBar::DrawShortArrow(CDC& dc, const Scale& scale) {
    if (m_nRisk[1] < 1 || m_nRisk[1] > k_nSteps) return;
    const CPoint ptStart(m_rcScale.right - scale.szShort.cx, m_rcScale.bottom - scale.szShort.cy / 2);
    DrawArrow(dc, m_clrArrow[1], ptStart, scale.MiddleX(m_nRisk[1]),
              scale.ptCorner.y + k_nScaleHeight + k_nStemGap, -k_nHeadLength);
}
