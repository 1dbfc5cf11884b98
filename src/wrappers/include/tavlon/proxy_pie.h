#pragma once

#include <tavlon/export.h>
#include <tavlon/framework.h>
#include <tavlon/owned.h>
#include <tavlon/records.h>

class CPieChartCtrl;
class CPriceRadarCtrl;

/// Money-flow pies: inflow above, outflow below, with an information tip for the selected item.
///
/// Units: amounts in the host's unit of money; from 10 000 on they are written in 万 and 亿. The two radii
/// are in proportion to the groups' totals and make up the largest radius that fits a half. Slices run
/// clockwise from twelve in the order of the calls.
///
/// User: a press on a slice selects its item in both pies and opens the tip at the upper right. The tip takes
/// the mouse: it is dragged by a press on it; a press elsewhere closes it and is made once more, for what is
/// under the pointer. It closes as well when another application comes to the foreground.
class TAVLON_API CProxy_PieChartCtrl {
public:
    CProxy_PieChartCtrl();
    CProxy_PieChartCtrl(const CProxy_PieChartCtrl&) = default;
    CProxy_PieChartCtrl& operator=(const CProxy_PieChartCtrl&) = default;
    virtual ~CProxy_PieChartCtrl();
    int Create(CWnd* pParent, CRect rect, UINT nID);  ///< See proxies.h.

    int Init();  ///< Clears items and totals, closes a shown tip, keeps the selection; TRUE. No repaint.
    /// Appends one item. FALSE: 60 are held, the amount is negative or not finite, or the name is empty. Does
    /// not repaint.
    int SetData(tagPieChartData data);
    /// Computes the totals of items added since the last success. FALSE when there was nothing to compute,
    /// with fewer than two items, or when one group adds up to 0. Repaints in every case.
    int Play();
    /// Selects an item's slices, shows its tip and repaints; FALSE when no slices have been painted yet.
    /// Raises the framework's resource exception when another pie's tip is open: at most one tip is open in a
    /// process.
    int SelectPieById(int id);
    void SetBorderColor(COLORREF clr);              ///< Stored, drawn by nothing; repaints.
    void SetCircleBorderColor(COLORREF clr);        ///< Stored, drawn by nothing; repaints.
    void SetCircleBackgroundColor(COLORREF clr);    ///< Fill of both discs; repaints.
    void SetBackColor(COLORREF clr);                ///< Background; repaints.
    void SetPieBorderColor(COLORREF clr);           ///< Lines between slices; repaints.
    void SetSumTipTitleColor(COLORREF clr);         ///< Labels of the two totals; repaints.
    void SetSumTipContxtColor(COLORREF clr);        ///< The two totals; repaints.
    void SetActivePieBackColor(COLORREF clr);       ///< Fill of the selected slices; repaints.
    void SetSeparateLineColor(COLORREF clr);        ///< Line between the two halves; repaints.
    void SetInfoTipWidth(int nWidth);               ///< Pixels; the tip takes it when it is next shown.
    void SetInfoTipHeight(int nHeight);             ///< Pixels; the tip takes it when it is next shown.
    void SetInfoTipTitleBackColor(COLORREF clr);    ///< Stores; tip's title row.
    void SetInfoTipTitleFontColor(COLORREF clr);    ///< Stores; tip's title.
    void SetInfoTipContextBackColor(COLORREF clr);  ///< Stores; tip's value rows.
    void SetInfoTipContextFontColor(COLORREF clr);  ///< Stores; tip's values.
    void SetSumTipTitleTopText(
        char* text);  ///< Keeps at most 254 bytes; label of the inflow total; repaints.
    void SetSumTipTitleBottomText(
        char* text);  ///< Keeps at most 254 bytes; label of the outflow total; repaints.

private:
    Owned<CPieChartCtrl> m_pControl;
};

/// Price radar: up to eight dated columns of paired pies, items of type 0 above, all others below. Column 0
/// is the rightmost. Above a column stands the date of its items of type 0, below it what the upper total is
/// over the lower. It takes no mouse and no keys.
class TAVLON_API CProxy_PriceRadarCtrl {
public:
    CProxy_PriceRadarCtrl();
    CProxy_PriceRadarCtrl(const CProxy_PriceRadarCtrl&) = default;
    CProxy_PriceRadarCtrl& operator=(const CProxy_PriceRadarCtrl&) = default;
    virtual ~CProxy_PriceRadarCtrl();
    int Create(CWnd* pParent, CRect rect, UINT nID);  ///< See proxies.h.

    void Init();  ///< Clears items and selection; repaints.
    /// Appends one item to its column. FALSE: amount not above 0 or not finite, or column outside 0 to 7.
    /// Does not repaint.
    int SetData(tagPriceRadarItemData data);
    void Play();                              ///< Repaints.
    void SetTitleText(char* text);            ///< Keeps at most 254 bytes; repaints.
    void SetTitleFontColor(COLORREF clr);     ///< Repaints.
    void SetBackColor(COLORREF clr);          ///< Repaints.
    void SetTitleBackColor(COLORREF clr);     ///< Repaints.
    void SetLeftBorderColor(COLORREF clr);    ///< Repaints.
    void SetRightBorderColor(COLORREF clr);   ///< Repaints.
    void SetTopBorderColor(COLORREF clr);     ///< Repaints.
    void SetBottomBorderColor(COLORREF clr);  ///< Repaints.
    void SetTitleFontSize(int nHeight);       ///< Title cell height in pixels; repaints.
    void SetTitleHeight(int nHeight);         ///< Height of the title strip in pixels; repaints.
    void SetLabelHeight(int nHeight);         ///< Height of the label strips in pixels; repaints.
    void SetSelectId(int id);                 ///< Selects an item; repaints. A negative id is ignored.

private:
    Owned<CPriceRadarCtrl> m_pControl;
};
