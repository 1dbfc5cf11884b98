#pragma once

#include "minute_slots.h"

/// Intraday flow chart: keeps the stock and its minutes. The exported contract is CProxy_ChartOL.
/// Paints its background only so far; mouse moves, double clicks and arrow keys do nothing yet.
class TavlonOL : public CWnd {
    DECLARE_DYNAMIC(TavlonOL)
public:
    TavlonOL();
    int Create(CWnd* pParent, CRect rect, UINT nID);
    BOOL PreTranslateMessage(MSG* pMsg) override;

    int Init(tagStockItem& item);
    int SetData(tagmyMinuteData& data);
    int SetJueShaData(tagJueShaMinuteData&) { return TRUE; }
    int Play();
    int Stop() { return TRUE; }

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    void ResetMinuteData();

    tagStockItem m_stockItem{};
    MinuteArray m_arrMinute;
    int m_nCurIndex = 0;   ///< Slot under the cursor.
    int m_nLastIndex = 0;  ///< Slot stored last.
    UINT m_nCtrlId = 0;
    BOOL m_bNewData = FALSE;    ///< Minutes were stored since the last Play.
    BOOL m_bShowCross = FALSE;  ///< Whether the cross hair is drawn.
    HCURSOR m_hCursor = nullptr;
};
