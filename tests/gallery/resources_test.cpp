#include <gtest/gtest.h>
#include <tavlon/tavlon.h>

#include <string>

namespace {

/// The library's module, found as a control finds it; the wrapper keeps the library loaded.
HINSTANCE LibraryModule() {
    static const CProxy_RoePointCtrl s_radar;
    return AfxFindResourceHandle(MAKEINTRESOURCEA(3000), RT_BITMAP);
}

/// Its side; 0 when the library has no square bitmap of that number.
int SideOf(int nId) {
    const HBITMAP hBitmap = ::LoadBitmapA(LibraryModule(), MAKEINTRESOURCEA(nId));
    BITMAP info{};
    ::GetObjectA(hBitmap, sizeof info, &info);
    ::DeleteObject(hBitmap);
    return info.bmWidth == info.bmHeight ? info.bmWidth : 0;
}

}  // namespace

/// What the sprites of points look like, the charts' scenes hold.
TEST(Resources, Bitmaps) {
    for (int nId = 2999; nId <= 3014; ++nId) {
        const bool bSprite = nId >= 3000 && nId <= 3007, bCarried = nId == 3011 || nId == 3012;
        EXPECT_EQ(bSprite || bCarried ? 16 : 0, SideOf(nId)) << nId;
    }
}

TEST(Resources, PointingHand) {
    const HCURSOR hCursor = ::LoadCursorA(LibraryModule(), MAKEINTRESOURCEA(3008));
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
    const HMENU hMenu = ::LoadMenuA(LibraryModule(), MAKEINTRESOURCEA(3010)), hPopup = ::GetSubMenu(hMenu, 0);
    const auto text = [](HMENU hIn, UINT nItem, UINT nBy) {
        char szText[64] = "";
        ::GetMenuStringA(hIn, nItem, szText, sizeof szText, nBy);
        return std::string(szText);
    };
    EXPECT_EQ("选择", text(hMenu, 0, MF_BYPOSITION));
    EXPECT_EQ(4, ::GetMenuItemCount(hPopup));
    EXPECT_TRUE(::GetMenuState(hPopup, 1, MF_BYPOSITION) & MF_SEPARATOR);
    EXPECT_EQ("取消缩放", text(hPopup, 32771, MF_BYCOMMAND));
    EXPECT_EQ("增大星星尺寸", text(hPopup, 32773, MF_BYCOMMAND));
    EXPECT_EQ("减小星星尺寸", text(hPopup, 32774, MF_BYCOMMAND));
    ::DestroyMenu(hMenu);
}
