#pragma once

#include <tavlon/framework.h>
#include <tavlon/records.h>

#include <vector>

#include "pie_geometry.h"
#include "wu_canvas.h"

/// Money-flow pies and their information tip. The exported contract is CProxy_PieChartCtrl.
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

        PieArc Arc() const { return {dStartAngle, dEndAngle}; }
        PieCircle Circle() const { return {CPoint(nLeft, nTop), nRadius}; }
    };

    CPieChartCtrl();
    ~CPieChartCtrl() override;
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
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg LRESULT OnCloseInfoTip(WPARAM wParam, LPARAM lParam);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    BOOL CalcPieTotals();
    std::vector<int> IdsAt(CPoint point);  ///< Of the slices there, in their order.
    void BuildPieSlices();

    // Paint.
    void DrawPies(CDC& dc, const CRect& rcClient);
    void DrawDisc(CDC& dc, const PieCircle& circle);
    void DrawSlices(CDC& dc);
    void FillSlice(CDC& dc, const tagPieData& slice);
    void DrawSliceLines(WuCanvas& canvas, const tagPieData& slice);
    void DrawOutlines(CDC& dc);
    void DrawSumTip(CDC& dc, const CRect& rcHalf, const char* pszTitle, double dTotal);

    // The information tip: what it shows is in pie_tip.cpp, its window in info_tip.cpp.
    void ShowPieInfoTip(int id);
    BOOL ShowInfoTip(const char* title, const char* inText, const char* outText, int x, int y);
    BOOL CreateInfoTip();
    BOOL DestroyInfoTip();
    void DisownInfoTip();  ///< For pies that go while their tip is going.
    void SetInfoTipTitle(const char* text);
    void SetInfoTipIn(const char* text);
    void SetInfoTipOut(const char* text);
    CPoint PlaceInfoTip(CPoint pt) const;
    static void PaintInfoTip(HWND hTip, const CPieChartCtrl* pOwner);
    static void PressInfoTip(HWND hTip, const CPieChartCtrl* pOwner);
    static LRESULT CALLBACK InfoTipProc(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam);

    COLORREF m_clrBack = RGB(0, 0, 0);
    COLORREF m_clrBorder = RGB(182, 0, 0);
    COLORREF m_clrSeparateLine = RGB(255, 0, 0);
    PieLayout m_layout;
    double m_dInTotal = 0;
    double m_dOutTotal = 0;
    BOOL m_bNeedLayout = FALSE;  ///< Items were added since the totals last succeeded.
    bool m_bNewPicture = false;  ///< Items changed since the last paint.
    CArray<tagPieChartData, tagPieChartData&> m_arrData;
    CArray<tagPieData, tagPieData&> m_arrPie;
    int m_nSelectId = -1;
    HWND m_hInfoTip = nullptr;
    int m_nInfoTipWidth = 150;
    int m_nInfoTipHeight = 80;
    COLORREF m_clrInfoTipTitleBack = RGB(3, 56, 160);
    COLORREF m_clrInfoTipContextBack = RGB(255, 255, 255);
    COLORREF m_clrInfoTipFrame = RGB(255, 255, 255);
    COLORREF m_clrInfoTipTitleFont = RGB(255, 255, 255);
    COLORREF m_clrInfoTipContextFont = RGB(0, 0, 0);
    COLORREF m_clrCircleBorder = RGB(0, 255, 255);
    COLORREF m_clrCircleBack = RGB(182, 0, 0);
    COLORREF m_clrActivePieBack = RGB(192, 192, 0);
    COLORREF m_clrPieBorder = RGB(192, 192, 0);
    COLORREF m_clrSumTipTitle = RGB(192, 192, 0);
    COLORREF m_clrSumTipContext = RGB(182, 0, 0);
    char m_szInfoTipTitle[255] = "";
    char m_szInfoTipIn[255] = "";
    char m_szInfoTipOut[255] = "";
    char m_szSumTipTop[255];
    char m_szSumTipBottom[255];
};
