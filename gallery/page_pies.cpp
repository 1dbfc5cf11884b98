// The pies on one day's money: of the largest industries, or of a stock and the largest of its industry. A
// list selects in both pies.
#include "core/minutes.h"
#include "page_industries.h"
#include "pages.h"

namespace gallery {

namespace {

constexpr UINT kKindsId = 102;
constexpr int kKindsHeight = 22;
constexpr int kIndustries = 0, kStocks = 1;  // tabs under the list
constexpr UINT kOtherKindKey = 'G';
constexpr char kUsualStock[] = "000001";
constexpr char kInvitation[] =
    "上下键或点击左列选一项，G键换行业、个股。也可点击扇形(控件不通知宿主，左列不随之而动)";

class PiesPage : public IndustriesPage<CProxy_PieChartCtrl> {
public:
    explicit PiesPage(const PageSettings& settings)
        : IndustriesPage(settings), m_dataDir(settings.dataDir), m_industries(Shown()) {
        Tell();
    }

protected:
    afx_msg void OnKind() { ShowKind(m_kinds.GetActiveId()); }
    DECLARE_MESSAGE_MAP()

private:
    BOOL CreateControls() override;
    void PlaceList(const CRect& rc) override;
    void Feed(CProxy_PieChartCtrl& pies) override { FeedPies(pies, Shown()); }
    void Mark(CProxy_PieChartCtrl& pies, int nPlace) override;
    bool OnKey(UINT nKey) override;
    int Chosen() const override;
    void SetChosen(int nPlace) override;

    void ShowKind(int nKind);
    void ShowStocks();
    std::string ListInWords() const;
    void Tell();

    std::filesystem::path m_dataDir;
    std::vector<MoneyFlow> m_industries;
    Peers m_peers;
    int m_nKind = kIndustries;
    bool m_bNoMoney = false;  ///< Of the stock that was to be shown.
    bool m_bTip = true;       ///< The last selection could open its tip.
    CProxy_TabCtrl m_kinds;
};

BEGIN_MESSAGE_MAP(PiesPage, IndustriesPage<CProxy_PieChartCtrl>)
ON_COMMAND(kKindsId, OnKind)
END_MESSAGE_MAP()

/// A stock that was picked elsewhere is what the user wants to see.
BOOL PiesPage::CreateControls() {
    if (!IndustriesPage::CreateControls()) return FALSE;
    if (!CreateNavigation(m_kinds, *this, kKindsId, TAB_HORZ_CHAMFER, {"行业", "个股"}, kIndustries))
        return FALSE;
    if (TheChoice().bMoneyOfStock) ShowKind(kStocks);
    return TRUE;
}

void PiesPage::PlaceList(const CRect& rc) {
    CRect rcNames = rc;
    const CRect rcKinds = TakeBottom(rcNames, kKindsHeight);
    IndustriesPage::PlaceList(rcNames);
    if (CWnd* const pKinds = GetDlgItem(kKindsId)) pKinds->MoveWindow(&rcKinds);
}

bool PiesPage::OnKey(UINT nKey) {
    if (nKey != kOtherKindKey) return IndustriesPage::OnKey(nKey);
    ShowKind(m_nKind == kStocks ? kIndustries : kStocks);
    return true;
}

int PiesPage::Chosen() const { return m_nKind == kStocks ? m_peers.nStock : IndustriesPage::Chosen(); }

void PiesPage::SetChosen(int nPlace) {
    if (m_nKind != kStocks) {
        TheChoice().bMoneyOfStock = false;
        return IndustriesPage::SetChosen(nPlace);
    }
    if (std::exchange(m_peers.nStock, nPlace) == nPlace)
        return;  // shown as the chosen one: no choice of the user's
    const std::string& code = m_peers.codes[static_cast<std::size_t>(nPlace)];
    TheChoice().Pick(code, FindDay(ReadMinuteDays(m_dataDir / kMinuteFile), code) != nullptr);
}

void PiesPage::Mark(CProxy_PieChartCtrl& pies, int nPlace) {
    m_bTip = SelectInPies(pies, *ChartWindow(), nPlace);
    Tell();
}

/// The industries stay when there is no money flow for the stock to be shown.
void PiesPage::ShowKind(int nKind) {
    if (nKind == m_nKind) return;
    if (nKind == kStocks) return ShowStocks();
    m_nKind = nKind;
    m_bNoMoney = TheChoice().bMoneyOfStock = false;
    Show(m_industries);
    m_kinds.SelectTabById(nKind);
    Tell();
}

void PiesPage::ShowStocks() {
    const std::string& strPicked = TheChoice().strStock;
    Peers peers =
        PeersOf(ReadMoneyOfStocks(m_dataDir), strPicked.empty() ? kUsualStock : strPicked, kMostListed);
    if (peers.nStock < 0) {
        m_kinds.SelectTabById(kIndustries);
        m_bNoMoney = true;
        return Tell();
    }
    m_peers = std::move(peers);
    m_nKind = kStocks;
    m_bNoMoney = false;
    Show(m_peers.flows);
    m_kinds.SelectTabById(kStocks);
    Tell();
}

std::string PiesPage::ListInWords() const {
    if (m_nKind == kIndustries) return ChoiceInWords(Newest(), Shown().size());
    return "2025年10月17日，" + m_peers.industry + "行业个股中流入、流出之和最大的，连同所选，共" +
           std::to_string(Shown().size()) + "只";
}

void PiesPage::Tell() {
    const char* pszLast = kInvitation;
    if (m_bNoMoney) pszLast = "所选个股2025年10月17日没有资金数据，仍显示行业";
    if (!m_bTip) pszLast = "已选中。另一饼图的提示窗还开着，这里开不了提示窗";
    SetNotes({ListInWords() + "。上圆流入，下圆流出，半径与合计成正比",
              "流入、流出为全部资金，不只主力，提示窗中的“主力”是控件自带的字样", pszLast});
}

}  // namespace

std::unique_ptr<Page> MakePiesPage(const PageSettings& settings) {
    return std::make_unique<PiesPage>(settings);
}

}  // namespace gallery
