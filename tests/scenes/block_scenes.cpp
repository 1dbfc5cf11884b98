#include "scenes/block_scenes.h"

#include "scenes/settled.h"

namespace scenes::blocks {

Way AnyWay(Dice& dice, SIZE target, SIZE source, int most) {
    Way way{};
    way.x = dice.Between(-20, target.cx + 5);
    way.y = dice.Between(-20, target.cy + 5);
    way.cx = dice.Between(0, most);
    way.cy = dice.Between(0, most);
    way.xSrc = dice.Between(-most / 3, source.cx);
    way.ySrc = dice.Between(-most / 3, source.cy);
    return way;
}

Answers::~Answers() {
    for (int i = 0; i < static_cast<int>(m_answers.size()); ++i)
        SetPixelV(m_stage.hdc, i % m_stage.cx, m_stage.cy - 1 - i / m_stage.cx,
                  m_answers[i] ? RGB(255, 255, 255) : RGB(0, 0, 0));
}

void Show(Stage& stage, const Sheet& sheet, int x, int y) {
    BitBlt(stage.hdc, x, y, sheet.cx, sheet.cy, sheet.hdc, 0, 0, SRCCOPY);
}

void Show(Stage& stage, HBITMAP bitmap, int x, int y) {
    BITMAP record{};
    GetObjectA(bitmap, sizeof record, &record);
    const HDC hdc = CreateCompatibleDC(stage.hdc);
    const HGDIOBJ old = SelectObject(hdc, bitmap);
    BitBlt(stage.hdc, x, y, record.bmWidth, record.bmHeight, hdc, 0, 0, SRCCOPY);
    SelectObject(hdc, old);
    DeleteDC(hdc);
}

void DrawMasked(Stage& stage, HDC picture, SIZE size, POINT at, COLORREF leftOut) {
    const auto [cx, cy] = size;
    const Sheet back(stage, cx, cy, Sheet::kMono), object(stage, cx, cy, Sheet::kMono);
    const Sheet memory(stage, cx, cy), save(stage, cx, cy);
    const auto copy = [&](HDC to, HDC from, DWORD code) {
        BitBlt(to, 0, 0, size.cx, size.cy, from, 0, 0, code);
    };
    copy(save.hdc, picture, SRCCOPY);
    const COLORREF old = SetBkColor(picture, leftOut);
    copy(object.hdc, picture, SRCCOPY);
    SetBkColor(picture, old);
    copy(back.hdc, object.hdc, NOTSRCCOPY);
    BitBlt(memory.hdc, 0, 0, cx, cy, stage.hdc, at.x, at.y, SRCCOPY);
    copy(memory.hdc, object.hdc, SRCAND);
    copy(picture, back.hdc, SRCAND);
    copy(memory.hdc, picture, SRCPAINT);
    BitBlt(stage.hdc, at.x, at.y, cx, cy, memory.hdc, 0, 0, SRCCOPY);
    copy(picture, save.hdc, SRCCOPY);
}

void SetColours(Stage& stage, HDC hdc) {
    SetBkColor(hdc, stage.dice.Colour());
    SetTextColor(hdc, stage.dice.Colour());
    SelectObject(hdc, stage.Keep(CreateSolidBrush(stage.dice.Colour())));
}

void SetClip(Stage& stage) {
    SelectClipRgn(stage.hdc, nullptr);
    if (stage.dice.OneIn(4)) return;
    const HRGN whole = CreateRectRgn(0, 0, 0, 0);
    for (int i = stage.dice.Between(1, 4); i > 0; --i) {
        const RECT box = SettledBox(stage.Box(4, 90, 70));
        const HRGN part = stage.dice.OneIn(2) ? CreateEllipticRgnIndirect(&box) : CreateRectRgnIndirect(&box);
        CombineRgn(whole, whole, part, stage.dice.OneIn(3) ? RGN_XOR : RGN_OR);
        DeleteObject(part);
    }
    SelectClipRgn(stage.hdc, whole);
    DeleteObject(whole);
}

}  // namespace scenes::blocks
