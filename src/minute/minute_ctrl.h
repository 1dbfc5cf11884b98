#pragma once

#include "foundation/kept_picture.h"
#include "minute_layout.h"
#include "minute_slots.h"

/// Intraday flow chart: one stock's day, minute by minute. The exported contract is CProxy_ChartOL.
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
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    void ResetMinuteData();
    float PreClose() const;  ///< 0 when the host gave no number.
    void SelectSlotAt(CPoint point);
    void StepSlot(int nBy);
    void SelectSlot(int nSlot);
    void RepaintCursor();
    void MarkNewDay();
    void DrawDay(CDC& dc);     ///< All but the cross hair and the information strip.
    void DrawCursor(CDC& dc);  ///< These two.

    tagStockItem m_stockItem{};
    MinuteArray m_arrMinute;
    MinuteLayout m_layout;
    int m_nCurIndex = 0;   ///< Slot under the cursor.
    int m_nLastIndex = 0;  ///< Slot stored last.
    UINT m_nCtrlId = 0;
    BOOL m_bNewData = FALSE;     ///< Minutes were stored since the last Play.
    BOOL m_bShowCross = FALSE;   ///< Whether the cross hair is drawn.
    bool m_bNewPicture = false;  ///< Something that is drawn changed since the last paint.
    HCURSOR m_hCursor = nullptr;
    CBitmap m_bmpMark;
    CPoint m_ptMouse{0, 0};       ///< Where the cross hair is.
    KeptPicture m_day;            ///< What the cursor moves over.
    bool m_bCursorMoved = false;  ///< Why the next paint was asked for.
};
