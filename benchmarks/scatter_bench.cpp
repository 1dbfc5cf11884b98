// The scatter charts with as many points as they take, at 800 x 600.
#include <benchmark/benchmark.h>
#include <tavlon/tavlon.h>

#include <cstdio>
#include <random>
#include <type_traits>
#include <vector>

namespace {
constexpr int k_cx = 800, k_cy = 600, k_nPoints = 3000;

tagPointRadarItemData RandomPoint(std::mt19937& random, int i) {
    tagPointRadarItemData item{};
    item.cMarket = static_cast<char>(i % 2);
    std::snprintf(item.szCode, sizeof item.szCode, "%06d", i);
    std::snprintf(item.szName, sizeof item.szName, "股票%d", i);
    item.dX = static_cast<int>(random() % 10000) / 100.0;
    item.dY = static_cast<int>(random() % 2000) / 100.0 - 10;
    item.nBlockId = static_cast<int>(random() % 60);
    return item;
}

tagmyStarData RandomStar(std::mt19937& random, int i) {
    const tagPointRadarItemData point = RandomPoint(random, i);
    tagmyStarData star{};
    star.cMarket = point.cMarket;
    std::snprintf(star.szCode, sizeof star.szCode, "%s", point.szCode);
    std::snprintf(star.szName, sizeof star.szName, "股票%d", i);
    star.dwCheckB = 1;
    star.fEnergy = static_cast<float>(point.dX), star.fNetBuy = static_cast<float>(point.dY * 1e4);
    star.fSignValue = static_cast<float>(point.dY);
    return star;
}

template <class Chart>
auto RandomRecords() {
    std::mt19937 random(20180921);
    if constexpr (std::is_same_v<Chart, CProxy_PointStartCtrl>) {
        std::vector<tagmyStarData> stars;
        for (int i = 0; i < k_nPoints; ++i) stars.push_back(RandomStar(random, i));
        return stars;
    } else {
        std::vector<tagPointRadarItemData> points;
        for (int i = 0; i < k_nPoints; ++i) points.push_back(RandomPoint(random, i));
        return points;
    }
}

/// A full chart, painted once.
template <class Chart>
class Scene {
public:
    Scene() {
        m_host.CreateEx(0, AfxRegisterWndClass(0), "bench", WS_POPUP | WS_VISIBLE, 0, 0, k_cx, k_cy, nullptr,
                        nullptr);
        m_chart.Create(&m_host, CRect(0, 0, k_cx, k_cy), 1);
        m_hWnd = ::GetDlgItem(m_host, 1);
        for (const auto& record : RandomRecords<Chart>()) m_chart.SetData(record);
        if constexpr (requires { m_chart.ActiveBlockByInfo(7, ""); })
            m_chart.ActiveBlockByInfo(7, "生物制药");
        m_chart.Play();
        Paint();
    }
    void Send(UINT nMessage, WPARAM wParam, int x, int y) {
        ::SendMessage(m_hWnd, nMessage, wParam, MAKELPARAM(x, y));
    }
    void Paint() { ::UpdateWindow(m_hWnd); }

    /// Pixels that wait to be repainted.
    int Invalid() {
        CRgn rgn;
        rgn.CreateRectRgn(0, 0, 0, 0);
        ::GetUpdateRgn(m_hWnd, rgn, FALSE);
        int nPixels = 0;
        for (int y = 0; y < k_cy; ++y)
            for (int x = 0; x < k_cx; ++x) nPixels += rgn.PtInRegion(CPoint(x, y)) != FALSE;
        return nPixels;
    }

private:
    CWnd m_host;
    Chart m_chart;
    HWND m_hWnd = nullptr;
};

/// A mouse that wanders over the plot.
class Wanderer {
public:
    CPoint Next() {
        m_pt.x = m_pt.x < 700 ? m_pt.x + 13 : 130;
        m_pt.y = m_pt.y < 500 ? m_pt.y + 7 : 140;
        return m_pt;
    }

private:
    CPoint m_pt{130, 140};
};

template <class Chart>
void FullRepaint(benchmark::State& state) {
    Scene<Chart> scene;
    for (auto _ : state) {
        scene.Send(WM_SIZE, SIZE_RESTORED, k_cx, k_cy);  // every layer anew
        scene.Paint();
    }
}

/// Pixels: how many a move repaints, on the average.
template <class Chart>
void HoverMove(benchmark::State& state) {
    Scene<Chart> scene;
    Wanderer mouse;
    const auto move = [&] {
        const CPoint pt = mouse.Next();
        scene.Send(WM_MOUSEMOVE, 0, pt.x, pt.y);
    };
    constexpr int k_nCounted = 20;
    double dPixels = 0;
    for (int i = 0; i < k_nCounted; ++i) {
        move();
        dPixels += scene.Invalid();
        scene.Paint();
    }
    for (auto _ : state) {
        move();
        scene.Paint();
    }
    state.counters["Pixels"] = dPixels / k_nCounted;
}

/// The hand moves a zoomed view: every point is drawn anew.
template <class Chart>
void DragMove(benchmark::State& state) {
    Scene<Chart> scene;
    scene.Send(WM_LBUTTONDOWN, MK_LBUTTON, 200, 200);
    scene.Send(WM_LBUTTONUP, 0, 600, 450);
    scene.Send(WM_COMMAND, 102, 0, 0);
    scene.Send(WM_LBUTTONDOWN, MK_LBUTTON, 400, 300);
    Wanderer mouse;
    for (auto _ : state) {
        const CPoint pt = mouse.Next();
        scene.Send(WM_MOUSEMOVE, MK_LBUTTON, pt.x, pt.y);
        scene.Paint();
    }
}

void BandMove(benchmark::State& state) {
    Scene<CProxy_RoePointCtrl> scene;
    scene.Send(WM_LBUTTONDOWN, MK_LBUTTON, 200, 200);
    scene.Paint();
    Wanderer mouse;
    for (auto _ : state) {
        const CPoint pt = mouse.Next();
        scene.Send(WM_MOUSEMOVE, MK_LBUTTON, pt.x, pt.y);
    }
}

void LoadPoints(benchmark::State& state) {
    const auto records = RandomRecords<CRoePointCtrl>();
    for (auto _ : state) {
        CRoePointCtrl radar;
        for (const tagPointRadarItemData& record : records) radar.SetData(record);
        benchmark::DoNotOptimize(&radar);
    }
}

template <class Chart>
void Register(const std::string& strChart) {
    const auto add = [&](const char* pszName, void (*pfn)(benchmark::State&)) {
        benchmark::RegisterBenchmark((strChart + pszName).c_str(), pfn)->Unit(benchmark::kMicrosecond);
    };
    add("/FullRepaint", FullRepaint<Chart>);
    add("/HoverMove", HoverMove<Chart>);
    add("/DragMove", DragMove<Chart>);
}

const bool s_bRegistered = [] {
    Register<CProxy_RoePointCtrl>("ValueRadar");
    Register<CProxy_PointRadarCtrl>("PointRadar");
    Register<CProxy_PointStartCtrl>("StarChart");
    return true;
}();
}  // namespace

BENCHMARK(BandMove)->Name("ValueRadar/BandMove")->Unit(benchmark::kMicrosecond);
BENCHMARK(LoadPoints)->Name("ValueRadar/Load3000")->Unit(benchmark::kMicrosecond);
