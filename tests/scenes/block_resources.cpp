// The library's own bitmaps and cursor, loaded in every way and drawn by way of masks.
#include <tavlon/tavlon.h>

#include "scenes/block_scenes.h"

namespace scenes::blocks {

namespace {

constexpr int kSpriteNames[] = {3000, 3001, 3002, 3003, 3004, 3005, 3006, 3007, 3011, 3012};

HINSTANCE Library() {
    static const CProxy_RoePointCtrl s_radar;  // keeps the library loaded
    return AfxFindResourceHandle(MAKEINTRESOURCEA(3000), RT_BITMAP);
}

HBITMAP LoadSprite(int name, UINT flags) {
    return static_cast<HBITMAP>(LoadImageA(Library(), MAKEINTRESOURCEA(name), IMAGE_BITMAP, 0, 0, flags));
}

/// A row of transfers of one sprite, which is whole again after each.
void DrawInARow(Stage& stage, HBITMAP sprite, SIZE size) {
    const HDC picture = CreateCompatibleDC(stage.hdc);
    const HGDIOBJ old = SelectObject(picture, sprite);
    const COLORREF leftOut = stage.dice.OneIn(4) ? stage.dice.Colour() : GetPixel(picture, 1, 1);
    POINT at = stage.Point();
    for (int count = stage.dice.Between(1, 6); count > 0; --count) {
        DrawMasked(stage, picture, size, at, leftOut);
        at.x += stage.dice.Between(-9, 20), at.y += stage.dice.Between(-9, 9);
    }
    SelectObject(picture, old);
    DeleteDC(picture);
}

/// The bits that are left in a sprite, a pixel each, without its context.
void ShowBits(Stage& stage, HBITMAP sprite, SIZE size, int x, int y) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, size.cx, -size.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    std::vector<std::uint32_t> bits(static_cast<std::size_t>(size.cx) * static_cast<std::size_t>(size.cy));
    const UINT rows = static_cast<UINT>(size.cy);
    const int got = GetDIBits(stage.hdc, sprite, 0, rows, bits.data(), &info, DIB_RGB_COLORS);
    SetPixelV(stage.hdc, x, y, RGB(got, 0, 0));
    for (int i = 0; i < static_cast<int>(bits.size()); ++i)
        SetPixelV(stage.hdc, x + i % size.cx, y + 1 + i / size.cx,
                  bits[static_cast<std::size_t>(i)] & 0xffffff);
}

}  // namespace

/// All of them, and a name that the library lacks.
void ResourceBitmaps(Stage& stage) {
    static constexpr int kNames[] = {3000, 3001, 3002, 3003, 3004, 3005, 3006, 3007, 3011, 3012, 3013};
    static constexpr UINT kFlags[] = {LR_DEFAULTCOLOR, LR_CREATEDIBSECTION, LR_LOADMAP3DCOLORS,
                                      LR_CREATEDIBSECTION | LR_LOADMAP3DCOLORS};
    stage.Texture();
    for (int i = 0; i < 20; ++i) {
        const int name = stage.dice.Of(kNames);
        const UINT flags = stage.dice.Of(kFlags);
        const HBITMAP bitmap =
            stage.dice.OneIn(3) ? LoadBitmapA(Library(), MAKEINTRESOURCEA(name)) : LoadSprite(name, flags);
        const POINT at = stage.Point();
        if (bitmap) Show(stage, stage.Keep(bitmap), at.x, at.y);
        SetPixelV(stage.hdc, i, 0, bitmap ? RGB(255, 255, 255) : RGB(0, 0, 0));
    }
}

/// Sprites whose own bits a mask is combined into, and what they hold afterwards.
void SectionSprites(Stage& stage) {
    static constexpr UINT kFlags[] = {LR_CREATEDIBSECTION, LR_CREATEDIBSECTION | LR_LOADMAP3DCOLORS,
                                      LR_LOADMAP3DCOLORS, LR_DEFAULTCOLOR};
    stage.Texture();
    for (int i = 0; i < 10; ++i) {
        const int name = stage.dice.OneIn(3) ? 3002 : stage.dice.Of(kSpriteNames);
        const HBITMAP sprite = stage.Keep(LoadSprite(name, stage.dice.Of(kFlags)));
        BITMAP record{};
        GetObjectA(sprite, sizeof record, &record);
        const SIZE size{record.bmWidth, record.bmHeight};
        if (stage.dice.OneIn(3)) SetColours(stage, stage.hdc);
        if (stage.dice.OneIn(4)) SetClip(stage);
        DrawInARow(stage, sprite, size);
        ShowBits(stage, sprite, size, i * size.cx, 0);
    }
}

void ResourceCursor(Stage& stage) {
    stage.Texture();
    for (int i = 0; i < 4; ++i) {
        const HCURSOR cursor = LoadCursorA(Library(), MAKEINTRESOURCEA(3008));
        ICONINFO info{};
        const BOOL got = GetIconInfo(cursor, &info);
        SetColours(stage, stage.hdc);
        const POINT at = stage.Point();
        if (info.hbmMask) Show(stage, stage.Keep(info.hbmMask), at.x, at.y);
        if (info.hbmColor) Show(stage, stage.Keep(info.hbmColor), at.x + 40, at.y);
        SetPixelV(stage.hdc, 2 * i, 0, RGB(cursor != nullptr, got, info.xHotspot));
        SetPixelV(stage.hdc, 2 * i + 1, 0, RGB(info.yHotspot, info.fIcon, info.hbmColor != nullptr));
    }
}

}  // namespace scenes::blocks
