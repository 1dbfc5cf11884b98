#include "scenes/stage.h"

namespace scenes {

namespace {

void FillBox(HDC hdc, const RECT& rc, COLORREF colour) {
    const HBRUSH brush = CreateSolidBrush(colour);
    FillRect(hdc, &rc, brush);
    DeleteObject(brush);
}

void Cover(HDC hdc, int cx, int cy, Dice& dice) {
    FillBox(hdc, {0, 0, cx, cy}, dice.Colour());
    for (int i = 0; i < 24; ++i) {
        const int left = dice.Between(-cx / 4, cx), top = dice.Between(-cy / 4, cy);
        const int width = dice.Between(1, cx / 2 + 1), height = dice.Between(1, cy / 2 + 1);
        FillBox(hdc, {left, top, left + width, top + height}, dice.Colour());
    }
}

}  // namespace

Stage::Stage(SIZE size, unsigned seed) : cx(size.cx), cy(size.cy), dice(seed) {
    const HDC screen = GetDC(nullptr);
    hdc = CreateCompatibleDC(screen);
    m_bitmap = CreateCompatibleBitmap(screen, cx, cy);
    ReleaseDC(nullptr, screen);
    SelectObject(hdc, m_bitmap);
    FillBox(hdc, {0, 0, cx, cy}, dice.Colour());
}

Stage::~Stage() {
    DeleteDC(hdc);
    for (const HGDIOBJ object : m_owned) DeleteObject(object);
    DeleteObject(m_bitmap);
}

POINT Stage::Point(int margin) {
    const int x = dice.Between(-margin, cx + margin), y = dice.Between(-margin, cy + margin);
    return {x, y};
}

RECT Stage::Box(int least, int widest, int highest) {
    const POINT at = Point();
    const int width = dice.Between(least, widest), height = dice.Between(least, highest);
    return {at.x, at.y, at.x + width, at.y + height};
}

void Stage::SelectPen(int style, int width, COLORREF colour) {
    SelectObject(hdc, Keep(CreatePen(style, width, colour)));
}
void Stage::SelectBrush(COLORREF colour) { SelectObject(hdc, Keep(CreateSolidBrush(colour))); }
void Stage::SelectNoPen() { SelectObject(hdc, GetStockObject(NULL_PEN)); }
void Stage::SelectNoBrush() { SelectObject(hdc, GetStockObject(NULL_BRUSH)); }

void Stage::SelectAnyBrush() {
    if (dice.OneIn(3)) return SelectNoBrush();
    SelectBrush(dice.Colour());
}

void Stage::SelectAnyOperation() { SetROP2(hdc, dice.Between(R2_BLACK, R2_WHITE)); }

void Stage::Fill(HRGN region) { FillRgn(hdc, region, Keep(CreateSolidBrush(dice.Colour()))); }

void Stage::SelectFont(const char* face, int height, int weight) {
    SelectObject(hdc, Keep(CreateFontA(height, 0, 0, 0, weight, 0, 0, 0, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                                       CLIP_DEFAULT_PRECIS, PROOF_QUALITY, DEFAULT_PITCH, face)));
}

void Stage::Texture() { Cover(hdc, cx, cy, dice); }

Picture Stage::Pixels() {
    Picture picture{cx, cy, std::vector<std::uint32_t>(Picture::PixelCount(cx, cy))};
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, cx, -cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    // Its bits may not be read while it is selected.
    const HGDIOBJ other = Keep(CreateBitmap(1, 1, 1, 1, nullptr));
    SelectObject(hdc, other);
    const int rows =
        GetDIBits(hdc, m_bitmap, 0, static_cast<UINT>(cy), picture.xRGB.data(), &info, DIB_RGB_COLORS);
    SelectObject(hdc, m_bitmap);
    if (rows != cy) picture.xRGB.clear();
    for (std::uint32_t& pixel : picture.xRGB) pixel &= 0xffffff;
    return picture;
}

Sheet::Sheet(Stage& stage, int width, int height, Depth depth)
    : hdc(CreateCompatibleDC(stage.hdc)),
      bitmap(depth == kMono ? CreateBitmap(width, height, 1, 1, nullptr)
                            : CreateCompatibleBitmap(stage.hdc, width, height)),
      cx(width),
      cy(height),
      m_old(SelectObject(hdc, bitmap)) {}

Sheet::~Sheet() {
    SelectObject(hdc, m_old);
    DeleteObject(bitmap);
    DeleteDC(hdc);
}

void Sheet::Texture(Dice& dice) { Cover(hdc, cx, cy, dice); }

}  // namespace scenes
