#pragma once

#include <tavlon/framework.h>

#include "../foundation/edge_border.h"

/// Market risk gauge: keeps two risk steps, texts and colours. The exported contract is CProxy_RiskBarCtrl.
/// Paints its background only so far.
class TavlonRiskBar : public CWnd {
    DECLARE_DYNAMIC(TavlonRiskBar)
public:
    int Create(CWnd* pParent, CRect rect, UINT nID);
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

    int Play() { return TRUE; }
    int Stop() { return TRUE; }
    void ReDraw();
    void SetData(int nValue, int nWhich);
    void SetTitle(CString& title) { m_strTitle = title; }
    void SetExplain(CString& text) { m_strExplain = text; }
    void SetColor(COLORREF clrBack, COLORREF clrText);
    void SetTitleTextColor(COLORREF clr) { m_clrTitle = clr; }
    void SetLineColor(COLORREF clr, int nWhich);
    void SetBorderColor(COLORREF clr, int nSide) { m_border.SetSide(clr, nSide); }

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    HWND m_hParent = nullptr;
    CString m_strTitle = "大盘风险分析";
    CString m_strExplain =
        "   "
        "该刻度从左至右，标识大盘的风险程序，绿色为风险度低，红色为风险度高区域，两个箭头分别代表中长期风险区"
        "间和"
        "短期风险区间，投资者可按照自己的投资风险选取适合自己的操作方式";
    int m_nRisk[2] = {-1, -1};  ///< Medium and long term, short term; drawn when 1 to 5.
    UINT m_nID = 0;
    COLORREF m_clrScale[5] = {RGB(104, 207, 0), RGB(180, 225, 12), RGB(228, 193, 7), RGB(245, 127, 1),
                              RGB(252, 59, 1)};
    COLORREF m_clrBack = RGB(255, 255, 255);
    COLORREF m_clrExplain = RGB(0, 0, 0);
    COLORREF m_clrTitle = RGB(0, 0, 0);
    COLORREF m_clrArrow[2] = {RGB(180, 0, 0), RGB(0, 180, 0)};  ///< As m_nRisk.
    EdgeBorder m_border;
};
