#include <tavlon/block_radar_ctrl.h>

#include "foundation/control_window.h"
#include "scatter/core/value_range.h"
#include "scatter_paint.h"
#include "scatter_point.h"

CBlockRadarCtrl::CBlockRadarCtrl(const ScatterStyle& style, const ControlNames& names, const char* pszTitle,
                                 const char* pszInfoFormat, COLORREF clrGateBack)
    : CScatterCtrl(style, names, pszTitle), m_clrGateBack(clrGateBack), m_pszInfoFormat(pszInfoFormat) {}

int CBlockRadarCtrl::SetData(tagPointRadarItemData item) {
    if (!StorePoint(item)) return FALSE;
    MarkDataChanged();
    return TRUE;
}

void CBlockRadarCtrl::ActiveBlockByInfo(int nId, const char* pszName) {
    ActivateBlock(nId, pszName);
    MarkStale();
    Invalidate();
}

void CBlockRadarCtrl::SetGateBkColor(COLORREF clr) { StoreAndRepaint(*this, m_clrGateBack, clr); }

void CBlockRadarCtrl::RemoveData() { ClearPoints(); }

void CBlockRadarCtrl::IncludeData(PairExtent& extent) const {
    for (const tagPointRadarItemData& item : m_arrData) extent.Include(item.dX, item.dY);
}

void CBlockRadarCtrl::RebuildShown() {
    m_arrShown.RemoveAll();
    for (const bool bActive : {false, true})  // the active block goes on top
        for (tagPointRadarItemData& item : m_arrData)
            if ((item.nBlockId == m_nActiveBlockId) == bActive && IsPointInCoordinateShaft(item.dX, item.dY))
                m_arrShown.Add(item);
}

int CBlockRadarCtrl::ShownCount() const { return static_cast<int>(m_arrShown.GetSize()); }

ScatterPoint CBlockRadarCtrl::ShownPoint(int nShown) const {
    const tagPointRadarItemData& item = m_arrShown[nShown];
    const PointSlot slot = item.nBlockId == m_nActiveBlockId ? POINT_ACTIVE : SlotOfSign(item.dY);
    return {item.dX, item.dY, slot};
}

CString CBlockRadarCtrl::StockInfo(int nShown) const {
    static const tagPointRadarItemData s_none{};
    const tagPointRadarItemData& item = nShown >= 0 ? m_arrShown[nShown] : s_none;
    CString strInfo;
    strInfo.Format(m_pszInfoFormat, item.szCode, item.szName, item.dY, item.dX);
    return strInfo;
}

void CBlockRadarCtrl::DrawTitle(CDC* pDC) {
    CScatterCtrl::DrawTitle(pDC);
    CString strBlock("当前选中版块为:");
    strBlock += m_szActiveBlock;
    PaintStripText(*pDC, *this, strBlock, BlockLineRect(*this), m_clrBlockText);
}
