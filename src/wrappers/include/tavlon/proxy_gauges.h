#pragma once

#include <tavlon/export.h>
#include <tavlon/framework.h>
#include <tavlon/owned.h>
#include <tavlon/records.h>

class CPositionBar;
class CPrssureSupportCtrl;
class TavlonRiskBar;
class myHistogramCtrl;

/// Market risk gauge: two arrows on a scale of five steps, green for little risk on the left to red on the
/// right, and a paragraph that explains them. Setters store; call ReDraw after a batch. At first there are no
/// arrows, the title "大盘风险分析" and an explanation of the two arrows.
class TAVLON_API CProxy_RiskBarCtrl {
public:
    ///@{
    /// A control without a window; copies share it. See proxies.h.
    CProxy_RiskBarCtrl();
    CProxy_RiskBarCtrl(const CProxy_RiskBarCtrl&) = default;
    CProxy_RiskBarCtrl& operator=(const CProxy_RiskBarCtrl&) = default;
    virtual ~CProxy_RiskBarCtrl();
    ///@}
    int Create(CWnd* pParent, CRect rect, UINT nID);  ///< See proxies.h.

    int Play();     ///< TRUE; nothing else.
    int Stop();     ///< TRUE; nothing else.
    void ReDraw();  ///< Repaints.
    /// Stores a step, 0 to 100, of arrow 1 (medium and long term, from above) or 2 (short term, from below);
    /// else ignored. Steps 1 to 5 are drawn; any other takes the arrow away.
    void SetData(int nValue, int nWhich);
    void SetTitle(CString& title);   ///< Stores; 63 bytes of it are shown, no half character.
    void SetExplain(CString& text);  ///< Stores the paragraph under the scale.
    /// Stores the background, and the colour of the explanation and of the scale's words.
    void SetColor(COLORREF clrBack, COLORREF clrText);
    void SetTitleTextColor(COLORREF clr);         ///< Stores.
    void SetLineColor(COLORREF clr, int nWhich);  ///< Stores the colour of arrow 1 or 2; else ignored.
    /// Stores the colour of side 0 (top), 1 (bottom), 2 (left) or 3 (right); else ignored.
    void SetBorderColor(COLORREF clr, int nSide);

private:
    Owned<TavlonRiskBar> m_pControl;
};

/// Position bar: how much of their capital three investor camps hold, as cylinders filled to their
/// percentages. Setters store; call ReDraw after a batch. At first no camp has a figure, and the title is
/// "持仓分析".
class TAVLON_API CProxy_PositionBarCtrl {
public:
    ///@{
    /// A control without a window; copies share it. See proxies.h.
    CProxy_PositionBarCtrl();
    CProxy_PositionBarCtrl(const CProxy_PositionBarCtrl&) = default;
    CProxy_PositionBarCtrl& operator=(const CProxy_PositionBarCtrl&) = default;
    virtual ~CProxy_PositionBarCtrl();
    ///@}
    int Create(CWnd* pParent, CRect rect, UINT nID);  ///< See proxies.h.

    int Play();     ///< TRUE; nothing else.
    int Stop();     ///< TRUE; nothing else.
    void ReDraw();  ///< Repaints.
    /// Stores a percentage, 0 to 100, of camp 1 (aggressive), 2 (steady) or 3 (conservative); else ignored.
    /// Nothing takes a figure away again.
    void SetData(int nValue, int nWhich);
    void SetTitle(CString& title);  ///< Stores; 63 bytes of it are shown, no half character.
    /// Stores the background, and the colour of all texts but the title.
    void SetColor(COLORREF clrBack, COLORREF clrText);
    void SetTitleTextColor(COLORREF clr);  ///< Stores.
    /// Stores the colour of camp 1 to 3, which fades to light grey downwards; else ignored.
    void SetCylinderColor(COLORREF clr, int nWhich);
    void SetCoordinateColor(COLORREF clr);  ///< Stores the colour of axes and cylinder outlines.
    /// Stores the colour of side 0 (top), 1 (bottom), 2 (left) or 3 (right); else ignored.
    void SetBorderColor(COLORREF clr, int nSide);

private:
    Owned<CPositionBar> m_pControl;
};

/// Pressure and support ladder: five price levels of one stock, 1 medium-term pressure, 2 short-term
/// pressure, 3 current price, 4 short-term support, 5 medium-term support. Bars are as long as their prices,
/// counted from 0, the largest price having the longest; while any price is 0, as all are at first, there are
/// no bars, only figures. Setters store; call ReDraw after a batch.
class TAVLON_API CProxy_PrssureSupportCtrl {
public:
    ///@{
    /// A control without a window; copies share it. See proxies.h.
    CProxy_PrssureSupportCtrl();
    CProxy_PrssureSupportCtrl(const CProxy_PrssureSupportCtrl&) = default;
    CProxy_PrssureSupportCtrl& operator=(const CProxy_PrssureSupportCtrl&) = default;
    virtual ~CProxy_PrssureSupportCtrl();
    ///@}
    int Create(CWnd* pParent, CRect rect, UINT nID);  ///< See proxies.h.

    int Play();     ///< TRUE; nothing else.
    int Stop();     ///< TRUE; nothing else.
    void ReDraw();  ///< Repaints.
    /// Stores a price, 0 to 1000 yuan, of level 1 to 5; else ignored: a dearer stock keeps its old figure.
    void SetPriceData(float fPrice, int nLevel);
    /// Stores the background, and the colour of the figures and of the blocks' words.
    void SetColor(COLORREF clrBack, COLORREF clrText);
    void SetPrSuColor(COLORREF clr, int nLevel);  ///< Stores the bar colour of level 1 to 5; else ignored.
    /// Stores the name colour of level 1 to 5; else ignored.
    void SetPrSuTextColor(COLORREF clr, int nLevel);
    /// Stores the fill of block 1 (strong), 2 (medium) or 3 (weak); else ignored.
    void SetBigMidSmallColor(COLORREF clr, int nWhich);
    /// Stores the colour of side 0 (top), 1 (bottom), 2 (left) or 3 (right); else ignored.
    void SetBorderColor(COLORREF clr, int nSide);
    void SerSeparLineColor(COLORREF clr);  ///< Stores the colour of the separator lines.

private:
    Owned<CPrssureSupportCtrl> m_pControl;
};

/// Histogram of up to 20 bars, which stand in the order of dXValue and are as high as their dYValue. Under
/// every second one, from the first, stands its dXValue. In less than 81 pixels of width or height only
/// background, frame and grid are drawn. After Init the scale keeps its last maximum until there are bars
/// again.
class TAVLON_API CProxy_HistogramCtrl {
public:
    ///@{
    /// A control without a window; copies share it. See proxies.h.
    CProxy_HistogramCtrl();
    CProxy_HistogramCtrl(const CProxy_HistogramCtrl&) = default;
    CProxy_HistogramCtrl& operator=(const CProxy_HistogramCtrl&) = default;
    virtual ~CProxy_HistogramCtrl();
    ///@}
    int Create(CWnd* pParent, CRect rect, UINT nID);  ///< See proxies.h.

    int Init();  ///< Removes all bars and the highlight; TRUE. Does not repaint.
    /// Appends one bar. FALSE: 20 are held, or a value is not above 0 or not finite. Does not repaint.
    int SetData(tagHistogramData& data);
    int Play();  ///< Sorts the bars by dXValue, ascending; repaints; TRUE. So does the next paint without it.
    /// Highlights the last bar with that id, by its present position, which sorting does not follow: call
    /// Play first. FALSE when there is none, the earlier highlight stays. Repaints either way.
    int SetIndex(int nId);
    void SetCoordinateShaftColor(COLORREF clr);       ///< Axis lines; repaints.
    void SetGirdColor(COLORREF clr);                  ///< Grid lines; repaints.
    void SetBackColor(COLORREF clr);                  ///< Background; repaints.
    void SetCoordinateShaftFontColor(COLORREF clr);   ///< Scale numbers and bar labels; repaints.
    void SetCoordinateShaftTitleColor(COLORREF clr);  ///< Axis titles; repaints.
    void SetBorderColor(COLORREF clr);                ///< Stored, drawn by nothing; repaints.
    void DisplayGird(bool bShow);                     ///< Shows or hides the grid; repaints.
    void SetYTitle(char* text);                       ///< Keeps at most 99 bytes; repaints.
    void SetXTitle(char* text);                       ///< Keeps at most 99 bytes; repaints.

private:
    Owned<myHistogramCtrl> m_pControl;
};
