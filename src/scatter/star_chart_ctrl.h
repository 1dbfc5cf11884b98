#pragma once

#include <tavlon/records.h>
#include <tavlon/scatter_ctrl.h>

#include <deque>

#include "core/stock_index.h"

/// Star chart: energy (x) against net buying (y) at the day's close, the disc by the sign of a third value.
/// The exported contract is CProxy_PointStartCtrl.
class CPointStartCtrl : public CScatterCtrl {
public:
    /// One star of a list.
    struct CMyItem {
        float fX;              ///< Energy.
        float fY;              ///< Net buying.
        tagmyStarData* pData;  ///< The star's record, owned by the chart.
    };

    CPointStartCtrl();
    int SetData(tagmyStarData data);
    void SetTitle(CString& title) { m_strTitle = title; }

protected:
    void RemoveData() override;
    void IncludeData(PairExtent& extent) const override;
    void RebuildShown() override;
    int ShownCount() const override;
    ScatterPoint ShownPoint(int nShown) const override;
    CString StockInfo(int nShown) const override;
    ShaftTitles AxisTitles() const override;

    afx_msg LRESULT OnStarKind(WPARAM wKind, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    CString m_strValueLabel = "主力能量";
    std::deque<tagmyStarData> m_records;   ///< Records never move: the items point to them.
    CArray<CMyItem, CMyItem&> m_arrData;   ///< One star a stock.
    CArray<CMyItem, CMyItem&> m_arrShown;  ///< Those in range.
    StockIndex m_index;                    ///< Where in m_arrData a stock stands.
    int m_nStarKind = 0;
};
