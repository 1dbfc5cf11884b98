#pragma once

#include <tavlon/export.h>
#include <tavlon/framework.h>
#include <tavlon/owned.h>
#include <tavlon/records.h>

class TavlonOL;

/// Intraday flow chart: one stock's trading day, 09:30 to 11:30 and 13:00 to 15:00, in 240 minute slots:
/// price, mean of the prices so far, marks at minutes of main-force net buying, volume bars.
///
/// Units: prices in the stock's currency; fMainNetBuy is of one minute, in units of 10 000; fVolume in
/// shares. A bar shows what the volume figure grew by over the slot before, none when it fell; slot 0 has
/// none. A full bar is the largest figure so far; the scale shows it in lots of a hundred.
///
/// Slots: times up to 09:31 are slot 0, 09:32 is slot 2, 11:30 to 13:00 slot 120, 13:01 slot 121, 14:59 and
/// later slot 239. No time is slot 1, and slot 239 is shown in the information strip only, not drawn.
///
/// Scale: symmetric about the previous close. The lines end at the minute stored last, also when it is an
/// earlier one.
///
/// User: the mouse chooses a minute, the left and right arrow keys step; a double click in the price pane
/// switches the cross hair. New minutes leave both alone.
class TAVLON_API CProxy_ChartOL {
public:
    ///@{
    /// A control without a window; copies share it. See proxies.h.
    CProxy_ChartOL();
    CProxy_ChartOL(const CProxy_ChartOL&) = default;
    CProxy_ChartOL& operator=(const CProxy_ChartOL&) = default;
    virtual ~CProxy_ChartOL();
    ///@}
    int Create(CWnd* pParent, CRect rect, UINT nID);  ///< See proxies.h.

    /// Stores the stock, clears the minutes, goes back to slot 0 and switches the cross hair off; TRUE. Does
    /// not repaint. Without both szCode and szName there is no title; a negative nDecimal shows no grid and
    /// no scales; an fPreClose that is no number counts as 0, which is not known: the scale then is about the
    /// middle of the prices.
    int Init(tagStockItem& item);
    /// Stores one minute in the slot of its time, over what the slot held. FALSE when dwKey or nTime is 0,
    /// fPrice is below 0.0001, fVolume is below 0 or one of them is not finite. Does not repaint.
    int SetData(tagmyMinuteData& data);
    int SetJueShaData(tagJueShaMinuteData& data);  ///< Ignored; TRUE.
    /// When minutes were stored since the last Play: every slot without a price, up to the one after the
    /// minute stored last, gets the price before it, the first ones the previous close. A price filled in
    /// stays until a minute is stored over it. Repaints in every case; TRUE.
    int Play();
    int Stop();  ///< TRUE; nothing else.

private:
    Owned<TavlonOL> m_pControl;
};
