// Bitmaps out of bits and sections, cursors, and what is read back of them.
#include <cstring>

#include "scenes/block_scenes.h"

namespace scenes::blocks {

namespace {

using Bytes = std::vector<BYTE>;

Bytes RandomBytes(Dice& dice, std::size_t count) {
    Bytes bytes(count);
    for (BYTE& byte : bytes) byte = static_cast<BYTE>(dice.Between(0, 255));
    return bytes;
}

/// A header with room for the longest colour table.
struct DibInfo {
    BITMAPINFOHEADER bmiHeader;
    RGBQUAD bmiColors[256];
    BITMAPINFO* Get() { return reinterpret_cast<BITMAPINFO*>(this); }
    std::size_t RowBytes() const {
        return (static_cast<std::size_t>(bmiHeader.biWidth) * bmiHeader.biBitCount + 31) / 32 * 4;
    }
    std::size_t ImageBytes() const {
        return RowBytes() *
               static_cast<std::size_t>(bmiHeader.biHeight < 0 ? -bmiHeader.biHeight : bmiHeader.biHeight);
    }
};

DibInfo AnyDib(Dice& dice, int bits) {
    DibInfo info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = dice.Between(1, 50);
    info.bmiHeader.biHeight = dice.Between(1, 40) * (dice.OneIn(2) ? 1 : -1);
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = static_cast<WORD>(bits);
    if (bits <= 8 && dice.OneIn(3)) info.bmiHeader.biClrUsed = static_cast<DWORD>(dice.Between(1, 1 << bits));
    for (RGBQUAD& colour : info.bmiColors) {
        const Bytes three = RandomBytes(dice, 3);
        colour = {three[0], three[1], three[2], 0};
    }
    return info;
}

/// Bytes as grey pixels, row by row.
void ShowBytes(Stage& stage, const Bytes& bytes, int x, int y, int width) {
    for (int i = 0; i < static_cast<int>(bytes.size()); ++i)
        SetPixelV(stage.hdc, x + i % width, y + i / width, RGB(bytes[i], bytes[i], bytes[i]));
}

/// Width, height and depth as colours of pixels.
void ShowRecord(Stage& stage, HBITMAP bitmap, int x, int y) {
    BITMAP record{};
    const int size = GetObjectA(bitmap, sizeof record, &record);
    SetPixelV(stage.hdc, x, y, RGB(record.bmWidth, record.bmHeight, record.bmBitsPixel));
    SetPixelV(stage.hdc, x + 1, y, RGB(record.bmWidthBytes, record.bmPlanes, size != 0));
}

int SideOf(Dice& dice, int most) { return dice.Between(1, most) * (dice.OneIn(8) ? -1 : 1); }

}  // namespace

void CreatedBitmaps(Stage& stage) {
    for (int i = 0; i < 15; ++i) {
        const int cx = SideOf(stage.dice, 50), cy = SideOf(stage.dice, 40);
        const UINT bits = stage.dice.OneIn(3) ? 32 : 1;
        const Bytes bytes = RandomBytes(stage.dice, 50 * 40 * 4);
        const HBITMAP bitmap =
            stage.Keep(CreateBitmap(cx, cy, 1, bits, stage.dice.OneIn(6) ? nullptr : bytes.data()));
        SetColours(stage, stage.hdc);
        const POINT at = stage.Point();
        Show(stage, bitmap, at.x, at.y);
        ShowRecord(stage, bitmap, 2 * i, 0);
    }
}

void Sections(Stage& stage) {
    stage.Texture();
    for (int i = 0; i < 6; ++i) {
        DibInfo info = AnyDib(stage.dice, 32);
        info.bmiHeader.biWidth = stage.dice.Between(1, 60);
        void* bits = nullptr;
        const HBITMAP bitmap =
            stage.Keep(CreateDIBSection(stage.hdc, info.Get(), DIB_RGB_COLORS, &bits, nullptr, 0));
        Bytes bytes = RandomBytes(stage.dice, info.ImageBytes());
        std::memcpy(bits, bytes.data(), bytes.size());
        const HDC hdc = CreateCompatibleDC(stage.hdc);
        const HGDIOBJ old = SelectObject(hdc, bitmap);
        const int cx = info.bmiHeader.biWidth, cy = static_cast<int>(info.ImageBytes() / info.RowBytes());
        for (int j = 0; j < 5; ++j) {
            SetColours(stage, hdc), SetColours(stage, stage.hdc);
            const Way to = AnyWay(stage.dice, {stage.cx, stage.cy}, {cx, cy}, 50);
            BitBlt(stage.hdc, to.x, to.y, to.cx, to.cy, hdc, to.xSrc, to.ySrc, stage.dice.Of(kNamedCodes));
            const Way back = AnyWay(stage.dice, {cx, cy}, {stage.cx, stage.cy}, 50);
            BitBlt(hdc, back.x, back.y, back.cx, back.cy, stage.hdc, back.xSrc, back.ySrc,
                   stage.dice.Of(kNamedCodes));
        }
        const RECT rc{2, 2, stage.dice.Between(3, 30), stage.dice.Between(3, 30)};
        if (stage.dice.OneIn(3)) FillRect(hdc, &rc, stage.Keep(CreateSolidBrush(stage.dice.Colour())));
        GdiFlush();
        std::memcpy(bytes.data(), bits, bytes.size());
        const POINT at = stage.Point();
        ShowBytes(stage, bytes, at.x, at.y, 4 * cx);
        SelectObject(hdc, old);
        DeleteDC(hdc);
    }
}

void LoadedDibs(Stage& stage) {
    static constexpr int kDepths[] = {1, 4, 8, 24, 32};
    for (int i = 0; i < 15; ++i) {
        DibInfo info = AnyDib(stage.dice, stage.dice.Of(kDepths));
        BITMAPINFOHEADER wanted = info.bmiHeader;
        if (stage.dice.OneIn(3)) wanted.biWidth = stage.dice.Between(1, 60);
        if (stage.dice.OneIn(3)) wanted.biHeight = SideOf(stage.dice, 50);
        const Bytes bytes = RandomBytes(stage.dice, info.ImageBytes());
        const DWORD init = stage.dice.OneIn(6) ? 0 : CBM_INIT;
        const HBITMAP bitmap =
            stage.Keep(CreateDIBitmap(stage.hdc, &wanted, init, bytes.data(), info.Get(), DIB_RGB_COLORS));
        const POINT at = stage.Point();
        Show(stage, bitmap, at.x, at.y);
        ShowRecord(stage, bitmap, 2 * i, 0);
    }
}

void BitsReadBack(Stage& stage) {
    for (int i = 0; i < 8; ++i) {
        const int cx = stage.dice.Between(1, 20), cy = stage.dice.Between(1, 20);
        Sheet sheet(stage, cx, cy, stage.dice.OneIn(4) ? Sheet::kMono : Sheet::kColour);
        sheet.Texture(stage.dice);
        const Sheet away(stage, cx, cy);
        DibInfo info = AnyDib(stage.dice, stage.dice.OneIn(2) ? 24 : 32);
        info.bmiHeader.biWidth = stage.dice.OneIn(2) ? cx : stage.dice.Between(1, 25);
        info.bmiHeader.biHeight = stage.dice.OneIn(2) ? cy : SideOf(stage.dice, 25);
        const UINT first = stage.dice.OneIn(2) ? 0 : static_cast<UINT>(stage.dice.Between(0, cy));
        const UINT lines = static_cast<UINT>(stage.dice.Between(0, 25));
        Bytes bytes(25 * 25 * 4, 0xee);
        SelectObject(sheet.hdc, stage.Keep(CreateBitmap(1, 1, 1, 1, nullptr)));
        const int got =
            GetDIBits(away.hdc, sheet.bitmap, first, lines, bytes.data(), info.Get(), DIB_RGB_COLORS);
        const BYTE size = static_cast<BYTE>(info.bmiHeader.biSizeImage % 251);
        bytes.insert(bytes.end(), {static_cast<BYTE>(got), size});
        ShowBytes(stage, bytes, 0, 15 * i, stage.cx);
    }
}

namespace {

HICON MakeIcon(Stage& stage) {
    Dice& dice = stage.dice;
    const int cx = dice.Between(1, 48), cy = dice.Between(1, 30);
    const bool coloured = dice.OneIn(2);
    Sheet mask(stage, cx, coloured ? cy : 2 * cy, Sheet::kMono), colour(stage, cx, cy);
    mask.Texture(dice), colour.Texture(dice);
    const HBITMAP other = stage.Keep(CreateBitmap(1, 1, 1, 1, nullptr));
    SelectObject(mask.hdc, other);
    SelectObject(colour.hdc, stage.Keep(CreateBitmap(1, 1, 1, 1, nullptr)));
    ICONINFO info{};
    info.fIcon = dice.OneIn(2);
    info.xHotspot = static_cast<DWORD>(dice.Between(0, 60)),
    info.yHotspot = static_cast<DWORD>(dice.Between(0, 40));
    info.hbmMask = mask.bitmap, info.hbmColor = coloured ? colour.bitmap : nullptr;
    return CreateIconIndirect(&info);
}

/// A cursor of two colour bitmaps: the mask white around the picture, the picture black around itself.
HICON MakeCutOut(Stage& stage) {
    const int cx = stage.dice.Between(1, 32), cy = stage.dice.Between(1, 32);
    const Sheet mask(stage, cx, cy), picture(stage, cx, cy);
    const RECT all{0, 0, cx, cy};
    FillRect(mask.hdc, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    FillRect(picture.hdc, &all, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    for (int i = 0; i < 200; ++i) {
        const int x = stage.dice.Between(0, cx - 1), y = stage.dice.Between(0, cy - 1);
        SetPixelV(mask.hdc, x, y, RGB(0, 0, 0));
        SetPixelV(picture.hdc, x, y, stage.dice.Colour());
    }
    SelectObject(mask.hdc, stage.Keep(CreateBitmap(1, 1, 1, 1, nullptr)));
    SelectObject(picture.hdc, stage.Keep(CreateBitmap(1, 1, 1, 1, nullptr)));
    ICONINFO info{FALSE, 8, 8, mask.bitmap, picture.bitmap};
    return CreateIconIndirect(&info);
}

/// What a cursor or icon is made of, in the `i`th place.
void ShowIcon(Stage& stage, HICON icon, int i, int apart) {
    ICONINFO info{};
    const BOOL got = GetIconInfo(icon, &info);
    SetColours(stage, stage.hdc);
    const POINT at = stage.Point(0);
    if (info.hbmMask) Show(stage, stage.Keep(info.hbmMask), at.x, at.y);
    if (info.hbmColor) Show(stage, stage.Keep(info.hbmColor), at.x + apart, at.y);
    ShowRecord(stage, info.hbmMask, 4 * i, 0);
    if (info.hbmColor) ShowRecord(stage, info.hbmColor, 4 * i + 2, 0);
    SetPixelV(stage.hdc, i, 1, RGB(info.xHotspot, info.yHotspot, got * 2 + info.fIcon));
    DestroyIcon(icon);
}

}  // namespace

void Cursors(Stage& stage) {
    for (int i = 0; i < 8; ++i) ShowIcon(stage, MakeIcon(stage), i, 20);
}

/// Their masks, of colours, become single bits.
void CutOutCursors(Stage& stage) {
    for (int i = 0; i < 6; ++i) ShowIcon(stage, MakeCutOut(stage), i, 33);
}

}  // namespace scenes::blocks
