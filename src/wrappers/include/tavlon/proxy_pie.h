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
/// under the pointer. It closes as well when another application comes to the foreground, with such a click
/// at the pointer, too. The host is not told what was selected.
///
/// Shape: while one group has no total, both pies are discs without slices, totals or texts.
class TAVLON_API CProxy_PieChartCtrl {
public:
    ///@{
    /// A control without a window; copies share it. See proxies.h.
    CProxy_PieChartCtrl();
    CProxy_PieChartCtrl(const CProxy_PieChartCtrl&) = default;
    CProxy_PieChartCtrl& operator=(const CProxy_PieChartCtrl&) = default;
    virtual ~CProxy_PieChartCtrl();
    ///@}
    int Create(CWnd* pParent, CRect rect, UINT nID);  ///< See proxies.h.

    /// Clears items and totals, closes a shown tip, keeps the selection; TRUE. Does not repaint.
    int Init();
    /// Appends one item. FALSE: 60 are held, the amount is negative or not finite, or the name is empty. Does
    /// not repaint.
    int SetData(tagPieChartData data);
    /// Computes the totals when items were added since it last succeeded. FALSE when there was nothing to
    /// compute, with fewer than two items, or when one group adds up to 0, whose total then is 0. Repaints in
    /// every case.
    int Play();
    /// Selects the slices of that id, shows their tip (an empty one when there are none) and repaints; TRUE.
    /// FALSE when no slices have been painted since construction or Init. Raises CResourceException when the
    /// tip of another control is open, at most one being open in a process: the slices are selected then.
    int SelectPieById(int id);
    void SetBorderColor(COLORREF clr);            ///< Stored, drawn by nothing; repaints.
    void SetCircleBorderColor(COLORREF clr);      ///< Stored, drawn by nothing; repaints.
    void SetCircleBackgroundColor(COLORREF clr);  ///< Fill of both discs; repaints.
    void SetBackColor(COLORREF clr);              ///< Background; repaints.
    void SetPieBorderColor(COLORREF clr);         ///< Lines between slices; repaints.
    void SetSumTipTitleColor(COLORREF clr);       ///< Labels of the two totals; repaints.
    void SetSumTipContxtColor(COLORREF clr);      ///< The two totals; repaints.
    void SetActivePieBackColor(COLORREF clr);     ///< Fill of the selected slices; repaints.
    void SetSeparateLineColor(COLORREF clr);      ///< Line between the two halves; repaints.
    void SetInfoTipWidth(int nWidth);    ///< Stores, default 150; the tip takes it when it is next shown.
    void SetInfoTipHeight(int nHeight);  ///< Stores, default 80; the tip takes it when it is next shown.
    void SetInfoTipTitleBackColor(COLORREF clr);    ///< Stores; tip's title row.
    void SetInfoTipTitleFontColor(COLORREF clr);    ///< Stores; tip's title.
    void SetInfoTipContextBackColor(COLORREF clr);  ///< Stores; tip's value rows.
    void SetInfoTipContextFontColor(COLORREF clr);  ///< Stores; tip's values.
    /// Label of the inflow total, default "主力流入", at most 254 bytes; repaints.
    void SetSumTipTitleTopText(char* text);
    /// Label of the outflow total, default "主力流出", at most 254 bytes; repaints.
    void SetSumTipTitleBottomText(char* text);

private:
    Owned<CPieChartCtrl> m_pControl;
};

/// Price radar: up to eight dated columns of paired pies, items of type 0 above, all others below. Column 0
/// is the rightmost. Above a column stands the date of its last item of type 0 (none: no date), below it what
/// the upper total is over the lower. The two radii of a column are in proportion to its totals; columns do
/// not compare. It takes no mouse and no keys. Half the height has to exceed the label height and the height
/// that of the title strip, or only background and title are drawn.
class TAVLON_API CProxy_PriceRadarCtrl {
public:
    ///@{
    /// A control without a window; copies share it. See proxies.h.
    CProxy_PriceRadarCtrl();
    CProxy_PriceRadarCtrl(const CProxy_PriceRadarCtrl&) = default;
    CProxy_PriceRadarCtrl& operator=(const CProxy_PriceRadarCtrl&) = default;
    virtual ~CProxy_PriceRadarCtrl();
    ///@}
    int Create(CWnd* pParent, CRect rect, UINT nID);  ///< See proxies.h.

    void Init();  ///< Clears items and selection; repaints.
    /// Appends one item to its column, which takes any number of them. FALSE: amount not above 0 or not
    /// finite, or column outside 0 to 7. Does not repaint.
    int SetData(tagPriceRadarItemData data);
    void Play();                              ///< Repaints.
    void SetTitleText(char* text);            ///< Keeps at most 254 bytes; repaints.
    void SetTitleFontColor(COLORREF clr);     ///< Title text; repaints.
    void SetBackColor(COLORREF clr);          ///< Background; repaints.
    void SetTitleBackColor(COLORREF clr);     ///< Fill of the title strip; repaints.
    void SetLeftBorderColor(COLORREF clr);    ///< Left border line; repaints.
    void SetRightBorderColor(COLORREF clr);   ///< Right border line; repaints.
    void SetTopBorderColor(COLORREF clr);     ///< Top border line; repaints.
    void SetBottomBorderColor(COLORREF clr);  ///< Bottom border line; repaints.
    void SetTitleFontSize(int nHeight);       ///< Title cell height, default 12; repaints.
    void SetTitleHeight(int nHeight);         ///< Height of the title strip, default 30; repaints.
    void SetLabelHeight(int nHeight);         ///< Height of the label strips, default 30; repaints.
    /// Selects the slices of that id in all columns, but those below 0.01 radians; repaints. A negative id is
    /// ignored: Init is what deselects.
    void SetSelectId(int id);

private:
    Owned<CPriceRadarCtrl> m_pControl;
};
