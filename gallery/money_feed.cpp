#include "money_feed.h"

#include <algorithm>

#include "core/text.h"

namespace gallery {

namespace {

constexpr char kIndustryFile[] = "industry_flow_2026-08.csv", kStockFile[] = "stock_flow_2025-10-17.csv";
constexpr int kInflow = 0, kOutflow = 1;  // types of the charts' items
constexpr int kColumns = 8;

void FeedColumn(CProxy_PriceRadarCtrl& radar, int nColumn, const IndustryDay& day,
                const std::vector<MoneyFlow>& listed) {
    tagPriceRadarItemData item{};
    item.nIndex = nColumn;
    item.nDate = day.nDate;
    for (const MoneyFlow& one : listed) {
        if (const MoneyFlow* const pFlow = day.Find(one.name)) {
            item.dValue = pFlow->dInflow, item.nType = kInflow, radar.SetData(item);
            item.dValue = pFlow->dOutflow, item.nType = kOutflow, radar.SetData(item);
        }
        ++item.nId;
    }
}

}  // namespace

std::vector<IndustryDay> ReadMoneyDays(const std::filesystem::path& dataDir) {
    return ReadIndustryDays(dataDir / kIndustryFile);
}

std::vector<StockFlow> ReadMoneyOfStocks(const std::filesystem::path& dataDir) {
    return ReadStockFlows(dataDir / kStockFile);
}

void FeedPies(CProxy_PieChartCtrl& pies, const std::vector<MoneyFlow>& flows) {
    pies.Init();
    char szInflow[] = "流入合计", szOutflow[] = "流出合计";
    pies.SetSumTipTitleTopText(szInflow);
    pies.SetSumTipTitleBottomText(szOutflow);
    pies.SetSumTipContxtColor(RGB(192, 192, 192));
    for (const int nType : {kInflow, kOutflow}) {
        tagPieChartData item{};
        item.nType = nType;
        for (const MoneyFlow& flow : flows) {
            item.dValue = nType == kInflow ? flow.dInflow : flow.dOutflow;
            CopyToField(item.szName, flow.name);
            pies.SetData(item);
            ++item.nId;
        }
    }
    pies.Play();
}

bool SelectInPies(CProxy_PieChartCtrl& pies, CWnd& wndPies, int nItem) {
    wndPies.UpdateWindow();  // the pies know their slices only when they have been painted
    try {
        pies.SelectPieById(nItem);
        return true;
    } catch (CResourceException* pError) {
        pError->Delete();
        return false;
    }
}

void FeedPriceRadar(CProxy_PriceRadarCtrl& radar, const std::vector<IndustryDay>& days,
                    const std::vector<MoneyFlow>& listed) {
    radar.Init();
    char szTitle[] = "行业资金流入与流出，八个交易日";
    radar.SetTitleText(szTitle);
    radar.SetTitleFontColor(RGB(255, 255, 255));
    radar.SetTitleBackColor(RGB(0, 84, 166));
    const int nDays = static_cast<int>(days.size());
    for (int n = 0; n < std::min(kColumns, nDays); ++n)
        FeedColumn(radar, n, days[static_cast<std::size_t>(nDays - 1 - n)], listed);
    radar.Play();
}

}  // namespace gallery
