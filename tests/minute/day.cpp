#include "minute/day.h"

#include <foundation/text_copy.h>
#include <foundation/toolkit.h>
#include <minute/minute_slots.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "foundation/canvas.h"

namespace {
constexpr COLORREF k_clrGrid = RGB(128, 0, 0), k_clrGrey = RGB(192, 192, 192), k_clrOlive = RGB(192, 192, 0),
                   k_clrRise = RGB(255, 50, 50), k_clrFall = RGB(0, 230, 0);

/// The chart's picture, stroke by stroke.
class Drawing {
public:
    Drawing(const MinuteDay& day, CSize size) : m_day(day), m_size(size), m_canvas(size.cx, size.cy, 0) {
        m_mark.Attach(::LoadImage(AfxFindResourceHandle(MAKEINTRESOURCE(3006), RT_BITMAP),
                                  MAKEINTRESOURCE(3006), IMAGE_BITMAP, 0, 0, LR_LOADMAP3DCOLORS));
    }

    Shot Draw() {
        CFont* const pOldFont = SelectKaiTiFont(&m_dc, 12);
        Axis();
        Title();
        Range();
        if (!Price.IsRectEmpty() && !Volume.IsRectEmpty() && m_day.stock.nDecimal >= 0) Frame();
        m_dc.SetBkColor(RGB(0, 0, 0));
        if (m_day.nLast >= 1)
            for (int i = 0; i <= std::min(m_day.nLast, 238); ++i) Slot(i);
        if (m_day.bCross) Cross();
        Strip();
        m_dc.SelectObject(pOldFont);
        return ShotOf(m_dc, m_size.cx, m_size.cy);
    }

private:
    void Write(int x, int y, COLORREF clr, const std::string& text, UINT nAlign = TA_LEFT) {
        m_dc.SetBkColor(RGB(0, 0, 0));
        m_dc.SetTextColor(clr);
        m_dc.SetTextAlign(nAlign);
        m_dc.TextOut(x, y, text.c_str(), static_cast<int>(text.size()));
    }
    void Axis() {
        for (int i = 0; i < 4; ++i) {
            const char* const texts[] = {"09:30", "10:30", "13:00", "14:00"};
            Write(Volume.left + 2 * i * (Volume.Width() / 8), Volume.bottom, k_clrRise, texts[i], TA_CENTER);
        }
        Write(Volume.right, Volume.bottom, k_clrRise, "15:00", TA_CENTER);
    }
    void Title() {
        const std::string code(FieldText(m_day.stock.szCode)), name(FieldText(m_day.stock.szName));
        if (code.empty() || name.empty()) return;
        Write(72, 10, RGB(255, 255, 0), code, TA_CENTER);
        Write(122, 10, RGB(2, 226, 244), name, TA_CENTER);
    }
    void Range() {
        m_dLow = m_dHigh = m_dRef;
        for (int i = 0; i <= m_day.nLast; ++i) {
            const double dPrice = m_day.slots[i].fPrice;
            if (m_dLow < 0.0001) m_dLow = dPrice;
            m_dHigh = std::max(m_dHigh, dPrice);
            m_dLow = std::min(m_dLow, dPrice);
            m_dMost = std::max<double>(m_dMost, m_day.slots[i].fVolume);
        }
        if (m_dRef < 0.0001) m_dRef = 0;
    }
    void Frame() {
        const double dRef = m_dRef < 0.0001 ? (m_dLow + m_dHigh) / 2 : m_dRef;
        const int nRows = Price.Height() / 2 / 24 * 2, nVolumeRows = Volume.Height() / 2 / 24 * 2;
        const double dTick = std::pow(10.0, -m_day.stock.nDecimal);
        double dHalf = std::max(std::abs(m_dHigh - dRef), std::abs(m_dLow - dRef));
        for (const int nTicks : {3, 2, 1})
            if (dHalf < nTicks * nRows * dTick && dHalf >= (nTicks - 1) * nRows * dTick)
                dHalf = nTicks * nRows * dTick;
        m_dLow = dRef - dHalf, m_dHigh = dRef + dHalf;
        Grid(nRows, nVolumeRows);
        for (int k = 1; k <= nRows; ++k) {
            double dValue = m_dLow + (m_dHigh - m_dLow) * k / nRows;
            if (dValue < 0 && dValue > -0.51 * dTick) dValue = 0;
            PriceLabel(dValue, dRef, Price.top - 7 + Price.Height() * (nRows - k) / nRows);
        }
        m_dc.SetTextAlign(TA_LEFT);
        DrawValueScale(&m_dc, k_clrOlive, nVolumeRows, Volume.right + 2, Volume.top, 0, Volume.bottom, 0,
                       m_dMost / 100, FALSE, TRUE, 0);
    }
    void Grid(int nRows, int nVolumeRows) {
        const auto across = [&](const CRect& rc, int nWidth, int nPart, int nParts) {
            const int y = rc.top + rc.Height() * nPart / nParts;
            DrawSolidLine(&m_dc, nWidth, k_clrGrid, rc.left, y, rc.right, y);
        };
        CRect rcFrame = Volume;
        ++rcFrame.right;
        DrawNoFillRect(&m_dc, rcFrame, 1, k_clrGrid);
        for (int k = 0; k < nRows; ++k) across(Price, 1, k, nRows);
        across(Price, 2, 1, 2);
        for (int k = 0; k < nVolumeRows; ++k) across(rcFrame, 1, k, nVolumeRows);
        for (int k = 0; k <= 8; ++k) {
            const int x = Price.left + Price.Width() * k / 8;
            (k % 2 == 0 ? DrawSolidLine : DrawDashLine)(&m_dc, 1, k_clrGrid, x, Price.top, x, Volume.bottom);
        }
    }
    void PriceLabel(double dValue, double dRef, int y) {
        const double dOff = dValue - dRef;
        const COLORREF clr = dOff > 0.0001 ? k_clrRise : dOff < -0.0001 ? k_clrFall : k_clrGrey;
        const std::string text = FormatFixed(dValue, m_day.stock.nDecimal);
        Write(Price.left - m_dc.GetTextExtent(text.c_str()).cx - 1, y, clr, text);
        const double dPercent = dRef > 0.0001 ? std::abs(dOff) * 100 / dRef : 0;
        Write(Price.right + 3, y, clr, FormatFixed(dPercent > 10.5 ? 10.0 : dPercent, 2) + "%");
    }

    bool IsDrawable(double dPrice) const {
        return m_dLow <= dPrice && dPrice <= m_dHigh && m_dHigh - m_dLow > 0.0001;
    }
    /// A line's next piece; the line only moves on where there is nothing to draw.
    void LineTo(CPoint& pt, int x, COLORREF clr, double dPrice, bool bDraws) {
        const CPoint ptFrom = pt;
        pt.x = x;
        if (!bDraws) return;
        pt.y = static_cast<int>(Price.top + Price.Height() * (m_dHigh - dPrice) / (m_dHigh - m_dLow));
        if (pt.y <= Price.top) pt.y = Price.top + 1;
        if (pt.y >= Price.bottom) pt.y = Price.bottom - 1;
        DrawSolidLine(&m_dc, 1, clr, ptFrom.x, ptFrom.y, pt.x, pt.y);
    }
    void Slot(int i) {
        const tagmyMinuteData& data = m_day.slots[i];
        const int x = Price.left + Price.Width() * i / 239;
        if (data.fMainNetBuy != 0)
            DrawTransparentBitmap(m_dc, m_ptPrice.x - 6, m_ptPrice.y - 4, m_mark, RGB(255, 255, 255));
        const bool bDrawable = IsDrawable(data.fPrice);
        LineTo(m_ptPrice, x, k_clrGrey, data.fPrice, bDrawable);
        m_dMean = (i * m_dMean + data.fPrice) / (i + 1);
        LineTo(m_ptMean, x, k_clrOlive, m_dMean, bDrawable && IsDrawable(m_dMean));
        const double dVolume = i > 0 ? double{data.fVolume} - m_day.slots[i - 1].fVolume : 0;
        if (dVolume >= 0 && dVolume <= m_dMost && m_dMost > 0.0001 && bDrawable)
            DrawSolidLine(&m_dc, 1, k_clrOlive, x, Volume.bottom - 1, x,
                          static_cast<int>(Volume.bottom - Volume.Height() * dVolume / m_dMost));
    }
    void Cross() {
        const int nOld = m_dc.SetROP2(R2_XORPEN);
        const CPoint pt = m_day.ptMouse;
        DrawSolidLine(&m_dc, 1, RGB(255, 255, 255), pt.x, Price.top, pt.x, m_size.cy - 19);
        DrawSolidLine(&m_dc, 1, RGB(255, 255, 255), Price.left, pt.y, Price.right, pt.y);
        m_dc.SetROP2(nOld);
    }
    void Strip() {
        const tagmyMinuteData& data = m_day.slots.at(m_day.nCursor);
        const auto big = [](double dValue) {
            char szText[64] = "";
            FormatBigNumber(szText, 8, dValue);
            return std::string(szText);
        };
        const int nDecimal = m_day.stock.nDecimal < 0 ? 2 : m_day.stock.nDecimal;
        Write(157, 10, k_clrGrey, "时间=" + std::to_string(data.nTime / 100));
        Write(222, 10, k_clrGrey, "价格=" + FormatFixed(data.fPrice, nDecimal));
        const std::string bought = big(data.fMainNetBuy * 10000.0), volume = big(data.fVolume);
        if (!bought.empty()) Write(292, 10, k_clrRise, "主力净买=" + bought);
        Write(bought.empty() ? 292 : 392, 10, k_clrGrey, "成交量=" + (volume.empty() ? "0" : volume));
    }

    const MinuteDay& m_day;
    const CSize m_size;
    Canvas m_canvas;
    CDC& m_dc = m_canvas.dc;
    CBitmap m_mark;
    const CRect Price{50, 25, m_size.cx - 50, (m_size.cy - 25 - 19) * 8 / 10};
    const CRect Volume{Price.left, Price.bottom + 2, Price.right, m_size.cy - 19};
    double m_dRef = m_day.stock.fPreClose, m_dLow = 0, m_dHigh = 0, m_dMost = m_day.slots[0].fVolume;
    double m_dMean = 0;
    CPoint m_ptPrice{Price.left, Price.top + Price.Height() / 2}, m_ptMean = m_ptPrice;
};
}  // namespace

MinuteDay::MinuteDay(float fPreClose, int nDecimal) {
    CopyText(stock.szCode, "600000");
    CopyText(stock.szName, "浦发银行");
    stock.fPreClose = fPreClose, stock.nDecimal = nDecimal;
    MinuteArray empty;
    ResetSlots(empty);
    for (int i = 0; i < 240; ++i) slots[i] = empty[i];
}

MinuteDay& MinuteDay::Put(unsigned nTime, float fPrice, float fVolume, float fMainNetBuy) {
    fed.push_back({1, nTime, 0, 0, 0, fPrice, fVolume, 0, fMainNetBuy});
    nLast = TimeToSlot(nTime);
    slots.at(nLast) = fed.back();
    return *this;
}

void MinuteDay::Play() {
    float fBefore = stock.fPreClose;
    for (int i = 0; i <= std::min(nLast + 1, 239) && !fed.empty(); ++i) {
        if (slots[i].fPrice <= 0) slots[i].fPrice = fBefore;
        fBefore = slots[i].fPrice;
    }
}

Shot MinuteDay::Picture(CSize size) const { return Drawing(*this, size).Draw(); }

MinuteDay WholeDay(float fPreClose, int nDecimal, float fSwing) {
    MinuteDay day(fPreClose, nDecimal);
    float fVolume = 0;
    for (int i = 0; i < 240; ++i) {
        if (i == 1) continue;  // no time goes into slot 1
        const int nMinutes = i <= 120 ? 9 * 60 + 30 + i : 13 * 60 + i - 120;
        fVolume += i % 17 == 5 ? -300.0f : 1000.0f + 37.0f * static_cast<float>(i * i % 91);
        const double dWave = std::sin(i / 19.0) + 0.3 * std::sin(i * 1.7);
        day.Put(static_cast<unsigned>(nMinutes / 60 * 10000 + nMinutes % 60 * 100),
                fPreClose + fSwing * static_cast<float>(dWave), fVolume,
                static_cast<float>(i % 3 == 0 ? 0 : i % 40 - 20));
    }
    return day;
}
