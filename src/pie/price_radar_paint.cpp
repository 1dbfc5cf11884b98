// The price radar's picture.
#include <cmath>
#include <cstdio>
#include <optional>

#include "amount_text.h"
#include "foundation/control_window.h"
#include "foundation/saturate.h"
#include "foundation/select_scope.h"
#include "foundation/toolkit.h"
#include "foundation/with_pen.h"
#include "price_radar_ctrl.h"

namespace {
constexpr COLORREF k_clrRing = RGB(0, 0, 0);
constexpr int k_nRingWidth = 3;
constexpr int k_nTitleMargin = 5;
constexpr double k_dLeastSelected = 0.01;  // radians; a selected slice below it is not shown
constexpr UINT k_nOneLine = DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS;

/// Discs and rings stand a pixel right of and below the slices.
CRect DiscBox(const PieCircle& circle) {
    CRect rc = circle.Box();
    rc.OffsetRect(1, 1);
    return rc;
}

/// Of the pies that have slices.
template <class Draw>
void ForEachPie(const tagPriceRadarColumn& column, Draw draw) {
    if (column.dUpTotal > 0) draw(column.UpPie());
    if (column.dDownTotal > 0) draw(column.DownPie());
}

/// Fills without an outline.
class NoPenScope {
public:
    explicit NoPenScope(CDC& dc) : m_dc(dc), m_pOld(dc.SelectStockObject(NULL_PEN)) {}
    ~NoPenScope() {
        if (m_pOld != nullptr) m_dc.SelectObject(static_cast<CPen*>(m_pOld));
    }
    NoPenScope(const NoPenScope&) = delete;
    NoPenScope& operator=(const NoPenScope&) = delete;

private:
    CDC& m_dc;
    CGdiObject* m_pOld;
};

/// Where the slices' lines may put pixels: the rim included, and what it shares with the next pixel. Never
/// empty.
CRect DrawnBox(const PieCircle& circle) {
    CRect rc = circle.Box();
    rc.right += 2, rc.bottom += 2;
    return rc;
}

/// On the rim itself.
CPoint RimPointAt(const PieCircle& circle, double dAngle) {
    const CPoint pt = circle.Centre();
    return CPoint(pt.x + SaturateToInt(circle.nRadius * std::sin(dAngle)),
                  pt.y - SaturateToInt(circle.nRadius * std::cos(dAngle)));
}

std::string DateText(int nDate) {
    const int nYear = nDate / 10000;
    const int nMonth = nDate / 100 - nYear * 100;
    const int nDay = nDate % 10000 - nMonth * 100;
    char szText[40];
    std::snprintf(szText, sizeof szText, "%d.%.2d.%.2d", nYear, nMonth, nDay);
    return szText;
}

std::string NetText(double dNet) {
    constexpr double k_dLeastBigNumber = 10000;
    if (std::abs(dNet) < k_dLeastBigNumber) return FormatFixed(dNet, 2);
    return (dNet < 0 ? "-" : "") + AmountText(std::abs(dNet));
}
}  // namespace

void CPriceRadarCtrl::OnPaint() {
    if (m_bNewPicture) Invalidate();  // new items show everywhere, whatever part was asked for
    m_bNewPicture = false;
    PaintOffScreen(*this, [this](CDC& dc, const CRect& rcClient) { DrawRadar(dc, rcClient); });
}

void CPriceRadarCtrl::DrawRadar(CDC& dc, const CRect& rcClient) {
    dc.FillSolidRect(rcClient, m_clrBack);
    DrawTitle(dc, rcClient);
    const int nTitle = HeldHeight(m_nTitleHeight), nLabel = HeldHeight(m_nLabelHeight);
    if (!CalcPriceRadarLayout(rcClient, nTitle, nLabel, m_column, m_nRadius)) return;
    BuildPriceRadarSlices();
    for (int i = 0; i < k_nPriceColumns; ++i) DrawPriceRadarColumn(dc, i);
    DrawPriceRadarGrid(dc, rcClient);
    m_border.Draw(dc, rcClient);
}

void CPriceRadarCtrl::DrawTitle(CDC& dc, const CRect& rcClient) {
    CRect rcTitle = rcClient;
    rcTitle.bottom = SaturateToInt(0LL + rcClient.top + HeldHeight(m_nTitleHeight));
    dc.FillSolidRect(&rcTitle, m_clrTitleBack);
    rcTitle.DeflateRect(k_nTitleMargin, k_nTitleMargin);
    DrawTextInRect(&dc, m_szTitle, rcTitle, m_nTitleFontSize, m_clrTitleFont, TRUE, DT_LEFT | k_nOneLine);
}

void CPriceRadarCtrl::BuildPriceRadarSlices() {
    for (int i = 0; i < k_nPriceColumns; ++i) {
        tagPriceRadarColumn& column = m_column[i];
        column.dUpTotal = column.dDownTotal = 0;
        for (const tagPriceRadarItemData& item : m_arrItems[i])
            (item.nType == 0 ? column.dUpTotal : column.dDownTotal) += item.dValue;
        const double dBoth = column.dUpTotal + column.dDownTotal;
        column.nUpRadius = ShareOfRadius(m_nRadius, column.dUpTotal, dBoth);
        column.nDownRadius = ShareOfRadius(m_nRadius, column.dDownTotal, dBoth);
        PieShares up(column.dUpTotal), down(column.dDownTotal);
        m_arrPie[i].RemoveAll();
        for (const tagPriceRadarItemData& item : m_arrItems[i]) {
            const PieArc arc = (item.nType == 0 ? up : down).Next(item.dValue);
            const PieCircle circle = item.nType == 0 ? column.UpPie() : column.DownPie();
            tagPieData slice{arc.dStart,        arc.dEnd,       circle.ptCorner.x,
                             circle.ptCorner.y, circle.nRadius, item};
            m_arrPie[i].Add(slice);
        }
    }
}

/// All slices of a pie have the same disc and the same ring.
void CPriceRadarCtrl::DrawPriceRadarColumn(CDC& dc, int nColumn) {
    const tagPriceRadarColumn& column = m_column[nColumn];
    if (m_arrPie[nColumn].GetSize() == 0) return;
    DrawDiscs(dc, column);
    DrawSlices(dc, nColumn);
    DrawLabel(dc, column.rcBottomLabel, NetText(column.dUpTotal - column.dDownTotal).c_str());
    DrawRings(dc, column);
}

void CPriceRadarCtrl::DrawDiscs(CDC& dc, const tagPriceRadarColumn& column) {
    CBrush brush;
    if (!brush.CreateSolidBrush(m_clrPieBack)) return;
    const SelectScope scope(dc, brush);
    const NoPenScope noPen(dc);
    ForEachPie(column, [&](const PieCircle& circle) { dc.Ellipse(DiscBox(circle)); });
}

void CPriceRadarCtrl::DrawRings(CDC& dc, const tagPriceRadarColumn& column) {
    WithPen(dc, k_nRingWidth, k_clrRing, [&] {
        CGdiObject* const pOldBrush = dc.SelectStockObject(NULL_BRUSH);
        ForEachPie(column, [&](const PieCircle& circle) { dc.Ellipse(DiscBox(circle)); });
        if (pOldBrush != nullptr) dc.SelectObject(static_cast<CBrush*>(pOldBrush));
    });
}

/// The plain slices' lines go through one canvas, which is put back before anything else draws below it.
void CPriceRadarCtrl::DrawSlices(CDC& dc, int nColumn) {
    const tagPriceRadarColumn& column = m_column[nColumn];
    const CRect rcUp = DrawnBox(column.UpPie()), rcDown = DrawnBox(column.DownPie());
    CRect rcBoth;
    rcBoth.UnionRect(&rcUp, &rcDown);
    std::optional<WuCanvas> canvas;
    for (const tagPieData& slice : m_arrPie[nColumn]) {
        const PieCircle circle = slice.Circle();
        const CPoint ptCentre = circle.Centre();
        if (slice.data.nId == m_nSelectId) {
            canvas.reset();
            DrawSelectedSlice(dc, slice);
        } else {
            if (!canvas) canvas.emplace(dc, rcBoth);
            for (const double dAngle : {slice.dEndAngle, slice.dStartAngle}) {
                const CPoint ptRim = RimPointAt(circle, dAngle);
                DrawWuLine(*canvas, ptCentre.x, ptCentre.y, ptRim.x, ptRim.y, m_clrPieLine);
            }
        }
        if (slice.data.nType != 0) continue;
        if (canvas && canvas->Covers(column.rcTopLabel)) canvas.reset();
        DrawLabel(dc, column.rcTopLabel, DateText(slice.data.nDate).c_str());
    }
}

void CPriceRadarCtrl::DrawSelectedSlice(CDC& dc, const tagPieData& slice) {
    if (!(slice.Sweep() > k_dLeastSelected)) return;
    const PieCircle circle = slice.Circle();
    const CRect rcBox = circle.Box();
    const CPoint ptCentre = circle.Centre();
    const CPoint ptEnd = RimPointAt(circle, slice.dEndAngle);
    const CPoint ptStart = RimPointAt(circle, slice.dStartAngle);
    CBrush brush;
    if (brush.CreateSolidBrush(m_clrActivePie)) {
        const SelectScope scope(dc, brush);
        const NoPenScope noPen(dc);
        dc.Pie(&rcBox, ptEnd, ptStart);
    }
    DrawSolidLine(&dc, 1, m_clrPieLine, ptCentre.x, ptCentre.y, ptEnd.x, ptEnd.y);
    DrawSolidLine(&dc, 1, m_clrPieLine, ptCentre.x, ptCentre.y, ptStart.x, ptStart.y);
}

void CPriceRadarCtrl::DrawLabel(CDC& dc, const CRect& rc, const char* pszText) {
    DrawTextInRect(&dc, pszText, rc, m_nLabelFontSize, m_clrLabelFont, m_bLabelFontBold,
                   DT_CENTER | k_nOneLine);
}

/// Measured from the left, where the columns are from the right: they differ by what the division leaves
/// over.
void CPriceRadarCtrl::DrawPriceRadarGrid(CDC& dc, const CRect& rcClient) {
    const int nTitle = HeldHeight(m_nTitleHeight), nLabel = HeldHeight(m_nLabelHeight);
    if (rcClient.Height() <= nTitle) return;
    const int nTop = rcClient.top + nTitle, nWidth = rcClient.Width() / k_nPriceColumns;
    for (int k = 1; k < k_nPriceColumns; ++k)
        DrawSolidLine(&dc, 1, m_clrGrid, k * nWidth, nTop, k * nWidth, rcClient.bottom);
    const int nBottom = rcClient.bottom;
    for (const int y : {nTop + (rcClient.Height() - nTitle) / 2, nTop + nLabel, nBottom - nLabel})
        DrawSolidLine(&dc, 1, m_clrGrid, rcClient.left, y, rcClient.right, y);
}
