// Single bits: to and from colours, drawn on, and as masks.
#include "scenes/block_scenes.h"
#include "scenes/settled.h"

namespace scenes::blocks {

namespace {

BOOL Blt(const Sheet& to, const Way& way, const Sheet& from, DWORD code) {
    return BitBlt(to.hdc, way.x, way.y, way.cx, way.cy, from.hdc, way.xSrc, way.ySrc, code);
}

Way Across(Dice& dice, const Sheet& to, const Sheet& from) {
    return AnyWay(dice, {to.cx, to.cy}, {from.cx, from.cy}, 60);
}

/// Few colours in large pieces, so that a background colour is met often.
void PaintPieces(Stage& stage, const Sheet& sheet, const COLORREF (&colours)[4]) {
    for (int i = 0; i < 40; ++i) {
        const int x = stage.dice.Between(0, sheet.cx), y = stage.dice.Between(0, sheet.cy);
        const RECT rc{x, y, x + stage.dice.Between(1, 30), y + stage.dice.Between(1, 30)};
        FillRect(sheet.hdc, &rc, stage.Keep(CreateSolidBrush(stage.dice.Of(colours))));
    }
}

struct FourColours {
    COLORREF all[4];
    explicit FourColours(Dice& dice) {
        for (COLORREF& colour : all) colour = dice.Colour();
    }
};

void DrawEllipse(HDC hdc, const RECT& rc) { Ellipse(hdc, rc.left, rc.top, rc.right, rc.bottom); }

/// Lines, outlines, discs and a word, all in colours of the dice.
void DrawSomething(Stage& stage, HDC hdc, int cx, int cy) {
    Dice& dice = stage.dice;
    SetColours(stage, hdc);
    if (dice.OneIn(3)) SetBkColor(hdc, dice.OneIn(2) ? RGB(255, 255, 255) : RGB(0, 0, 0));
    SetBkMode(hdc, dice.OneIn(2) ? OPAQUE : TRANSPARENT);
    SelectObject(hdc, stage.Keep(CreatePen(PS_SOLID, dice.Between(0, 4), dice.Colour())));
    const int left = dice.Between(-5, cx), top = dice.Between(-5, cy);
    const int right = left + dice.Between(1, 50), bottom = top + dice.Between(1, 40);
    switch (dice.Between(0, 5)) {
        case 0:
            Rectangle(hdc, left, top, right, bottom);
            break;
        case 1:
            DrawEllipse(hdc, SettledBox({left, top, right, bottom}));
            break;
        case 2:
            MoveToEx(hdc, left, top, nullptr);
            LineTo(hdc, right, bottom);
            break;
        case 3:
            TextOutA(hdc, left, top, "价值 12", 7);
            break;
        case 4:
            SetPixelV(hdc, left, top, dice.Colour());
            break;
        default:
            const RECT rc{left, top, right, bottom};
            FillRect(hdc, &rc, stage.Keep(CreateSolidBrush(dice.Colour())));
    }
}

}  // namespace

void ColourToMono(Stage& stage) {
    const FourColours colours(stage.dice);
    Sheet colour(stage, 90, 60), mono(stage, 200, 120, Sheet::kMono);
    for (int i = 0; i < 25; ++i) {
        PaintPieces(stage, colour, colours.all);
        SetBkColor(colour.hdc, stage.dice.Of(colours.all));
        SetTextColor(colour.hdc, stage.dice.Of(colours.all));
        SetBkColor(mono.hdc, stage.dice.Of(colours.all));
        SetTextColor(mono.hdc, stage.dice.Of(colours.all));
        Blt(mono, Across(stage.dice, mono, colour), colour, stage.dice.Of(kPlainCodes));
    }
    SetTextColor(stage.hdc, stage.dice.Colour());
    Show(stage, mono, 0, 0);
}

void MonoToColour(Stage& stage) {
    stage.Texture();
    Sheet mono(stage, 70, 50, Sheet::kMono);
    for (int i = 0; i < 30; ++i) {
        if (i % 5 == 0) mono.Texture(stage.dice);
        SetColours(stage, stage.hdc);
        SetColours(stage, mono.hdc);
        const Way way = AnyWay(stage.dice, {stage.cx, stage.cy}, {mono.cx, mono.cy}, 60);
        BitBlt(stage.hdc, way.x, way.y, way.cx, way.cy, mono.hdc, way.xSrc, way.ySrc,
               stage.dice.Of(kPlainCodes));
    }
}

void MonoToMono(Stage& stage) {
    Sheet one(stage, 70, 50, Sheet::kMono), other(stage, 160, 120, Sheet::kMono);
    one.Texture(stage.dice);
    for (int i = 0; i < 30; ++i) {
        SetColours(stage, one.hdc);
        SetColours(stage, other.hdc);
        Blt(other, Across(stage.dice, other, one), one, stage.dice.Of(kPlainCodes));
        if (i % 4 == 0) Blt(one, Across(stage.dice, one, other), other, stage.dice.Of(kPlainCodes));
    }
    Show(stage, other, 0, 0);
}

void NamedCodesAcrossDepths(Stage& stage) {
    const FourColours colours(stage.dice);
    Sheet sheets[] = {
        {stage, 100, 80, Sheet::kMono}, {stage, 100, 80}, {stage, 100, 80, Sheet::kMono}, {stage, 100, 80}};
    for (const Sheet& sheet : sheets) PaintPieces(stage, sheet, colours.all);
    for (int i = 0; i < 50; ++i) {
        const Sheet &to = stage.dice.Of(sheets), &from = stage.dice.Of(sheets);
        if (&to == &from) continue;  // overlaps are a kind of their own
        SetColours(stage, to.hdc);
        SetBkColor(from.hdc, stage.dice.Of(colours.all));
        Blt(to, Across(stage.dice, to, from), from, stage.dice.Of(kNamedCodes));
    }
    for (int i = 0; i < 4; ++i) Show(stage, sheets[i], i % 2 * 100, i / 2 * 80);
}

void MonoPatterns(Stage& stage) {
    static constexpr DWORD kCodes[] = {PATCOPY, PATINVERT, DSTINVERT, BLACKNESS, WHITENESS};
    Sheet mono(stage, 160, 120, Sheet::kMono);
    mono.Texture(stage.dice);
    for (int i = 0; i < 30; ++i) {
        SetColours(stage, mono.hdc);
        const Way way = AnyWay(stage.dice, {mono.cx, mono.cy}, {mono.cx, mono.cy}, 60);
        PatBlt(mono.hdc, way.x, way.y, way.cx, way.cy, stage.dice.Of(kCodes));
    }
    Show(stage, mono, 0, 0);
}

void MonoDrawing(Stage& stage) {
    Sheet mono(stage, 160, 120, Sheet::kMono);
    mono.Texture(stage.dice);
    for (int i = 0; i < 25; ++i) {
        SetROP2(mono.hdc, stage.dice.OneIn(3) ? stage.dice.Between(R2_BLACK, R2_WHITE) : R2_COPYPEN);
        DrawSomething(stage, mono.hdc, mono.cx, mono.cy);
    }
    SetColours(stage, stage.hdc);
    Show(stage, mono, 0, 0);
}

void MaskedSprites(Stage& stage) {
    stage.Texture();
    for (int i = 0; i < 12; ++i) {
        const FourColours colours(stage.dice);
        const int cx = stage.dice.Between(1, 40), cy = stage.dice.Between(1, 40);
        Sheet picture(stage, cx, cy);
        PaintPieces(stage, picture, colours.all);
        DrawSomething(stage, picture.hdc, picture.cx, picture.cy);
        if (stage.dice.OneIn(2)) SetColours(stage, stage.hdc);
        if (stage.dice.OneIn(3)) SetClip(stage);
        for (int shown = 0; shown < 2; ++shown) {
            const COLORREF leftOut = stage.dice.Of(colours.all);
            DrawMasked(stage, picture.hdc, {cx, cy}, stage.Point(), leftOut);
        }
    }
}

}  // namespace scenes::blocks
