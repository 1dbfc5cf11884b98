#include "pages.h"

#include "core/error.h"

namespace gallery {

const std::vector<PageEntry>& Pages() {
    static const std::vector<PageEntry> pages{
        {"overview", "总览", "总览", MakeOverviewPage},
        {"radar", "价值雷达", "价值", MakeValueRadarPage},
        {"points", "涨停系数", "涨停", MakePointsPage},
        {"stars", "星空图", "星空", MakeStarsPage},
        {"wheel", "行业轮动", "行业", MakeWheelPage},
        {"minute", "分时", "分时", MakeMinutePage},
        {"pies", "资金饼图", "饼图", MakePiesPage},
        {"priceradar", "价格雷达", "价格", MakePriceRadarPage},
        {"gauges", "仪表", "仪表", MakeGaugesPage},
        {"risk", "风险", "风险", MakeRiskPage},
        {"position", "持仓", "持仓", MakePositionPage},
        {"ladder", "压力支撑", "压力", MakeLadderPage},
        {"histogram", "大单", "大单", MakeHistogramPage},
        {"tabs", "标签条", "标签", MakeTabsPage},
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
