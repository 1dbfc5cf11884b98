#pragma once

#include <tavlon/framework.h>
#include <tavlon/records.h>
#include <tavlon/scatter_state.h>

#include <deque>

#include "core/stock_index.h"

/// Star chart: keeps the stars, title, value label, look and shown range. The exported contract is
/// CProxy_PointStartCtrl. Paints its background only so far.
class CPointStartCtrl : public CWnd, private ScatterState {
public:
    /// One star of a list.
    struct CMyItem {
        float fX;              ///< Energy.
        float fY;              ///< Net buying.
        tagmyStarData* pData;  ///< The star's record, owned by the chart.
    };

    int Create(CWnd* pParent, CRect rect, UINT nID);
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

    int Init();
    int Play();
    void ClearData();
    int SetData(tagmyStarData data);
    void SetCoordinateShaftFontSize(int nHeight);
    void SetCoordinateShaftLineColor(COLORREF clr);
    void SetFontColor(COLORREF clr);
    void SetGirdVisble(bool bShow);
    void SetBorderColor(COLORREF clr);
    void SetUpdateTime(CTime& time);
    void SetTitle(CString& title) { m_strTitle = title; }

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg LRESULT OnStarKind(WPARAM wKind, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    void MarkStale();

    bool m_bRangeDirty = false;
    CString m_strTitle = "尾盘雷达-能量星空图";
    CString m_strValueLabel = "主力能量";
    std::deque<tagmyStarData> m_records;  ///< Records never move: the items point to them.
    CArray<CMyItem, CMyItem&> m_arrData;  ///< One star a stock.
    StockIndex m_index;                   ///< Where in m_arrData a stock stands.
    int m_nStarKind = 0;
};
