#include "minute/day.h"

#include <minute/minute_slots.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>

#include "foundation/canvas.h"
#include "foundation/toolkit.h"

namespace {
constexpr COLORREF k_clrGrid = RGB(128, 0, 0), k_clrGrey = RGB(192, 192, 192), k_clrOlive = RGB(192, 192, 0),
                   k_clrRise = RGB(255, 50, 50), k_clrFall = RGB(0, 230, 0);

std::string Printed(const char* pszFormat, auto... values) {
    char szText[64] = "";
    std::snprintf(szText, sizeof szText, pszFormat, values...);
    return szText;
}

template <std::size_t N>
std::string FieldText(const char (&field)[N]) {
    return std::string(field, std::find(field, field + N, '\0'));
}

/// The chart's picture, stroke by stroke.
class Drawing {
public:
    Drawing(const MinuteDay& day, int cx, int cy)
        : m_day(day), m_cx(cx), m_cy(cy), m_canvas(cx, cy, RGB(0, 0, 0)) {
        m_font.CreateFont(12, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                          CLIP_DEFAULT_PRECIS, PROOF_QUALITY, DEFAULT_PITCH, "楷体");
        m_pOldFont = m_dc.SelectObject(&m_font);
        m_dc.SetBkColor(RGB(0, 0, 0));
    }
    ~Drawing() { m_dc.SelectObject(m_pOldFont); }

    Shot Draw() {
        Axis();
        Title();
        Range();
        if (Price.Width() > 0 && Price.Height() > 0 && Volume.Height() > 0 && m_day.stock.nDecimal >= 0)
            Frame();
        if (m_day.nLast >= 1)
            for (int i = 0; i <= std::min(m_day.nLast, 238); ++i) Slot(i);
        if (m_day.bCross) Cross();
        Strip();
        return ShotOf(m_dc, m_cx, m_cy);
    }

private:
    void Write(int x, int y, COLORREF clr, const std::string& text, UINT nAlign = TA_LEFT) {
        m_dc.SetTextColor(clr);
        m_dc.SetTextAlign(nAlign);
        m_dc.TextOut(x, y, text.c_str(), static_cast<int>(text.size()));
    }
    void Line(COLORREF clr, int nWidth, CPoint from, CPoint to) {
        CPen pen(PS_SOLID, nWidth, clr);
        CPen* pOld = m_dc.SelectObject(&pen);
        m_dc.MoveTo(from);
        m_dc.LineTo(to);
        m_dc.SelectObject(pOld);
    }

    void Axis() {
        const int nStep = Volume.Width() / 8;
        const char* const texts[] = {"09:30", "10:30", "13:00", "14:00", "15:00"};
        for (int i = 0; i < 5; ++i)
            Write(i < 4 ? Volume.left + 2 * i * nStep : Volume.right, Volume.bottom, k_clrRise, texts[i],
                  TA_CENTER);
    }
    void Title() {
        const std::string code = FieldText(m_day.stock.szCode), name = FieldText(m_day.stock.szName);
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
        for (const int nTicks : {1, 2, 3})
            if (dHalf < nTicks * nRows * dTick) {
                dHalf = nTicks * nRows * dTick;
                break;
            }
        m_dLow = dRef - dHalf, m_dHigh = dRef + dHalf;
        Grid(nRows, nVolumeRows);
        for (int k = 1; k <= nRows; ++k) {
            double dValue = m_dLow + (m_dHigh - m_dLow) * k / nRows;
            if (dValue < 0 && dValue > -0.51 * dTick) dValue = 0;
            PriceLabel(dValue, dRef, Price.top - 7 + Price.Height() * (nRows - k) / nRows);
        }
        for (int k = 1; k <= nVolumeRows; ++k)
            Write(Volume.right + 1 + 2, Volume.top - 7 + Volume.Height() * (nVolumeRows - k) / nVolumeRows,
                  k_clrOlive, ScaleText(k * (m_dMost / 100) / nVolumeRows, 0));
    }
    void Grid(int nRows, int nVolumeRows) {
        CBrush brush(k_clrGrid);
        const CRect rcFrame(Volume.left, Volume.top, Volume.right + 1, Volume.bottom);
        m_dc.FrameRect(rcFrame, &brush);
        const auto across = [&](int nWidth, int nRight, int y) {
            Line(k_clrGrid, nWidth, {Price.left, y}, {nRight, y});
        };
        for (int k = 0; k < nRows; ++k) across(1, Price.right, Price.top + Price.Height() * k / nRows);
        across(2, Price.right, Price.top + Price.Height() / 2);
        for (int k = 0; k < nVolumeRows; ++k)
            across(1, rcFrame.right, Volume.top + Volume.Height() * k / nVolumeRows);
        for (int k = 0; k <= 8; ++k) {
            const int x = Price.left + Price.Width() * k / 8;
            for (int y = Price.top; y < Volume.bottom; ++y)
                if (k % 2 == 0 || (y - Price.top) % 6 < 3) m_dc.SetPixel(x, y, k_clrGrid);
        }
    }
    void PriceLabel(double dValue, double dRef, int y) {
        const double dOff = dValue - dRef;
        const COLORREF clr = dOff > 0.0001 ? k_clrRise : dOff < -0.0001 ? k_clrFall : k_clrGrey;
        const std::string text = Printed("%.*f", m_day.stock.nDecimal, dValue);
        Write(Price.left - m_dc.GetTextExtent(text.c_str()).cx - 1, y, clr, text);
        const double dPercent = dRef > 0.0001 ? std::abs(dOff) * 100 / dRef : 0;
        Write(Price.right + 3, y, clr, Printed("%.2f%%", dPercent > 10.5 ? 10.0 : dPercent));
    }

    bool IsDrawable(double dPrice) const {
        return m_dLow <= dPrice && dPrice <= m_dHigh && m_dHigh - m_dLow > 0.0001;
    }
    int PriceY(double dPrice) const {
        int y = static_cast<int>(Price.top + Price.Height() * (m_dHigh - dPrice) / (m_dHigh - m_dLow));
        if (y <= Price.top) y = Price.top + 1;
        if (y >= Price.bottom) y = Price.bottom - 1;
        return y;
    }
    void Slot(int i) {
        const tagmyMinuteData& data = m_day.slots[i];
        const int x = Price.left + Price.Width() * i / 239;
        if (data.fMainNetBuy != 0) Mark(m_ptPrice.x - 6, m_ptPrice.y - 4);
        const bool bDrawable = IsDrawable(data.fPrice);
        const auto lineTo = [&](CPoint& pt, COLORREF clr, double dPrice, bool bDraws) {
            const CPoint ptTo(x, bDraws ? PriceY(dPrice) : pt.y);
            if (bDraws) Line(clr, 1, pt, ptTo);
            pt = ptTo;
        };
        lineTo(m_ptPrice, k_clrGrey, data.fPrice, bDrawable);
        m_dMean = (i * m_dMean + data.fPrice) / (i + 1);
        lineTo(m_ptMean, k_clrOlive, m_dMean, bDrawable && IsDrawable(m_dMean));
        const double dVolume = i > 0 ? double{data.fVolume} - m_day.slots[i - 1].fVolume : 0;
        if (dVolume >= 0 && dVolume <= m_dMost && m_dMost > 0.0001 && bDrawable)
            Line(k_clrOlive, 1, {x, Volume.bottom - 1},
                 {x, static_cast<int>(Volume.bottom - Volume.Height() * dVolume / m_dMost)});
    }
    void Mark(int x, int y) {
        const auto hMark = ::LoadImage(AfxFindResourceHandle(MAKEINTRESOURCE(3006), RT_BITMAP),
                                       MAKEINTRESOURCE(3006), IMAGE_BITMAP, 0, 0, LR_LOADMAP3DCOLORS);
        CDC dcMark;
        dcMark.CreateCompatibleDC(&m_dc);
        const HGDIOBJ hOld = ::SelectObject(dcMark, hMark);
        for (int i = 0; i < 16 * 16; ++i) {
            const COLORREF clr = dcMark.GetPixel(i % 16, i / 16);
            if (clr != RGB(255, 255, 255)) m_dc.SetPixel(x + i % 16, y + i / 16, clr);
        }
        ::SelectObject(dcMark, hOld);
        ::DeleteObject(hMark);
    }
    void Cross() {
        const int nOld = m_dc.SetROP2(R2_XORPEN);
        Line(RGB(255, 255, 255), 1, {m_day.ptMouse.x, Price.top}, {m_day.ptMouse.x, m_cy - 19});
        Line(RGB(255, 255, 255), 1, {Price.left, m_day.ptMouse.y}, {Price.right, m_day.ptMouse.y});
        m_dc.SetROP2(nOld);
    }
    void Strip() {
        const tagmyMinuteData& data = m_day.slots.at(m_day.nCursor);
        const auto big = [](double dValue) {
            char szText[64] = "";
            FormatBigNumber(szText, 8, dValue);
            return std::string(szText);
        };
        Write(157, 10, k_clrGrey, Printed("时间=%u", data.nTime / 100));
        Write(222, 10, k_clrGrey,
              Printed("价格=%.*f", m_day.stock.nDecimal < 0 ? 2 : m_day.stock.nDecimal, data.fPrice));
        const std::string bought = big(data.fMainNetBuy * 10000.0), volume = big(data.fVolume);
        if (!bought.empty()) Write(292, 10, k_clrRise, "主力净买=" + bought);
        Write(bought.empty() ? 292 : 392, 10, k_clrGrey, "成交量=" + (volume.empty() ? "0" : volume));
    }

    const MinuteDay& m_day;
    const int m_cx, m_cy;
    Canvas m_canvas;
    CDC& m_dc = m_canvas.dc;
    CFont m_font;
    CFont* m_pOldFont;
    const CRect Price{50, 25, m_cx - 50, (m_cy - 25 - 19) * 8 / 10};
    const CRect Volume{Price.left, Price.bottom + 2, Price.right, m_cy - 19};
    double m_dRef = m_day.stock.fPreClose, m_dLow = 0, m_dHigh = 0, m_dMost = m_day.slots[0].fVolume;
    double m_dMean = 0;
    CPoint m_ptPrice{Price.left, Price.top + Price.Height() / 2}, m_ptMean = m_ptPrice;
};
}  // namespace

unsigned TimeOfSlot(int nSlot) {
    if (nSlot == 0) return 93100;
    const int nMinutes = nSlot <= 120 ? 9 * 60 + 30 + nSlot : 13 * 60 + nSlot - 120;
    return static_cast<unsigned>(nMinutes / 60 * 10000 + nMinutes % 60 * 100);
}

MinuteDay::MinuteDay(float fPreClose, int nDecimal) {
    std::snprintf(stock.szCode, sizeof stock.szCode, "600000");
    std::snprintf(stock.szName, sizeof stock.szName, "浦发银行");
    stock.fPreClose = fPreClose, stock.nDecimal = nDecimal;
    MinuteArray empty;
    ResetSlots(empty);
    for (int i = 0; i < 240; ++i) slots[i] = empty[i];
}

MinuteDay& MinuteDay::Put(const tagmyMinuteData& data) {
    fed.push_back(data);
    nLast = TimeToSlot(data.nTime);
    slots.at(nLast) = data;
    return *this;
}

void MinuteDay::Play() {
    if (fed.empty()) return;
    float fBefore = stock.fPreClose;
    for (int i = 0; i <= std::min(nLast + 1, 239); ++i) {
        if (slots[i].fPrice <= 0) slots[i].fPrice = fBefore;
        fBefore = slots[i].fPrice;
    }
}

Shot MinuteDay::Picture(int cx, int cy) const { return Drawing(*this, cx, cy).Draw(); }

MinuteDay WholeDay(float fPreClose, int nDecimal, float fSwing) {
    MinuteDay day(fPreClose, nDecimal);
    float fVolume = 0;
    for (int i = 0; i < 240; ++i) {
        if (i == 1) continue;
        fVolume += i % 17 == 5 ? -300.0f : 1000.0f + 37.0f * static_cast<float>(i * i % 91);
        const double dWave = std::sin(i / 19.0) + 0.3 * std::sin(i * 1.7);
        day.PutSlot(i, fPreClose + fSwing * static_cast<float>(dWave), fVolume,
                    static_cast<float>(i % 3 == 0 ? 0 : i % 40 - 20));
    }
    return day;
}
