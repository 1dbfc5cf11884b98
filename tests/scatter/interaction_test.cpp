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
    {"idle: show all", "A", Idle(200, 350, Ranges{})},
    {"idle: press", "P100,80", Banding()},
    {"idle, back in zoom mode: press", "D Z P100,80 M300,200", Banding(CRect(101, 81, 300, 200))},
    {"banding: the band follows", "P100,80 M300,200", Banding(CRect(101, 81, 300, 200))},
    {"banding: to the upper left", "P300,200 M350,390 M100,80", Banding(CRect(101, 81, 300, 200))},
    {"banding: beyond the plot rectangle", "P100,80 M-40,-90", Banding(CRect(1, 1, 100, 80))},
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
    for (const Row& row : k_rows) {
        SCOPED_TRACE(row.pszName);
        ChartView<TypeParam> view;
        view.ShowZoomed();
        Do(view, row.pszEvents);
        const Look& look = row.look;
        view.ExpectRanges(look.ranges);
        const Shot shot = view.Take();
        EXPECT_EQ(look.cross, view.CrossIn(shot));
        EXPECT_EQ(look.band, view.BandIn(shot));
        EXPECT_EQ(CPoint(-1, -1), shot.FirstDifference(view.TakeWhole())) << "a repaint changes nothing";
        EXPECT_EQ(look.state, StateOf(view));
    }
}

TYPED_TEST(ScatterMouse, RepaintsTheLeast) {
    ChartView<TypeParam> view;
    view.MoveTo({150, 120});
    view.Paint();
    const CPoint pt = view.At(150, 120);
    const CRect &rc = view.Layout().m_rcShaft, rcPart(view.At(10, 5), view.At(90, 60));
    for (const UINT nCommand : {k_nDrag, k_nEnlarge}) view.Command(nCommand);
    EXPECT_FALSE(view.IsInvalid()) << "modes";
    view.SendAt(WM_LBUTTONDOWN, {100, 80});
    EXPECT_TRUE(view.IsJustInvalid(
        {{rc.left, pt.y - 1, rc.right, pt.y + 1}, {pt.x - 1, rc.top, pt.x + 1, rc.bottom}}));
    EXPECT_EQ(nullptr, ::GetCapture());
    view.Paint();
    view.MoveTo({300, 200});
    EXPECT_FALSE(view.IsInvalid()) << "the band is drawn straight on the window";
    const Shot band = view.Seen();
    EXPECT_EQ(CRect(101, 81, 300, 200), view.BandIn(band));
    EXPECT_EQ(band, view.TakeWhole());
    ::InvalidateRect(view.Handle(), &rcPart, TRUE);
    view.MoveTo({250, 250});
    EXPECT_TRUE(view.IsJustInvalid({rcPart}));
    EXPECT_EQ(view.Take(), view.TakeWhole());
    TRACKMOUSEEVENT track{sizeof track, TME_CANCEL | TME_LEAVE, view.Handle(), 0};
    ::TrackMouseEvent(&track);
    view.MoveTo({120, 120});
    track.dwFlags = TME_QUERY;
    ::TrackMouseEvent(&track);
    EXPECT_TRUE(track.hwndTrack != view.Handle() || (track.dwFlags & TME_LEAVE) == 0)
        << "a band tracks nothing";
}

/// After a zoom to x 0 to 8 and y 0 to 4 a pixel is 0.02 and 0.01.
TYPED_TEST(ScatterMouse, ZoomIsRefusedByAxis) {
    struct Case {
        const char* pszName;
        CRect rcBand;
        Ranges ranges;
    };
    for (const Case& c : {
             Case{"a y division of 0.1", {0, 320, 200, 400}, {{0, 4}, {0, 4}}},
             Case{"a little more", {0, 319, 200, 400}, {{0, 4}, {0, 0.81}}},
             Case{"an x division of 0.01", {0, 200, 4, 400}, {{0, 8}, {0, 2}}},
             Case{"a little more", {0, 200, 5, 400}, {{0, 0.1}, {0, 2}}},
             Case{"neither", {0, 320, 4, 400}, {{0, 8}, {0, 4}}},
         }) {
        SCOPED_TRACE(c.pszName);
        ChartView<TypeParam> view;
        view.Zoom({0, 120, 32, 200});
        view.Zoom(c.rcBand);
        view.ExpectRanges(c.ranges);
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
    const auto expectReach = [&](UINT nCommand, int nReach) {
        view.Command(nCommand);
        const Shot shot = view.Take();
        for (int d = -8; d < 8; ++d) {
            EXPECT_EQ(-nReach <= d && d < nReach, shot.At(pt.x + d, pt.y) != 0) << d;
            EXPECT_EQ(-nReach <= d && d < nReach, shot.At(pt.x, pt.y + d) != 0) << d;
        }
        EXPECT_EQ(RGB(0, 0, 0), shot.At(pt.x - 8, pt.y - 8)) << "around the disc";
    };
    expectReach(0, 5);
    expectReach(k_nSmallPoints, 3);
    const DWORD dwBefore = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS);
    for (int i = 0; i < 9; ++i) expectReach(k_nBigPoints, 5), expectReach(k_nSmallPoints, 3);
    EXPECT_EQ(dwBefore, ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS));
}
