// Which of 3000 points the mouse is on: with the index, without it, and what making it costs.
#include <benchmark/benchmark.h>

#include <cstddef>
#include <random>
#include <vector>

#include "scatter/core/hit_grid.h"
#include "scatter/core/scatter_layout.h"

namespace {
constexpr int k_nPoints = 3000, k_nMice = 1024;
const CRect k_rcPlot(125, 104, 725, 508);  // of an 800 x 600 radar

std::vector<CPoint> RandomPlaces(int nCount, unsigned nSeed) {
    std::mt19937 random(nSeed);
    std::vector<CPoint> places;
    for (int i = 0; i < nCount; ++i) {
        const int x = static_cast<int>(random() % 600u), y = static_cast<int>(random() % 404u);
        places.emplace_back(k_rcPlot.left + x, k_rcPlot.top + y);
    }
    return places;
}

void Fill(HitGrid& grid, const std::vector<CPoint>& points) {
    grid.Start(k_rcPlot, static_cast<int>(points.size()));
    for (const CPoint& pt : points) grid.Add(pt);
}

int LinearFind(const std::vector<CPoint>& points, CPoint ptMouse) {
    for (std::size_t i = points.size(); i-- > 0;)
        if (IsOnPoint(ptMouse.x, points[i].x) && IsOnPoint(ptMouse.y, points[i].y))
            return static_cast<int>(i);
    return -1;
}

/// Asks about one place after the other.
template <class Find>
void AskAround(benchmark::State& state, Find find) {
    const std::vector<CPoint> mice = RandomPlaces(k_nMice, 7);
    std::size_t i = 0;
    for (auto _ : state) benchmark::DoNotOptimize(find(mice[i++ % mice.size()]));
}

void FindIndexed(benchmark::State& state) {
    HitGrid grid;
    Fill(grid, RandomPlaces(k_nPoints, 1));
    AskAround(state, [&](CPoint pt) { return grid.Find(pt, HitOrder::LastWins); });
}

void FindLinear(benchmark::State& state) {
    const std::vector<CPoint> points = RandomPlaces(k_nPoints, 1);
    AskAround(state, [&](CPoint pt) { return LinearFind(points, pt); });
}

void Rebuild(benchmark::State& state) {
    const std::vector<CPoint> points = RandomPlaces(k_nPoints, 1);
    HitGrid grid;
    for (auto _ : state) {
        Fill(grid, points);
        benchmark::DoNotOptimize(&grid);
        benchmark::ClobberMemory();
    }
}
}  // namespace

BENCHMARK(FindIndexed)->Name("HitGrid/Find");
BENCHMARK(FindLinear)->Name("HitGrid/LinearSearch");
BENCHMARK(Rebuild)->Name("HitGrid/Rebuild3000");
