// What the scatter charts do where no mouse alone would bring them.
#include <gtest/gtest.h>

#include <functional>

#include "chart_view.h"
#include "user/recorder.h"

namespace {
template <class Chart>
class ScatterUnusual : public testing::Test {
protected:
    ChartView<Chart> m_view;
};
TYPED_TEST_SUITE(ScatterUnusual, ScatterCharts, ChartNames);

std::function<void()> g_onTick;
void CALLBACK Tick(HWND, UINT, UINT_PTR nTimer, DWORD) {
    ::KillTimer(nullptr, nTimer);
    g_onTick();
    ::EndMenu();
}

bool IsLeaveTracked(HWND hWnd) {
    TRACKMOUSEEVENT track{sizeof track, TME_QUERY, nullptr, 0};
    ::TrackMouseEvent(&track);
    return track.hwndTrack == hWnd && (track.dwFlags & TME_LEAVE) != 0;
}
}  // namespace

TYPED_TEST(ScatterUnusual, NewWindowHasNoButtonHeld) {
    auto& view = this->m_view;
    view.SendAt(WM_LBUTTONDOWN, {100, 100});
    view.MoveTo({200, 200});
    view.Recreate();
    const Shot shot = view.Take();
    EXPECT_FALSE(view.HasBand(shot));
    EXPECT_TRUE(view.CrossIn(shot).has_value());
}

TYPED_TEST(ScatterUnusual, TooLowForAnything) {
    auto& view = this->m_view;
    const CRect rcWhole = view.Layout().m_rcClient, rcInfo = view.Layout().m_rcInfo;
    const auto squeeze = [&] {
        view.Resize(rcWhole.Width(), k_styleOf<TypeParam>.nRefusedHeight);
        view.Paint();
    };
    const auto stretch = [&] { view.Resize(rcWhole.Width(), rcWhole.Height()); };
    view.MoveTo({200, 350});
    const Shot nothing = view.Take();
    squeeze();
    view.MoveTo({0, 400});  // where the least values were
    stretch();
    EXPECT_EQ(CPoint(-1, -1), view.Take().FirstDifference(nothing, rcInfo)) << "names nothing";
    view.ShowZoomed();
    squeeze();
    const Shot low = view.Seen();
    view.Send(WM_LBUTTONDOWN, 0, MAKELPARAM(100, 5));
    view.Send(WM_MOUSEMOVE, 0, MAKELPARAM(400, 20));
    EXPECT_EQ(low, view.Seen()) << "no band";
    view.Send(WM_LBUTTONUP, 0, MAKELPARAM(400, 20));
    stretch();
    view.ExpectRanges(k_zoomed);
    view.Command(k_nDrag);
    view.SendAt(WM_LBUTTONDOWN, {100, 100});
    squeeze();
    view.MoveTo({200, 200});
    stretch();
    view.ExpectRanges(k_zoomed);
}

TYPED_TEST(ScatterUnusual, HoverFollowsAZoomThatIsNotPaintedYet) {
    auto& view = this->m_view;
    view.MoveTo({192, 180});  // the point in the middle
    const Shot named = view.Take();
    view.MoveTo({5, 5});
    view.Zoom({100, 100, 300, 300});
    view.MoveTo({184, 160});  // where it is now
    const CRect rcInfo = view.Layout().m_rcInfo;
    EXPECT_EQ(CPoint(-1, -1), view.Take().FirstDifference(named, rcInfo));
}

TYPED_TEST(ScatterUnusual, NewSizeEndsTheBand) {
    auto& view = this->m_view;
    view.SendAt(WM_LBUTTONDOWN, {10, 10});
    view.MoveTo({390, 390});
    EXPECT_TRUE(view.HasBand(view.Take()));
    view.Resize(300, 300);
    EXPECT_FALSE(view.HasBand(view.Take()));
}

TYPED_TEST(ScatterUnusual, ModesRepaintNothing) {
    auto& view = this->m_view;
    for (const UINT nCommand : {k_nDrag, k_nEnlarge}) {
        view.Paint();
        view.Command(nCommand);
        EXPECT_FALSE(view.IsInvalid()) << nCommand;
    }
}

TYPED_TEST(ScatterUnusual, BandDoesNotTrackTheMouse) {
    auto& view = this->m_view;
    view.SendAt(WM_LBUTTONDOWN, {100, 100});
    TRACKMOUSEEVENT cancel{sizeof cancel, TME_CANCEL | TME_LEAVE, view.Handle(), 0};
    ::TrackMouseEvent(&cancel);
    view.MoveTo({120, 120});
    EXPECT_FALSE(IsLeaveTracked(view.Handle()));
}

TYPED_TEST(ScatterUnusual, SizesOfPointsLeaveNothingBehind) {
    auto& view = this->m_view;
    const auto switchSizes = [&] {
        for (const UINT nCommand : {k_nSmallPoints, k_nBigPoints}) {
            view.Command(nCommand);
            view.Paint();
        }
    };
    switchSizes();
    const DWORD dwBefore = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS);
    for (int i = 0; i < 20; ++i) switchSizes();
    EXPECT_EQ(dwBefore, ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS));
}

TYPED_TEST(ScatterUnusual, DestroyedWhileItsMenuIsOpen) {
    auto& view = this->m_view;
    ::SetForegroundWindow(::GetAncestor(view.Handle(), GA_ROOT));
    user_test::Pump();
    const HWND hWnd = view.Handle();
    g_onTick = [&view] { view.chart = TypeParam(); };
    ::SetTimer(nullptr, 0, 50, Tick);
    view.Send(WM_CONTEXTMENU);
    EXPECT_FALSE(::IsWindow(hWnd));
}
