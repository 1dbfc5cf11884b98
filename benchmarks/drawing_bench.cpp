// Drawing calls on a memory context of 800 x 600: a few hundred of one sort a round, the same ones in every
// run.
#include <benchmark/benchmark.h>
#include <windows.h>

#include <array>
#include <random>
#include <vector>

namespace {
constexpr int k_cx = 800, k_cy = 600, k_nCalls = 300;

/// A bitmap in a context of its own, with a pen and a brush of some colour.
class Canvas {
public:
    explicit Canvas(int cx = k_cx, int cy = k_cy, int nPen = 1) : hdc(CreateCompatibleDC(nullptr)) {
        const HDC hdcScreen = GetDC(nullptr);
        m_owned = {CreateCompatibleBitmap(hdcScreen, cx, cy), CreatePen(PS_SOLID, nPen, RGB(200, 20, 20)),
                   CreateSolidBrush(RGB(10, 120, 90)),
                   CreateFontA(12, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, PROOF_QUALITY, 0,
                               "HelveticaNeueLT Pro 55 Roman")};
        ReleaseDC(nullptr, hdcScreen);
        for (const HGDIOBJ object : m_owned) SelectObject(hdc, object);
    }
    ~Canvas() {
        DeleteDC(hdc);
        for (const HGDIOBJ object : m_owned) DeleteObject(object);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    HDC hdc;

private:
    std::array<HGDIOBJ, 4> m_owned{};
};

/// Where something is drawn: a box somewhere on the canvas, not larger than 120 x 90.
std::vector<RECT> Boxes() {
    std::mt19937 random(7);
    const auto below = [&random](unsigned n) { return static_cast<int>(random() % n); };
    std::vector<RECT> boxes(k_nCalls);
    for (RECT& rc : boxes) {
        const int x = below(k_cx) - 40, y = below(k_cy) - 40, cx = 1 + below(120), cy = 1 + below(90);
        rc = {x, y, x + cx, y + cy};
    }
    return boxes;
}

using Draw = void (*)(HDC, const RECT&);

void Rounds(benchmark::State& state, Draw draw, int nPen) {
    const Canvas canvas(k_cx, k_cy, nPen);
    const std::vector<RECT> boxes = Boxes();
    for (auto _ : state)
        for (const RECT& rc : boxes) draw(canvas.hdc, rc);
    state.SetItemsProcessed(state.iterations() * k_nCalls);
}

void Line(HDC hdc, const RECT& rc) {
    MoveToEx(hdc, rc.left, rc.top, nullptr);
    LineTo(hdc, rc.right, rc.bottom);
}
void FilledEllipse(HDC hdc, const RECT& rc) { Ellipse(hdc, rc.left, rc.top, rc.right, rc.bottom); }
void FilledRectangle(HDC hdc, const RECT& rc) { Rectangle(hdc, rc.left, rc.top, rc.right, rc.bottom); }
void FullArc(HDC hdc, const RECT& rc) {
    const int x = (rc.left + rc.right) / 2;
    Arc(hdc, rc.left, rc.top, rc.right, rc.bottom, x, rc.top, x, rc.top);
}
void Slice(HDC hdc, const RECT& rc) {
    Pie(hdc, rc.left, rc.top, rc.right, rc.bottom, rc.right, rc.top, rc.left, rc.bottom);
}
std::array<POINT, 5> Corners(const RECT& rc) {
    return {POINT{rc.left, rc.top},
            {rc.right, rc.bottom},
            {(rc.left + rc.right) / 2, rc.top},
            {rc.left, rc.bottom},
            {rc.right, (rc.top + rc.bottom) / 2}};
}
void Star(HDC hdc, const RECT& rc) { Polygon(hdc, Corners(rc).data(), 5); }
void FilledRegion(HDC hdc, const RECT& rc) {
    const HRGN rgn = CreatePolygonRgn(Corners(rc).data(), 5, ALTERNATE),
               ellipse = CreateEllipticRgnIndirect(&rc);
    CombineRgn(rgn, rgn, ellipse, RGN_XOR);
    FillRgn(hdc, rgn, static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH)));
    DeleteObject(rgn);
    DeleteObject(ellipse);
}
void Label(HDC hdc, const RECT& rc) { TextOutA(hdc, rc.left, rc.top, "600000 12.5%", 12); }
void FittedLabel(HDC hdc, const RECT& rc) {
    RECT box = rc;
    DrawTextA(hdc, "600000 12.5%", -1, &box, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
}

void Blits(benchmark::State& state, DWORD nOperation) {
    const Canvas canvas, source(120, 90);
    const std::vector<RECT> boxes = Boxes();
    for (auto _ : state)
        for (const RECT& rc : boxes)
            BitBlt(canvas.hdc, rc.left, rc.top, rc.right - rc.left, rc.bottom - rc.top, source.hdc, 0, 0,
                   nOperation);
    state.SetItemsProcessed(state.iterations() * k_nCalls);
}

void Sprites(benchmark::State& state) {
    const Canvas canvas, sprite(16, 16);
    FilledEllipse(sprite.hdc, {3, 3, 13, 13});
    const std::vector<RECT> boxes = Boxes();
    for (auto _ : state)
        for (const RECT& rc : boxes)
            TransparentBlt(canvas.hdc, rc.left, rc.top, 16, 16, sprite.hdc, 0, 0, 16, 16, RGB(0, 0, 0));
    state.SetItemsProcessed(state.iterations() * k_nCalls);
}

BENCHMARK_CAPTURE(Rounds, Line, Line, 1)->Name("Drawing/ThinLine");
BENCHMARK_CAPTURE(Rounds, WideLine, Line, 3)->Name("Drawing/WideLine");
BENCHMARK_CAPTURE(Rounds, Rectangle, FilledRectangle, 1)->Name("Drawing/Rectangle");
BENCHMARK_CAPTURE(Rounds, Ellipse, FilledEllipse, 1)->Name("Drawing/Ellipse");
BENCHMARK_CAPTURE(Rounds, WideEllipse, FilledEllipse, 3)->Name("Drawing/WideEllipse");
BENCHMARK_CAPTURE(Rounds, Arc, FullArc, 1)->Name("Drawing/FullArc");
BENCHMARK_CAPTURE(Rounds, Pie, Slice, 1)->Name("Drawing/Pie");
BENCHMARK_CAPTURE(Rounds, Polygon, Star, 1)->Name("Drawing/Polygon");
BENCHMARK_CAPTURE(Rounds, Region, FilledRegion, 1)->Name("Drawing/Region");
BENCHMARK_CAPTURE(Rounds, TextOut, Label, 1)->Name("Drawing/TextOut");
BENCHMARK_CAPTURE(Rounds, DrawText, FittedLabel, 1)->Name("Drawing/DrawText");
BENCHMARK_CAPTURE(Blits, Copy, SRCCOPY)->Name("Drawing/Copy");
BENCHMARK_CAPTURE(Blits, Xor, SRCINVERT)->Name("Drawing/Xor");
BENCHMARK(Sprites)->Name("Drawing/TransparentBlt");
}  // namespace
