#include "pages.h"

#include "core/error.h"

namespace gallery {

const std::vector<PageEntry>& Pages() {
    static const std::vector<PageEntry> pages{
        {"radar", "价值雷达", MakeValueRadarPage},
        {"points", "涨停系数", MakePointsPage},
        {"stars", "星空图", MakeStarsPage},
        {"wheel", "行业轮动", MakeWheelPage},
        {"minute", "分时", MakeMinutePage},
        {"pies", "资金饼图", MakePiesPage},
        {"priceradar", "价格雷达", MakePriceRadarPage},
        {"gauges", "仪表", MakeGaugesPage},
        {"risk", "风险", MakeRiskPage},
        {"position", "持仓", MakePositionPage},
        {"ladder", "压力支撑", MakeLadderPage},
        {"histogram", "大单", MakeHistogramPage},
        {"tabs", "标签条", MakeTabsPage},
    };
    return pages;
}

std::vector<std::string> PageNames() {
    std::vector<std::string> names;
    for (const PageEntry& page : Pages()) names.push_back(page.name);
    return names;
}

const PageEntry& FindPage(const std::string& name) {
    for (const PageEntry& page : Pages())
        if (page.name == name) return page;
    throw Error("no page named " + name);
}

}  // namespace gallery
