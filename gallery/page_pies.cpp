// The pies on one day's money by industry, with a list that selects in both of them.
#include "core/text.h"
#include "page_industries.h"
#include "pages.h"

namespace gallery {

namespace {

constexpr int kInflow = 0, kOutflow = 1;  // types of the pies' items

tagPieChartData ItemOf(const IndustryFlow& flow, int nId, int nType) {
    tagPieChartData item{};
    item.dValue = nType == kInflow ? flow.dInflow : flow.dOutflow;
    CopyToField(item.szName, flow.name);
    item.nId = nId;
    item.nType = nType;
    return item;
}

class PiesPage : public IndustriesPage<CProxy_PieChartCtrl> {
public:
    explicit PiesPage(const PageSettings& settings)
        : IndustriesPage(ReadIndustryDays(settings.dataDir / kIndustryFile), settings.pChosenIndustry) {
        Tell("上下键或点击左列选行业，也可点击扇形(控件不通知宿主，左列不随之而动)");
    }

private:
    void Feed(CProxy_PieChartCtrl& pies) override;
    void Mark(CProxy_PieChartCtrl& pies, int nIndustry) override;
    void Tell(const char* pszLast);
};

void PiesPage::Feed(CProxy_PieChartCtrl& pies) {
    pies.Init();
    char szInflow[] = "流入合计", szOutflow[] = "流出合计";
    pies.SetSumTipTitleTopText(szInflow);
    pies.SetSumTipTitleBottomText(szOutflow);
    pies.SetSumTipContxtColor(RGB(192, 192, 192));
    for (const int nType : {kInflow, kOutflow}) {
        int nId = 0;
        for (const IndustryFlow& flow : Shown()) pies.SetData(ItemOf(flow, nId++, nType));
    }
    pies.Play();
}

/// The pies know their slices only when they have been painted. Where another pie's tip is open they select,
/// but open none of their own.
void PiesPage::Mark(CProxy_PieChartCtrl& pies, int nIndustry) {
    ChartWindow()->UpdateWindow();
    try {
        pies.SelectPieById(nIndustry);
    } catch (CResourceException* pError) {
        pError->Delete();
        Tell("已选中。另一饼图的提示窗还开着，这里开不了提示窗");
    }
}

void PiesPage::Tell(const char* pszLast) {
    SetNotes({ChoiceInWords(Newest(), Shown().size()) + "。上圆流入，下圆流出，半径与合计成正比",
              "流入、流出为全部资金，不只主力，提示窗中的“主力”是控件自带的字样", pszLast});
}

}  // namespace

std::unique_ptr<Page> MakePiesPage(const PageSettings& settings) {
    return std::make_unique<PiesPage>(settings);
}

}  // namespace gallery
