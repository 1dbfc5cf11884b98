#pragma once

#include <tavlon/framework.h>
#include <tavlon/records.h>

#include "foundation/edge_border.h"
#include "price_radar_layout.h"
#include "wu_canvas.h"

/// Price radar: eight dated columns of two pies each. The exported contract is CProxy_PriceRadarCtrl.
class CPriceRadarCtrl : public CWnd {
public:
    /// One slice as last painted.
    struct tagPieData {
        double dStartAngle;  ///< Radians clockwise from twelve.
        double dEndAngle;
        int nLeft;  ///< Top left corner of the square around the pie.
        int nTop;
        int nRadius;
        tagPriceRadarItemData data;

        double Sweep() const { return dEndAngle - dStartAngle; }
        PieCircle Circle() const { return {CPoint(nLeft, nTop), nRadius}; }
    };

    int Create(CWnd* pParent, CRect rect, UINT nID);
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

    void Init();
    int SetData(tagPriceRadarItemData data);
    void Play();
    void SetTitleText(char* text);
    void SetTitleFontColor(COLORREF clr);
    void SetBackColor(COLORREF clr);
    void SetTitleBackColor(COLORREF clr);
    void SetLeftBorderColor(COLORREF clr);
    void SetRightBorderColor(COLORREF clr);
    void SetTopBorderColor(COLORREF clr);
    void SetBottomBorderColor(COLORREF clr);
    void SetTitleFontSize(int nHeight);
    void SetTitleHeight(int nHeight);
    void SetLabelHeight(int nHeight);
    void SetSelectId(int id);

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    using ItemArray = CArray<tagPriceRadarItemData, tagPriceRadarItemData&>;
    using SliceArray = CArray<tagPieData, tagPieData&>;

    void BuildPriceRadarSlices();

    // Paint.
    void DrawRadar(CDC& dc, const CRect& rcClient);
    void DrawTitle(CDC& dc, const CRect& rcClient);
    void DrawPriceRadarColumn(CDC& dc, int nColumn);
    void DrawDiscs(CDC& dc, const tagPriceRadarColumn& column);
    void DrawSlices(CDC& dc, int nColumn);
    void DrawSelectedSlice(CDC& dc, const tagPieData& slice);
    void DrawRings(CDC& dc, const tagPriceRadarColumn& column);
    void DrawLabel(CDC& dc, const CRect& rc, const char* pszText);
    void DrawPriceRadarGrid(CDC& dc, const CRect& rcClient);

    COLORREF m_clrBack = RGB(0, 0, 0);
    COLORREF m_clrTitleFont = RGB(182, 0, 0);
    COLORREF m_clrTitleBack = RGB(192, 192, 0);
    EdgeBorder m_border;
    COLORREF m_clrPieLine = RGB(200, 200, 200);
    COLORREF m_clrPieBack = RGB(182, 0, 0);
    COLORREF m_clrActivePie = RGB(192, 192, 0);
    COLORREF m_clrGrid = RGB(182, 0, 0);
    int m_nLabelFontSize = 12;
    COLORREF m_clrLabelFont = RGB(192, 192, 0);
    BOOL m_bLabelFontBold = FALSE;
    ItemArray m_arrItems[k_nPriceColumns];
    PriceRadarColumns m_column;
    int m_nSelectId = -1;
    char m_szTitle[255] = "";
    int m_nTitleFontSize = 12;
    int m_nTitleHeight = 30;
    int m_nLabelHeight = 30;
    int m_nRadius = 0;  ///< What the two pies of each column share.
    SliceArray m_arrPie[k_nPriceColumns];
    bool m_bNewPicture = false;  ///< Items were added since the last paint.
};
