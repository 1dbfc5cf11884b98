// The sector wheel in a host's window: what it shows, and what clicks do.
#include <gtest/gtest.h>

#include <memory>
#include <tuple>
#include <vector>

#include "scatter/radar_window.h"
#include "wheel/wheel_geometry.h"
#include "wrappers/host.h"

namespace {
constexpr UINT k_nSectorMessage = 1325;

tagmyBRData SectorOf(const char* pszName, float fValue) {
    tagmyBRData sector{};
    std::strncpy(sector.name, pszName, sizeof sector.name);
    sector.value = fValue;
    return sector;
}

/// Four sectors at 90, 180, 270 and 0 degrees, on a wheel of radius 105 around (200,170).
class Wheel : public testing::Test {
protected:
    static constexpr int k_cx = 400, k_cy = 300;
    const CPoint m_ptCentre = CircleIn(LayoutWheel(CRect(0, 0, k_cx, k_cy)).rcWheel).ptCentre;

    Wheel() {
        EXPECT_TRUE(wheel->Create(&host, CRect(0, 0, k_cx, k_cy), k_nControlId));
        host.heard = &told;
        Load({SectorOf("东", 60), SectorOf("南", 20), SectorOf("西", 60), SectorOf("北", 40)});
        Paint();
    }
    void Load(std::vector<tagmyBRData> records, const char* pszCurrent = "") {
        CArray<tagmyBRData, tagmyBRData&> sectors;
        for (tagmyBRData& record : records) sectors.Add(record);
        tagBlocksInfo info{};
        std::strncpy(info.title, "行业轮动", sizeof info.title);
        std::strncpy(info.current, pszCurrent, sizeof info.current - 1);
        wheel->Init(sectors, info);
        wheel->ReDraw();
    }
    HWND Handle() { return ControlIn(host); }
    void Paint() { ::UpdateWindow(Handle()); }
    Shot Take() {
        Paint();
        CClientDC dc(CWnd::FromHandle(Handle()));
        return ShotOf(dc, k_cx, k_cy);
    }
    void Send(UINT nMessage, CPoint ptFromCentre) {
        const CPoint pt = m_ptCentre + ptFromCentre;
        ::SendMessage(Handle(), nMessage, 0, MAKELPARAM(pt.x, pt.y));
    }
    std::string Selected() {
        tagmyBRData sector{};
        return wheel->GetCurBlockData(sector) ? sector.name : "";
    }

    /// A host that reads the selected sector when it is told of a double click.
    struct Host : HostWindow {
        std::function<void()>* heard = nullptr;
        int nTold = 0;
        LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override {
            if (nMessage == k_nSectorMessage) {
                EXPECT_EQ(0u, wParam);
                EXPECT_EQ(0, lParam);
                ++nTold;
                if (*heard) (*heard)();
            }
            return HostWindow::WindowProc(nMessage, wParam, lParam);
        }
    };
    std::function<void()> told;
    Host host;
    std::unique_ptr<CProxy_BR> wheel = std::make_unique<CProxy_BR>();
};

const CPoint k_ptEast(104, 0), k_ptSouthOrCentre(0, 0), k_ptNorth(0, -52), k_ptNowhere(50, 60);
}  // namespace

TEST_F(Wheel, ClickSelects) {
    struct Case {
        const char* pszName;
        CPoint pt;
        const char* pszWant;
    };
    for (const Case& c : {
             Case{"a dot", k_ptEast, "东"},
             Case{"nothing: stays", k_ptNowhere, "东"},
             Case{"a dot in the centre", k_ptSouthOrCentre, "南"},
             Case{"a dot halfway up", k_ptNorth, "北"},
             Case{"its name above the rim", {0, -105 - 10}, "北"},
             Case{"a name beside the rim", {-105 - 8, 0}, "西"},
             Case{"left edge of a dot's box", {105 - 6, -6}, "东"},
             Case{"beyond its right edge", {-52, -46}, "东"},
         }) {
        ::ValidateRect(Handle(), nullptr);
        Send(WM_LBUTTONDOWN, c.pt);
        EXPECT_EQ(c.pszWant, Selected()) << c.pszName;
        EXPECT_TRUE(TakeRepaint(Handle())) << c.pszName;
    }
    EXPECT_EQ(0, host.nTold);
}

TEST_F(Wheel, DotWinsOverNameOfAnother) {
    std::vector<tagmyBRData> sectors(30, SectorOf("x", 60));
    sectors[0].value = 20;
    sectors[13] = SectorOf("很长很长很长很长", 60);  // at 168 degrees, its name reaching below the next dot
    sectors[14] = SectorOf("南", 60);
    Load(sectors);
    Paint();
    Send(WM_LBUTTONDOWN, {0, 105 + 4});
    EXPECT_EQ("南", Selected());
    Send(WM_LBUTTONDOWN, {0, 105 + 7});
    EXPECT_EQ("很长很长很长很长", Selected()) << "the name of the earlier sector is there";
}

TEST_F(Wheel, AreasAreThoseLastPainted) {
    Load({SectorOf("一", 20), SectorOf("二", 60)});
    Send(WM_LBUTTONDOWN, {0, 0});
    EXPECT_EQ("", Selected()) << "not painted since";
    Paint();
    Send(WM_LBUTTONDOWN, {0, 0});
    EXPECT_EQ("一", Selected());
}

TEST_F(Wheel, LeastRoom) {
    for (const auto& [cx, cy, bWheel] : {std::tuple(58, 300, false), std::tuple(59, 300, true),
                                         std::tuple(300, 88, false), std::tuple(300, 89, true)}) {
        Load({});  // selects nothing
        Load({SectorOf("东", 60), SectorOf("南", 20)});
        ::MoveWindow(Handle(), 0, 0, cx, cy, TRUE);
        Paint();
        for (int x = 0; x < cx; ++x)
            for (int y = 0; y < cy; ++y) ::SendMessage(Handle(), WM_LBUTTONDOWN, 0, MAKELPARAM(x, y));
        EXPECT_EQ(bWheel, !Selected().empty()) << cx << " x " << cy;
    }
}

TEST_F(Wheel, NewSectorsShowEverywhereAtTheNextPaint) {
    Take();
    tagmyBRData sector = SectorOf("南", 55);
    EXPECT_TRUE(wheel->SetData(sector));
    const CRect rcCorner(0, 0, 1, 1);
    ::InvalidateRect(Handle(), &rcCorner, TRUE);
    const Shot part = Take();
    wheel->ReDraw();
    EXPECT_EQ(CPoint(-1, -1), part.FirstDifference(Take()));
}

TEST_F(Wheel, DoubleClickIsPosted) {
    std::string answer;
    told = [&] { answer = Selected(); };
    struct Case {
        const char* pszName;
        CPoint pt;
        int nTold;
    };
    for (const Case& c : {Case{"nothing is selected", k_ptNowhere, 0}, Case{"a sector", k_ptEast, 1},
                          Case{"the one that is selected already", k_ptNowhere, 2}}) {
        SCOPED_TRACE(c.pszName);
        const int nBefore = host.nTold;
        Send(WM_LBUTTONDBLCLK, c.pt);
        EXPECT_EQ(nBefore, host.nTold) << "not sent";
        HostWindow::Pump();
        EXPECT_EQ(c.nTold, host.nTold);
        EXPECT_EQ(c.nTold > 0 ? "东" : "", answer);
    }
}

TEST_F(Wheel, MessageOutlivesTheWheel) {
    Send(WM_LBUTTONDBLCLK, k_ptEast);
    wheel.reset();
    HostWindow::Pump();
    EXPECT_EQ(1, host.nTold);
}

TEST_F(Wheel, HostMayDestroyItWhenTold) {
    told = [this] { wheel.reset(); };
    Send(WM_LBUTTONDBLCLK, k_ptEast);
    HostWindow::Pump();
    EXPECT_EQ(1, host.nTold);
    EXPECT_FALSE(::IsWindow(Handle()));
}

TEST_F(Wheel, HostMayGoWithTheMessageQueued) {
    Send(WM_LBUTTONDBLCLK, k_ptEast);
    host.DestroyWindow();
    HostWindow::Pump();
    EXPECT_EQ(0, host.nTold);
    EXPECT_EQ("东", Selected()) << "the wheel without its window";
}

TEST_F(Wheel, CursorTellsASector) {
    const HCURSOR hArrow = ::LoadCursor(nullptr, IDC_ARROW);
    const auto cursorAt = [&](CPoint pt) {
        Send(WM_MOUSEMOVE, pt);
        return ::GetCursor();
    };
    EXPECT_EQ(hArrow, cursorAt(k_ptNowhere));
    const HCURSOR hHand = cursorAt(k_ptEast);
    EXPECT_NE(hArrow, hHand);
    EXPECT_EQ(hHand, cursorAt({0, -115})) << "a name";
    ICONINFO info{};
    ASSERT_TRUE(::GetIconInfo(hHand, &info));
    EXPECT_EQ(CPoint(6, 0), CPoint(static_cast<int>(info.xHotspot), static_cast<int>(info.yHotspot)));
    ::DeleteObject(info.hbmMask);
    ::DeleteObject(info.hbmColor);
}

TEST_F(Wheel, Picture) {
    const Shot shot = Take();
    const auto at = [&](int dx, int dy) { return shot.At(m_ptCentre.x + dx, m_ptCentre.y + dy); };
    struct Case {
        const char* pszName;
        int dx, dy;
        COLORREF clrWant;
    };
    for (const Case& c : {
             Case{"rim at the lower left", -74, 74, RGB(106, 6, 238)},
             Case{"spoke to the west", -60, 0, RGB(176, 150, 52)},
             Case{"spoke to the south", 0, 100, RGB(176, 150, 52)},
             Case{"top spoke", 0, -30, RGB(192, 192, 0)},
             Case{"tick of the seventh ring", 5, -92, RGB(192, 192, 0)},
             Case{"no tick on the rim", 5, -102, RGB(0, 0, 0)},
             Case{"background", -50, 40, RGB(0, 0, 0)},
         })
        EXPECT_EQ(c.clrWant, at(c.dx, c.dy)) << c.pszName;
    const COLORREF clrDot = at(104, -1);
    EXPECT_GT(GetRValue(clrDot), 150) << "the ball in the east";
    EXPECT_LT(GetGValue(clrDot), 20);
}

TEST_F(Wheel, EqualSharesHaveNoScale) {
    Load({SectorOf("一", 40), SectorOf("二", 40)});
    Paint();
    EXPECT_EQ(RGB(204, 120, 47), Take().At(m_ptCentre.x + 5, m_ptCentre.y - 92)) << "the ring, no tick";
    Send(WM_LBUTTONDOWN, {0, 0});
    EXPECT_EQ("", Selected()) << "no dot";
    Send(WM_LBUTTONDOWN, {0, 105 + 10});
    EXPECT_EQ("一", Selected()) << "but names";
}

TEST_F(Wheel, SelectionLine) {
    const Shot nothing = Take();
    Load({SectorOf("东", 60), SectorOf("南", 20)}, "东");
    EXPECT_NE(CPoint(-1, -1), Take().FirstDifference(nothing, CRect(3, 25, k_cx, 50)));
}
