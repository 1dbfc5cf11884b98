#pragma once

#include "histogram_bars.h"
#include "histogram_plot.h"

/// Histogram: up to twenty bars over a grid, with a value scale. The exported contract is
/// CProxy_HistogramCtrl.
class myHistogramCtrl : public CWnd {
public:
    myHistogramCtrl();
    int Create(CWnd* pParent, CRect rect, UINT nID);
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

    int Init();
    int SetData(tagHistogramData& data);
    int Play();
    int SetIndex(int nId);
    void SetCoordinateShaftColor(COLORREF clr);
    void SetGirdColor(COLORREF clr);
    void SetBackColor(COLORREF clr);
    void SetCoordinateShaftFontColor(COLORREF clr);
    void SetCoordinateShaftTitleColor(COLORREF clr);
    void SetBorderColor(COLORREF clr);
    void DisplayGird(bool bShow);
    void SetYTitle(char* text);
    void SetXTitle(char* text);

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    // Paint.
    void DrawHistogram(CDC& dc, const CRect& rcClient);
    void DrawBackground(CDC& dc, const CRect& rcClient);
    void DrawGrid(CDC& dc, const HistogramPlot& plot);
    void DrawAxes(CDC& dc, const HistogramPlot& plot);
    void DrawBarLabels(CDC& dc, const HistogramPlot& plot);
    void DrawTitles(CDC& dc, const HistogramPlot& plot);
    void DrawBars(CDC& dc, const HistogramPlot& plot);

    COLORREF m_clrBack = RGB(0, 0, 0);
    COLORREF m_clrGird = RGB(63, 63, 63);
    COLORREF m_clrCoordinateShaft = RGB(182, 0, 0);
    COLORREF m_clrBar = RGB(192, 192, 192);
    COLORREF m_clrSelBar = RGB(5, 54, 159);
    COLORREF m_clrCoordinateShaftFont = RGB(192, 192, 192);
    COLORREF m_clrCoordinateShaftTitle = RGB(192, 192, 192);
    COLORREF m_clrBorder = RGB(182, 0, 0);
    bool m_bDisplayGird = true;
    char m_szYTitle[100];
    char m_szXTitle[100];
    HistogramBars m_bars;
    bool m_bNewPicture = false;  ///< Bars changed since the last paint.
    int m_nSelId = -1;           ///< Last id given to SetIndex.
};
