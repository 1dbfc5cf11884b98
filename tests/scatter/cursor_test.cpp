// The cursors of the scatter charts, read back from the system.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "foundation/canvas.h"
#include "scatter/mode_cursors.h"

namespace {
constexpr COLORREF k_clrLine = RGB(192, 192, 0);
constexpr COLORREF k_clrInside = RGB(10, 20, 30);

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

    int RedPixels() {
        CClientDC dc(this);
        Canvas copy(60, 50);
        copy.dc.BitBlt(0, 0, 60, 50, &dc, 0, 0, SRCCOPY);
        return copy.Count(k_clrRed);
    }
};

/// A bitmap that can be read; it is deleted with its reader.
class Pixels {
public:
    explicit Pixels(HBITMAP hBitmap) {
        m_bitmap.Attach(hBitmap);
        m_bitmap.GetBitmap(&m_size);
        m_dc.CreateCompatibleDC(nullptr);
        m_pOld = m_dc.SelectObject(&m_bitmap);
    }
    ~Pixels() { m_dc.SelectObject(m_pOld); }
    Pixels(const Pixels&) = delete;
    Pixels& operator=(const Pixels&) = delete;

    COLORREF At(int x, int y) const { return m_dc.GetPixel(x, y); }
    int Width() const { return m_size.bmWidth; }
    int Height() const { return m_size.bmHeight; }

private:
    CBitmap m_bitmap;
    BITMAP m_size{};
    CDC m_dc;
    CBitmap* m_pOld;
};

/// '.' the screen, '#' the line, 'o' the inside; '?' anything else.
char Letter(COLORREF clrMask, COLORREF clr) {
    if (clrMask == k_clrWhite) return clr == k_clrBlack ? '.' : '?';
    if (clrMask != k_clrBlack) return '?';
    return clr == k_clrLine ? '#' : clr == k_clrInside ? 'o' : '?';
}

/// Rows of letters, each after a line end; empty for bitmaps of different sizes.
std::string Letters(const Pixels& mask, const Pixels& colour) {
    if (mask.Width() != colour.Width() || mask.Height() != colour.Height()) return "";
    std::string letters = "\n";
    for (int y = 0; y < colour.Height(); ++y, letters += '\n')
        for (int x = 0; x < colour.Width(); ++x) letters += Letter(mask.At(x, y), colour.At(x, y));
    return letters;
}

struct Picture {
    bool bCursor = false;
    CPoint ptHot{-1, -1};
    std::string letters;
};

Picture PictureOf(const CScatterCursor& cursor) {
    ICONINFO info{};
    if (!::GetIconInfo(cursor.GetHandle(), &info)) return {};
    const Pixels mask(info.hbmMask), colour(info.hbmColor);
    return {!info.fIcon, CPoint(static_cast<int>(info.xHotspot), static_cast<int>(info.yHotspot)),
            Letters(mask, colour)};
}

bool IsAlive(HCURSOR hCursor) {
    ICONINFO info{};
    if (!::GetIconInfo(hCursor, &info)) return false;
    ::DeleteObject(info.hbmMask);
    ::DeleteObject(info.hbmColor);
    return true;
}

constexpr char k_magnifier[] = R"(
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

constexpr char k_hand[] = R"(
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
}  // namespace

TEST(ScatterCursor, Pictures) {
    RedWindow wnd;
    CScatterCursor enlarge, drag;
    DrawEnlargeCursor(wnd, k_clrLine, enlarge);
    DrawDragCursor(wnd, k_clrInside, k_clrLine, drag);
    struct Case {
        const char* pszName;
        const CScatterCursor& cursor;
        CPoint ptHot;
        const char* pszWant;
    };
    for (const Case& c :
         {Case{"magnifier", enlarge, CPoint(8, 8), k_magnifier}, Case{"hand", drag, CPoint(6, 0), k_hand}}) {
        SCOPED_TRACE(c.pszName);
        const Picture got = PictureOf(c.cursor);
        EXPECT_TRUE(got.bCursor);
        EXPECT_EQ(c.ptHot, got.ptHot);
        EXPECT_EQ(c.pszWant, got.letters);
    }
}

TEST(ScatterCursor, DrawingLeavesTheWindowAlone) {
    RedWindow wnd;
    ASSERT_EQ(60 * 50, wnd.RedPixels());
    CScatterCursor cursor;
    DrawEnlargeCursor(wnd, k_clrLine, cursor);
    DrawDragCursor(wnd, k_clrInside, k_clrLine, cursor);
    EXPECT_EQ(60 * 50, wnd.RedPixels());
    CClientDC dc(&wnd);
    CRect rcClip;
    dc.GetClipBox(&rcClip);
    EXPECT_EQ(CRect(0, 0, 60, 50), rcClip);
}

TEST(ScatterCursor, DrawingLeaksNothing) {
    RedWindow wnd;
    CScatterCursor cursor;
    const auto draw = [&] {
        DrawEnlargeCursor(wnd, k_clrLine, cursor);
        DrawDragCursor(wnd, k_clrInside, k_clrLine, cursor);
    };
    draw();
    const HANDLE hProcess = ::GetCurrentProcess();
    const DWORD dwGdi = ::GetGuiResources(hProcess, GR_GDIOBJECTS),
                dwUser = ::GetGuiResources(hProcess, GR_USEROBJECTS);
    for (int i = 0; i < 5; ++i) draw();
    EXPECT_EQ(dwGdi, ::GetGuiResources(hProcess, GR_GDIOBJECTS));
    EXPECT_EQ(dwUser, ::GetGuiResources(hProcess, GR_USEROBJECTS));
}

TEST(ScatterCursor, ForgetsWhatItCannotReplace) {
    RedWindow wnd;
    Canvas canvas(4, 4);
    LOGFONT description{};  // its next fields stand where a bitmap's size does
    description.lfWidth = 5, description.lfEscapement = 9;
    CFont font;
    font.CreateFontIndirect(&description);
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
             Case{"destroyed", [](CScatterCursor& cursor) { cursor.Destroy(); }},
             Case{"no bitmap", from(nullptr)},
             Case{"a bitmap that is selected", from(canvas.dc.GetCurrentBitmap()->GetSafeHandle())},
             Case{"no bitmap but a font", from(font.GetSafeHandle())},
             Case{"magnifier without window",
                  [&](CScatterCursor& cursor) { DrawEnlargeCursor(noWindow, 0, cursor); }},
             Case{"hand without window",
                  [&](CScatterCursor& cursor) { DrawDragCursor(noWindow, 0, 0, cursor); }},
         }) {
        SCOPED_TRACE(c.pszName);
        CScatterCursor cursor;
        DrawEnlargeCursor(wnd, k_clrLine, cursor);
        const HCURSOR hOld = cursor.GetHandle();
        ASSERT_TRUE(IsAlive(hOld));
        c.make(cursor);
        EXPECT_EQ(nullptr, cursor.GetHandle());
        EXPECT_FALSE(IsAlive(hOld));
    }
}

TEST(ScatterCursor, DestroyedWithItsOwner) {
    RedWindow wnd;
    HCURSOR hCursor = nullptr;
    {
        CScatterCursor cursor;
        DrawEnlargeCursor(wnd, k_clrLine, cursor);
        hCursor = cursor.GetHandle();
        ASSERT_TRUE(IsAlive(hCursor));
    }
    EXPECT_FALSE(IsAlive(hCursor));
}

TEST(ScatterCursor, MaskAndColour) {
    Canvas canvas(3, 2, k_clrRed);
    canvas.dc.SetPixel(1, 0, k_clrGreen);
    canvas.dc.SetPixel(2, 1, k_clrWhite);
    const HBITMAP hBitmap = GetHBitmapFromHDC(canvas.dc, 3, 2);
    CScatterCursor cursor;
    HBITMAP hMask = nullptr, hColour = nullptr;
    cursor.MakeMaskAndColor(hBitmap, k_clrRed, &hMask, &hColour);
    ::DeleteObject(hBitmap);
    const Pixels mask(hMask), colour(hColour);
    struct Case {
        int x, y;
        COLORREF clrMask, clr;
    };
    for (const Case& c : {Case{0, 0, k_clrWhite, k_clrBlack}, Case{1, 0, k_clrBlack, k_clrGreen},
                          Case{2, 1, k_clrBlack, k_clrWhite}, Case{1, 1, k_clrWhite, k_clrBlack}}) {
        SCOPED_TRACE(testing::Message() << c.x << "," << c.y);
        EXPECT_EQ(c.clrMask, mask.At(c.x, c.y));
        EXPECT_EQ(c.clr, colour.At(c.x, c.y));
    }
    EXPECT_EQ(3, mask.Width());
    EXPECT_EQ(2, colour.Height());
}
