// What the wrappers accept, refuse and give back.
#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <vector>

#include "host.h"

namespace {
constexpr float k_fNaN = std::numeric_limits<float>::quiet_NaN();
constexpr double k_dNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double k_dInfinity = std::numeric_limits<double>::infinity();

template <std::size_t nSize>
void Fill(char (&szField)[nSize], const char* pszText) {
    std::memset(szField, 0, nSize);
    std::memcpy(szField, pszText, ::strnlen(pszText, nSize));  // without a terminator when the text fills it
}

tagmyBRData Sector(const char* pszName, float fValue) {
    tagmyBRData data{};
    Fill(data.name, pszName);
    data.value = fValue;
    return data;
}

/// A wheel of the sectors 银行 1, Oil 2, 煤炭 3, with the named one current.
void InitWheel(CProxy_BR& wheel, const char* pszCurrent) {
    CArray<tagmyBRData, tagmyBRData&> sectors;
    for (tagmyBRData sector : {Sector("银行", 1), Sector("Oil", 2), Sector("煤炭", 3)}) sectors.Add(sector);
    tagBlocksInfo info{};
    info.dwHost = 0xCAFE;
    Fill(info.title, "行业");
    Fill(info.current, pszCurrent);
    EXPECT_EQ(TRUE, wheel.Init(sectors, info));
}

/// Name and value of the selected sector; empty when there is none.
std::string Current(CProxy_BR& wheel) {
    tagmyBRData data = Sector("untouched", 0);
    if (!wheel.GetCurBlockData(data)) return std::strcmp(data.name, "untouched") == 0 ? "" : "changed";
    return std::string(data.name, ::strnlen(data.name, sizeof data.name)) + std::to_string(int(data.value));
}
}  // namespace

TEST(WheelData, InitSelectsTheCurrentSector) {
    CProxy_BR wheel;
    EXPECT_EQ("", Current(wheel));
    InitWheel(wheel, "");
    EXPECT_EQ("", Current(wheel));
    InitWheel(wheel, "oIL");
    EXPECT_EQ("Oil2", Current(wheel));
    InitWheel(wheel, "无");
    EXPECT_EQ("Oil2", Current(wheel)) << "no match keeps the selection";
    CArray<tagmyBRData, tagmyBRData&> none;
    wheel.Init(none, tagBlocksInfo{});
    EXPECT_EQ("", Current(wheel)) << "until its record is gone";
    InitWheel(wheel, "");
    EXPECT_EQ("", Current(wheel));
}

TEST(WheelData, LastSectorOfTheNameWins) {
    CArray<tagmyBRData, tagmyBRData&> sectors;
    for (tagmyBRData sector : {Sector("a", 1), Sector("b", 2), Sector("A", 3)}) sectors.Add(sector);
    tagBlocksInfo info{};
    Fill(info.current, "a");
    CProxy_BR wheel;
    wheel.Init(sectors, info);
    EXPECT_EQ("A3", Current(wheel));
}

TEST(WheelData, SetData) {
    struct Case {
        const char* pszName;
        int nIndex;  ///< -100: by name.
        const char* pszSector;
        int bWant;
        const char* pszWantCurrent;
    };
    for (const Case& c :
         {Case{"by name, whatever its case", -100, "OIL", TRUE, "OIL9"},
          Case{"unknown name", -100, "石油", FALSE, "Oil2"}, Case{"empty name", -100, "", FALSE, "Oil2"},
          Case{"by index, renamed", 1, "石油", TRUE, "石油9"}, Case{"index below", -1, "Oil", FALSE, "Oil2"},
          Case{"index above", 3, "Oil", FALSE, "Oil2"},
          Case{"by index without a name", 1, "", FALSE, "Oil2"}}) {
        SCOPED_TRACE(c.pszName);
        CProxy_BR wheel;
        InitWheel(wheel, "Oil");
        tagmyBRData data = Sector(c.pszSector, 9);
        EXPECT_EQ(c.bWant, c.nIndex == -100 ? wheel.SetData(data) : wheel.SetData(c.nIndex, data));
        EXPECT_EQ(c.pszWantCurrent, Current(wheel));
    }
}

TEST(WheelData, TitleAndBlockInformation) {
    CProxy_BR wheel;
    InitWheel(wheel, "Oil");
    CString strLong('x', 32), strFits('y', 31);
    EXPECT_EQ(FALSE, wheel.SetTitle(strLong));
    tagBlocksInfo info{};
    wheel.GetBlocksInfo(info);
    EXPECT_STREQ("行业", info.title);
    EXPECT_EQ(0xCAFEu, info.dwHost);
    EXPECT_STREQ("Oil", info.current);
    EXPECT_EQ(TRUE, wheel.SetTitle(strFits));
    wheel.GetBlocksInfo(info);
    EXPECT_STREQ(strFits, info.title);
}

TEST(WheelData, NamesWithoutATerminator) {
    CArray<tagmyBRData, tagmyBRData&> sectors;
    tagmyBRData sector = Sector("0123456789012345678901234567890123456789", 4);
    sectors.Add(sector);
    tagBlocksInfo info{};
    Fill(info.current, "01234567890123456789012345678901");  // all 32 bytes of the name
    CProxy_BR wheel;
    wheel.Init(sectors, info);
    EXPECT_EQ("012345678901234567890123456789014", Current(wheel));
}

TEST(MinuteData, SetDataRefusals) {
    struct Case {
        const char* pszName;
        unsigned int dwKey, nTime;
        float fPrice, fVolume;
        int bWant;
    };
    for (const Case& c :
         {Case{"plain", 1, 93100, 10, 100, TRUE}, Case{"no key", 0, 93100, 10, 100, FALSE},
          Case{"no time", 1, 0, 10, 100, FALSE}, Case{"price too small", 1, 93100, 0.00009f, 1, FALSE},
          Case{"smallest price", 1, 93100, 0.0001f, 0, TRUE},
          Case{"negative volume", 1, 93100, 10, -1, FALSE},
          Case{"price not a number", 1, 93100, k_fNaN, 1, FALSE},
          Case{"volume not a number", 1, 93100, 10, k_fNaN, FALSE},
          Case{"infinite price", 1, 93100, static_cast<float>(k_dInfinity), 1, FALSE},
          Case{"infinite volume", 1, 93100, 10, static_cast<float>(k_dInfinity), FALSE},
          Case{"any time has a slot", 1, 4294967295u, 10, 1, TRUE}}) {
        SCOPED_TRACE(c.pszName);
        CProxy_ChartOL chart;
        tagmyMinuteData data{};
        data.dwKey = c.dwKey, data.nTime = c.nTime, data.fPrice = c.fPrice, data.fVolume = c.fVolume;
        EXPECT_EQ(c.bWant, chart.SetData(data));
    }
    CProxy_ChartOL chart;
    tagStockItem item{};
    tagJueShaMinuteData ignored{};
    EXPECT_EQ(TRUE, chart.Init(item));
    EXPECT_EQ(TRUE, chart.SetJueShaData(ignored));
    EXPECT_EQ(TRUE, chart.Play());
    EXPECT_EQ(TRUE, chart.Stop());
}

TEST(HistogramData, RefusalsAndSelection) {
    const auto Bar = [](double x, double y, int nId) {
        tagHistogramData data{};
        data.dXValue = x, data.dYValue = y, data.nId = nId;
        return data;
    };
    CProxy_HistogramCtrl histogram;
    for (tagHistogramData bad : {Bar(0, 1, 1), Bar(1, 0, 1), Bar(-1, 1, 1), Bar(1, -1, 1), Bar(k_dNaN, 1, 1),
                                 Bar(1, k_dNaN, 1), Bar(k_dInfinity, 1, 1), Bar(1, k_dInfinity, 1)}) {
        EXPECT_EQ(FALSE, histogram.SetData(bad)) << bad.dXValue << ' ' << bad.dYValue;
    }
    EXPECT_EQ(FALSE, histogram.SetIndex(1)) << "nothing was stored";
    for (int i = 0; i < 20; ++i) {
        tagHistogramData bar = Bar(20 - i, 1, i);
        EXPECT_EQ(TRUE, histogram.SetData(bar));
    }
    tagHistogramData tooMany = Bar(1, 1, 20);
    EXPECT_EQ(FALSE, histogram.SetData(tooMany));
    EXPECT_EQ(TRUE, histogram.Play());
    EXPECT_EQ(TRUE, histogram.SetIndex(19));
    EXPECT_EQ(FALSE, histogram.SetIndex(20));
    EXPECT_EQ(TRUE, histogram.Init());
    EXPECT_EQ(FALSE, histogram.SetIndex(19));
}

TEST(PieData, RefusalsAndTotals) {
    const auto Item = [](double dValue, const char* pszName, int nType) {
        tagPieChartData data{};
        data.dValue = dValue, data.nType = nType;
        Fill(data.szName, pszName);
        return data;
    };
    CProxy_PieChartCtrl pie;
    EXPECT_EQ(FALSE, pie.Play()) << "nothing to lay out";
    EXPECT_EQ(FALSE, pie.SetData(Item(-0.01, "a", 0)));
    EXPECT_EQ(FALSE, pie.SetData(Item(k_dNaN, "a", 0)));
    EXPECT_EQ(FALSE, pie.SetData(Item(1, "", 0)));
    EXPECT_EQ(TRUE, pie.SetData(Item(0, "a", 0)));
    EXPECT_EQ(FALSE, pie.Play()) << "one item";
    EXPECT_EQ(TRUE, pie.SetData(Item(5, "b", 0)));
    EXPECT_EQ(FALSE, pie.Play()) << "no outflow";
    EXPECT_EQ(TRUE, pie.SetData(Item(5, "c", 7)));
    EXPECT_EQ(TRUE, pie.Play());
    EXPECT_EQ(FALSE, pie.Play()) << "already laid out";
    EXPECT_EQ(FALSE, pie.SelectPieById(0)) << "no slice was painted";
    EXPECT_EQ(TRUE, pie.Init());
    for (int i = 0; i < 60; ++i) EXPECT_EQ(TRUE, pie.SetData(Item(i, "item", i % 2)));
    EXPECT_EQ(FALSE, pie.SetData(Item(1, "item", 0)));
    EXPECT_EQ(TRUE, pie.Play());
}

TEST(PriceRadarData, Refusals) {
    struct Case {
        double dValue;
        int nIndex, bWant;
    };
    CProxy_PriceRadarCtrl radar;
    for (const Case& c :
         {Case{1, 0, TRUE}, Case{1, 7, TRUE}, Case{1, 8, FALSE}, Case{1, -1, FALSE}, Case{0, 0, FALSE},
          Case{-1, 0, FALSE}, Case{k_dNaN, 0, FALSE}, Case{k_dInfinity, 0, FALSE}}) {
        tagPriceRadarItemData data{};
        data.dValue = c.dValue, data.nIndex = c.nIndex;
        EXPECT_EQ(c.bWant, radar.SetData(data)) << c.dValue << ' ' << c.nIndex;
    }
}

TEST(StarData, Refusals) {
    const auto Star = [](int nCode, unsigned int dwCheckB, float fCheckA, float fCheckC) {
        tagmyStarData data{};
        std::snprintf(data.szCode, sizeof data.szCode, "%06d", nCode);
        data.dwCheckB = dwCheckB, data.fCheckA = fCheckA, data.fCheckC = fCheckC;
        return data;
    };
    CProxy_PointStartCtrl chart;
    EXPECT_EQ(FALSE, chart.SetData(Star(0, 0, 0, 0)));
    EXPECT_EQ(FALSE, chart.SetData(Star(0, 1, -0.1f, 0)));
    EXPECT_EQ(FALSE, chart.SetData(Star(0, 1, 0, -0.1f)));
    EXPECT_EQ(FALSE, chart.SetData(Star(0, 1, k_fNaN, 0)));
    EXPECT_EQ(FALSE, chart.SetData(Star(0, 1, 0, k_fNaN)));
    for (int i = 0; i < 3001; ++i) ASSERT_EQ(TRUE, chart.SetData(Star(i, 1, 0, 0))) << i;
    EXPECT_EQ(FALSE, chart.SetData(Star(3001, 1, 0, 0)));
    EXPECT_EQ(FALSE, chart.SetData(Star(5, 1, 0, 0))) << "a held one as well";
    chart.ClearData();
    for (int i = 0; i < 4000; ++i) ASSERT_EQ(TRUE, chart.SetData(Star(7, 1, 0, 0))) << "one stock, one star";
}

template <class Proxy>
class RadarData : public testing::Test {};
using Radars = testing::Types<CProxy_RoePointCtrl, CProxy_PointRadarCtrl>;
TYPED_TEST_SUITE(RadarData, Radars);

TYPED_TEST(RadarData, HoldsThreeThousandStocks) {
    const auto Point = [](unsigned nCode) {
        tagPointRadarItemData data{};
        std::snprintf(data.szCode, sizeof data.szCode, "%06u", nCode / 2 % 1000000u);
        data.cMarket = static_cast<char>(nCode % 2);
        data.dX = k_dNaN;  // any values are taken
        data.dY = k_dInfinity;
        return data;
    };
    TypeParam radar;
    for (unsigned i = 0; i < 3000; ++i) ASSERT_EQ(TRUE, radar.SetData(Point(i))) << i;
    EXPECT_EQ(FALSE, radar.SetData(Point(3000)));
    EXPECT_EQ(FALSE, radar.SetData(Point(5))) << "a held one as well";
    EXPECT_EQ(TRUE, radar.Init());
    for (int i = 0; i < 4000; ++i) ASSERT_EQ(TRUE, radar.SetData(Point(7))) << "one stock, one point";
    EXPECT_EQ(TRUE, radar.Play());
}

TEST(TabData, ItemsAndActiveTab) {
    const auto Item = [](int nId) {
        tagTabItemData item{};
        item.nId = nId;
        std::fill(std::begin(item.szText), std::end(item.szText), 't');  // no terminator
        return item;
    };
    CProxy_TabCtrl tabs;
    EXPECT_EQ(-1, tabs.GetActiveId());
    EXPECT_EQ(0, tabs.AddItem(Item(10)));
    EXPECT_EQ(1, tabs.AddItem(Item(20)));
    EXPECT_EQ(-1, tabs.GetActiveId());
    tabs.SelectTabById(20);
    EXPECT_EQ(20, tabs.GetActiveId());
    tabs.SelectTabById(30);
    EXPECT_EQ(20, tabs.GetActiveId()) << "an unknown id changes nothing";
    EXPECT_EQ(2, tabs.AddItem(Item(20)));
    EXPECT_EQ(20, tabs.GetActiveId());
    tabs.ClearContent();
    EXPECT_EQ(-1, tabs.GetActiveId());
    EXPECT_EQ(0, tabs.AddItem(Item(10)));
    EXPECT_EQ(-1, tabs.GetActiveId());
}
