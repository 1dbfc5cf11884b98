// The value radar with as many points as it takes, at 800 x 600.
#include <benchmark/benchmark.h>
#include <tavlon/tavlon.h>

#include <cstdio>
#include <random>
#include <vector>

namespace {
constexpr int k_cx = 800, k_cy = 600, k_nPoints = 3000;

std::vector<tagPointRadarItemData> RandomPoints() {
    std::mt19937 random(20180921);
    std::vector<tagPointRadarItemData> items(k_nPoints);
    for (int i = 0; i < k_nPoints; ++i) {
        tagPointRadarItemData& item = items[static_cast<std::size_t>(i)];
        item.cMarket = static_cast<char>(i % 2);
        std::snprintf(item.szCode, sizeof item.szCode, "%06d", i);
        std::snprintf(item.szName, sizeof item.szName, "股票%d", i);
        item.dX = static_cast<int>(random() % 30000) / 100.0 - 100;
        item.dY = static_cast<int>(random() % 4000) / 100.0 - 10;
        item.nBlockId = static_cast<int>(random() % 60);
    }
    return items;
}

void Load(CRoePointCtrl& radar, const std::vector<tagPointRadarItemData>& items) {
    for (const tagPointRadarItemData& item : items) radar.SetData(item);
}

/// A full radar, painted once.
class RadarScene {
public:
    RadarScene() {
        m_host.CreateEx(0, AfxRegisterWndClass(0), "bench", WS_POPUP | WS_VISIBLE, 0, 0, k_cx, k_cy, nullptr,
                        nullptr);
        radar.Create(&m_host, CRect(0, 0, k_cx, k_cy), 1);
        Load(radar, RandomPoints());
        radar.ActiveBlockByInfo(7, "生物制药");
        radar.Play();
        radar.UpdateWindow();
    }

    CRoePointCtrl radar;

private:
    CWnd m_host;
};

void FullRepaint(benchmark::State& state) {
    RadarScene scene;
    for (auto _ : state) {
        scene.radar.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(k_cx, k_cy));  // every layer anew
        scene.radar.UpdateWindow();
    }
}

void HoverMove(benchmark::State& state) {
    RadarScene scene;
    int x = 130, y = 120;
    for (auto _ : state) {
        x = x < 700 ? x + 13 : 130, y = y < 500 ? y + 7 : 120;
        scene.radar.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(x, y));
        scene.radar.UpdateWindow();
    }
}

void LoadPoints(benchmark::State& state) {
    const std::vector<tagPointRadarItemData> items = RandomPoints();
    for (auto _ : state) {
        CRoePointCtrl radar;
        Load(radar, items);
        benchmark::DoNotOptimize(&radar);
    }
}
}  // namespace

BENCHMARK(FullRepaint)->Name("ValueRadar/FullRepaint")->Unit(benchmark::kMicrosecond);
BENCHMARK(HoverMove)->Name("ValueRadar/HoverMove")->Unit(benchmark::kMicrosecond);
BENCHMARK(LoadPoints)->Name("ValueRadar/Load3000")->Unit(benchmark::kMicrosecond);
