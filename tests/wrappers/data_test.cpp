// What the wrappers accept, refuse and give back.
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <string_view>

#include "foundation/text_copy.h"
#include "host.h"

namespace {
constexpr float k_fNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float k_fInfinity = std::numeric_limits<float>::infinity();
constexpr double k_dNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double k_dInfinity = std::numeric_limits<double>::infinity();

/// The name may fill its field.
tagmyBRData Sector(std::string_view name, float fValue) {
    tagmyBRData data{};
    name.copy(data.name, sizeof data.name);
    data.value = fValue;
    return data;
}

void Init(CProxy_BR& wheel, std::initializer_list<tagmyBRData> list, std::string_view current) {
    CArray<tagmyBRData, tagmyBRData&> sectors;
    for (tagmyBRData sector : list) sectors.Add(sector);
    tagBlocksInfo info{};
    info.dwHost = 0xCAFE;
    std::string_view("行业").copy(info.title, sizeof info.title);
    current.copy(info.current, sizeof info.current);
    EXPECT_EQ(TRUE, wheel.Init(sectors, info));
}

/// Three sectors, with the named one current.
void InitThree(CProxy_BR& wheel, const char* pszCurrent) {
    Init(wheel, {Sector("银行", 1), Sector("Oil", 2), Sector("煤炭", 3)}, pszCurrent);
}

/// Name and value of the selected sector; empty when there is none.
std::string Current(CProxy_BR& wheel) {
    tagmyBRData data = Sector("untouched", 0);
    const bool bGot = wheel.GetCurBlockData(data);
    const std::string name(data.name, ::strnlen(data.name, sizeof data.name));
    if (!bGot) return name == "untouched" ? "" : "changed";
    return name + std::to_string(static_cast<int>(data.value));
}
}  // namespace

TEST(WheelData, InitSelectsTheCurrentSector) {
    CProxy_BR wheel;
    EXPECT_EQ("", Current(wheel));
    InitThree(wheel, "");
    EXPECT_EQ("", Current(wheel));
    InitThree(wheel, "oIL");
    EXPECT_EQ("Oil2", Current(wheel));
    InitThree(wheel, "无");
    EXPECT_EQ("Oil2", Current(wheel)) << "no match keeps the selection";
    Init(wheel, {}, "");
    EXPECT_EQ("", Current(wheel)) << "until its record is gone";
    InitThree(wheel, "");
    EXPECT_EQ("", Current(wheel));
    Init(wheel, {Sector("a", 1), Sector("b", 2), Sector("A", 3)}, "a");
    EXPECT_EQ("A3", Current(wheel)) << "the last of the name wins";
    const std::string strLong(40, 'n');
    Init(wheel, {Sector(strLong, 4)}, strLong.substr(0, sizeof(tagmyBRData::name)));
    EXPECT_EQ(std::string(sizeof(tagmyBRData::name), 'n') + "4", Current(wheel)) << "names without an end";
}

TEST(WheelData, SetData) {
    constexpr int k_nByName = -100;
    const struct {
        int nIndex;
        const char* pszSector;
        int nWant;
        const char* pszWantCurrent;
    } cases[] = {{k_nByName, "OIL", TRUE, "OIL9"},
                 {k_nByName, "石油", FALSE, "Oil2"},
                 {k_nByName, "", FALSE, "Oil2"},
                 {1, "石油", TRUE, "石油9"},
                 {-1, "Oil", FALSE, "Oil2"},
                 {3, "Oil", FALSE, "Oil2"},
                 {1, "", FALSE, "Oil2"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.nIndex << ", " << c.pszSector);
        CProxy_BR wheel;
        InitThree(wheel, "Oil");
        tagmyBRData data = Sector(c.pszSector, 9);
        EXPECT_EQ(c.nWant, c.nIndex == k_nByName ? wheel.SetData(data) : wheel.SetData(c.nIndex, data));
        EXPECT_EQ(c.pszWantCurrent, Current(wheel));
    }
}

TEST(WheelData, TitleAndBlockInformation) {
    CProxy_BR wheel;
    InitThree(wheel, "Oil");
    CString strLong('x', 32), strFits('y', 31);
    tagBlocksInfo info{};
    EXPECT_EQ(FALSE, wheel.SetTitle(strLong));
    wheel.GetBlocksInfo(info);
    EXPECT_STREQ("行业", info.title);
    EXPECT_EQ(0xCAFEu, info.dwHost);
    EXPECT_STREQ("Oil", info.current);
    EXPECT_EQ(TRUE, wheel.SetTitle(strFits));
    wheel.GetBlocksInfo(info);
    EXPECT_STREQ(strFits, info.title);
}

TEST(MinuteData, Refusals) {
    const struct {
        unsigned nKey, nTime;
        float fPrice, fVolume;
        int nWant;
    } cases[] = {
        {1, 93100, 10, 100, TRUE},          {0, 93100, 10, 100, FALSE},    {1, 0, 10, 100, FALSE},
        {1, 93100, 0.00009f, 1, FALSE},     {1, 93100, 0.0001f, 0, TRUE},  {1, 93100, 10, -1, FALSE},
        {1, 93100, k_fNaN, 1, FALSE},       {1, 93100, 10, k_fNaN, FALSE}, {1, 93100, k_fInfinity, 1, FALSE},
        {1, 93100, 10, k_fInfinity, FALSE}, {1, 4294967295u, 10, 1, TRUE}};
    for (const auto& c : cases) {
        CProxy_ChartOL chart;
        tagmyMinuteData data{c.nKey, c.nTime, 0, 0, 0, c.fPrice, c.fVolume, 0, 0};
        EXPECT_EQ(c.nWant, chart.SetData(data)) << c.nTime << ' ' << c.fPrice << ' ' << c.fVolume;
    }
    CProxy_ChartOL chart;
    tagStockItem item{};
    tagJueShaMinuteData ignored{};
    EXPECT_TRUE(chart.Init(item) && chart.SetJueShaData(ignored) && chart.Play() && chart.Stop());
}

TEST(HistogramData, Refusals) {
    CProxy_HistogramCtrl histogram;
    for (tagHistogramData bad : {tagHistogramData{0, 1, 1},
                                 {1, 0, 1},
                                 {-1, 1, 1},
                                 {1, -1, 1},
                                 {k_dNaN, 1, 1},
                                 {1, k_dNaN, 1},
                                 {k_dInfinity, 1, 1},
                                 {1, k_dInfinity, 1}})
        EXPECT_EQ(FALSE, histogram.SetData(bad));
    EXPECT_EQ(FALSE, histogram.SetIndex(1)) << "nothing was stored";
    for (int i = 0; i <= 20; ++i) {
        tagHistogramData bar{20.5 - i / 2.0, 1, i};
        EXPECT_EQ(i < 20, histogram.SetData(bar));
    }
}

TEST(PriceRadarData, Refusals) {
    const struct {
        double dValue;
        int nIndex, nWant;
    } cases[] = {{1, 0, TRUE},  {1, 7, TRUE},   {1, 8, FALSE},      {1, -1, FALSE},
                 {0, 0, FALSE}, {-1, 0, FALSE}, {k_dNaN, 0, FALSE}, {k_dInfinity, 0, FALSE}};
    CProxy_PriceRadarCtrl radar;
    for (const auto& c : cases)
        EXPECT_EQ(c.nWant, radar.SetData({c.dValue, 1, 0, c.nIndex, 0})) << c.dValue << ' ' << c.nIndex;
}

namespace {
std::string CodeOf(int nStock) { return std::to_string(100000 + nStock); }
tagmyStarData Star(int nCode, unsigned dwCheckB = 1, float fCheckA = 0, float fCheckC = 0) {
    tagmyStarData data{};
    CopyText(data.szCode, CodeOf(nCode).c_str());
    data.dwCheckB = dwCheckB, data.fCheckA = fCheckA, data.fCheckC = fCheckC;
    return data;
}
tagPointRadarItemData Point(int nCode) {
    tagPointRadarItemData data{};
    CopyText(data.szCode, CodeOf(nCode / 2).c_str());
    data.cMarket = static_cast<char>(nCode % 2);
    data.dX = k_dNaN, data.dY = k_dInfinity;  // any values are taken
    return data;
}

template <class Chart, class Make>
void ExpectToHold(int nStocks, Make make) {
    Chart chart;
    for (int i = 0; i < nStocks; ++i) ASSERT_EQ(TRUE, chart.SetData(make(i))) << i;
    EXPECT_EQ(FALSE, chart.SetData(make(nStocks)));
    EXPECT_EQ(FALSE, chart.SetData(make(5))) << "a held one as well";
    EXPECT_EQ(TRUE, chart.Init());
    for (int i = 0; i < 4000; ++i) ASSERT_EQ(TRUE, chart.SetData(make(7))) << "one stock, one point";
    EXPECT_EQ(TRUE, chart.Play());
}
}  // namespace

TEST(ScatterData, Refusals) {
    ExpectToHold<CProxy_RoePointCtrl>(3000, Point);
    ExpectToHold<CProxy_PointRadarCtrl>(3000, Point);
    ExpectToHold<CProxy_PointStartCtrl>(3001, [](int nCode) { return Star(nCode); });
    CProxy_PointStartCtrl chart;
    for (const tagmyStarData& bad :
         {Star(0, 0), Star(0, 1, -0.1f), Star(0, 1, 0, -0.1f), Star(0, 1, k_fNaN), Star(0, 1, 0, k_fNaN)})
        EXPECT_EQ(FALSE, chart.SetData(bad));
}
