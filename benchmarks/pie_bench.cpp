// The money-flow pies, the price radar and an anti-aliased outline, at 800 x 600.
#include <benchmark/benchmark.h>
#include <tavlon/tavlon.h>

#include <cstdio>
#include <random>

#include "pie/wu_canvas.h"

namespace {
constexpr int k_cx = 800, k_cy = 600, k_nPieItems = 60, k_nColumns = 8, k_nColumnItems = 12;

double RandomAmount(std::mt19937& random) { return 1 + static_cast<int>(random() % 100000) / 8.0; }

void Feed(CProxy_PieChartCtrl& pies) {
    std::mt19937 random(20180921);
    for (int i = 0; i < k_nPieItems; ++i) {
        tagPieChartData item{};
        item.dValue = RandomAmount(random);
        std::snprintf(item.szName, sizeof item.szName, "行业%d", i);
        item.nId = i / 2, item.nType = i % 2;
        pies.SetData(item);
    }
    pies.Play();
}

void Feed(CProxy_PriceRadarCtrl& radar) {
    std::mt19937 random(20180921);
    for (int nColumn = 0; nColumn < k_nColumns; ++nColumn)
        for (int i = 0; i < k_nColumnItems; ++i)
            radar.SetData({RandomAmount(random), i / 2, i % 2, nColumn, 20180921 - nColumn});
}

void Select(CProxy_PieChartCtrl& pies, int nId) { pies.SelectPieById(nId); }
void Select(CProxy_PriceRadarCtrl& radar, int nId) { radar.SetSelectId(nId); }

/// A control with its items, painted once.
template <class Chart>
class Scene {
public:
    Scene() {
        m_host.CreateEx(0, AfxRegisterWndClass(0), "bench", WS_POPUP | WS_VISIBLE, 0, 0, k_cx, k_cy, nullptr,
                        nullptr);
        m_chart.Create(&m_host, CRect(0, 0, k_cx, k_cy), 1);
        m_hWnd = ::GetDlgItem(m_host, 1);
        Feed(m_chart);
        Paint();
        Select(m_chart, 3);
        Paint();
    }
    void Paint() { ::UpdateWindow(m_hWnd); }
    void Repaint() {
        ::InvalidateRect(m_hWnd, nullptr, TRUE);
        Paint();
    }

private:
    CWnd m_host;
    Chart m_chart;
    HWND m_hWnd = nullptr;
};

template <class Chart>
void FullRepaint(benchmark::State& state) {
    Scene<Chart> scene;
    for (auto _ : state) scene.Repaint();
}

/// An off-screen frame, as a paint has it.
class Frame {
public:
    Frame() {
        dc.CreateCompatibleDC(&m_dcScreen);
        m_bitmap.CreateCompatibleBitmap(&m_dcScreen, k_cx, k_cy);
        m_pOld = dc.SelectObject(&m_bitmap);
    }
    ~Frame() { dc.SelectObject(m_pOld); }
    void Show() { m_dcScreen.BitBlt(0, 0, k_cx, k_cy, &dc, 0, 0, SRCCOPY); }

    CDC dc;

private:
    CClientDC m_dcScreen{nullptr};
    CBitmap m_bitmap;
    CBitmap* m_pOld;
};

/// Of a radius of 145, the larger that fits into half the window; pixels copied out and put back.
void Outline(benchmark::State& state) {
    Frame frame;
    const CRect rc(255, 5, 545, 295), rcCanvas(254, 4, 547, 297);
    for (auto _ : state) {
        WuCanvas canvas(frame.dc, rcCanvas);
        DrawWuEllipse(canvas, rc.left, rc.top, rc.right, rc.bottom, RGB(200, 200, 200));
    }
}

void CopyOfOneFrame(benchmark::State& state) {
    Frame frame;
    for (auto _ : state) frame.Show();
}
}  // namespace

BENCHMARK(FullRepaint<CProxy_PieChartCtrl>)->Name("Pies/FullRepaint")->Unit(benchmark::kMicrosecond);
BENCHMARK(FullRepaint<CProxy_PriceRadarCtrl>)->Name("PriceRadar/FullRepaint")->Unit(benchmark::kMicrosecond);
BENCHMARK(Outline)->Name("Pies/Outline")->Unit(benchmark::kMicrosecond);
BENCHMARK(CopyOfOneFrame)->Name("Pies/CopyOfOneFrame")->Unit(benchmark::kMicrosecond);
