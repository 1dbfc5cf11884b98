// The cursors of the scatter charts, read back from the system.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "chart_view.h"
#include "foundation/canvas.h"
#include "foundation/select_scope.h"
#include "scatter/mode_cursors.h"

namespace {
/// A window that is red all over, with a device context of its own.
class RedWindow : public CWnd {
public:
    RedWindow() {
        CreateEx(0, AfxRegisterWndClass(CS_OWNDC), "red", WS_POPUP, 0, 0, 60, 50, nullptr, nullptr);
        ShowWindow(SW_SHOWNOACTIVATE);
        UpdateWindow();
        CClientDC dc(this);
        dc.FillSolidRect(CRect(0, 0, 60, 50), k_clrRed);
    }
};

/// '.' the screen, '#' the charts' cursor colour, 'o' their background; '?' anything else.
char Letter(COLORREF clrMask, COLORREF clr) {
    if (clrMask == k_clrWhite) return clr == k_clrBlack ? '.' : '?';
    if (clrMask != k_clrBlack) return '?';
    return clr == RGB(192, 192, 0) ? '#' : clr == k_clrBlack ? 'o' : '?';
}

/// The hot spot, then rows of letters; empty for what is no cursor, or no longer.
std::string PictureOf(HCURSOR hCursor) {
    ICONINFO info{};
    if (!::GetIconInfo(hCursor, &info) || info.fIcon) return "";
    CBitmap mask, colour;
    mask.Attach(info.hbmMask);
    colour.Attach(info.hbmColor);
    BITMAP size{}, maskSize{};
    colour.GetBitmap(&size);
    mask.GetBitmap(&maskSize);
    if (size.bmWidth != maskSize.bmWidth || size.bmHeight != maskSize.bmHeight) return "two sizes";
    CDC dcMask, dcColour;
    dcMask.CreateCompatibleDC(nullptr);
    dcColour.CreateCompatibleDC(nullptr);
    const SelectScope maskScope(dcMask, mask), colourScope(dcColour, colour);
    std::string picture = std::to_string(info.xHotspot) + "," + std::to_string(info.yHotspot) + "\n";
    for (int y = 0; y < size.bmHeight; ++y, picture += '\n')
        for (int x = 0; x < size.bmWidth; ++x)
            picture += Letter(dcMask.GetPixel(x, y), dcColour.GetPixel(x, y));
    return picture;
}

constexpr char k_magnifier[] = R"(8,8
.....######...........
....#......#..........
..##.###....##........
..#.#........#........
.#.#..........#.......
#.#............#......
#..............#......
#..............#......
#..............#......
#..............#......
#..............#......
.#........#...#.......
..#..........#........
..##........####......
....#......######.....
.....#############....
............#######...
.............#######..
..............######..
...............#####..
................###...
......................
)";

constexpr char k_hand[] = R"(6,0
......##............
.....#oo#...........
.....#oo#...........
.....#oo#...........
.....#oo#...........
.....#oo###.##.##...
.....#ooooo#oo#oo#..
.....#ooooooooooo#..
..####ooooooooooo#..
..#oo#ooooooooooo#..
..#oo#ooooooooooo#..
..#oo#ooooooooooo#..
..#oooooooooooooo#..
..#oooooooooooooo#..
...#ooooooooooooo#..
....#ooooooooooo#...
.....#oooooooooo#...
.....#oooooooooo#...
.....############...
....................
)";

template <class Chart>
class ScatterCursor : public testing::Test {};
TYPED_TEST_SUITE(ScatterCursor, ScatterCharts, ChartNames);
}  // namespace

TYPED_TEST(ScatterCursor, TellsTheMode) {
    ChartView<TypeParam> view;
    const HCURSOR hArrow = ::LoadCursor(nullptr, IDC_ARROW);
    const auto cursorAt = [&](CPoint pt) {
        ::SetCursor(nullptr);
        ::ClientToScreen(view.Handle(), &pt);
        ::SetCursorPos(pt.x, pt.y);
        const LRESULT lHandled = view.Send(WM_SETCURSOR, reinterpret_cast<WPARAM>(view.Handle()),
                                           MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        EXPECT_EQ(::GetCursor() != hArrow, lHandled != FALSE);
        return ::GetCursor();
    };
    EXPECT_EQ(k_magnifier, PictureOf(cursorAt(view.At(0, 0))));
    EXPECT_EQ(hArrow, cursorAt(view.At(400, 200))) << "outside its right edge";
    view.Command(k_nDrag);
    EXPECT_EQ(k_hand, PictureOf(cursorAt(view.At(200, 200))));
    EXPECT_EQ(hArrow, cursorAt({20, 300})) << "numbers";
    view.Command(k_nEnlarge);
    EXPECT_EQ(k_magnifier, PictureOf(cursorAt(view.At(200, 200))));
}

TEST(ScatterCursorMaking, LeavesNothingBehind) {
    RedWindow wnd;
    const auto make = [&] {
        CScatterCursor enlarge, drag;
        DrawEnlargeCursor(wnd, 0, enlarge);
        DrawDragCursor(wnd, 0, 0, drag);
    };
    make();
    const auto objects = [](DWORD dwKind) { return ::GetGuiResources(::GetCurrentProcess(), dwKind); };
    const DWORD dwGdi = objects(GR_GDIOBJECTS), dwUser = objects(GR_USEROBJECTS);
    for (int i = 0; i < 5; ++i) make();
    EXPECT_EQ(dwGdi, objects(GR_GDIOBJECTS));
    EXPECT_EQ(dwUser, objects(GR_USEROBJECTS));
    CClientDC dc(&wnd);
    Canvas copy(60, 50);
    copy.dc.BitBlt(0, 0, 60, 50, &dc, 0, 0, SRCCOPY);
    EXPECT_EQ(60 * 50, copy.Count(k_clrRed)) << "nothing is to be seen on the window";
    CRect rcClip;
    dc.GetClipBox(&rcClip);
    EXPECT_EQ(CRect(0, 0, 60, 50), rcClip);
}

TEST(ScatterCursorMaking, ForgetsWhatItCannotReplace) {
    RedWindow wnd;
    Canvas canvas(4, 4);
    CFont font;  // its width and escapement stand where a bitmap's size does
    font.CreateFont(0, 5, 9, 0, 0, FALSE, FALSE, FALSE, 0, 0, 0, 0, 0, nullptr);
    CWnd noWindow;
    const auto from = [](HGDIOBJ h) {
        return [h](CScatterCursor& cursor) {
            cursor.CreateFromBitmap(static_cast<HBITMAP>(h), k_clrWhite, 0, 0);
        };
    };
    struct Case {
        const char* pszName;
        std::function<void(CScatterCursor&)> make;
    };
    for (const Case& c : {
             Case{"no bitmap", from(nullptr)},
             Case{"a bitmap that is selected", from(canvas.dc.GetCurrentBitmap()->GetSafeHandle())},
             Case{"no bitmap but a font", from(font.GetSafeHandle())},
             Case{"magnifier without window", [&](auto& cursor) { DrawEnlargeCursor(noWindow, 0, cursor); }},
             Case{"hand without window", [&](auto& cursor) { DrawDragCursor(noWindow, 0, 0, cursor); }},
         }) {
        SCOPED_TRACE(c.pszName);
        CScatterCursor cursor;
        DrawEnlargeCursor(wnd, 0, cursor);
        const HCURSOR hOld = cursor.GetHandle();
        ASSERT_NE("", PictureOf(hOld));
        c.make(cursor);
        EXPECT_EQ(nullptr, cursor.GetHandle());
        EXPECT_EQ("", PictureOf(hOld));
    }
}
