#pragma once

#include <tavlon/framework.h>
#include <tavlon/records.h>

#include "../foundation/edge_border.h"

/// Price radar: keeps the items of eight columns, the selection, colours and sizes. The exported contract is
/// CProxy_PriceRadarCtrl. Paints its background only so far.
class CPriceRadarCtrl : public CWnd {
public:
    static constexpr int k_nColumns = 8;

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
    COLORREF m_clrBack = RGB(0, 0, 0);
    COLORREF m_clrTitleFont = RGB(182, 0, 0);
    COLORREF m_clrTitleBack = RGB(192, 192, 0);
    EdgeBorder m_border;
    CArray<tagPriceRadarItemData, tagPriceRadarItemData&> m_arrItems[k_nColumns];
    int m_nSelectId = -1;
    char m_szTitle[255] = "";
    int m_nTitleFontSize = 12;
    int m_nTitleHeight = 30;
    int m_nLabelHeight = 30;
};
