// What a click hits, pixel by pixel.
#include <gtest/gtest.h>

#include <deque>

#include "pie/pie_region.h"
#include "pie/pie_window.h"

namespace {

struct ItemSet {
    const char* pszName;
    CSize size;
    std::vector<tagPieChartData> items;
};

std::vector<tagPieChartData> ManyItems() {
    std::vector<tagPieChartData> items;
    for (int i = 0; i < 60; ++i) items.push_back(Item(1 + i * i % 7, i, i % 3 ? 0 : 1));
    return items;
}

const ItemSet k_sets[] = {
    {"more and less than half", {120, 150}, {Item(30, 1, 0), Item(10, 2, 0), Item(7, 3, 1), Item(23, 4, 1)}},
    {"halves", {121, 151}, {Item(20, 1, 0), Item(20, 2, 0), Item(5, 3, 1), Item(10, 4, 1), Item(15, 5, 1)}},
    {"halves from odd angles", {120, 150}, {Item(17, 1, 0), Item(60, 2, 0), Item(43, 3, 0), Item(100, 4, 1)}},
    {"whole discs", {110, 140}, {Item(40, 1, 0), Item(39, 2, 7)}},
    {"nothing and hardly anything",
     {120, 150},
     {Item(0, 1, 0), Item(0.1, 2, 0), Item(80, 3, 0), Item(60, 4, 1), Item(0, 5, 1)}},
    {"close to a half",
     {120, 150},
     {Item(49.98, 1, 0), Item(50.02, 2, 0), Item(50.2, 3, 1), Item(49.8, 4, 1)}},
    {"close to the whole",
     {120, 150},
     {Item(0.16, 1, 0), Item(99.84, 2, 0), Item(99.99, 3, 1), Item(0.01, 4, 1)}},
    {"sixty", {120, 150}, ManyItems()},
    {"tiny", {5, 7}, {Item(30, 1, 0), Item(10, 2, 0), Item(7, 3, 1), Item(23, 4, 1)}},
    {"a pie without a pixel", {60, 80}, {Item(1000, 1, 0), Item(500, 2, 0), Item(1, 3, 1), Item(2, 4, 1)}},
};

/// Well inside the disc and away from the cuts: by the angle alone.
bool IsClearlyIn(const PieModel::Slice& slice, CPoint pt) {
    const double x = pt.x + 0.5 - slice.ptCorner.x - slice.r, y = pt.y + 0.5 - slice.ptCorner.y - slice.r;
    const double dReach = std::hypot(x, y), dAngle = std::fmod(std::atan2(x, -y) + k_dTurn, k_dTurn);
    const double dMargin = 2.5 / dReach;
    return dReach < slice.r - 3 && dAngle > slice.s + dMargin && dAngle < slice.e - dMargin;
}

TEST(PieRegion, EveryPixelOfEverySlice) {
    for (const ItemSet& set : k_sets) {
        SCOPED_TRACE(set.pszName);
        int nWrong = 0, nClear = 0, nClearlyWrong = 0;
        for (const PieModel::Slice& slice : PieModel{set.size, set.items}.Slices()) {
            const SliceArea area(slice.ptCorner, slice.r, slice.s, slice.e);
            CRgn rgn;
            const bool bMade = GetPieRgn({slice.ptCorner, slice.r}, {slice.s, slice.e}, rgn);
            for (int y = 0; y < set.size.cy; ++y)
                for (int x = 0; x < set.size.cx; ++x) {
                    const bool bHit = bMade && rgn.PtInRegion(x, y);
                    nWrong += bHit != area.Has(x, y);
                    if (IsClearlyIn(slice, {x, y})) ++nClear, nClearlyWrong += !bHit;
                }
        }
        EXPECT_EQ(0, nWrong);
        EXPECT_EQ(0, nClearlyWrong) << "of " << nClear;
    }
}

/// The picture tells which id a click selected.
TEST(PieRegion, ClicksSelectWhatTheyHit) {
    for (const ItemSet& set : k_sets) {
        SCOPED_TRACE(set.pszName);
        PieModel model{set.size, set.items};
        PieWindow window(set.size);
        window.Show(set.items);
        std::deque<SliceArea> areas;
        for (const PieModel::Slice& slice : model.Slices())
            areas.emplace_back(slice.ptCorner, slice.r, slice.s, slice.e);
        const int nStep = set.size.cx < 10 ? 2 : 11;
        for (int y = 0; y < set.size.cy; ++y)
            for (int x = 0; x < set.size.cx; ++x) {
                std::vector<int> hit;
                for (std::size_t i = 0; i < areas.size(); ++i)
                    if (areas[i].Has(x, y)) hit.push_back(set.items[i].nId);
                if (hit.size() < 2 && (x % nStep || y % nStep))
                    continue;  // some, and all where slices overlap
                window.Press({x, y});
                EXPECT_EQ(hit.empty(), PieWindow::Tip() == nullptr) << x << "," << y;
                if (!hit.empty()) model.nSelected = hit.back(), ::ReleaseCapture();
                if ((x + y) % 3 == 0) window.ExpectShows(model);
            }
    }
}

}  // namespace
