// Stretched blocks and sprites.
#include <algorithm>

#include "scenes/block_scenes.h"

namespace scenes::blocks {

namespace {

struct Stretch {
    int x, y, cx, cy, xSrc, ySrc, cxSrc, cySrc;
};

/// Sizes up to the given ones; most of them lie inside their source, some partly outside.
Stretch AnyStretch(Stage& stage, const Sheet& source, SIZE target, SIZE part) {
    Dice& dice = stage.dice;
    Stretch s{};
    s.x = dice.Between(-20, stage.cx), s.y = dice.Between(-20, stage.cy);
    s.cx = dice.Between(0, target.cx), s.cy = dice.Between(0, target.cy);
    s.cxSrc = dice.Between(0, part.cx), s.cySrc = dice.Between(0, part.cy);
    const int beside = dice.OneIn(3) ? 12 : 0;
    s.xSrc = dice.Between(-beside, std::max(0, source.cx - s.cxSrc) + beside);
    s.ySrc = dice.Between(-beside, std::max(0, source.cy - s.cySrc) + beside);
    return s;
}

BOOL Blt(HDC to, const Stretch& s, HDC from, DWORD code) {
    return StretchBlt(to, s.x, s.y, s.cx, s.cy, from, s.xSrc, s.ySrc, s.cxSrc, s.cySrc, code);
}

/// The same corner-to-corner rectangle walked from its other end.
void Mirror(Dice& dice, int& start, int& length) {
    if (!dice.OneIn(2)) return;
    start += length - 1;
    length = -length;
}

void MirrorAny(Dice& dice, Stretch& s) {
    Mirror(dice, s.x, s.cx), Mirror(dice, s.y, s.cy);
    Mirror(dice, s.xSrc, s.cxSrc), Mirror(dice, s.ySrc, s.cySrc);
}

void Stretches(Stage& stage, SIZE target, SIZE part, int mode, bool mirrored = false) {
    Answers answers(stage);
    stage.Texture();
    Sheet sheet(stage, 70, 50);
    sheet.Texture(stage.dice);
    for (int i = 0; i < 15; ++i) {
        if (stage.dice.OneIn(4)) SetClip(stage);
        SetStretchBltMode(stage.hdc, mode);
        Stretch s = AnyStretch(stage, sheet, target, part);
        if (mirrored) MirrorAny(stage.dice, s);
        answers.Note(Blt(stage.hdc, s, sheet.hdc, stage.dice.Of(kPlainCodes)));
    }
    SelectClipRgn(stage.hdc, nullptr);
}

/// A sprite of few colours, one of which is left out.
COLORREF PaintSprite(Stage& stage, const Sheet& sheet) {
    const COLORREF colours[] = {stage.dice.Colour(), stage.dice.Colour(), stage.dice.Colour()};
    for (int i = 0; i < 12; ++i) {
        const int x = stage.dice.Between(-5, sheet.cx), y = stage.dice.Between(-5, sheet.cy);
        const RECT rc{x, y, x + stage.dice.Between(1, 20), y + stage.dice.Between(1, 20)};
        FillRect(sheet.hdc, &rc, stage.Keep(CreateSolidBrush(stage.dice.Of(colours))));
    }
    return stage.dice.Of(colours);
}

BOOL Sprite(HDC to, const Stretch& s, HDC from, COLORREF leftOut) {
    return TransparentBlt(to, s.x, s.y, s.cx, s.cy, from, s.xSrc, s.ySrc, s.cxSrc, s.cySrc, leftOut);
}

}  // namespace

void Sprites(Stage& stage) {
    Answers answers(stage);
    stage.Texture();
    Sheet sheet(stage, 32, 32);
    for (int i = 0; i < 25; ++i) {
        const COLORREF leftOut = PaintSprite(stage, sheet);
        if (stage.dice.OneIn(4)) SetClip(stage);
        Stretch s = AnyStretch(stage, sheet, {40, 40}, {40, 40});
        s.cxSrc = s.cx, s.cySrc = s.cy;
        answers.Note(Sprite(stage.hdc, s, sheet.hdc, leftOut));
    }
    SelectClipRgn(stage.hdc, nullptr);
}

void StretchedSprites(Stage& stage) {
    Answers answers(stage);
    stage.Texture();
    Sheet sheet(stage, 32, 32);
    for (int i = 0; i < 15; ++i) {
        const COLORREF leftOut = PaintSprite(stage, sheet);
        SetStretchBltMode(stage.hdc, stage.dice.Between(BLACKONWHITE, COLORONCOLOR));
        const Stretch s = AnyStretch(stage, sheet, {60, 60}, {40, 40});
        answers.Note(Sprite(stage.hdc, s, sheet.hdc, leftOut));
    }
}

void MonoSprites(Stage& stage) {
    stage.Texture();
    Sheet sheet(stage, 32, 32, Sheet::kMono);
    for (int i = 0; i < 15; ++i) {
        sheet.Texture(stage.dice);
        SetColours(stage, stage.hdc);
        SetColours(stage, sheet.hdc);
        static constexpr COLORREF kKeys[] = {RGB(255, 255, 255), RGB(0, 0, 0), RGB(1, 2, 3)};
        Stretch s = AnyStretch(stage, sheet, {60, 60}, {40, 40});
        if (stage.dice.OneIn(2)) s.cxSrc = s.cx, s.cySrc = s.cy;
        Sprite(stage.hdc, s, sheet.hdc, stage.dice.Of(kKeys));
    }
}

void SameSize(Stage& stage) {
    Answers answers(stage);
    stage.Texture();
    Sheet sheet(stage, 70, 50);
    sheet.Texture(stage.dice);
    for (int i = 0; i < 20; ++i) {
        SetStretchBltMode(stage.hdc, stage.dice.Between(BLACKONWHITE, HALFTONE));
        Stretch s = AnyStretch(stage, sheet, {70, 50}, {70, 50});
        s.cxSrc = s.cx, s.cySrc = s.cy;
        answers.Note(Blt(stage.hdc, s, sheet.hdc, stage.dice.Of(kPlainCodes)));
    }
}

void Enlargements(Stage& stage) { Stretches(stage, {120, 90}, {30, 20}, COLORONCOLOR); }
void Reductions(Stage& stage) { Stretches(stage, {30, 25}, {80, 60}, COLORONCOLOR); }
void MixedStretches(Stage& stage) { Stretches(stage, {70, 60}, {70, 60}, COLORONCOLOR); }
void MirroredStretches(Stage& stage) { Stretches(stage, {60, 60}, {60, 50}, COLORONCOLOR, true); }

void MergedStretches(Stage& stage) {
    Stretches(stage, {60, 60}, {70, 50}, stage.dice.Between(BLACKONWHITE, WHITEONBLACK), true);
}

void MonoStretches(Stage& stage) {
    stage.Texture();
    Sheet from(stage, 70, 50, Sheet::kMono), to(stage, stage.cx, stage.cy, Sheet::kMono);
    from.Texture(stage.dice);
    for (int i = 0; i < 12; ++i) {
        SetColours(stage, stage.hdc);
        SetStretchBltMode(stage.hdc, COLORONCOLOR);
        SetStretchBltMode(to.hdc, stage.dice.Between(BLACKONWHITE, COLORONCOLOR));
        Stretch s = AnyStretch(stage, from, {60, 60}, {60, 50});
        Blt(stage.hdc, s, from.hdc, stage.dice.Of(kPlainCodes));
        Blt(to.hdc, s, from.hdc, stage.dice.Of(kPlainCodes));
        SetBkColor(stage.hdc, GetPixel(stage.hdc, 80, 60));
        s.xSrc = stage.dice.Between(0, stage.cx), s.ySrc = stage.dice.Between(0, stage.cy);
        Blt(to.hdc, s, stage.hdc, stage.dice.Of(kPlainCodes));
    }
    BitBlt(stage.hdc, 0, 60, 160, 60, to.hdc, 0, 0, SRCCOPY);
}

}  // namespace scenes::blocks
