#pragma once

#include <tavlon/export.h>
#include <tavlon/framework.h>
#include <tavlon/owned.h>
#include <tavlon/records.h>

class TavlonOL;

/// Intraday flow chart: one stock's trading day in 240 minute slots.
class TAVLON_API CProxy_ChartOL {
public:
    CProxy_ChartOL();
    CProxy_ChartOL(const CProxy_ChartOL&) = default;
    CProxy_ChartOL& operator=(const CProxy_ChartOL&) = default;
    virtual ~CProxy_ChartOL();
    int Create(CWnd* pParent, CRect rect, UINT nID);  ///< See proxies.h.

    int Init(tagStockItem& item);  ///< Stores the stock and clears the minutes; TRUE. Does not repaint.
    /// Stores one minute in the slot of its time, over what the slot held. FALSE when dwKey or nTime is 0,
    /// fPrice is below 0.0001 or fVolume below 0 (NaN included). Does not repaint.
    int SetData(tagmyMinuteData& data);
    int SetJueShaData(tagJueShaMinuteData& data);  ///< Ignored; TRUE.
    int Play();  ///< Fills the gaps between the minutes given since the last Play; repaints; TRUE.
    int Stop();  ///< TRUE; nothing else.

private:
    Owned<TavlonOL> m_pControl;
};
