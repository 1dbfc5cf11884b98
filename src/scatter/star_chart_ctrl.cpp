#include "star_chart_ctrl.h"

#include "foundation/toolkit.h"
#include "scatter_paint.h"
#include "scatter_point.h"
#include "window_names.h"

namespace {
constexpr UINT k_nStarKindMessage = WM_USER + 2;
constexpr float k_fBigMoney = 10000;  // from above here in units of 10^4 and more

CString InfoText(const tagmyStarData& star, const CString& strLabel, const char* pszMoney) {
    CString strInfo;
    strInfo.Format("股票代码:%-6.11s  名称:%-8.32s %s:%-8.2lf 净买入资金量:%s", star.szCode, star.szName,
                   static_cast<const char*>(strLabel), static_cast<double>(star.fEnergy), pszMoney);
    return strInfo;
}

CString MoneyText(float fMoney) {
    char szMoney[32] = "";
    if (fMoney > k_fBigMoney) {
        FormatBigNumber(szMoney, sizeof szMoney - 1, fMoney);
        return szMoney;
    }
    return FormatFixed(fMoney, 2).c_str();
}
}  // namespace

BEGIN_MESSAGE_MAP(CPointStartCtrl, CScatterCtrl)
ON_MESSAGE(k_nStarKindMessage, OnStarKind)
END_MESSAGE_MAP()

CPointStartCtrl::CPointStartCtrl()
    : CScatterCtrl(k_starChartStyle, k_rosePointNames, "尾盘雷达-能量星空图") {}

LRESULT CPointStartCtrl::OnStarKind(WPARAM wKind, LPARAM) {
    m_nStarKind = static_cast<int>(wKind);
    if (m_nStarKind == 12 || m_nStarKind == 14) m_strValueLabel = "强庄能量";
    Invalidate();
    return 0;
}

int CPointStartCtrl::SetData(tagmyStarData data) {
    constexpr int k_nFull = k_nMostStocks + 1;
    const bool bChecked = data.dwCheckB != 0 && data.fCheckC >= 0 && data.fCheckA >= 0;  // false for NaN
    if (m_arrData.GetSize() >= k_nFull || !bChecked) return FALSE;
    const int nHeld = m_index.Find(data.cMarket, data.szCode);
    if (nHeld >= 0) {
        CMyItem& held = m_arrData[nHeld];
        *held.pData = data;
        held = {data.fEnergy, data.fNetBuy, held.pData};
    } else {
        CMyItem item{data.fEnergy, data.fNetBuy, &m_records.emplace_back(data)};
        m_index.Add(data.cMarket, data.szCode, static_cast<int>(m_arrData.Add(item)));
    }
    MarkDataChanged();
    return TRUE;
}

void CPointStartCtrl::RemoveData() {
    m_arrShown.RemoveAll();
    m_arrData.RemoveAll();
    m_records.clear();
    m_index.Clear();
}

void CPointStartCtrl::IncludeData(PairExtent& extent) const {
    for (const CMyItem& item : m_arrData) extent.Include(item.fX, item.fY);
}

void CPointStartCtrl::RebuildShown() {
    m_arrShown.RemoveAll();
    for (CMyItem& item : m_arrData)
        if (IsPointInCoordinateShaft(item.fX, item.fY)) m_arrShown.Add(item);
}

int CPointStartCtrl::ShownCount() const { return static_cast<int>(m_arrShown.GetSize()); }

ScatterPoint CPointStartCtrl::ShownPoint(int nShown) const {
    const CMyItem& item = m_arrShown[nShown];
    return {item.fX, item.fY, SlotOfSign(item.pData->fSignValue)};
}

CString CPointStartCtrl::StockInfo(int nShown) const {
    if (nShown >= 0) {
        const tagmyStarData& star = *m_arrShown[nShown].pData;
        return InfoText(star, m_strValueLabel, MoneyText(star.fNetBuy));
    }
    // Every star chart keeps the label that was current when the mouse was first on no star.
    static const CString s_strNone = InfoText({}, m_strValueLabel, "0.00");
    return s_strNone;
}

ShaftTitles CPointStartCtrl::AxisTitles() const { return {m_strValueLabel, "净买入资金", m_clrFont}; }
