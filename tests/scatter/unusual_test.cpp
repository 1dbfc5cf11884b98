// What the scatter charts do where no mouse alone would bring them.
#include <gtest/gtest.h>

#include "chart_view.h"

namespace {
template <class Chart>
class ScatterUnusual : public ChartTest<Chart> {};
TYPED_TEST_SUITE(ScatterUnusual, ScatterCharts, ChartNames);
}  // namespace

TYPED_TEST(ScatterUnusual, NewWindowHasNoButtonHeld) {
    auto& view = this->m_view;
    view.SendAt(WM_LBUTTONDOWN, {100, 100});
    view.MoveTo({200, 200});
    view.Recreate();
    const Shot shot = view.Take();
    EXPECT_EQ(std::nullopt, view.BandIn(shot));
    EXPECT_TRUE(view.CrossIn(shot).has_value());
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
    EXPECT_NE(std::nullopt, view.BandIn(view.Take()));
    view.Resize(300, 300);
    EXPECT_EQ(std::nullopt, view.BandIn(view.Take()));
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
    CClientDC(CWnd::FromHandle(view.Handle())).FillSolidRect(&rcWhole, RGB(255, 0, 255));
    const Shot low = view.Seen();
    view.Mouse(WM_LBUTTONDOWN, {100, 5});
    view.Mouse(WM_MOUSEMOVE, {400, 20});
    EXPECT_EQ(low, view.TakeWhole()) << "nothing is painted, no band either";
    view.Mouse(WM_LBUTTONUP, {400, 20});
    stretch();
    view.ExpectRanges(k_zoomed);
    view.Command(k_nDrag);
    view.SendAt(WM_LBUTTONDOWN, {100, 100});
    squeeze();
    view.MoveTo({200, 200});
    stretch();
    view.ExpectRanges(k_zoomed);
}

TYPED_TEST(ScatterUnusual, AnySizeAndAnyFontSize) {
    auto& view = this->m_view;
    for (const CSize size : {CSize(0, 0), CSize(1, 1), CSize(0, 300), CSize(49, 41), CSize(50, 95),
                             CSize(51, 96), CSize(900, 42), CSize(3, 700)})
        for (const int nFontSize : {12, 0, 1, 200, -30}) {
            view.Resize(size.cx, size.cy);
            view.chart.SetCoordinateShaftFontSize(nFontSize);
            view.Mouse(WM_MOUSEMOVE, {20, 20});
            view.Paint();
            EXPECT_FALSE(view.IsInvalid());
        }
}
