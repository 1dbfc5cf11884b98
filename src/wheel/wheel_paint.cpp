// The sector wheel's picture.
#include <cmath>

#include "foundation/control_window.h"
#include "foundation/text_copy.h"
#include "foundation/toolkit.h"
#include "foundation/with_pen.h"
#include "wheel_ctrl.h"

namespace {
constexpr COLORREF k_clrBack = RGB(0, 0, 0);
constexpr COLORREF k_clrText = RGB(192, 192, 192);
constexpr COLORREF k_clrSelection = RGB(2, 226, 244);
constexpr COLORREF k_clrRim = RGB(106, 6, 238);
constexpr COLORREF k_clrRing = RGB(204, 120, 47);
constexpr COLORREF k_clrSpoke = RGB(176, 150, 52);
constexpr COLORREF k_clrName = RGB(192, 192, 0);
constexpr COLORREF k_clrScale = RGB(192, 192, 0);
constexpr COLORREF k_clrDotMask = RGB(255, 255, 255);
constexpr int k_nTitleHeight = 16;
constexpr int k_nTextHeight = 12;
constexpr int k_nTitleRoom = 15;  // beside its text
constexpr int k_nTimeGap = 25;    // between title and time
constexpr int k_nTickLength = 7;
constexpr int k_nScaleGap = 10;  // between spoke and numbers
constexpr float k_fLeastLabel = 0.005f;
const CSize k_szDotCentre(7, 8);  // in its bitmap
constexpr UINT k_nLineFormat = DT_END_ELLIPSIS | DT_SINGLELINE | DT_VCENTER;

/// An arc from the top once around.
void DrawCircle(CDC& dc, const CRect& rcBox, CPoint ptTop) { dc.Arc(&rcBox, ptTop, ptTop); }

void DrawLine(CDC& dc, CPoint ptFrom, CPoint ptTo) {
    dc.MoveTo(ptFrom);
    dc.LineTo(ptTo);
}

template <std::size_t nSize>
CString TextOf(const char (&szField)[nSize]) {
    const std::string_view text = FieldText(szField);
    return CString(text.data(), static_cast<int>(text.size()));
}
}  // namespace

void TavlonBR::OnPaint() {
    if (m_bNew) Invalidate();  // new sectors show everywhere, whatever part was asked for
    m_bNew = false;
    PaintOffScreen(*this, [this](CDC& dc, const CRect& rcClient) {
        dc.FillSolidRect(rcClient, k_clrBack);
        const int nSaved = dc.SaveDC();
        dc.SetTextAlign(TA_LEFT | TA_TOP);
        dc.SetBkColor(k_clrBack);
        DrawInfo(dc);
        DrawWheel(dc);
        dc.RestoreDC(nSaved);
    });
}

void TavlonBR::DrawInfo(CDC& dc) {
    DrawTitleBand(dc);
    DrawTextInRect(&dc, SelectionText(), m_layout.rcInfo, k_nTextHeight, k_clrSelection, FALSE,
                   k_nLineFormat);
}

void TavlonBR::DrawTitleBand(CDC& dc) {
    const CString strTitle = TextOf(m_blocksInfo.title);
    CFont* const pOldFont = SelectKaiTiFont(&dc, k_nTitleHeight);
    const int nWidth = dc.GetTextExtent(strTitle).cx;
    dc.SelectObject(pOldFont);
    CRect rcText = m_layout.rcTitle;
    rcText.right = rcText.left + nWidth + k_nTitleRoom;
    DrawTextInRect(&dc, strTitle, rcText, k_nTitleHeight, k_clrText, TRUE, k_nLineFormat);
    if (!m_bShowTime) return;
    CString strTime;
    strTime.Format("更新时间:%04d-%02d-%02d %02d:%02d", m_tmUpdate.GetYear(), m_tmUpdate.GetMonth(),
                   m_tmUpdate.GetDay(), m_tmUpdate.GetHour(), m_tmUpdate.GetMinute());
    rcText = m_layout.rcTitle;
    rcText.left += nWidth + k_nTimeGap;
    DrawTextInRect(&dc, strTime, rcText, k_nTextHeight, k_clrText, FALSE, k_nLineFormat);
}

CString TavlonBR::SelectionText() {
    tagmyBRData sector;
    if (!GetCurBlockData(sector)) return "当前所选行业:     主力占盘比:     ";
    return "当前所选行业:" + TextOf(sector.name) + " 主力占盘比:" + FormatFixed(sector.value, 2).c_str();
}

void TavlonBR::DrawWheel(CDC& dc) {
    ClearAreas();
    const WheelCircle circle = CircleIn(m_layout.rcWheel);
    if (m_nCount < 1 || circle.nRadius < 0) return;
    CFont* const pOldFont = SelectKaiTiFont(&dc, k_nTextHeight);
    dc.SetBkMode(TRANSPARENT);
    const int nTextHeight = dc.GetTextExtent("99", 2).cy;
    DrawRings(dc, circle);
    DrawSpokes(dc, circle, nTextHeight);
    DrawTopSpoke(dc, circle, nTextHeight);
    dc.SelectObject(pOldFont);
}

void TavlonBR::DrawRings(CDC& dc, const WheelCircle& circle) {
    WithPen(dc, 2, k_clrRim, [&] { DrawCircle(dc, RingBox(circle, k_nRings), circle.Top()); });
    WithPen(dc, 1, k_clrRing, [&] {
        for (int nRing = 1; nRing < k_nRings; ++nRing) DrawCircle(dc, RingBox(circle, nRing), circle.Top());
    });
}

void TavlonBR::DrawSpokes(CDC& dc, const WheelCircle& circle, int nTextHeight) {
    dc.SetTextColor(k_clrName);
    WithPen(dc, 1, k_clrSpoke, [&] {
        for (int i = 0; i < m_nCount - 1; ++i) {
            CPoint ptRim;
            if (!CalcPoint(circle.nRadius, AngleOf(i), circle.ptCentre, ptRim)) continue;
            DrawLine(dc, circle.ptCentre, ptRim);
            DrawName(dc, i, PlaceName(AngleOf(i), ptRim, nTextHeight));
        }
    });
    DrawName(dc, m_nCount - 1, PlaceTopName(circle, nTextHeight));
}

void TavlonBR::DrawName(CDC& dc, int nSector, const NamePlace& place) {
    const CString strName = TextOf(m_arrData[nSector].name);
    dc.SetTextAlign(place.nAlign | TA_TOP);
    dc.TextOut(place.pt.x, place.pt.y, strName);
    m_arrLabelArea[nSector] = {m_arrData[nSector], place.Box(dc.GetTextExtent(strName))};
}

/// The spoke at twelve, which carries the scale, and what the scale measures.
void TavlonBR::DrawTopSpoke(CDC& dc, const WheelCircle& circle, int nTextHeight) {
    dc.SetTextAlign(TA_LEFT | TA_TOP);
    dc.SetTextColor(k_clrText);
    const ShareRange shares = GetValueRange();
    WithPen(dc, 2, k_clrScale, [&] {
        DrawLine(dc, circle.ptCentre, circle.Top());
        if (shares.IsScale()) DrawScale(dc, circle, shares, nTextHeight);
    });
    if (shares.IsScale()) DrawDots(dc, circle, shares);
}

void TavlonBR::DrawScale(CDC& dc, const WheelCircle& circle, const ShareRange& shares, int nTextHeight) {
    const int x = circle.ptCentre.x;
    for (int nRing = k_nRings - 1; nRing > 0; --nRing) {
        const int y = RingBox(circle, nRing).top;
        DrawLine(dc, CPoint(x, y), CPoint(x + k_nTickLength, y));
        const float fValue = shares.RingValue(nRing);
        if (std::abs(fValue) >= k_fLeastLabel)
            dc.TextOut(x + k_nScaleGap, y - nTextHeight / 2, FormatFixed(fValue, 2).c_str());
    }
}

void TavlonBR::DrawDots(CDC& dc, const WheelCircle& circle, const ShareRange& shares) {
    for (int i = 0; i < m_nCount; ++i) {
        const float fValue = m_arrData[i].value;
        if (!std::isfinite(fValue)) continue;
        CPoint ptDot;
        if (!CalcPoint(shares.DotDistance(fValue, circle.nRadius), AngleOf(i), circle.ptCentre, ptDot))
            continue;
        m_arrDotArea[i] = {m_arrData[i], DotBox(ptDot)};
        const CPoint ptCorner = ptDot - k_szDotCentre;
        DrawTransparentBitmap(dc, ptCorner.x, ptCorner.y, m_bmpDot, k_clrDotMask);
    }
}

ShareRange TavlonBR::GetValueRange() {
    ShareRange shares;
    for (const tagmyBRData& sector : m_arrData) shares.Include(sector.value);
    return shares;
}
