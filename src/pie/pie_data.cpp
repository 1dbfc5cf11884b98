#include <cmath>

#include "foundation/control_window.h"
#include "foundation/text_copy.h"
#include "pie_ctrl.h"

// The money-flow pies' items, totals and slices.
int CPieChartCtrl::Init() {
    DestroyInfoTip();
    m_arrData.RemoveAll();
    m_arrPie.RemoveAll();
    m_dInTotal = m_dOutTotal = 0;
    m_layout.nRadius = m_layout.in.nRadius = m_layout.out.nRadius = 0;
    m_bNewPicture = true;
    return TRUE;
}

int CPieChartCtrl::SetData(tagPieChartData data) {
    constexpr int k_nMaxItems = 60;
    const bool bAmount = data.dValue >= 0 && std::isfinite(data.dValue);
    if (m_arrData.GetSize() >= k_nMaxItems || !bAmount || FieldText(data.szName).empty()) return FALSE;
    m_arrData.Add(data);
    m_bNeedLayout = TRUE;
    m_bNewPicture = true;
    return TRUE;
}

int CPieChartCtrl::Play() {
    const BOOL bDone = m_bNeedLayout && CalcPieTotals();
    Invalidate();
    return bDone;
}

BOOL CPieChartCtrl::CalcPieTotals() {
    if (m_arrData.GetSize() < 2) return FALSE;
    m_dInTotal = m_dOutTotal = 0;
    for (const tagPieChartData& item : m_arrData) (item.nType == 0 ? m_dInTotal : m_dOutTotal) += item.dValue;
    if (!(m_dInTotal > 0 && m_dOutTotal > 0)) return FALSE;
    m_bNeedLayout = FALSE;
    return TRUE;
}

void CPieChartCtrl::BuildPieSlices() {
    PieShares in(m_dInTotal), out(m_dOutTotal);
    m_arrPie.RemoveAll();
    for (const tagPieChartData& item : m_arrData) {
        const bool bIn = item.nType == 0;
        const PieArc arc = (bIn ? in : out).Next(item.dValue);
        const PieCircle& circle = bIn ? m_layout.in : m_layout.out;
        tagPieData slice{arc.dStart, arc.dEnd, circle.ptCorner.x, circle.ptCorner.y, circle.nRadius, item};
        m_arrPie.Add(slice);
    }
}

int CPieChartCtrl::SelectPieById(int id) {
    if (m_arrPie.GetSize() < 1) return FALSE;
    m_nSelectId = id;
    Invalidate();
    ShowPieInfoTip(id);
    return TRUE;
}
