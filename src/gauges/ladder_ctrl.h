#pragma once

#include "gauge_ctrl.h"

/// Pressure and support ladder: five price levels over three strength blocks. The exported contract is
/// CProxy_PrssureSupportCtrl.
class CPrssureSupportCtrl : public CGaugeCtrl {
public:
    static constexpr int k_nLevels = 5;

    CPrssureSupportCtrl();

    void SetPriceData(float fPrice, int nLevel);
    void SetPrSuColor(COLORREF clr, int nLevel);
    void SetPrSuTextColor(COLORREF clr, int nLevel);
    void SetBigMidSmallColor(COLORREF clr, int nWhich);
    void SerSeparLineColor(COLORREF clr) { m_clrSeparLine = clr; }

private:
    void LayOut(const CRect& rcClient) override;
    void DrawGauge(CDC& dc) override;
    void DrawBlocks(CDC& dc);
    void DrawNames(CDC& dc);
    void DrawBars(CDC& dc);

    float Quarter() const { return static_cast<float>(m_rcClient.Height() / 4.0); }
    float LargestPrice() const;  ///< 0 when there is none.

    COLORREF m_clrPrSu[k_nLevels] = {RGB(86, 196, 2), RGB(86, 196, 2), RGB(244, 208, 55), RGB(59, 144, 255),
                                     RGB(59, 144, 255)};
    COLORREF m_clrPrSuText[k_nLevels] = {RGB(52, 41, 251), RGB(52, 41, 251), RGB(192, 192, 192),
                                         RGB(52, 41, 251), RGB(52, 41, 251)};
    COLORREF m_clrBigMidSmall[3] = {RGB(255, 153, 0), RGB(255, 233, 56), RGB(219, 239, 2)};
    COLORREF m_clrSeparLine = RGB(192, 192, 192);
    float m_fPrice[k_nLevels] = {};  ///< Yuan, levels 1 to 5.
    CRect m_rcClient{0, 0, 0, 0};
    CRect m_rcStrong{0, 0, 0, 0};
    CRect m_rcMiddle{0, 0, 0, 0};
    CRect m_rcWeak{0, 0, 0, 0};
    CRect m_rcPrice{0, 0, 0, 0};  ///< Names and figures.
};
