// What mouse and commands do to the three scatter charts.
#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "chart_view.h"
#include "user/recorder.h"

namespace {
const std::map<char, UINT> k_messages{
    {'P', WM_LBUTTONDOWN}, {'M', WM_MOUSEMOVE}, {'R', WM_LBUTTONUP}, {'L', WM_MOUSELEAVE}};
const std::map<char, UINT> k_commands{{'Z', k_nEnlarge}, {'D', k_nDrag}, {'A', k_nShowAll}};

/// Events, such as "P100,80 M300,200 D": a press, a move and the command for drag mode. Before each of them
/// the chart is painted.
template <class Chart>
void Do(ChartView<Chart>& view, const char* pszEvents) {
    std::istringstream events(pszEvents);
    char cEvent, cComma;
    while (events >> cEvent) {
        view.Paint();
        if (k_commands.contains(cEvent)) {
            view.Command(k_commands.at(cEvent));
            continue;
        }
        CPoint pt(0, 0);
        if (cEvent != 'L') events >> pt.x >> cComma >> pt.y;
        view.SendAt(k_messages.at(cEvent), pt);
    }
}

enum class State { Idle, Banding, Dragging };
const Ranges k_dragged{{15, 65}, {-4, 6}}, k_again{{37.5, 62.5}, {0, 3}};

struct Look {
    State state;
    Ranges ranges;
    std::optional<CPoint> cross;
    std::optional<CRect> band;
};
Look Idle(int x, int y, const Ranges& ranges = k_zoomed) { return {State::Idle, ranges, CPoint(x, y), {}}; }
Look Banding(std::optional<CRect> band = {}, const Ranges& ranges = k_zoomed) {
    return {State::Banding, ranges, {}, band};
}
Look Dragging(const Ranges& ranges = k_zoomed, std::optional<CRect> band = {}) {
    return {State::Dragging, ranges, {}, band};
}

/// The charts are zoomed first, so that a pixel is 0.125 and 0.025; zoom mode.
struct Row {
    const char *pszName, *pszEvents;
    Look look;
};
const Row k_rows[] = {
    {"idle: the cross-hair follows", "M150,120", Idle(150, 120)},
    {"idle: it stays in the plot rectangle", "M-60,437", Idle(0, 400)},
    {"idle in drag mode: the cross-hair follows", "D M150,120", Idle(150, 120)},
    {"idle: the mouse leaves", "L", Idle(200, 350)},
    {"idle: a release of nothing", "R90,90", Idle(200, 350)},
    {"idle: drag mode", "D", Idle(200, 350)},
    {"idle: show all", "A", Idle(200, 350, Ranges{})},
    {"idle: press", "P100,80", Banding()},
    {"idle, back in zoom mode: press", "D Z P100,80 M300,200", Banding(CRect(101, 81, 300, 200))},
    {"banding: the band follows", "P100,80 M300,200", Banding(CRect(101, 81, 300, 200))},
    {"banding: to the upper left", "P300,200 M350,390 M100,80", Banding(CRect(101, 81, 300, 200))},
    {"banding: beyond the plot rectangle", "P100,80 M440,-90", Banding(CRect(101, 1, 400, 80))},
    {"banding: from the title strip", "P100,-110 M300,50", Banding(CRect(101, 1, 300, 50))},
    {"banding: release zooms", "P100,80 M300,200 R300,200", Idle(300, 200, k_again)},
    {"banding: release at another place", "P300,200 M90,90 R100,80", Idle(90, 90, k_again)},
    {"banding: release zooms within", "P100,-110 M440,120 R440,120", Idle(400, 120, {{37.5, 75}, {2, 5}})},
    {"banding: release where it began", "P100,80 R100,80", Idle(100, 80)},
    {"banding: release in the title strip", "P100,-110 M300,-105 R300,-105", Idle(300, 0)},
    {"banding: release beside the plot", "P410,80 M430,200 R430,200", Idle(400, 200)},
    {"banding: the mouse leaves", "P100,80 M300,200 L", Idle(300, 200)},
    {"banding: drag mode", "P100,80 M300,200 D", Dragging(k_zoomed, CRect(101, 81, 300, 200))},
    {"banding, drag mode: move", "P100,80 M300,200 D M180,120", Dragging(k_dragged)},
    {"banding, drag mode: release", "P100,80 M300,200 D R300,200", Idle(300, 200)},
    {"idle in drag mode: press", "D P100,80", Dragging()},
    {"dragging: the points follow the hand", "D P100,80 M180,120", Dragging(k_dragged)},
    {"dragging: counted from the press", "D P100,80 M390,390 M20,10 M180,120", Dragging(k_dragged)},
    {"dragging: to the lower left end", "D P0,400 M400,0", Dragging({{0, 50}, {-10, 0}})},
    {"dragging: to the upper right end", "D P400,0 M0,400", Dragging({{50, 100}, {0, 10}})},
    {"dragging: press outside", "D P-60,-60 M40,20", Dragging({{20, 70}, {-4.5, 5.5}})},
    {"dragging: move outside", "D P360,100 M440,100", Dragging({{20, 70}, {-5, 5}})},
    {"dragging: release", "D P100,80 M180,120 R180,120", Idle(180, 120, k_dragged)},
    {"dragging: release elsewhere", "D P100,80 M180,120 R390,390", Idle(180, 120, k_dragged)},
    {"dragging: the mouse leaves", "D P100,80 M180,120 L", Idle(180, 120, k_dragged)},
    {"dragging: zoom mode", "D P100,80 M180,120 Z", Banding({}, k_dragged)},
    {"dragging, zoom mode: release", "D P100,80 Z M300,200 R300,200", Idle(300, 200, k_again)},
    {"dragging: show all", "D P100,80 M180,120 A", Dragging(Ranges{})},
};

/// The zoomed picture without cross-hair and band: that of a hand that holds it still.
template <class Chart>
Shot BarePicture() {
    ChartView<Chart> view;
    view.ShowZoomed();
    Do(view, "D P200,350");
    return view.Take();
}

/// What the next move of the mouse tells.
template <class Chart>
State StateOf(ChartView<Chart>& view) {
    const Shot before = view.Take();
    view.MoveTo({333, 222});
    const Shot after = view.Take();
    if (view.CrossIn(after) == CPoint(333, 222)) return State::Idle;
    const CRect& rcShaft = view.Layout().m_rcShaft;
    for (const CRect& rcNumbers : {CRect(0, rcShaft.top, rcShaft.left, rcShaft.bottom),
                                   CRect(0, rcShaft.bottom + 1, after.cx, after.cy)})
        if (before.FirstDifference(after, rcNumbers) != CPoint(-1, -1)) return State::Dragging;
    return State::Banding;
}

template <class Chart>
class ScatterMouse : public testing::Test {};
TYPED_TEST_SUITE(ScatterMouse, ScatterCharts, ChartNames);
}  // namespace

TYPED_TEST(ScatterMouse, FollowsTheTable) {
    const Shot bare = BarePicture<TypeParam>();
    EXPECT_EQ(std::nullopt, ChartView<TypeParam>().CrossIn(bare));
    for (const Row& row : k_rows) {
        SCOPED_TRACE(row.pszName);
        ChartView<TypeParam> view;
        view.ShowZoomed();
        Do(view, row.pszEvents);
        const Look& look = row.look;
        view.ExpectRanges(look.ranges);
        const Shot shot = view.Take();
        EXPECT_EQ(look.cross, view.CrossIn(shot));
        if (look.ranges == k_zoomed) {
            Shot want = look.cross ? view.WithCross(bare, *look.cross) : bare;
            if (look.band) want = view.WithBand(want, *look.band);
            EXPECT_EQ(CPoint(-1, -1), want.FirstDifference(shot, view.Layout().m_rcShaft));
        } else {
            EXPECT_FALSE(view.HasBand(shot));
        }
        EXPECT_EQ(CPoint(-1, -1), shot.FirstDifference(view.TakeWhole())) << "a repaint changes nothing";
        EXPECT_EQ(look.state, StateOf(view));
    }
}

TYPED_TEST(ScatterMouse, PressRepaintsTheOldCrossHairOnly) {
    ChartView<TypeParam> view;
    view.MoveTo({150, 120});
    view.Paint();
    view.Press(view.At(100, 80));
    const CRect& rc = view.Layout().m_rcShaft;
    const CPoint pt = view.At(150, 120);
    EXPECT_TRUE(view.IsJustInvalid(
        {{rc.left, pt.y - 1, rc.right, pt.y + 1}, {pt.x - 1, rc.top, pt.x + 1, rc.bottom}}));
    EXPECT_EQ(nullptr, ::GetCapture());
}

TYPED_TEST(ScatterMouse, BandIsDrawnStraightOnTheWindow) {
    ChartView<TypeParam> view;
    view.Press(view.At(100, 80));
    const Shot bare = view.TakeWhole();
    for (const CPoint pt : {CPoint(300, 200), CPoint(140, 390), CPoint(20, 10)}) {
        view.Drag(view.At(pt));
        EXPECT_FALSE(view.IsInvalid());
        CRect rc(CPoint(100, 80), pt);
        rc.NormalizeRect();
        const Shot want = view.WithBand(bare, CRect(rc.left + 1, rc.top + 1, rc.right, rc.bottom));
        EXPECT_EQ(CPoint(-1, -1), want.FirstDifference(view.Seen(), view.Layout().m_rcShaft));
    }
    const CRect rcPart(view.At(10, 5), view.At(90, 60));
    ::InvalidateRect(view.Handle(), &rcPart, TRUE);
    view.Drag(view.At(250, 250));
    EXPECT_TRUE(view.IsJustInvalid({rcPart}));
    const Shot want = view.WithBand(bare, CRect(101, 81, 250, 250));
    EXPECT_EQ(CPoint(-1, -1), want.FirstDifference(view.Take(), view.Layout().m_rcShaft));
}

TYPED_TEST(ScatterMouse, EndOfABandRepaintsEverything) {
    ChartView<TypeParam> view;
    for (const char* pszEnd : {"R300,200", "R300,-70", "L"}) {
        Do(view, "P100,-90 M250,-80");
        Do(view, pszEnd);
        EXPECT_TRUE(view.IsJustInvalid({view.Layout().m_rcClient})) << pszEnd;
        view.Paint();
        EXPECT_EQ(view.Seen(), view.TakeWhole()) << pszEnd;
    }
}

/// After a zoom to x 0 to 8 and y 0 to 4 a pixel is 0.02 and 0.01.
TYPED_TEST(ScatterMouse, ZoomIsRefusedByAxis) {
    struct Case {
        const char* pszName;
        CRect rcBand;
        Ranges ranges;
    };
    for (const Case& c : {
             Case{"both zoom", {0, 200, 400, 300}, {{0, 8}, {1, 2}}},
             Case{"a y division of 0.1", {0, 320, 200, 400}, {{0, 4}, {0, 4}}},
             Case{"a little more", {0, 319, 200, 400}, {{0, 4}, {0, 0.81}}},
             Case{"a flat band", {200, 399, 400, 400}, {{4, 8}, {0, 4}}},
             Case{"an x division of 0.01", {0, 200, 4, 400}, {{0, 8}, {0, 2}}},
             Case{"a little more", {0, 200, 5, 400}, {{0, 0.1}, {0, 2}}},
             Case{"neither", {0, 320, 4, 400}, {{0, 8}, {0, 4}}},
         }) {
        SCOPED_TRACE(c.pszName);
        ChartView<TypeParam> view;
        view.Zoom({0, 120, 32, 200});
        view.ExpectRanges({{0, 8}, {0, 4}});
        view.Zoom(c.rcBand);
        view.ExpectRanges(c.ranges);
    }
}

TYPED_TEST(ScatterMouse, WholeRangeCannotBeDragged) {
    ChartView<TypeParam> view;
    for (const char* pszDrag : {"D P400,0 M0,400", "M400,0"}) {
        Do(view, pszDrag);
        view.ExpectRanges({});
    }
}

TYPED_TEST(ScatterMouse, SystemTellsWhenTheMouseLeaves) {
    ChartView<TypeParam> view;
    const auto moveTo = [&](CPoint pt) {
        ::ClientToScreen(view.Handle(), &pt);
        ::SetCursorPos(pt.x, pt.y);
        user_test::Pump();
    };
    moveTo(view.At(90, 70));
    EXPECT_EQ(CPoint(90, 70), view.CrossIn(view.Take()));
    ::mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    moveTo(view.At(300, 200));
    EXPECT_EQ(std::nullopt, view.CrossIn(view.Take()));
    moveTo(CPoint(700, 300));                        // beside the chart, on its parent
    for (int i = 0; i < 30; ++i) user_test::Pump();  // Windows looks at the pointer now and then
    EXPECT_EQ(CPoint(300, 200), view.CrossIn(view.Take()));
    moveTo(view.At(350, 250));
    ::mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    user_test::Pump();
    view.ExpectRanges({});
}

TYPED_TEST(ScatterMouse, PointSizes) {
    ChartView<TypeParam> view;
    view.chart.SetGirdVisble(false);
    const CPoint pt = view.At(192, 180);  // "middle"
    const auto isWide = [&] { return view.Take().At(pt.x - 4, pt.y) != RGB(0, 0, 0); };
    EXPECT_TRUE(isWide());
    view.Command(k_nSmallPoints);
    EXPECT_FALSE(isWide());
    EXPECT_NE('-', DiscAt(view.Take(), pt));
    view.Command(k_nBigPoints);
    EXPECT_TRUE(isWide());
}

namespace {
/// The cursor that is set after the chart was asked for one with the mouse there.
template <class Chart>
HCURSOR CursorAt(ChartView<Chart>& view, CPoint ptClient, LRESULT lWant) {
    ::SetCursor(nullptr);
    ::ClientToScreen(view.Handle(), &ptClient);
    ::SetCursorPos(ptClient.x, ptClient.y);
    EXPECT_EQ(lWant, view.Send(WM_SETCURSOR, reinterpret_cast<WPARAM>(view.Handle()),
                               MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)));
    return ::GetCursor();
}

struct CursorLook {
    CPoint ptHot;
    COLORREF clrEdge, clrInside;
};
CursorLook LookOf(HCURSOR hCursor, CPoint ptEdge, CPoint ptInside) {
    ICONINFO info{};
    if (!::GetIconInfo(hCursor, &info)) return {};
    CBitmap mask, color;
    mask.Attach(info.hbmMask), color.Attach(info.hbmColor);
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CBitmap* pOld = dc.SelectObject(&color);
    const CursorLook look{CPoint(static_cast<int>(info.xHotspot), static_cast<int>(info.yHotspot)),
                          dc.GetPixel(ptEdge.x, ptEdge.y), dc.GetPixel(ptInside.x, ptInside.y)};
    dc.SelectObject(pOld);
    return look;
}
}  // namespace

TYPED_TEST(ScatterMouse, CursorsTellTheMode) {
    ChartView<TypeParam> view;
    const HCURSOR hArrow = ::LoadCursor(nullptr, IDC_ARROW);
    const CPoint ptNumbers(20, 300), ptPlot = view.At(200, 200);
    const HCURSOR hMagnifier = CursorAt(view, ptPlot, TRUE);
    EXPECT_EQ(hMagnifier, CursorAt(view, view.At(0, 0), TRUE));
    EXPECT_EQ(hArrow, CursorAt(view, view.At(400, 200), FALSE)) << "outside its right edge";
    EXPECT_EQ(hArrow, CursorAt(view, ptNumbers, FALSE));
    view.Command(k_nDrag);
    const HCURSOR hHand = CursorAt(view, ptPlot, TRUE);
    EXPECT_EQ(hArrow, CursorAt(view, ptNumbers, FALSE));
    EXPECT_NE(hMagnifier, hHand);
    EXPECT_NE(hArrow, hMagnifier);
    EXPECT_NE(hArrow, hHand);
    const CursorLook magnifier = LookOf(hMagnifier, {17, 19}, {8, 8}),
                     hand = LookOf(hHand, {2, 10}, {10, 12});
    EXPECT_EQ(CPoint(8, 8), magnifier.ptHot);
    EXPECT_EQ(RGB(192, 192, 0), magnifier.clrEdge);
    EXPECT_EQ(CPoint(6, 0), hand.ptHot);
    EXPECT_EQ(RGB(192, 192, 0), hand.clrEdge);
    EXPECT_EQ(RGB(0, 0, 0), hand.clrInside);
    view.Command(k_nEnlarge);
    EXPECT_EQ(hMagnifier, CursorAt(view, ptPlot, TRUE));
}
