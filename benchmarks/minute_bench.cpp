// The minute chart with a whole day, at 800 x 600.
#include <benchmark/benchmark.h>
#include <tavlon/tavlon.h>

#include <random>

namespace {
constexpr int k_cx = 800, k_cy = 600;

tagmyMinuteData MinuteOf(std::mt19937& random, int nMinute, tagmyMinuteData before) {
    const int nClock = nMinute < 120 ? 9 * 60 + 31 + nMinute : 13 * 60 + 1 + nMinute - 120;
    before.nTime = static_cast<unsigned>(nClock / 60 * 10000 + nClock % 60 * 100);
    before.fPrice *= 1 + (static_cast<float>(random() % 41) - 20) / 10000;
    before.fVolume += static_cast<float>(random() % 90000);
    before.fMainNetBuy = random() % 5 == 0 ? static_cast<float>(random() % 900) - 450 : 0;
    return before;
}

/// A chart with every minute of a day, painted once.
class Scene {
public:
    Scene() {
        m_host.CreateEx(0, AfxRegisterWndClass(0), "bench", WS_POPUP | WS_VISIBLE, 0, 0, k_cx, k_cy, nullptr,
                        nullptr);
        m_chart.Create(&m_host, CRect(0, 0, k_cx, k_cy), 1);
        m_hWnd = ::GetDlgItem(m_host, 1);
        tagStockItem stock{0, "600000", "浦发银行", 10, 2};
        m_chart.Init(stock);
        std::mt19937 random(20180921);
        tagmyMinuteData data{};
        data.dwKey = 1, data.fPrice = stock.fPreClose;
        for (int i = 0; i < 240; ++i) {
            data = MinuteOf(random, i, data);
            m_chart.SetData(data);
        }
        m_chart.Play();
        Paint();
    }
    void Paint() { ::UpdateWindow(m_hWnd); }
    /// A minute stored again makes a new picture.
    void Repaint() {
        tagmyMinuteData last{};
        last.dwKey = 1, last.nTime = 150000, last.fPrice = 10, last.fVolume = static_cast<float>(++m_nStored);
        m_chart.SetData(last);
        m_chart.Play();
        Paint();
    }
    void Send(UINT nMessage, int x, int y) { ::SendMessage(m_hWnd, nMessage, 0, MAKELPARAM(x, y)); }
    HWND Handle() const { return m_hWnd; }

private:
    CWnd m_host;
    CProxy_ChartOL m_chart;
    HWND m_hWnd = nullptr;
    int m_nStored = 0;
};

void FullRepaint(benchmark::State& state) {
    Scene scene;
    for (auto _ : state) scene.Repaint();
}

/// Each move goes to another minute.
void CrossHairMove(benchmark::State& state) {
    Scene scene;
    scene.Send(WM_LBUTTONDBLCLK, 400, 200);
    CPoint pt(60, 60);
    for (auto _ : state) {
        pt.x = pt.x < 740 ? pt.x + 13 : 60;
        pt.y = pt.y < 450 ? pt.y + 7 : 60;
        scene.Send(WM_MOUSEMOVE, pt.x, pt.y);
        scene.Paint();
    }
}

/// What every paint ends with.
void CopyOfOneFrame(benchmark::State& state) {
    Scene scene;
    CClientDC dc(CWnd::FromHandle(scene.Handle()));
    CDC dcFrame;
    dcFrame.CreateCompatibleDC(&dc);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&dc, k_cx, k_cy);
    CBitmap* pOld = dcFrame.SelectObject(&bitmap);
    for (auto _ : state) dc.BitBlt(0, 0, k_cx, k_cy, &dcFrame, 0, 0, SRCCOPY);
    dcFrame.SelectObject(pOld);
}
}  // namespace

BENCHMARK(FullRepaint)->Name("MinuteChart/FullRepaint")->Unit(benchmark::kMicrosecond);
BENCHMARK(CrossHairMove)->Name("MinuteChart/CrossHairMove")->Unit(benchmark::kMicrosecond);
BENCHMARK(CopyOfOneFrame)->Name("MinuteChart/CopyOfOneFrame")->Unit(benchmark::kMicrosecond);
