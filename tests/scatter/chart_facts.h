// What each of the three scatter charts has in its own way.
#pragma once

#include "chart_view.h"

/// The defaults are the value radar's.
struct ChartFacts {
    const char *pszTitle = "价值雷达", *pszX = "季度主营收入同比增长率", *pszY = "市销率";
    const char* pszInfo = "股票代码:%-6s  名称:%-8s 市销率:%-6.2f 增长率:%-8.2f";
    int nTitleWidth = 75;
    int nYReach = 50;    ///< How far the y title's box reaches left of the axis.
    bool bStar = false;  ///< The first of two points is named; no block line.
    bool bTitlesFollowFontColour = true, bBorder = true, bPlayDrawsAnew = false;
    bool bEscapeShowsAll = false, bInitHidesTime = false;
    double dLatestX = 99.5;  ///< Where a view of x span 0.5 that is dragged to the right begins.
};
template <class Chart>
inline const ChartFacts k_facts{};
template <>
inline const ChartFacts k_facts<CProxy_PointRadarCtrl>{
    .pszTitle = "涨幅-涨停系数",
    .pszX = "涨停系数",
    .pszY = "涨幅(%)",
    .pszInfo = "股票代码:%-6s  名称:%-8s 涨幅:%-6.2f 涨停系数:%-8.2f",
    .nTitleWidth = 120,
    .bTitlesFollowFontColour = false,
    .bBorder = false,
    .bPlayDrawsAnew = true,
    .bEscapeShowsAll = true,
    .bInitHidesTime = true,
    .dLatestX = 99};
template <>
inline const ChartFacts k_facts<CProxy_PointStartCtrl>{
    .pszTitle = "尾盘雷达-能量星空图",
    .pszX = "主力能量",
    .pszY = "净买入资金",
    .pszInfo = "股票代码:%-6s  名称:%-8s 主力能量:%-8.2f 净买入资金量:%.2f",
    .nTitleWidth = 175,
    .nYReach = 70,
    .bStar = true,
    .bPlayDrawsAnew = true};

template <class Chart>
class FactsTest : public ChartTest<Chart> {
protected:
    const ChartFacts& f = k_facts<Chart>;
};
