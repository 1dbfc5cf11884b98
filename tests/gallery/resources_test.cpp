#include <gtest/gtest.h>
#include <tavlon/tavlon.h>

#include <algorithm>
#include <vector>

namespace {

constexpr int kSide = 16;
constexpr COLORREF kWhite = RGB(255, 255, 255), kBlack = RGB(0, 0, 0);

/// The library's module, found as a control finds it; the wrapper keeps the library loaded.
HINSTANCE LibraryModule() {
    static const CProxy_RoePointCtrl s_radar;
    return AfxFindResourceHandle(MAKEINTRESOURCEA(3000), RT_BITMAP);
}

/// The pixels of a bitmap of the library, row by row; empty when it is not there or not 16 by 16.
std::vector<COLORREF> Sprite(int nId) {
    const HBITMAP hBitmap = ::LoadBitmapA(LibraryModule(), MAKEINTRESOURCEA(nId));
    BITMAP info{};
    ::GetObjectA(hBitmap, sizeof info, &info);
    std::vector<COLORREF> pixels;
    if (info.bmWidth == kSide && info.bmHeight == kSide) {
        const HDC hdc = ::CreateCompatibleDC(nullptr);
        const HGDIOBJ hOld = ::SelectObject(hdc, hBitmap);
        for (int n = 0; n < kSide * kSide; ++n) pixels.push_back(::GetPixel(hdc, n % kSide, n / kSide));
        ::SelectObject(hdc, hOld);
        ::DeleteDC(hdc);
    }
    ::DeleteObject(hBitmap);
    return pixels;
}

struct Extent {
    int nLeft = kSide, nTop = kSide, nRight = 0, nBottom = 0;
};

/// Where the pixels are that are not of the surrounding colour; right and bottom are outside.
Extent ExtentOf(const std::vector<COLORREF>& pixels, COLORREF clrSurround) {
    Extent out;
    for (int n = 0; n < kSide * kSide; ++n) {
        if (pixels[static_cast<std::size_t>(n)] == clrSurround) continue;
        const int x = n % kSide, y = n / kSide;
        out = {std::min(out.nLeft, x), std::min(out.nTop, y), std::max(out.nRight, x + 1),
               std::max(out.nBottom, y + 1)};
    }
    return out;
}

/// Pixels in the disc of that diameter in the middle that have the surrounding colour: holes.
int HolesInDisc(const std::vector<COLORREF>& pixels, COLORREF clrSurround, int nDiameter) {
    int nHoles = 0;
    for (int n = 0; n < kSide * kSide; ++n) {
        const int dx = 2 * (n % kSide) - 15, dy = 2 * (n / kSide) - 15;  // half pixels from the middle
        if (dx * dx + dy * dy < (nDiameter - 1) * (nDiameter - 1) &&
            pixels[static_cast<std::size_t>(n)] == clrSurround)
            ++nHoles;
    }
    return nHoles;
}

bool IsRed(COLORREF c) { return GetRValue(c) >= 172 && GetGValue(c) <= 1 && GetBValue(c) <= 1; }
bool IsGreen(COLORREF c) { return GetGValue(c) > 2 * GetRValue(c) && GetGValue(c) > 2 * GetBValue(c); }
bool IsLightGrey(COLORREF c) { return std::min({GetRValue(c), GetGValue(c), GetBValue(c)}) > 150; }
bool IsYellow(COLORREF c) { return GetRValue(c) > 200 && GetGValue(c) > 130 && GetBValue(c) < 60; }

}  // namespace

TEST(Resources, PointSprites) {
    struct Case {
        int nId;
        COLORREF clrSurround;
        int nDiameter;
        bool (*pfnIsOfColour)(COLORREF);
    };
    for (const Case& c : {Case{3000, kWhite, 10, IsGreen}, Case{3001, kWhite, 6, IsGreen},
                          Case{3002, kWhite, 10, IsRed}, Case{3003, kWhite, 6, IsRed},
                          Case{3004, kBlack, 10, IsLightGrey}, Case{3005, kBlack, 6, IsLightGrey},
                          Case{3006, kWhite, 10, IsYellow}, Case{3007, kWhite, 6, IsYellow}}) {
        SCOPED_TRACE(c.nId);
        const std::vector<COLORREF> pixels = Sprite(c.nId);
        ASSERT_EQ(256u, pixels.size());
        EXPECT_EQ(c.clrSurround, pixels[17]) << "the pixel (1,1) says what is transparent";
        const Extent extent = ExtentOf(pixels, c.clrSurround);
        EXPECT_EQ(c.nDiameter, extent.nRight - extent.nLeft);
        EXPECT_EQ(c.nDiameter, extent.nBottom - extent.nTop);
        EXPECT_EQ(kSide / 2, (extent.nLeft + extent.nRight) / 2);
        EXPECT_EQ(kSide / 2, (extent.nTop + extent.nBottom) / 2);
        EXPECT_EQ(0, HolesInDisc(pixels, c.clrSurround, c.nDiameter));
        for (const COLORREF clr : pixels)
            EXPECT_TRUE(clr == c.clrSurround || c.pfnIsOfColour(clr)) << std::hex << clr;
    }
}

TEST(Resources, RedBallIsShaded) {
    const std::vector<COLORREF> pixels = Sprite(3002);
    ASSERT_FALSE(pixels.empty());
    EXPECT_EQ(1, std::ranges::count(pixels, RGB(253, 1, 1)));
    EXPECT_LT(0, std::ranges::count(pixels, RGB(172, 0, 0)));
}

TEST(Resources, CarriedBitmaps) {
    for (const int nId : {3011, 3012}) EXPECT_EQ(256u, Sprite(nId).size()) << nId;
    for (const int nId : {3008, 3009, 3010, 3013}) EXPECT_TRUE(Sprite(nId).empty()) << nId;
}

TEST(Resources, PointingHand) {
    const HCURSOR hCursor = ::LoadCursorA(LibraryModule(), MAKEINTRESOURCEA(3008));
    ASSERT_NE(nullptr, hCursor);
    ICONINFO info{};
    ASSERT_TRUE(::GetIconInfo(hCursor, &info));
    EXPECT_FALSE(info.fIcon);
    EXPECT_EQ(6u, info.xHotspot);
    EXPECT_EQ(0u, info.yHotspot);
    EXPECT_EQ(nullptr, info.hbmColor) << "monochrome";
    BITMAP mask{};
    ::GetObjectA(info.hbmMask, sizeof mask, &mask);
    EXPECT_EQ(32, mask.bmWidth);
    EXPECT_EQ(64, mask.bmHeight) << "both masks";
    ::DeleteObject(info.hbmMask);
}

TEST(Resources, StarMenu) {
    const HMENU hMenu = ::LoadMenuA(LibraryModule(), MAKEINTRESOURCEA(3010));
    ASSERT_NE(nullptr, hMenu);
    char szText[64] = "";
    ::GetMenuStringA(hMenu, 0, szText, sizeof szText, MF_BYPOSITION);
    EXPECT_STREQ("选择", szText);
    const HMENU hPopup = ::GetSubMenu(hMenu, 0);
    ASSERT_EQ(4, ::GetMenuItemCount(hPopup));
    EXPECT_TRUE(::GetMenuState(hPopup, 1, MF_BYPOSITION) & MF_SEPARATOR);
    struct Case {
        UINT nId;
        const char* pszWant;
    };
    for (const Case& c :
         {Case{32771, "取消缩放"}, Case{32773, "增大星星尺寸"}, Case{32774, "减小星星尺寸"}}) {
        SCOPED_TRACE(c.nId);
        EXPECT_LT(0, ::GetMenuStringA(hPopup, c.nId, szText, sizeof szText, MF_BYCOMMAND));
        EXPECT_STREQ(c.pszWant, szText);
    }
    ::DestroyMenu(hMenu);
}
