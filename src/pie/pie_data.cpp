#include "../foundation/control_window.h"
#include "../foundation/text_copy.h"
#include "pie_ctrl.h"

int CPieChartCtrl::Init() {
    m_arrData.RemoveAll();
    m_arrPie.RemoveAll();
    m_dInTotal = m_dOutTotal = 0;
    m_nRadius = m_nOutRadius = 0;
    return TRUE;
}

int CPieChartCtrl::SetData(tagPieChartData data) {
    constexpr int k_nMaxItems = 60;
    const bool bAmount = data.dValue >= 0;  // false for NaN as well
    if (m_arrData.GetSize() >= k_nMaxItems || !bAmount || FieldText(data.szName).empty()) return FALSE;
    m_arrData.Add(data);
    m_bNeedLayout = TRUE;
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

int CPieChartCtrl::SelectPieById(int id) {
    if (m_arrPie.GetSize() < 1) return FALSE;
    m_nSelectId = id;
    Invalidate();
    return TRUE;
}
