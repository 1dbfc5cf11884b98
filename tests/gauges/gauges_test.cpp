// What the four gauges show, and what they accept.
#include <limits>
#include <numeric>
#include <tuple>

#include "gauge_models.h"
#include "wrappers/host.h"

namespace {
constexpr float k_fNaN = std::numeric_limits<float>::quiet_NaN();

template <class Model>
void ExpectPicture(Model model) {
    ChartWindow<typename Model::Control> window(model.size.cx, model.size.cy);
    model.ApplyTo(window.chart);
    ExpectShown(window, model);
    EXPECT_EQ(window.Seen(), window.TakeWhole());
}

/// Value, number of its arrow or the like, whether taken; after the values 2, 3, 4...
template <class Model, class Value>
void ExpectTaken(std::initializer_list<std::tuple<Value, int, bool>> puts) {
    for (const auto& [value, nWhich, bTaken] : puts) {
        SCOPED_TRACE(std::to_string(value) + " for " + std::to_string(nWhich));
        Model model;
        std::iota(std::begin(model.nValues), std::end(model.nValues), Value{2});
        model.size.cy = 283;
        ChartWindow<typename Model::Control> window(model.size.cx, model.size.cy);
        model.ApplyTo(window.chart);
        Model::Put(window.chart, value, nWhich);
        if (bTaken) model.nValues[nWhich - 1] = value;
        ExpectShown(window, model);
    }
}

template <class Model>
class Gauge : public testing::Test {};
using Models = testing::Types<RiskModel, PositionModel, LadderModel, HistogramModel>;
TYPED_TEST_SUITE(Gauge, Models);
}  // namespace

TYPED_TEST(Gauge, FollowsItsDescription) {
    for (unsigned nSeed = 1; nSeed <= 50; ++nSeed) {
        SCOPED_TRACE(nSeed);
        ExpectPicture(Any<TypeParam>(nSeed));
    }
}

TYPED_TEST(Gauge, AtAnySize) {
    auto model = Any<TypeParam>(3);
    ChartWindow<typename TypeParam::Control> window(0, 0);
    model.ApplyTo(window.chart);
    window.Paint();
    std::vector<CSize> sizes{{999, 37}, {1, 799}, {80, 400}, {81, 81}, {401, 81}, {400, 80}};
    for (int n = 1; n <= 9; ++n) sizes.push_back({n, 10 - n});
    for (const CSize size : sizes) {
        SCOPED_TRACE(testing::Message() << size.cx << " x " << size.cy);
        window.Resize(size.cx, size.cy);
        model.size = size;
        ExpectShown(window, model);
    }
}

TYPED_TEST(Gauge, ShowsItsDefaultsUntilTheHostRepaintsIt) {
    TypeParam usual, model = Any<TypeParam>(4);
    ChartWindow<typename TypeParam::Control> window(400, 280);
    ExpectShown(window, usual);
    model.size = usual.size;
    model.ApplyTo(window.chart);
    if constexpr (!std::is_same_v<TypeParam, HistogramModel>) {
        ExpectShown(window, usual);
        window.chart.ReDraw();
    }
    ExpectShown(window, model);
}

TEST(GaugeTitle, IsCutAtAWholeCharacter) {
    for (const char* pszEnd : {"中", "i中", "iii", "中中中中"}) {
        RiskModel risk;
        PositionModel position;
        risk.strTitle = position.strTitle = CString('i', 61) + pszEnd;
        ExpectPicture(risk), ExpectPicture(position);
    }
}

TEST(GaugeValues, AreTakenInTheirRangesOnly) {
    ExpectTaken<RiskModel, int>({{1, 1, true}, {5, 2, true}, {0, 1, true}, {7, 1, true}, {100, 2, true}});
    ExpectTaken<RiskModel, int>({{101, 1, false}, {-1, 2, false}, {4, 3, false}, {4, 0, false}});
    ExpectTaken<PositionModel, int>({{0, 1, true}, {100, 3, true}, {101, 2, false}, {-1, 2, false}});
    ExpectTaken<PositionModel, int>({{30, 4, false}, {30, 0, false}});
    ExpectTaken<LadderModel, float>({{1000, 3, true}, {12.34f, 5, true}, {0, 4, true}, {1e-40f, 1, true}});
    ExpectTaken<LadderModel, float>({{1000.5f, 1, false}, {-0.01f, 3, false}, {k_fNaN, 2, false}});
    ExpectTaken<LadderModel, float>({{9.9f, 6, false}, {9.9f, 0, false}});
}

TEST(HistogramPicture, BarsAndTheirOrder) {
    const struct {
        const char* pszName;
        HistogramModel model;
    } cases[] = {
        {"three and two labels", {.bars = {{3, 5, 0}, {1, 10, 1}, {2, 2.5, 2}}, .bGrid = false}},
        {"equal ones by exchanges: 1, then the later 2", {.bars = {{2, 100, 0}, {2, 50, 1}, {1, 25, 2}}}},
        {"huge", {.bars = {{1e300, 1e308, 0}, {1e-300, 1e307, 1}}}},
        {"as narrow as it gets", {.size{96, 81}, .bars = std::vector<tagHistogramData>(20, {1, 1, 1})}},
        {"longest titles",
         {.size{900, 280}, .bars{}, .strX = std::string(150, 'i'), .strY = std::string(150, 'j')}},
        {"cut inside a character", {.size{900, 280}, .bars{}, .strX = "a" + std::string(97, 'i') + "中文"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pszName);
        ExpectPicture(c.model);
    }
}

TEST(HistogramPicture, HighlightAndMaximumStay) {
    HistogramModel model{.bars = {{5, 3, 7}, {6, 10, 8}, {7, 2, 8}}};
    ChartWindow<CProxy_HistogramCtrl> window(400, 280);
    model.ApplyTo(window.chart);
    EXPECT_TRUE(window.chart.SetIndex(8));  // the last of that id
    EXPECT_FALSE(window.chart.SetIndex(9));
    model.nSelected = 2;
    ExpectShown(window, model);
    model.bars.push_back({1, 20, 9});  // moves the others, not the highlight
    EXPECT_TRUE(window.chart.SetData(model.bars.back()));
    EXPECT_FALSE(TakeRepaint(window.Handle()));
    ::InvalidateRect(window.Handle(), CRect(0, 0, 1, 1), TRUE);  // shows all of it all the same
    ExpectShown(window, model);
    EXPECT_TRUE(window.chart.Init());
    EXPECT_FALSE(window.chart.SetIndex(8));
    model.bars.clear(), model.dKeptMax = 20, model.nSelected = -1;
    ExpectShown(window, model);
    tagHistogramData bar{4, 4, 4};
    window.chart.SetData(bar);  // is never sorted in
    window.chart.Init();
    window.chart.SetIndex(4);
    ExpectShown(window, model);
    window.chart.Play();  // sorts now, without a bar
    model.dKeptMax = 0;
    ExpectShown(window, model);
}
