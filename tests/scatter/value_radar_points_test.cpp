// Which points of a value radar are shown, where, and in which colour.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "radar_window.h"

namespace {
constexpr COLORREF k_clrGate = RGB(66, 61, 6);
constexpr double k_dInfinity = std::numeric_limits<double>::infinity();
constexpr double k_dNaN = std::numeric_limits<double>::quiet_NaN();

/// The plot rectangle of a client area of 800 x 600.
const CRect k_rcPlot(125, 116, 725, 520);

/// Where a value pair stands while the shown range is 0 to 80 in x and -10 to 10 in y.
CPoint PixelOf(double dX, double dY) {
    return CPoint(static_cast<int>(125 + 600 * dX / 80), static_cast<int>(520 - 404 * (dY + 10) / 20));
}

/// Two points that give that range, out of the way of the others.
const tagPointRadarItemData k_low = Point("low", 0, -10), k_high = Point("high", 80, 10);
}  // namespace

TEST(ValueRadarPoints, ColourFollowsTheSign) {
    RadarWindow window;
    ASSERT_TRUE(window.IsCreated());
    window.Feed({k_low, k_high, Point("a", 20, 4), Point("b", 30, -4), Point("c", 40, 0),
                 Point("d", 50, -0.0001), Point("e", 60, -4, 7), Point("f", 70, -0.0)});
    window.radar.ActiveBlockByInfo(7, "银行");
    const Shot shot = window.Take();
    EXPECT_EQ('r', DiscAt(shot, PixelOf(20, 4)));
    EXPECT_EQ('g', DiscAt(shot, PixelOf(30, -4)));
    EXPECT_EQ('w', DiscAt(shot, PixelOf(40, 0)));
    EXPECT_EQ('g', DiscAt(shot, PixelOf(50, -0.0001)));
    EXPECT_EQ('y', DiscAt(shot, PixelOf(60, -4)));
    EXPECT_EQ('w', DiscAt(shot, PixelOf(70, 0)));
    EXPECT_EQ('g', DiscAt(shot, PixelOf(0, -10))) << "a point on a bound is inside";
    EXPECT_EQ('r', DiscAt(shot, PixelOf(80, 10)));
    EXPECT_EQ('-', DiscAt(shot, PixelOf(20, -4)));
}

TEST(ValueRadarPoints, SpriteIsCentredAndTransparent) {
    RadarWindow window;
    window.radar.SetGirdVisble(false);
    window.Feed({k_low, k_high, Point("a", 20, 4)});
    const Shot shot = window.Take();
    const CPoint pt = PixelOf(20, 4);
    int nLeft = pt.x, nRight = pt.x, nTop = pt.y, nBottom = pt.y;
    while (shot.At(nLeft - 1, pt.y) != 0) --nLeft;
    while (shot.At(nRight + 1, pt.y) != 0) ++nRight;
    while (shot.At(pt.x, nTop - 1) != 0) --nTop;
    while (shot.At(pt.x, nBottom + 1) != 0) ++nBottom;
    EXPECT_EQ(CPoint(pt.x - 5, pt.x + 4), CPoint(nLeft, nRight)) << "a disc of 10 pixels in the middle of 16";
    EXPECT_EQ(CPoint(pt.y - 5, pt.y + 4), CPoint(nTop, nBottom));
    EXPECT_EQ(RGB(0, 0, 0), shot.At(pt.x - 8, pt.y - 8)) << "around the disc the background shows";
}

TEST(ValueRadarPoints, ActiveBlockIsOnTop) {
    RadarWindow window;
    const auto red = Point("red", 20, 4), active = Point("active", 20, 4, 7);
    window.Feed({k_low, k_high, active, red});
    EXPECT_EQ('r', DiscAt(window.Take(), PixelOf(20, 4))) << "later points cover earlier ones";
    window.radar.ActiveBlockByInfo(7, "银行");
    EXPECT_EQ('y', DiscAt(window.Take(), PixelOf(20, 4)));
    window.radar.ActiveBlockByInfo(8, "银行");
    EXPECT_EQ('r', DiscAt(window.Take(), PixelOf(20, 4)));
}

TEST(ValueRadarPoints, KeyIsMarketAndCode) {
    RadarWindow window;
    window.Feed({k_low, k_high, Point("a", 20, 4), Point("a", 30, 4, 0, 2)});
    window.radar.SetData(Point("a", 40, 4));
    window.radar.Play();
    const Shot shot = window.Take();
    EXPECT_EQ('-', DiscAt(shot, PixelOf(20, 4))) << "replaced";
    EXPECT_EQ('r', DiscAt(shot, PixelOf(40, 4)));
    EXPECT_EQ('r', DiscAt(shot, PixelOf(30, 4))) << "another market is another stock";
}

TEST(ValueRadarPoints, NotFiniteIsKeptUnseen) {
    RadarWindow plain, odd;
    plain.Feed({k_low, k_high, Point("a", 20, 4)});
    odd.Feed({Point("n1", k_dNaN, 1), k_low, k_high, Point("n2", 500, k_dNaN), Point("a", 20, 4),
              Point("n3", k_dInfinity, 1), Point("n4", 3, -k_dInfinity)});
    EXPECT_EQ(plain.Take(), odd.Take());
    odd.Move(126, 400);  // must not find them either
    plain.Move(126, 400);
    EXPECT_EQ(plain.Take(), odd.Take());
    odd.radar.SetData(Point("n1", 20, -4));
    odd.radar.Play();
    EXPECT_EQ('g', DiscAt(odd.Take(), PixelOf(20, -4))) << "it was kept, and is replaced";
}

TEST(ValueRadarPoints, HugeValuesAreHarmless) {
    const double dMost = std::numeric_limits<double>::max();
    RadarWindow window;
    window.Feed({Point("a", -dMost, -dMost), Point("b", dMost, dMost), Point("c", 0, 0)});
    const Shot shot = window.Take();
    EXPECT_EQ('w', DiscAt(shot, CPoint(425, 318)));
    EXPECT_EQ('g', DiscAt(shot, CPoint(125, 520)));
    EXPECT_EQ('r', DiscAt(shot, CPoint(725, 116)));
    for (const double d : {dMost, -dMost, 1e20}) {
        window.Feed({Point("a", d, d)});
        window.Move(300, 300);
        EXPECT_FALSE(window.Take().pixels.empty());
    }
}

TEST(ValueRadarPoints, ClearDataLeavesNone) {
    RadarWindow window;
    window.Feed({k_low, k_high, Point("a", 20, 4, 7)});
    window.radar.ActiveBlockByInfo(7, "银行");
    EXPECT_EQ('y', DiscAt(window.Take(), PixelOf(20, 4)));
    window.radar.ClearData();
    EXPECT_EQ('-', DiscAt(window.Take(), PixelOf(20, 4)));
    window.Feed({k_low, k_high, Point("a", 20, 4, 7)});
    EXPECT_EQ('r', DiscAt(window.Take(), PixelOf(20, 4))) << "no block is active";
}

TEST(ValueRadarPoints, SetDataShowsAtTheNextPaint) {
    RadarWindow window;
    window.Feed({k_low, k_high});
    window.Paint();
    window.radar.SetData(Point("a", 20, 4));
    EXPECT_FALSE(window.radar.GetUpdateRect(nullptr)) << "it does not repaint by itself";
    EXPECT_EQ('r', DiscAt(window.TakeWhole(), PixelOf(20, 4)));
}

TEST(ValueRadarGate, ShowsAfterPlayOnly) {
    RadarWindow window;
    window.radar.SetGirdVisble(false);
    const auto feed = [&] { window.Feed({k_low, k_high}); };
    const CPoint ptIn = PixelOf(45, -5), ptLeft = PixelOf(35, -5), ptAbove = PixelOf(45, 2);

    feed();
    EXPECT_EQ(RGB(0, 0, 0), window.Take().At(ptIn.x, ptIn.y)) << "none to begin with";

    feed();
    window.radar.SetGate(40, 0);
    const Shot shot = window.Take();
    EXPECT_EQ(k_clrGate, shot.At(ptIn.x, ptIn.y));
    EXPECT_EQ(k_clrGate, shot.At(PixelOf(40, 0).x, PixelOf(40, 0).y)) << "it owns its left and top edge";
    EXPECT_EQ(k_clrGate, shot.At(k_rcPlot.right - 1, k_rcPlot.bottom - 20));
    EXPECT_NE(k_clrGate, shot.At(k_rcPlot.right, k_rcPlot.bottom - 20));
    EXPECT_EQ(RGB(0, 0, 0), shot.At(ptLeft.x, ptLeft.y));
    EXPECT_EQ(RGB(0, 0, 0), shot.At(ptAbove.x, ptAbove.y));

    feed();
    window.radar.SetGate(40, 0);
    window.radar.Play();
    EXPECT_EQ(RGB(0, 0, 0), window.Take().At(ptIn.x, ptIn.y)) << "Play empties it";
}

TEST(ValueRadarGate, HidesTheGridAndIsHiddenByPoints) {
    RadarWindow window;
    window.Feed({k_low, k_high, Point("a", 60, -4)});
    window.radar.SetGate(-1000, 1000);
    const Shot shot = window.Take();
    for (int x = k_rcPlot.left + 10; x < k_rcPlot.left + 60; ++x) EXPECT_EQ(k_clrGate, shot.At(x, 166));
    EXPECT_EQ('g', DiscAt(shot, PixelOf(60, -4)));
}

TEST(ValueRadarGate, WaitsForTheNextLayer) {
    RadarWindow window;
    window.radar.SetGirdVisble(false);
    window.Feed({k_low, k_high});
    window.Paint();
    const CPoint pt = PixelOf(45, -5);
    window.radar.SetGate(40, 0);
    EXPECT_EQ(RGB(0, 0, 0), window.Take().At(pt.x, pt.y)) << "the points are not drawn anew";
    window.radar.ActiveBlockByInfo(3, "");
    EXPECT_EQ(k_clrGate, window.Take().At(pt.x, pt.y));
    window.radar.SetGateBkColor(RGB(1, 2, 3));
    EXPECT_EQ(k_clrGate, window.Take().At(pt.x, pt.y));
    window.Resize(801, 600);
    window.Resize(800, 600);
    EXPECT_EQ(RGB(1, 2, 3), window.Take().At(pt.x, pt.y));
}

TEST(ValueRadarGate, NotFiniteIsNoGate) {
    RadarWindow plain;
    plain.Feed({k_low, k_high});
    const Shot none = plain.Take();
    struct Case {
        const char* pszName;
        double dX, dY;
    };
    for (const Case& c :
         {Case{"not-a-number x", k_dNaN, 0}, Case{"not-a-number y", 40, k_dNaN},
          Case{"everything", -k_dInfinity, k_dInfinity}, Case{"infinite x", -k_dInfinity, 0},
          Case{"infinite y", 40, k_dInfinity}, Case{"the far corner", k_dInfinity, -k_dInfinity}}) {
        RadarWindow odd;
        odd.Feed({k_low, k_high});
        odd.radar.SetGate(c.dX, c.dY);
        EXPECT_EQ(none, odd.Take()) << c.pszName;
    }
    RadarWindow huge;
    huge.Feed({k_low, k_high});
    huge.radar.SetGate(-1e300, 1e300);
    EXPECT_EQ(k_clrGate, huge.Take().At(k_rcPlot.left + 20, k_rcPlot.top + 20)) << "far but finite";
}
