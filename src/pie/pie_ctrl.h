#pragma once

#include <tavlon/framework.h>
#include <tavlon/records.h>

/// Money-flow pies: keeps items, totals, selection, colours and texts. The exported contract is
/// CProxy_PieChartCtrl. Paints its background only so far: without painted slices nothing can be selected,
/// and no tip is shown.
class CPieChartCtrl : public CWnd {
public:
    /// One slice as last painted.
    struct tagPieData {
        double dStartAngle;  ///< Radians clockwise from twelve.
        double dEndAngle;
        int nLeft;  ///< Top left corner of the square around the pie.
        int nTop;
        int nRadius;
        tagPieChartData data;
    };

    CPieChartCtrl();
    int Create(CWnd* pParent, CRect rect, UINT nID);
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

    int Init();
    int SetData(tagPieChartData data);
    int Play();
    int SelectPieById(int id);
    void SetBorderColor(COLORREF clr);
    void SetCircleBorderColor(COLORREF clr);
    void SetCircleBackgroundColor(COLORREF clr);
    void SetBackColor(COLORREF clr);
    void SetPieBorderColor(COLORREF clr);
    void SetSumTipTitleColor(COLORREF clr);
    void SetSumTipContxtColor(COLORREF clr);
    void SetActivePieBackColor(COLORREF clr);
    void SetSeparateLineColor(COLORREF clr);
    void SetInfoTipWidth(int nWidth) { m_nInfoTipWidth = nWidth; }
    void SetInfoTipHeight(int nHeight) { m_nInfoTipHeight = nHeight; }
    void SetInfoTipTitleBackColor(COLORREF clr) { m_clrInfoTipTitleBack = clr; }
    void SetInfoTipTitleFontColor(COLORREF clr) { m_clrInfoTipTitleFont = clr; }
    void SetInfoTipContextBackColor(COLORREF clr) { m_clrInfoTipContextBack = clr; }
    void SetInfoTipContextFontColor(COLORREF clr) { m_clrInfoTipContextFont = clr; }
    void SetSumTipTitleTopText(char* text);
    void SetSumTipTitleBottomText(char* text);

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    BOOL CalcPieTotals();

    COLORREF m_clrBack = RGB(0, 0, 0);
    COLORREF m_clrBorder = RGB(182, 0, 0);
    COLORREF m_clrSeparateLine = RGB(255, 0, 0);
    int m_nRadius = 0;
    int m_nOutRadius = 0;
    double m_dInTotal = 0;
    double m_dOutTotal = 0;
    BOOL m_bNeedLayout = FALSE;  ///< Items were added since the totals last succeeded.
    CArray<tagPieChartData, tagPieChartData&> m_arrData;
    CArray<tagPieData, tagPieData&> m_arrPie;
    int m_nSelectId = -1;
    int m_nInfoTipWidth = 150;
    int m_nInfoTipHeight = 80;
    COLORREF m_clrInfoTipTitleBack = RGB(3, 56, 160);
    COLORREF m_clrInfoTipContextBack = RGB(255, 255, 255);
    COLORREF m_clrInfoTipTitleFont = RGB(255, 255, 255);
    COLORREF m_clrInfoTipContextFont = RGB(0, 0, 0);
    COLORREF m_clrCircleBorder = RGB(0, 255, 255);
    COLORREF m_clrCircleBack = RGB(182, 0, 0);
    COLORREF m_clrActivePieBack = RGB(192, 192, 0);
    COLORREF m_clrPieBorder = RGB(192, 192, 0);
    COLORREF m_clrSumTipTitle = RGB(192, 192, 0);
    COLORREF m_clrSumTipContext = RGB(182, 0, 0);
    char m_szSumTipTop[255];
    char m_szSumTipBottom[255];
};
