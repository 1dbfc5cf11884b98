#pragma once

#include <tavlon/framework.h>

#include "../foundation/edge_border.h"

/// Position bar: keeps the percentages of three investor camps, title and colours. The exported contract is
/// CProxy_PositionBarCtrl. Paints its background only so far.
class CPositionBar : public CWnd {
    DECLARE_DYNAMIC(CPositionBar)
public:
    int Create(CWnd* pParent, CRect rect, UINT nID);
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

    int Play() { return TRUE; }
    int Stop() { return TRUE; }
    void ReDraw();
    void SetData(int nValue, int nWhich);
    void SetTitle(CString& title) { m_strTitle = title; }
    void SetColor(COLORREF clrBack, COLORREF clrText);
    void SetTitleTextColor(COLORREF clr) { m_clrTitle = clr; }
    void SetCylinderColor(COLORREF clr, int nWhich);
    void SetCoordinateColor(COLORREF clr) { m_clrCoordinate = clr; }
    void SetBorderColor(COLORREF clr, int nSide) { m_border.SetSide(clr, nSide); }

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    CString m_strTitle = "持仓分析";
    int m_nPosition[3] = {-1, -1, -1};  ///< Aggressive, steady, conservative; negative: no figure.
    COLORREF m_clrBack = RGB(255, 255, 255);
    COLORREF m_clrText = RGB(0, 0, 0);
    COLORREF m_clrTitle = RGB(0, 0, 0);
    COLORREF m_clrCylinder[3] = {RGB(180, 0, 0), RGB(0, 180, 0), RGB(0, 0, 180)};  ///< As m_nPosition.
    COLORREF m_clrCoordinate = RGB(100, 0, 0);
    EdgeBorder m_border;
};
