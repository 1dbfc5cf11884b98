// The minute chart on one day of six stocks: whole, or replayed minute by minute.
#include <algorithm>
#include <utility>

#include "core/minutes.h"
#include "core/split.h"
#include "live_page.h"
#include "minute_feed.h"
#include "page_chart.h"
#include "pages.h"
#include "tab_captions.h"

namespace gallery {

namespace {

constexpr UINT kStocksId = 101;
constexpr int kStocksHeight = 22;

class MinutePage : public ChartPage<CProxy_ChartOL, LivePage> {
public:
    MinutePage(std::vector<MinuteDay> days, const PageSettings& settings)
        : ChartPage(settings.pReplay),
          m_days(std::move(days)),
          m_nStock(PositionOf(settings.pChoice->strMinutesOf)),
          m_pChoice(settings.pChoice) {
        Tell();
    }

protected:
    afx_msg void OnStock();
    DECLARE_MESSAGE_MAP()

private:
    BOOL CreateControls() override;
    void PlaceControls(const CRect& rcContent) override;
    void Feed(CProxy_ChartOL& chart) override;
    bool OnKey(UINT nKey) override;
    void ShowReached() override;

    std::size_t PositionOf(const std::string& code) const;
    void ChooseStock(int nPosition);
    void Tell();

    const MinuteDay& Day() const { return m_days[m_nStock]; }

    std::vector<MinuteDay> m_days;
    std::size_t m_nStock;
    std::shared_ptr<Choice> m_pChoice;
    MinuteFeed m_feed{TheChart()};
    CProxy_TabCtrl m_stocks;
};

BEGIN_MESSAGE_MAP(MinutePage, LivePage)
ON_COMMAND(kStocksId, OnStock)
END_MESSAGE_MAP()

BOOL MinutePage::CreateControls() {
    if (!ChartPage::CreateControls()) return FALSE;
    return CreateNavigation(m_stocks, *this, kStocksId, TAB_HORZ_CHAMFER, NamesOf(m_days),
                            static_cast<int>(m_nStock));
}

void MinutePage::PlaceControls(const CRect& rcContent) {
    CRect rcChart = rcContent;
    const CRect rcStocks = TakeBottom(rcChart, kStocksHeight);
    ChartPage::PlaceControls(rcChart);
    if (CWnd* const pStocks = GetDlgItem(kStocksId)) pStocks->MoveWindow(&rcStocks);
}

/// A stock that is chosen during a replay goes on from the minute reached.
void MinutePage::Feed(CProxy_ChartOL&) {
    m_feed.Start(Day());
    m_feed.FeedUntil(TheReplay().Until());
}

bool MinutePage::OnKey(UINT nKey) {
    if (nKey < '1' || nKey >= '1' + std::min<std::size_t>(m_days.size(), 9)) return LivePage::OnKey(nKey);
    const auto nPosition = static_cast<int>(nKey - '1');
    m_stocks.SelectTabById(nPosition);
    ChooseStock(nPosition);
    return true;
}

/// A tab was clicked and has the keyboard now, but the arrow keys are for the chart.
void MinutePage::OnStock() {
    ChooseStock(m_stocks.GetActiveId());
    ChartWindow()->SetFocus();
}

/// The first one for a stock that has no minutes.
std::size_t MinutePage::PositionOf(const std::string& code) const {
    const auto it = std::ranges::find(m_days, code, &MinuteDay::code);
    return it == m_days.end() ? 0 : static_cast<std::size_t>(it - m_days.begin());
}

void MinutePage::ChooseStock(int nPosition) {
    const auto nStock = static_cast<std::size_t>(nPosition);
    if (nPosition < 0 || nStock >= m_days.size()) return;
    m_pChoice->Pick(m_days[nStock].code, true);
    if (std::exchange(m_nStock, nStock) == nStock) return;
    Feed(TheChart());
    Tell();
}

void MinutePage::ShowReached() {
    m_feed.FeedUntil(TheReplay().Until());
    Tell();
}

void MinutePage::Tell() {
    SetNotes({"2019年2月1日，" + Day().code + Day().name + "，" + InWords(TheReplay()),
              "灰线成交价，黄线均值，黄柱为比前一分钟多出的成交量。1～6键换股票，左右键移光标",
              "圆点：大单(每笔20万元起)净买入达到开盘以来每分钟平均成交额的一半。双击切换十字线"});
}

}  // namespace

std::unique_ptr<Page> MakeMinutePage(const PageSettings& settings) {
    return std::make_unique<MinutePage>(ReadMinuteDays(settings.dataDir / kMinuteFile), settings);
}

}  // namespace gallery
