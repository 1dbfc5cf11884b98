// Title, information strip, time axis and cross hair of the intraday flow chart.
#include <string>

#include "foundation/text_copy.h"
#include "foundation/toolkit.h"
#include "foundation/with_pen.h"
#include "minute_paint.h"

namespace {
constexpr COLORREF k_clrCode = RGB(255, 255, 0);
constexpr COLORREF k_clrName = RGB(2, 226, 244);
constexpr COLORREF k_clrText = RGB(192, 192, 192);
constexpr COLORREF k_clrHighlight = RGB(255, 50, 50);
constexpr int k_nNameOffset = 50;  // from the code
constexpr int k_nInfoOffset = 85;  // of the strip, from the title
constexpr int k_nPriceOffset = 65;
constexpr int k_nNetBuyOffset = 135;
constexpr int k_nVolumeOffset = 235;  // beside the net buying, else in its place
constexpr double k_dNetBuyUnit = 10000;
constexpr int k_nLongestFigure = 8;
constexpr int k_nDefaultDecimals = 2;

/// Of the texts drawn in a scope; what was set before comes back.
class AlignScope {
public:
    AlignScope(CDC& dc, UINT nAlign) : m_dc(dc), m_nOld(dc.SetTextAlign(nAlign)) {}
    ~AlignScope() { m_dc.SetTextAlign(m_nOld); }
    AlignScope(const AlignScope&) = delete;
    AlignScope& operator=(const AlignScope&) = delete;

private:
    CDC& m_dc;
    UINT m_nOld;
};

void PutText(CDC& dc, int x, int y, COLORREF clr, std::string_view text) {
    dc.SetTextColor(clr);
    dc.TextOut(x, y, text.data(), static_cast<int>(text.size()));
}

/// Empty for what has no big unit.
std::string BigNumber(double dValue) {
    char szText[64] = "";
    FormatBigNumber(szText, k_nLongestFigure, dValue);
    return szText;
}

int ClockNumber(unsigned int nTime) { return static_cast<int>(nTime / 10000 * 100 + nTime % 10000 / 100); }

std::string PriceText(float fPrice, int nDecimal) {
    return FormatFixed(fPrice, nDecimal < 0 ? k_nDefaultDecimals : nDecimal);
}
}  // namespace

void DrawTimeAxis(CDC& dc, const MinuteLayout& layout) {
    const AlignScope scope(dc, TA_CENTER | TA_TOP);
    const CRect& rc = layout.rcVolume;
    const int nStep = rc.Width() / 8;
    const auto Put = [&](int x, const char* pszTime) { PutText(dc, x, rc.bottom, k_clrHighlight, pszTime); };
    Put(rc.left, "09:30");
    Put(rc.left + 2 * nStep, "10:30");
    Put(rc.left + 4 * nStep, "13:00");
    Put(rc.left + 6 * nStep, "14:00");
    Put(rc.right, "15:00");
}

void DrawTitle(CDC& dc, const MinuteLayout& layout, const tagStockItem& stock) {
    const std::string_view code = FieldText(stock.szCode), name = FieldText(stock.szName);
    if (code.empty() || name.empty()) return;
    const AlignScope scope(dc, TA_CENTER | TA_TOP);
    const CPoint pt = layout.rcTitle.TopLeft();
    PutText(dc, pt.x, pt.y, k_clrCode, code);
    PutText(dc, pt.x + k_nNameOffset, pt.y, k_clrName, name);
}

void DrawMinuteInfo(CDC& dc, const MinuteLayout& layout, const tagmyMinuteData& minute, int nDecimal) {
    const AlignScope scope(dc, TA_LEFT | TA_TOP);
    const CPoint ptStart(layout.rcTitle.left + k_nInfoOffset, layout.rcTitle.top);
    const auto Put = [&](int nOffset, COLORREF clr, const std::string& text) {
        const bool bFits = nOffset == 0 || ptStart.x + nOffset < layout.rcClient.right;
        if (bFits) PutText(dc, ptStart.x + nOffset, ptStart.y, clr, text);
    };
    Put(0, k_clrText, "时间=" + std::to_string(ClockNumber(minute.nTime)));
    Put(k_nPriceOffset, k_clrText, "价格=" + PriceText(minute.fPrice, nDecimal));
    const std::string netBuy = BigNumber(minute.fMainNetBuy * k_dNetBuyUnit);
    if (!netBuy.empty()) Put(k_nNetBuyOffset, k_clrHighlight, "主力净买=" + netBuy);
    const std::string volume = BigNumber(minute.fVolume);
    Put(netBuy.empty() ? k_nNetBuyOffset : k_nVolumeOffset, k_clrText,
        "成交量=" + (volume.empty() ? "0" : volume));
}

void DrawCrossHair(CDC& dc, const MinuteLayout& layout, CPoint point) {
    const CRect rcBand = layout.Band();
    const int nOldMode = dc.SetROP2(R2_XORPEN);
    WithPen(dc, 1, RGB(255, 255, 255), [&] {
        dc.MoveTo(point.x, rcBand.top);
        dc.LineTo(point.x, rcBand.bottom);
        dc.MoveTo(rcBand.left, point.y);
        dc.LineTo(rcBand.right, point.y);
    });
    dc.SetROP2(nOldMode);
}
