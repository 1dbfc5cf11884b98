// Lines, marks and bars of the intraday flow chart.
#include <algorithm>

#include "foundation/saturate.h"
#include "foundation/select_scope.h"
#include "foundation/toolkit.h"
#include "minute_paint.h"

namespace {
constexpr COLORREF k_clrPrice = RGB(192, 192, 192);
constexpr COLORREF k_clrMean = RGB(192, 192, 0);
constexpr COLORREF k_clrVolume = RGB(192, 192, 0);
constexpr COLORREF k_clrMarkMask = RGB(255, 255, 255);
const CSize k_szMarkAnchor(6, 4);  // the point's place in the mark
constexpr double k_dLeastVolume = 0.0001;

/// A line that grows minute by minute.
struct Trace {
    CPoint ptLast;

    void LineTo(CDC& dc, CPen& pen, CPoint pt) {
        const SelectScope scope(dc, pen);
        dc.MoveTo(ptLast);
        dc.LineTo(pt);
        ptLast = pt;
    }
};

/// A minute about to be drawn.
struct Stroke {
    int x;
    double dPrice;
    double dMean;    ///< Of the slots' prices up to this one.
    double dVolume;  ///< Traded since the slot before; negative when the figure fell.
};

class LinePainter {
public:
    LinePainter(CDC& dc, const MinuteLayout& layout, const MinuteRange& range)
        : m_dc(dc), m_rcVolume(layout.rcVolume), m_range(range), m_scale(layout.rcPrice, range) {
        const CPoint ptStart(layout.rcPrice.left, layout.rcPrice.top + layout.rcPrice.Height() / 2);
        m_price.ptLast = m_mean.ptLast = ptStart;
    }

    /// False: no pens to draw with.
    bool CreatePens() {
        return m_penPrice.CreatePen(PS_SOLID, 1, k_clrPrice) && m_penMean.CreatePen(PS_SOLID, 1, k_clrMean) &&
               m_penVolume.CreatePen(PS_SOLID, 1, k_clrVolume);
    }

    /// At the point before: the money that came in moved the price from there.
    void DrawMark(HBITMAP hMark) {
        const CPoint pt = m_price.ptLast - k_szMarkAnchor;
        DrawTransparentBitmap(m_dc, pt.x, pt.y, hMark, k_clrMarkMask);
    }

    void Draw(const Stroke& stroke) {
        if (m_scale.Holds(stroke.dPrice)) {
            m_price.LineTo(m_dc, m_penPrice, CPoint(stroke.x, m_scale.Y(stroke.dPrice)));
            if (m_scale.Holds(stroke.dMean))
                m_mean.LineTo(m_dc, m_penMean, CPoint(stroke.x, m_scale.Y(stroke.dMean)));
            DrawBar(stroke);
        }
        m_price.ptLast.x = m_mean.ptLast.x = stroke.x;
    }

private:
    void DrawBar(const Stroke& stroke) {
        const double dMax = m_range.dVolumeMax;
        if (!(dMax > k_dLeastVolume && stroke.dVolume >= 0 && stroke.dVolume <= dMax)) return;
        const int y = SaturateToInt(m_rcVolume.bottom - m_rcVolume.Height() * stroke.dVolume / dMax);
        const SelectScope scope(m_dc, m_penVolume);
        m_dc.MoveTo(stroke.x, m_rcVolume.bottom - 1);
        m_dc.LineTo(stroke.x, y);
    }

    CDC& m_dc;
    const CRect& m_rcVolume;
    const MinuteRange& m_range;
    const PriceScale m_scale;
    CPen m_penPrice, m_penMean, m_penVolume;
    Trace m_price, m_mean;
};

bool IsUnused(const tagmyMinuteData& minute) { return minute.fPrice <= 0 && minute.nTime == 0; }
}  // namespace

void DrawMinuteLines(CDC& dc, const MinuteLayout& layout, const MinuteRange& range, MinuteArray& arrMinute,
                     int nLastIndex, HBITMAP hMark) {
    LinePainter painter(dc, layout, range);
    if (!painter.CreatePens()) return;
    const int nEnd = std::min(nLastIndex + 1, k_nMinuteSlots - 1);
    double dMean = range.dReference;
    for (int i = 0; i < nEnd; ++i) {
        const tagmyMinuteData& minute = arrMinute[i];
        if (IsUnused(minute)) continue;
        if (minute.fMainNetBuy != 0) painter.DrawMark(hMark);
        dMean = (i * dMean + minute.fPrice) / (i + 1);
        const double dVolume = i > 0 ? double{minute.fVolume} - arrMinute[i - 1].fVolume : 0;
        painter.Draw({SlotX(layout.rcPrice, i), minute.fPrice, dMean, dVolume});
    }
}
