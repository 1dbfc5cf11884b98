// All twelve controls at once, working together: a sector that is double-clicked on the wheel is marked in
// the radars; a stock that is picked in the value radar or in the strip is shown by the minute chart, the
// ladder and the pies. What has the day's figures follows the replay.
#include <algorithm>
#include <initializer_list>
#include <utility>

#include "core/split.h"
#include "gauge_exhibits.h"
#include "live_page.h"
#include "minute_feed.h"
#include "money_feed.h"
#include "pages.h"
#include "radar_exhibits.h"
#include "tab_captions.h"
#include "wheel_feed.h"

namespace gallery {

namespace {

constexpr char kUsualStock[] = "000001";
constexpr std::size_t kSectorsShown = 8;
constexpr int kStripHeight = 22;
constexpr int kNumberHeight = 9;      // of the radars' axes: there is little room
constexpr WPARAM kSmallPoints = 105;  // of the radars' own menu
constexpr char kInvitation[] =
    "双击轮盘的行业：两个雷达标出其个股。单击左上雷达的圆点或选股票：分时、压力支撑、饼图随之";

enum ControlId : UINT {
    RadarId = 100,
    PointsId,
    StarsId,
    WheelId,
    MinuteId,
    PiesId,
    PriceRadarId,
    RiskId,
    PositionId,
    LadderId,
    HistogramId,
    StocksId
};

class OverviewPage : public LivePage {
public:
    explicit OverviewPage(const PageSettings& settings);

protected:
    afx_msg LRESULT OnSectorChosen(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnStockPicked(WPARAM wParam, LPARAM lParam);
    afx_msg void OnStock();
    DECLARE_MESSAGE_MAP()

private:
    OverviewPage(const PageSettings& settings, const std::vector<Stock>& stocks);

    template <class Control>
    BOOL Make(Control& control, ControlId nId) {
        return control.Create(this, CRect(0, 0, 0, 0), nId);
    }
    BOOL CreateControls() override;
    BOOL CreateRadars();
    BOOL CreateMarket();
    BOOL CreateGauges();
    void PlaceControls(const CRect& rcContent) override;
    void PlaceRow(CRect rcRow, std::initializer_list<std::pair<ControlId, int>> shares);
    bool OnKey(UINT nKey) override;
    void ShowReached() override;

    void Pick(const std::string& code);
    void ShowMinutes();
    void ShowPeers();
    void TellOfStock();
    void Tell(std::string strNews);

    std::shared_ptr<Choice> m_pChoice;
    ValueRadarExhibit m_radarExhibit;
    PointRadarExhibit m_pointsExhibit;
    StarsExhibit m_starsExhibit;
    std::vector<Sector> m_sectors;
    std::vector<MinuteDay> m_days;
    std::vector<StockFlow> m_flows;
    Peers m_peers;  ///< What the pies show.
    std::vector<IndustryDay> m_moneyDays;
    RiskExhibit m_riskExhibit;
    PositionExhibit m_positionExhibit;
    LadderExhibit m_ladderExhibit;
    HistogramExhibit m_histogramExhibit;

    StockRadar m_radar;
    CProxy_PointRadarCtrl m_points;
    CProxy_PointStartCtrl m_stars;
    CProxy_BR m_wheel;
    CProxy_ChartOL m_minute;
    CProxy_PieChartCtrl m_pies;
    CProxy_PriceRadarCtrl m_priceRadar;
    CProxy_RiskBarCtrl m_risk;
    CProxy_PositionBarCtrl m_position;
    CProxy_PrssureSupportCtrl m_ladder;
    CProxy_HistogramCtrl m_histogram;
    CProxy_TabCtrl m_stocks;

    MinuteFeed m_feed{m_minute};
    std::string m_strMinutesOf;  ///< Code of the stock that the minute chart shows.
    std::string m_strNews = kInvitation;
};

BEGIN_MESSAGE_MAP(OverviewPage, LivePage)
ON_MESSAGE(kSectorChosen, OnSectorChosen)
ON_MESSAGE(kStockPicked, OnStockPicked)
ON_COMMAND(StocksId, OnStock)
END_MESSAGE_MAP()

OverviewPage::OverviewPage(const PageSettings& settings)
    : OverviewPage(settings, ReadRadarDay(settings.dataDir)) {}

OverviewPage::OverviewPage(const PageSettings& settings, const std::vector<Stock>& stocks)
    : LivePage(settings.pReplay),
      m_pChoice(settings.pChoice),
      m_radarExhibit(stocks),
      m_pointsExhibit(stocks),
      m_starsExhibit(settings.dataDir),
      m_sectors(
          LargestSectors(ReadWheelSectors(settings.dataDir), kSectorsShown, settings.pChoice->strIndustry)),
      m_days(ReadMinuteDays(settings.dataDir / kMinuteFile)),
      m_flows(ReadMoneyOfStocks(settings.dataDir)),
      m_moneyDays(ReadMoneyDays(settings.dataDir)),
      m_riskExhibit(settings.dataDir),
      m_positionExhibit(settings.dataDir),
      m_ladderExhibit(settings.dataDir),
      m_histogramExhibit(settings.dataDir, HistogramExhibit::Detail::Half),
      m_strMinutesOf(m_days.front().code) {
    Tell(kInvitation);
}

BOOL OverviewPage::CreateControls() {
    if (!CreateRadars() || !CreateMarket() || !CreateGauges()) return FALSE;
    if (!CreateNavigation(m_stocks, *this, StocksId, TAB_HORZ_CHAMFER, NamesOf(m_days), 0)) return FALSE;
    if (FindDay(m_days, m_pChoice->strMinutesOf)) m_strMinutesOf = m_pChoice->strMinutesOf;
    ShowMinutes();
    ShowPeers();
    if (!m_pChoice->strStock.empty()) TellOfStock();
    return TRUE;
}

BOOL OverviewPage::CreateRadars() {
    if (!Make(m_radar, RadarId) || !Make(m_points, PointsId) || !Make(m_stars, StarsId)) return FALSE;
    m_radarExhibit.Feed(m_radar, m_pChoice->strIndustry);
    m_pointsExhibit.Feed(m_points, m_pChoice->strIndustry);
    m_starsExhibit.Feed(m_stars);
    m_radar.SetCoordinateShaftFontSize(kNumberHeight);
    m_points.SetCoordinateShaftFontSize(kNumberHeight);
    for (const UINT nId : {RadarId, PointsId, StarsId})
        GetDlgItem(static_cast<int>(nId))->SendMessage(WM_COMMAND, kSmallPoints);
    return TRUE;
}

BOOL OverviewPage::CreateMarket() {
    if (!Make(m_wheel, WheelId) || !Make(m_minute, MinuteId) || !Make(m_pies, PiesId) ||
        !Make(m_priceRadar, PriceRadarId))
        return FALSE;
    FeedWheel(m_wheel, m_sectors, m_pChoice->strIndustry);
    FeedPriceRadar(m_priceRadar, m_moneyDays, LargestFlows(m_moneyDays.back().flows, kMostListed));
    m_priceRadar.SetSelectId(m_pChoice->nListed);
    return TRUE;
}

BOOL OverviewPage::CreateGauges() {
    if (!Make(m_risk, RiskId) || !Make(m_position, PositionId) || !Make(m_ladder, LadderId) ||
        !Make(m_histogram, HistogramId))
        return FALSE;
    m_riskExhibit.Feed(m_risk);
    m_positionExhibit.Feed(m_position);
    m_histogramExhibit.Feed(m_histogram, TheReplay().Minutes());
    return TRUE;
}

void OverviewPage::PlaceControls(const CRect& rcContent) {
    CRect rcRest = rcContent;
    const CRect rcStrip = TakeTop(rcRest, kStripHeight);
    const int nHeight = rcRest.Height();
    const CRect rcRadars = TakeTop(rcRest, nHeight * 36 / 100);
    const CRect rcMarket = TakeTop(rcRest, nHeight * 36 / 100);
    PlaceRow(rcStrip, {{StocksId, 1}});
    PlaceRow(rcRadars, {{RadarId, 1}, {PointsId, 1}, {StarsId, 1}});
    PlaceRow(rcMarket, {{WheelId, 30}, {MinuteId, 45}, {PiesId, 25}});
    PlaceRow(rcRest, {{PriceRadarId, 32}, {RiskId, 20}, {PositionId, 16}, {LadderId, 16}, {HistogramId, 16}});
}

/// Side by side, each with its share of the width.
void OverviewPage::PlaceRow(CRect rcRow, std::initializer_list<std::pair<ControlId, int>> shares) {
    int nShares = 0;
    for (const auto& [nId, nShare] : shares) nShares += nShare;
    for (const auto& [nId, nShare] : shares) {
        const CRect rc = TakeLeft(rcRow, rcRow.Width() * nShare / nShares);
        nShares -= nShare;
        if (CWnd* const pControl = GetDlgItem(static_cast<int>(nId))) pControl->MoveWindow(&rc);
    }
}

bool OverviewPage::OnKey(UINT nKey) {
    if (nKey < '1' || nKey >= '1' + std::min<std::size_t>(m_days.size(), 9)) return LivePage::OnKey(nKey);
    Pick(m_days[nKey - '1'].code);
    return true;
}

void OverviewPage::OnStock() {
    const int nPosition = m_stocks.GetActiveId();
    if (nPosition >= 0) Pick(m_days[static_cast<std::size_t>(nPosition)].code);
    GetDlgItem(MinuteId)->SetFocus();  // the arrow keys are for the chart
}

LRESULT OverviewPage::OnStockPicked(WPARAM, LPARAM) {
    Pick(m_radar.PickedCode());
    return 0;
}

LRESULT OverviewPage::OnSectorChosen(WPARAM, LPARAM) {
    const std::string strIndustry = SelectedSector(m_wheel);
    if (strIndustry.empty()) return 0;
    m_pChoice->strIndustry = strIndustry;
    m_radarExhibit.Mark(m_radar, strIndustry);
    m_pointsExhibit.Mark(m_points, strIndustry);
    Tell(strIndustry + "：价值雷达标出" + std::to_string(m_radarExhibit.CountShown(strIndustry)) +
         "只，涨停系数图标出" + std::to_string(m_pointsExhibit.CountShown(strIndustry)) +
         "只(2018年9月21日)");
    return 0;
}

void OverviewPage::Pick(const std::string& code) {
    const bool bMinutes = FindDay(m_days, code) != nullptr;
    m_pChoice->Pick(code, bMinutes);
    if (bMinutes && std::exchange(m_strMinutesOf, code) != code) ShowMinutes();
    ShowPeers();
    if (m_peers.nStock >= 0) SelectInPies(m_pies, *GetDlgItem(PiesId), m_peers.nStock);
    TellOfStock();
}

void OverviewPage::ShowMinutes() {
    const MinuteDay& day = *FindDay(m_days, m_strMinutesOf);
    m_stocks.SelectTabById(static_cast<int>(&day - m_days.data()));
    m_feed.Start(day);
    m_feed.FeedUntil(TheReplay().Until());
    m_ladderExhibit.Feed(m_ladder, day.code, TheReplay().Minutes());
}

/// The picked stock among its industry; when there is no money flow for it, the one with minutes, or the
/// usual one.
void OverviewPage::ShowPeers() {
    for (const std::string& code : {m_pChoice->strStock, m_strMinutesOf, std::string(kUsualStock)}) {
        m_peers = PeersOf(m_flows, code, kMostListed);
        if (m_peers.nStock >= 0) return FeedPies(m_pies, m_peers.flows);
    }
}

void OverviewPage::TellOfStock() {
    const std::string& code = m_pChoice->strStock;
    const auto nStock = static_cast<std::size_t>(m_peers.nStock);
    const bool bMoney = m_peers.nStock >= 0 && m_peers.codes[nStock] == code;
    Tell("已选" + code + (code == m_strMinutesOf ? "：分时、压力支撑为该股" : "：没有该股的分时数据") +
         (bMoney ? "，饼图为" : "，没有该股的资金数据，饼图仍为") + m_peers.industry +
         "个股(2025年10月17日，全部资金)");
}

void OverviewPage::ShowReached() {
    m_feed.FeedUntil(TheReplay().Until());
    m_ladderExhibit.Feed(m_ladder, m_strMinutesOf, TheReplay().Minutes());
    m_histogramExhibit.Feed(m_histogram, TheReplay().Minutes());
    Tell(m_strNews);
}

void OverviewPage::Tell(std::string strNews) {
    m_strNews = std::move(strNews);
    SetNotes({"各图日期不同，见各页。2019年2月1日" + InWords(TheReplay()), m_strNews});
}

}  // namespace

std::unique_ptr<Page> MakeOverviewPage(const PageSettings& settings) {
    return std::make_unique<OverviewPage>(settings);
}

}  // namespace gallery
