#include <gtest/gtest.h>
#include <windows.h>

namespace {

/// A mask and colour bitmap of 8 by 8 for the screen: the left half shows the screen, the right half is
/// `clr`.
ICONINFO HalfCursor(COLORREF clr) {
    const HDC hdcScreen = GetDC(nullptr), hdc = CreateCompatibleDC(hdcScreen);
    ICONINFO info{FALSE, 3, 5, CreateCompatibleBitmap(hdcScreen, 8, 8),
                  CreateCompatibleBitmap(hdcScreen, 8, 8)};
    for (HBITMAP hBitmap : {info.hbmMask, info.hbmColor}) {
        const HGDIOBJ hOld = SelectObject(hdc, hBitmap);
        const bool bMask = hBitmap == info.hbmMask;
        for (int y = 0; y < 8; ++y)
            for (int x = 0; x < 8; ++x)
                SetPixel(hdc, x, y, bMask ? (x < 4 ? RGB(255, 255, 255) : 0) : (x < 4 ? 0 : clr));
        SelectObject(hdc, hOld);
    }
    DeleteDC(hdc);
    ReleaseDC(nullptr, hdcScreen);
    return info;
}

COLORREF PixelOf(HBITMAP hBitmap, int x, int y) {
    const HDC hdc = CreateCompatibleDC(nullptr);
    const HGDIOBJ hOld = SelectObject(hdc, hBitmap);
    const COLORREF clr = GetPixel(hdc, x, y);
    SelectObject(hdc, hOld);
    DeleteDC(hdc);
    return clr;
}

TEST(UserCursor, BitmapsAreCopiedInAndOut) {
    ICONINFO info = HalfCursor(RGB(200, 100, 50));
    const HCURSOR hCursor = CreateIconIndirect(&info);
    DeleteObject(info.hbmMask);
    DeleteObject(info.hbmColor);
    ASSERT_NE(nullptr, hCursor);
    ICONINFO out{};
    ASSERT_TRUE(GetIconInfo(hCursor, &out));
    EXPECT_FALSE(out.fIcon);
    EXPECT_EQ(3u, out.xHotspot);
    EXPECT_EQ(5u, out.yHotspot);
    EXPECT_EQ(RGB(255, 255, 255), PixelOf(out.hbmMask, 3, 7));
    EXPECT_EQ(RGB(0, 0, 0), PixelOf(out.hbmMask, 4, 7));
    EXPECT_EQ(RGB(200, 100, 50), PixelOf(out.hbmColor, 4, 0));
    DeleteObject(out.hbmMask);
    DeleteObject(out.hbmColor);
    EXPECT_TRUE(DestroyCursor(hCursor));
    EXPECT_FALSE(GetIconInfo(hCursor, &out));
}

TEST(UserCursor, SystemCursorsAreSharedAndCurrentOneIsKept) {
    const HCURSOR hArrow = LoadCursor(nullptr, IDC_ARROW);
    ASSERT_NE(nullptr, hArrow);
    EXPECT_EQ(hArrow, LoadCursor(nullptr, IDC_ARROW));
    EXPECT_NE(hArrow, LoadCursor(nullptr, IDC_HAND));
    EXPECT_EQ(nullptr, LoadCursor(nullptr, MAKEINTRESOURCE(77)));
    SetCursor(hArrow);
    EXPECT_EQ(hArrow, SetCursor(nullptr));
    EXPECT_EQ(nullptr, GetCursor());
    SetCursor(hArrow);
    EXPECT_EQ(hArrow, GetCursor());
}

TEST(UserCursor, BadArgumentsAreRefused) {
    ICONINFO out{};
    ICONINFO empty{};
    EXPECT_EQ(nullptr, CreateIconIndirect(&empty));
    EXPECT_FALSE(GetIconInfo(nullptr, &out));
}

}  // namespace
