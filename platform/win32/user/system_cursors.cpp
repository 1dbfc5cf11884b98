#include "user/cursor.h"

namespace tavlon::win32 {

namespace {

constexpr int kSide = 32;

/// A picture that is all screen, to be drawn on.
CursorImage Blank(int hotX, int hotY) {
    CursorImage picture;
    picture.hotX = hotX, picture.hotY = hotY;
    picture.width = picture.height = kSide;
    picture.colour.assign(kSide * kSide, 0);
    picture.keep.assign(kSide * kSide, 1);
    return picture;
}

void Put(CursorImage& picture, int x, int y, std::uint32_t colour) {
    picture.colour[static_cast<std::size_t>(y) * kSide + x] = colour;
    picture.keep[static_cast<std::size_t>(y) * kSide + x] = 0;
}

/// A triangle that points to the upper left, black with a white inside.
CursorImage DrawArrow() {
    CursorImage picture = Blank(0, 0);
    constexpr int kHeight = 17;
    for (int y = 0; y < kHeight; ++y) {
        const int width = y < 12 ? y : (kHeight - 1 - y);
        for (int x = 0; x <= width; ++x)
            Put(picture, x, y, x == 0 || x == width || y == kHeight - 1 ? 0 : 0xffffff);
    }
    return picture;
}

CursorImage DrawLines(bool horizontal, bool vertical, int reach) {
    constexpr int kMiddle = kSide / 2;
    CursorImage picture = Blank(kMiddle, kMiddle);
    for (int i = kMiddle - reach; i <= kMiddle + reach; ++i) {
        if (horizontal) Put(picture, i, kMiddle, 0);
        if (vertical) Put(picture, kMiddle, i, 0);
    }
    return picture;
}

}  // namespace

CursorImage DrawSystemCursor(display::StockCursor stock) {
    switch (stock) {
        case display::StockCursor::IBeam:
            return DrawLines(false, true, 8);
        case display::StockCursor::Cross:
            return DrawLines(true, true, 12);
        case display::StockCursor::SizeAll:
            return DrawLines(true, true, 10);
        default:
            return DrawArrow();
    }
}

}  // namespace tavlon::win32
