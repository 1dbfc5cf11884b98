#pragma once

#include "gauge_ctrl.h"

/// Market risk gauge: two arrows on a scale of five steps. The exported contract is CProxy_RiskBarCtrl.
class TavlonRiskBar : public CGaugeCtrl {
    DECLARE_DYNAMIC(TavlonRiskBar)
public:
    TavlonRiskBar();

    void SetData(int nValue, int nWhich);
    void SetTitle(CString& title) { m_title.strText = title; }
    void SetExplain(CString& text) { m_strExplain = text; }
    void SetTitleTextColor(COLORREF clr) { m_title.clr = clr; }
    void SetLineColor(COLORREF clr, int nWhich);

private:
    struct Scale;

    void LayOut(const CRect& rcClient) override;
    void DrawGauge(CDC& dc) override;
    void DrawExplain(CDC& dc);
    void DrawScale(CDC& dc);
    void DrawSteps(CDC& dc, const Scale& scale);
    void DrawLongArrow(CDC& dc, const Scale& scale);
    void DrawShortArrow(CDC& dc, const Scale& scale);

    GaugeTitle m_title;
    CString m_strExplain;
    int m_nRisk[2] = {-1, -1};  ///< Medium and long term, short term; drawn when 1 to 5.
    COLORREF m_clrScale[5] = {RGB(104, 207, 0), RGB(180, 225, 12), RGB(228, 193, 7), RGB(245, 127, 1),
                              RGB(252, 59, 1)};
    COLORREF m_clrArrow[2] = {RGB(180, 0, 0), RGB(0, 180, 0)};  ///< As m_nRisk.
    CRect m_rcTitle{0, 0, 0, 0};
    CRect m_rcScale{0, 0, 0, 0};  ///< Scale, arrows and the labels of both.
    CRect m_rcExplain{0, 0, 0, 0};
};
