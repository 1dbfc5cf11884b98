#pragma once

#include <tavlon/framework.h>

#include "../foundation/edge_border.h"

/// Pressure and support ladder: keeps five prices and the colours. The exported contract is
/// CProxy_PrssureSupportCtrl. Paints its background only so far.
class CPrssureSupportCtrl : public CWnd {
public:
    int Create(CWnd* pParent, CRect rect, UINT nID);
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

    int Play() { return TRUE; }
    int Stop() { return TRUE; }
    void ReDraw();
    void SetPriceData(float fPrice, int nLevel);
    void SetColor(COLORREF clrBack, COLORREF clrText);
    void SetPrSuColor(COLORREF clr, int nLevel);
    void SetPrSuTextColor(COLORREF clr, int nLevel);
    void SetBigMidSmallColor(COLORREF clr, int nWhich);
    void SetBorderColor(COLORREF clr, int nSide) { m_border.SetSide(clr, nSide); }
    void SerSeparLineColor(COLORREF clr) { m_clrSeparLine = clr; }

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    COLORREF m_clrBack = RGB(255, 255, 255);
    COLORREF m_clrText = RGB(0, 0, 0);
    COLORREF m_clrPrSu[5] = {RGB(86, 196, 2), RGB(86, 196, 2), RGB(244, 208, 55), RGB(59, 144, 255),
                             RGB(59, 144, 255)};
    COLORREF m_clrPrSuText[5] = {RGB(52, 41, 251), RGB(52, 41, 251), RGB(192, 192, 192), RGB(52, 41, 251),
                                 RGB(52, 41, 251)};
    COLORREF m_clrBigMidSmall[3] = {RGB(255, 153, 0), RGB(255, 233, 56), RGB(219, 239, 2)};
    COLORREF m_clrSeparLine = RGB(192, 192, 192);
    EdgeBorder m_border;
    float m_fPrice[5] = {};  ///< Yuan, levels 1 to 5.
};
