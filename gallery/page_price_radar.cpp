// The price radar on eight days' money by industry, following the choice of the pies.
#include "page_industries.h"
#include "pages.h"

namespace gallery {

namespace {

class PriceRadarPage : public IndustriesPage<CProxy_PriceRadarCtrl> {
public:
    explicit PriceRadarPage(const PageSettings& settings) : IndustriesPage(settings) { Tell({}); }

private:
    void Feed(CProxy_PriceRadarCtrl& radar) override { FeedPriceRadar(radar, Days(), Shown()); }
    void Mark(CProxy_PriceRadarCtrl& radar, int nPlace) override;
    void Tell(const std::string& strChosen);
};

void PriceRadarPage::Mark(CProxy_PriceRadarCtrl& radar, int nPlace) {
    radar.SetSelectId(nPlace);
    Tell("当日" + Describe(Shown()[static_cast<std::size_t>(nPlace)]) + "。");
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
