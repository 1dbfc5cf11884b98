// The wheel on the main force's money by industry; tabs choose how many industries it shows.
#include <array>
#include <cstdio>
#include <utility>

#include "core/split.h"
#include "page_chart.h"
#include "pages.h"
#include "tab_captions.h"
#include "wheel_feed.h"

namespace gallery {

namespace {

constexpr char kInvitation[] = "双击圆点或行业名：本页向控件取回其数据，两个雷达页标出该行业的个股";

constexpr UINT kCountsId = 101;
constexpr int kCountsHeight = 22;
constexpr std::array<std::size_t, 3> kCounts{8, 28, 60};
constexpr int kFirstCount = 1;

class WheelPage : public ChartPage<CProxy_BR> {
public:
    explicit WheelPage(const PageSettings& settings)
        : m_sectors(ReadWheelSectors(settings.dataDir)), m_pChoice(settings.pChoice) {
        Choose(kFirstCount);
    }

protected:
    afx_msg void OnCount() { ShowCount(m_counts.GetActiveId()); }
    afx_msg LRESULT OnSectorChosen(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    BOOL CreateControls() override;
    void PlaceControls(const CRect& rcContent) override;
    void Feed(CProxy_BR& wheel) override { FeedWheel(wheel, m_shown, m_pChoice->strIndustry); }
    bool OnKey(UINT nKey) override;

    void ShowCount(int nPosition);
    void Choose(std::size_t nPosition);
    void Tell(std::string strAnswer);

    std::vector<Sector> m_sectors;
    std::vector<Sector> m_shown;
    std::shared_ptr<Choice> m_pChoice;
    CProxy_TabCtrl m_counts;
};

BEGIN_MESSAGE_MAP(WheelPage, ChartPage<CProxy_BR>)
ON_COMMAND(kCountsId, OnCount)
ON_MESSAGE(kSectorChosen, OnSectorChosen)
END_MESSAGE_MAP()

BOOL WheelPage::CreateControls() {
    if (!ChartPage::CreateControls()) return FALSE;
    std::vector<std::string> captions;
    captions.reserve(kCounts.size());
    for (const std::size_t nCount : kCounts) captions.push_back(std::to_string(nCount) + "个行业");
    return CreateNavigation(m_counts, *this, kCountsId, TAB_HORZ_CHAMFER, captions, kFirstCount);
}

void WheelPage::PlaceControls(const CRect& rcContent) {
    CRect rcWheel = rcContent;
    const CRect rcCounts = TakeBottom(rcWheel, kCountsHeight);
    ChartPage::PlaceControls(rcWheel);
    if (CWnd* const pCounts = GetDlgItem(kCountsId)) pCounts->MoveWindow(&rcCounts);
}

bool WheelPage::OnKey(UINT nKey) {
    if (nKey < '1' || nKey >= '1' + kCounts.size()) return false;
    const auto nPosition = static_cast<int>(nKey - '1');
    m_counts.SelectTabById(nPosition);
    ShowCount(nPosition);
    return true;
}

void WheelPage::ShowCount(int nPosition) {
    if (nPosition < 0 || nPosition >= static_cast<int>(kCounts.size())) return;
    Choose(static_cast<std::size_t>(nPosition));
    Feed(TheChart());
}

void WheelPage::Choose(std::size_t nPosition) {
    m_shown = LargestSectors(m_sectors, kCounts[nPosition], m_pChoice->strIndustry);
    Tell(kInvitation);
}

/// The wheel posts this; it says only that there was a double click.
LRESULT WheelPage::OnSectorChosen(WPARAM, LPARAM) {
    tagmyBRData record{};
    if (!TheChart().GetCurBlockData(record)) return 0;
    char szAnswer[80];
    std::snprintf(szAnswer, sizeof szAnswer, "取回：%s，主力占盘比%.2f。", record.name, record.value);
    m_pChoice->strIndustry = record.name;
    const Sector* const pSector = FindSector(m_shown, record.name);
    Tell(szAnswer + (pSector ? Describe(*pSector) : std::string()));
    return 0;
}

void WheelPage::Tell(std::string strAnswer) {
    SetNotes({"2025年9月22日收盘，" + std::to_string(m_sectors.size()) + "个行业中成交额最大的" +
                  std::to_string(m_shown.size()) + (m_pChoice->strIndustry.empty() ? "个" : "个(含所选)") +
                  "，从十二点钟右侧起顺时针由大到小。1、2、3键换数量",
              "主力占盘比(%)＝行业内个股主力净买入之和÷成交额之和×100，负数为净卖出", std::move(strAnswer)});
}

}  // namespace

std::unique_ptr<Page> MakeWheelPage(const PageSettings& settings) {
    return std::make_unique<WheelPage>(settings);
}

}  // namespace gallery
