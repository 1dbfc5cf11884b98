// What the price radar shows.
#include <gtest/gtest.h>

#include <climits>

#include "pie/price_radar_model.h"
#include "scenes/dice.h"

namespace {
using Item = tagPriceRadarItemData;
using Model = PriceRadarModel;
using PriceWindow = ChartWindow<CProxy_PriceRadarCtrl>;
constexpr int k_nDate = 20140102;
const std::vector<Item> k_items{{60, 1, 0, 0, k_nDate}, {20, 2, 0, 0, k_nDate}, {20, 1, 1, 0, k_nDate}};

void ExpectShown(PriceWindow& window, const Model& model) {
    EXPECT_EQ(CPoint(-1, -1), window.Take().FirstDifference(model.Picture()));
}

void ExpectPicture(const Model& model) {
    PriceWindow window(model.size.cx, model.size.cy);
    model.ApplyTo(window.chart);
    ExpectShown(window, model);
    EXPECT_EQ(window.Seen(), window.TakeWhole());
}

Model AnyModel(scenes::Dice& dice) {
    Model m{};
    m.size.cx = dice.Between(1, dice.Of({9, 60, 500})), m.size.cy = dice.Between(1, dice.Of({9, 60, 300}));
    m.nSelectId = dice.Between(1, 6), m.nTitleFont = dice.Between(-30, 30);
    m.nTitleHeight = dice.Between(-60, 60), m.nLabelHeight = dice.Between(-60, 80);
    for (COLORREF& clr : m.clr) clr = dice.Colour();
    for (int i = dice.Between(0, 90), nMost = dice.Of({1, 40, 999999}); i > 0; --i)
        m.items.push_back({dice.Between(1, nMost) / 8.0, dice.Between(-1, 9), dice.Between(-1, 1),
                           dice.Between(0, dice.Of({1, 7})), dice.Between(-30000000, 30000000)});
    return m;
}
}  // namespace

TEST(PriceRadarPicture, FollowsItsDescription) {
    const struct {
        const char* pszName;
        Model model;
    } cases[] = {
        {"only below: no date; the ring crosses the net", {{800, 260}, {{5, 1, -1, 3, 0}, {6, 2, 2, 3, 0}}}},
        {"0.005 radians are too thin to be selected, 0.0126 are not",
         {.items = {{0.795775, 1, 0, 0, 0}, {2, 1, 0, 0, 0}, {997.204225, 2, 0, 0, 0}}, .nSelectId = 1}},
        {"date on the pie", {.size{496, 40}, .items = k_items, .nTitleHeight = 20, .nLabelHeight = -20}},
        {"days of the month", {.items = {{1, 1, 0, 0, 7}, {1, 1, 0, 2, INT_MIN}, {1, 1, 0, 7, INT_MAX}}}},
        {"many", {{800, 200}, std::vector<Item>(1500, {1, 1, 0, 0, k_nDate})}},
        {"a pie of no radius", {.items = {{1000, 1, 0, 0, k_nDate}, {1, 2, 1, 0, k_nDate}}}},
        {"labels as high as half of it", {.size{400, 61}, .items = k_items}},
        {"long title", {.size{800, 90}, .items{}, .nTitleFont = 8, .strTitle = std::string(400, 'i')}},
        {"highest title", {.items = k_items, .nTitleHeight = INT_MAX, .nTitleFont = INT_MAX}},
        {"lowest title", {.items = k_items, .nTitleHeight = INT_MIN, .nTitleFont = INT_MIN}},
        {"lowest labels", {.items = k_items, .nLabelHeight = INT_MIN}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pszName);
        ExpectPicture(c.model);
    }
    for (unsigned nSeed = 1; nSeed <= 60; ++nSeed) {
        SCOPED_TRACE(nSeed);
        scenes::Dice dice(nSeed);
        ExpectPicture(AnyModel(dice));
    }
}

TEST(PriceRadar, ItemsGatherUntilInitWhichKeepsTheSettings) {
    scenes::Dice dice(7);
    Model model{.items = k_items, .nSelectId = 1, .nTitleHeight = 20, .nLabelHeight = 25, .nTitleFont = 9};
    for (COLORREF& clr : model.clr) clr = dice.Colour();
    PriceWindow window(400, 300);
    model.ApplyTo(window.chart);
    window.chart.SetSelectId(-1);
    ExpectShown(window, model);
    model.items.push_back({40, 5, 0, 7, k_nDate});
    EXPECT_TRUE(window.chart.SetData(model.items.back()));
    ::InvalidateRect(window.Handle(), CRect(0, 0, 1, 1), TRUE);  // shows all of it all the same
    ExpectShown(window, model);
    window.chart.Init();
    model.items.clear();
    ExpectShown(window, model);
    model.items = k_items, model.nSelectId = -1;
    for (const Item& item : k_items) window.chart.SetData(item);
    window.Resize(500, 280);
    model.size = {500, 280};
    ExpectShown(window, model);
}
