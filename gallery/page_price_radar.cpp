// The price radar on eight days' money by industry, following the choice of the pies.
#include "page_industries.h"
#include "pages.h"

namespace gallery {

namespace {

constexpr int kInflow = 0, kOutflow = 1;  // types of the price radar's items
constexpr int kColumns = 8;

class PriceRadarPage : public IndustriesPage<CProxy_PriceRadarCtrl> {
public:
    explicit PriceRadarPage(const PageSettings& settings)
        : IndustriesPage(ReadIndustryDays(settings.dataDir / kIndustryFile), settings.pChosenIndustry) {
        Tell({});
    }

private:
    void Feed(CProxy_PriceRadarCtrl& radar) override;
    void Mark(CProxy_PriceRadarCtrl& radar, int nIndustry) override;
    void FeedColumn(CProxy_PriceRadarCtrl& radar, int nColumn, const IndustryDay& day);
    void Tell(const std::string& strChosen);
};

/// The newest day goes into column 0, which is the rightmost.
void PriceRadarPage::Feed(CProxy_PriceRadarCtrl& radar) {
    radar.Init();
    char szTitle[] = "行业资金流入与流出，八个交易日";
    radar.SetTitleText(szTitle);
    radar.SetTitleFontColor(RGB(255, 255, 255));
    radar.SetTitleBackColor(RGB(0, 84, 166));
    const int nDays = static_cast<int>(Days().size());
    for (int n = 0; n < std::min(kColumns, nDays); ++n)
        FeedColumn(radar, n, Days()[static_cast<std::size_t>(nDays - 1 - n)]);
    radar.Play();
}

void PriceRadarPage::FeedColumn(CProxy_PriceRadarCtrl& radar, int nColumn, const IndustryDay& day) {
    tagPriceRadarItemData item{};
    item.nIndex = nColumn;
    item.nDate = day.nDate;
    for (const IndustryFlow& shown : Shown()) {
        if (const IndustryFlow* const pFlow = day.Find(shown.name)) {
            item.dValue = pFlow->dInflow, item.nType = kInflow, radar.SetData(item);
            item.dValue = pFlow->dOutflow, item.nType = kOutflow, radar.SetData(item);
        }
        ++item.nId;
    }
}

void PriceRadarPage::Mark(CProxy_PriceRadarCtrl& radar, int nIndustry) {
    radar.SetSelectId(nIndustry);
    Tell("当日" + Describe(Shown()[static_cast<std::size_t>(nIndustry)]) + "。");
}

void PriceRadarPage::Tell(const std::string& strChosen) {
    SetNotes({ChoiceInWords(Newest(), Shown().size()) + "，右列为当日，向左为前七个交易日",
              "上圆流入，下圆流出，半径与当日合计成正比，列下为净额(流入－流出)"
              "，负为净流出",
              strChosen + "上下键或点击左列选行业"});
}

}  // namespace

std::unique_ptr<Page> MakePriceRadarPage(const PageSettings& settings) {
    return std::make_unique<PriceRadarPage>(settings);
}

}  // namespace gallery
