// The minute chart on one day of six stocks: whole, or replayed minute by minute.
#include <cstdio>
#include <utility>

#include "core/minutes.h"
#include "core/pace.h"
#include "core/split.h"
#include "minute_feed.h"
#include "page_chart.h"
#include "pages.h"
#include "tab_captions.h"

namespace gallery {

namespace {

constexpr char kFile[] = "minutes_2019-02-01.csv";
constexpr int kClose = 1500;  // HHMM

constexpr UINT kStocksId = 101;
constexpr int kStocksHeight = 22;
constexpr UINT kPauseKey = VK_SPACE, kNextKey = 'N';
constexpr UINT_PTR kReplayTimer = 1;
constexpr UINT kTickMs = 20;

class MinutePage : public ChartPage<CProxy_ChartOL> {
public:
    MinutePage(std::vector<MinuteDay> days, std::optional<int> liveSpeed)
        : m_days(std::move(days)),
          m_nSpeed(liveSpeed.value_or(Pace::kUsual)),
          m_pace(m_nSpeed),
          m_state(liveSpeed ? State::Running : State::Whole) {
        Tell();
    }

protected:
    afx_msg void OnStock();
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    DECLARE_MESSAGE_MAP()

private:
    /// Whole: the day at once. The others: a replay.
    enum class State { Whole, Running, Paused, Ended };

    BOOL CreateControls() override;
    void PlaceControls(const CRect& rcContent) override;
    void Feed(CProxy_ChartOL& chart) override;
    bool OnKey(UINT nKey) override;

    void ShowStock(int nPosition);
    void PauseOrGoOn();
    void Step();
    void Replay(State state);
    void Enter(State state);
    void FeedMinutes(int nMinutes);
    std::string Progress() const;
    void Tell();

    const MinuteDay& Day() const { return m_days[m_nStock]; }
    bool IsUnderWay() const { return m_state == State::Running || m_state == State::Paused; }

    std::vector<MinuteDay> m_days;
    std::size_t m_nStock = 0;
    int m_nSpeed;
    Pace m_pace;
    State m_state;
    MinuteFeed m_feed{TheChart()};
    CProxy_TabCtrl m_stocks;
};

BEGIN_MESSAGE_MAP(MinutePage, ChartPage<CProxy_ChartOL>)
ON_COMMAND(kStocksId, OnStock)
ON_WM_TIMER()
END_MESSAGE_MAP()

BOOL MinutePage::CreateControls() {
    if (!ChartPage::CreateControls()) return FALSE;
    if (!m_stocks.Create(this, CRect(0, 0, 0, 0), kStocksId, TAB_HORZ_CHAMFER)) return FALSE;
    std::vector<std::string> names;
    names.reserve(m_days.size());
    for (const MinuteDay& day : m_days) names.push_back(day.name);
    AddTabs(m_stocks, names);
    SetNavigationColours(m_stocks);
    m_stocks.SelectTabById(0);
    Enter(m_state);
    return TRUE;
}

void MinutePage::PlaceControls(const CRect& rcContent) {
    CRect rcChart = rcContent;
    const CRect rcStocks = TakeBottom(rcChart, kStocksHeight);
    ChartPage::PlaceControls(rcChart);
    if (CWnd* const pStocks = GetDlgItem(kStocksId)) pStocks->MoveWindow(&rcStocks);
}

/// A replay that is under way goes on with the stock from the minute that it has reached.
void MinutePage::Feed(CProxy_ChartOL&) {
    const int nUntil = IsUnderWay() ? m_feed.FedUntil() : kClose;
    m_feed.Start(Day());
    m_feed.FeedUntil(nUntil);
}

bool MinutePage::OnKey(UINT nKey) {
    if (nKey >= '1' && nKey < '1' + m_days.size()) {
        const auto nPosition = static_cast<int>(nKey - '1');
        m_stocks.SelectTabById(nPosition);
        ShowStock(nPosition);
        return true;
    }
    if (nKey == kPauseKey) return PauseOrGoOn(), true;
    if (nKey == kNextKey) return Step(), true;
    return false;
}

/// A tab was clicked and has the keyboard now, but the arrow keys are for the chart.
void MinutePage::OnStock() {
    ShowStock(m_stocks.GetActiveId());
    ChartWindow()->SetFocus();
}

void MinutePage::ShowStock(int nPosition) {
    const auto nStock = static_cast<std::size_t>(nPosition);
    if (nPosition < 0 || nStock >= m_days.size() || nStock == m_nStock) return;
    m_nStock = nStock;
    Feed(TheChart());
    Tell();
}

void MinutePage::PauseOrGoOn() {
    if (!IsUnderWay()) return Replay(State::Running);
    Enter(m_state == State::Running ? State::Paused : State::Running);
}

/// The whole day gives way to its first minute; a replay that has ended stays as it is.
void MinutePage::Step() {
    if (m_state == State::Ended) return;
    if (m_state == State::Whole) Replay(State::Paused);
    if (m_state == State::Running) Enter(State::Paused);
    FeedMinutes(1);
}

/// From the start of the day.
void MinutePage::Replay(State state) {
    m_feed.Start(Day());
    Enter(state);
}

void MinutePage::Enter(State state) {
    m_state = state;
    KillTimer(kReplayTimer);
    if (state == State::Running) m_pace.Start(::GetTickCount()), SetTimer(kReplayTimer, kTickMs);
    Tell();
}

void MinutePage::OnTimer(UINT_PTR) {
    if (m_state == State::Running) FeedMinutes(m_pace.Due(::GetTickCount()));
}

/// The one way in which a replay moves on: each minute goes to the chart by itself, nothing else is touched.
void MinutePage::FeedMinutes(int nMinutes) {
    if (nMinutes == 0) return;
    for (int n = 0; n < nMinutes; ++n) m_feed.FeedNext();
    if (m_feed.IsAtEnd()) return Enter(State::Ended);
    Tell();
}

std::string MinutePage::Progress() const {
    char szUntil[32] = "开盘";
    if (const int nUntil = m_feed.FedUntil(); nUntil > 0)
        std::snprintf(szUntil, sizeof szUntil, "%02d:%02d", nUntil / 100, nUntil % 100);
    const std::string strSpeed = "每秒" + std::to_string(m_nSpeed) + "分钟";
    switch (m_state) {
        case State::Whole:
            return "全天。空格键逐分钟重放(" + strSpeed + ")，N键只进一分钟";
        case State::Running:
            return std::string("重放至") + szUntil + "，" + strSpeed + "。空格键暂停，N键暂停并进一分钟";
        case State::Paused:
            return std::string("重放至") + szUntil + "，已暂停。空格键继续，N键只进一分钟";
        case State::Ended:
            return "重放完毕，已到收盘。空格键从头重放";
    }
    return {};
}

void MinutePage::Tell() {
    SetNotes({"2019年2月1日，" + Day().code + Day().name + "，" + Progress(),
              "灰线成交价，黄线均值，黄柱为比前一分钟多出的成交量。1～6键换股票，左右键移光标",
              "圆点：大单(每笔20万元起)净买入达到开盘以来每分钟平均成交额的一半。双击切换十字线"});
}

}  // namespace

std::unique_ptr<Page> MakeMinutePage(const PageSettings& settings) {
    return std::make_unique<MinutePage>(ReadMinuteDays(settings.dataDir / kFile), settings.liveSpeed);
}

}  // namespace gallery
