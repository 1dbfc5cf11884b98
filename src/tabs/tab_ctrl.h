#pragma once

#include <tavlon/framework.h>

#include "my_string.h"
#include "tab_state.h"

/// Tab strip: equal tabs side by side or below each other, one of which is active. The exported contract is
/// CProxy_TabCtrl.
class CMyTabControl : public CWnd, private TabStripState {
public:
    using CMyString = ::CMyString;

    int Create(CWnd* pParent, CRect rect, UINT nID, tagTabCtrlStyle style);
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

    int AddItem(tagTabItemData item);
    void ClearContent();
    int GetActiveId();
    void SelectTabById(int id);
    void SetBackColor(COLORREF clr);
    void SetFontColor(COLORREF clr);
    void SetActiveTabBackColor(COLORREF clr);
    void SetActiveTabFontColor(COLORREF clr);
    void SetNormalTabBackColor(COLORREF clr);
    void SetFontSize(int nHeight);
    void SetFontBold(bool bBold);

protected:
    afx_msg virtual BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnPaint();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    void NotifyParent() const;
};
