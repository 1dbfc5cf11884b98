// The gauges and the histogram, at 400 x 280.
#include <benchmark/benchmark.h>
#include <tavlon/tavlon.h>

namespace {
constexpr int k_cx = 400, k_cy = 280;

void Feed(CProxy_RiskBarCtrl& bar) {
    bar.SetData(4, 1);
    bar.SetData(2, 2);
}
void Feed(CProxy_PositionBarCtrl& bar) {
    for (int nCamp = 1; nCamp <= 3; ++nCamp) bar.SetData(25 + 25 * nCamp, nCamp);
}
void Feed(CProxy_PrssureSupportCtrl& ladder) {
    for (int nLevel = 1; nLevel <= 5; ++nLevel)
        ladder.SetPriceData(13.5f - static_cast<float>(nLevel), nLevel);
}
void Feed(CProxy_HistogramCtrl& chart) {
    for (int i = 1; i <= 20; ++i) {
        tagHistogramData bar{i * 7 % 20 + 0.5, i * 137.0, i};
        chart.SetData(bar);
    }
    chart.Play();
    chart.SetIndex(7);
}

/// Made when the first gauge needs it.
CWnd& Host() {
    static CWnd host;
    if (!host.m_hWnd)
        host.CreateEx(0, AfxRegisterWndClass(0), "bench", WS_POPUP | WS_VISIBLE, 0, 0, k_cx, k_cy, nullptr,
                      nullptr);
    return host;
}

template <class Gauge>
void FullRepaint(benchmark::State& state) {
    Gauge gauge;
    gauge.Create(&Host(), CRect(0, 0, k_cx, k_cy), 1);
    const HWND hWnd = ::GetDlgItem(Host(), 1);
    Feed(gauge);
    ::UpdateWindow(hWnd);
    for (auto _ : state) {
        ::InvalidateRect(hWnd, nullptr, TRUE);
        ::UpdateWindow(hWnd);
    }
}

void CopyOfOneFrame(benchmark::State& state) {
    CClientDC dcScreen(nullptr);
    CDC dc;
    dc.CreateCompatibleDC(&dcScreen);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&dcScreen, k_cx, k_cy);
    CBitmap* pOld = dc.SelectObject(&bitmap);
    for (auto _ : state) dcScreen.BitBlt(0, 0, k_cx, k_cy, &dc, 0, 0, SRCCOPY);
    dc.SelectObject(pOld);
}
}  // namespace

BENCHMARK(FullRepaint<CProxy_RiskBarCtrl>)->Name("RiskGauge/FullRepaint")->Unit(benchmark::kMicrosecond);
BENCHMARK(FullRepaint<CProxy_PositionBarCtrl>)
    ->Name("PositionBar/FullRepaint")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(FullRepaint<CProxy_PrssureSupportCtrl>)->Name("Ladder/FullRepaint")->Unit(benchmark::kMicrosecond);
BENCHMARK(FullRepaint<CProxy_HistogramCtrl>)->Name("Histogram/FullRepaint")->Unit(benchmark::kMicrosecond);
BENCHMARK(CopyOfOneFrame)->Name("Gauges/CopyOfOneFrame")->Unit(benchmark::kMicrosecond);
