#pragma once

#include <tavlon/framework.h>
#include <tavlon/records.h>

/// Tab strip: keeps the tabs, the active one and the look. The exported contract is CProxy_TabCtrl.
/// Paints its background only so far; clicks select nothing yet.
class CMyTabControl : public CWnd {
public:
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
    DECLARE_MESSAGE_MAP()

private:
    tagTabCtrlStyle m_eStyle = TAB_HORZ_CHAMFER;
    COLORREF m_clrBack = RGB(0, 0, 0);
    COLORREF m_clrFont = RGB(186, 187, 182);
    COLORREF m_clrActiveTabBack = RGB(1, 153, 255);
    COLORREF m_clrActiveTabFont = RGB(182, 0, 0);
    COLORREF m_clrNormalTabBack = RGB(0, 0, 0);
    int m_nFontSize = 12;
    int m_nActive = -1;  ///< Position of the active tab.
    int m_bFontBold = 1;
    CArray<tagTabItemData, tagTabItemData&> m_arrItems;
};
