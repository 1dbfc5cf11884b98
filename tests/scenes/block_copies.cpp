// Blocks of colours, with every operation.
#include "scenes/block_scenes.h"

namespace scenes::blocks {

namespace {

SIZE SizeOf(const Stage& stage) { return {stage.cx, stage.cy}; }
SIZE SizeOf(const Sheet& sheet) { return {sheet.cx, sheet.cy}; }

BOOL Blt(HDC to, const Way& way, HDC from, DWORD code) {
    return BitBlt(to, way.x, way.y, way.cx, way.cy, from, way.xSrc, way.ySrc, code);
}

DWORD AnyCode(Dice& dice) { return static_cast<DWORD>(dice.Between(0, 255)) << 16; }

}  // namespace

void Copies(Stage& stage) {
    Answers answers(stage);
    stage.Texture();
    Sheet sheet(stage, stage.dice.Between(1, 80), stage.dice.Between(1, 60));
    sheet.Texture(stage.dice);
    for (int i = 0; i < 25; ++i) {
        const Way way = AnyWay(stage.dice, SizeOf(stage), SizeOf(sheet), 60);
        answers.Note(Blt(stage.hdc, way, sheet.hdc, stage.dice.Of(kPlainCodes)));
    }
}

void BackwardCopies(Stage& stage) {
    Answers answers(stage);
    stage.Texture();
    Sheet sheet(stage, 70, 50);
    sheet.Texture(stage.dice);
    for (int i = 0; i < 25; ++i) {
        Way way = AnyWay(stage.dice, SizeOf(stage), SizeOf(sheet), 60);
        if (!stage.dice.OneIn(3)) way.cx = -way.cx;
        if (!stage.dice.OneIn(3)) way.cy = -way.cy;
        answers.Note(Blt(stage.hdc, way, sheet.hdc, stage.dice.Of(kPlainCodes)));
    }
}

void Overlaps(Stage& stage) {
    stage.Texture();
    for (int i = 0; i < 25; ++i) {
        Way way = AnyWay(stage.dice, SizeOf(stage), SizeOf(stage), 100);
        way.xSrc = way.x + stage.dice.Between(-9, 9);
        way.ySrc = way.y + (stage.dice.OneIn(3) ? 0 : stage.dice.Between(-9, 9));
        if (stage.dice.OneIn(3)) SetClip(stage);
        Blt(stage.hdc, way, stage.hdc, stage.dice.Of(kPlainCodes));
    }
}

void NamedCodes(Stage& stage) {
    Answers answers(stage);
    stage.Texture();
    Sheet sheet(stage, 70, 50);
    sheet.Texture(stage.dice);
    for (int i = 0; i < 30; ++i) {
        SetColours(stage, stage.hdc);
        if (stage.dice.OneIn(6)) stage.SelectNoBrush();
        const Way way = AnyWay(stage.dice, SizeOf(stage), SizeOf(sheet), 60);
        answers.Note(Blt(stage.hdc, way, sheet.hdc, stage.dice.Of(kNamedCodes)));
    }
}

void AllCodes(Stage& stage) {
    stage.Texture();
    Sheet sheet(stage, 70, 50);
    sheet.Texture(stage.dice);
    for (int i = 0; i < 40; ++i) {
        SetColours(stage, stage.hdc);
        const Way way = AnyWay(stage.dice, SizeOf(stage), SizeOf(sheet), 60);
        Blt(stage.hdc, way, sheet.hdc, AnyCode(stage.dice));
    }
}

void OverlapsOfNamedCodes(Stage& stage) {
    stage.Texture();
    for (int i = 0; i < 25; ++i) {
        SetColours(stage, stage.hdc);
        if (stage.dice.OneIn(6)) stage.SelectNoBrush();
        Way way = AnyWay(stage.dice, SizeOf(stage), SizeOf(stage), 80);
        way.xSrc = way.x + stage.dice.Between(-9, 9);
        way.ySrc = way.y + (stage.dice.OneIn(3) ? 0 : stage.dice.Between(-9, 9));
        Blt(stage.hdc, way, stage.hdc, stage.dice.Of(kNamedCodes));
    }
}

void Patterns(Stage& stage) {
    static constexpr DWORD kCodes[] = {PATCOPY, PATINVERT, DSTINVERT, BLACKNESS, WHITENESS, SRCCOPY};
    Answers answers(stage);
    stage.Texture();
    for (int i = 0; i < 30; ++i) {
        SetColours(stage, stage.hdc);
        if (stage.dice.OneIn(8)) stage.SelectNoBrush();
        const Way way = AnyWay(stage.dice, SizeOf(stage), SizeOf(stage), 60);
        const int cx = stage.dice.OneIn(3) ? -way.cx : way.cx, cy = stage.dice.OneIn(3) ? -way.cy : way.cy;
        const DWORD code = stage.dice.OneIn(3) ? AnyCode(stage.dice) : stage.dice.Of(kCodes);
        answers.Note(PatBlt(stage.hdc, way.x, way.y, cx, cy, code));
    }
}

void ClippedCopies(Stage& stage) {
    stage.Texture();
    Sheet sheet(stage, 90, 70);
    sheet.Texture(stage.dice);
    for (int i = 0; i < 20; ++i) {
        SetClip(stage);
        SetColours(stage, stage.hdc);
        SetViewportOrgEx(stage.hdc, stage.dice.Between(-9, 9), stage.dice.Between(-9, 9), nullptr);
        SetWindowOrgEx(sheet.hdc, stage.dice.Between(-9, 9), stage.dice.Between(-9, 9), nullptr);
        const Way way = AnyWay(stage.dice, SizeOf(stage), SizeOf(sheet), 90);
        Blt(stage.hdc, way, sheet.hdc, stage.dice.Of(kNamedCodes));
    }
    SetViewportOrgEx(stage.hdc, 0, 0, nullptr);
}

namespace {

/// Fields and lines on a canvas, of which some stays as it was made.
void DrawOn(Stage& stage, HDC hdc) {
    for (int i = stage.dice.Between(0, 5); i > 0; --i) {
        const RECT rc = stage.Box(2, 90, 70);
        FillRect(hdc, &rc, stage.Keep(CreateSolidBrush(stage.dice.Colour())));
        const POINT to = stage.Point();
        SelectObject(hdc, stage.Keep(CreatePen(PS_SOLID, stage.dice.Between(1, 3), stage.dice.Colour())));
        LineTo(hdc, to.x, to.y);
    }
}

}  // namespace

/// Drawn off the screen and copied as a whole: as large as what the target may show, or as a rectangle that
/// need not start at the origin.
void MemoryCanvases(Stage& stage) {
    stage.Texture();
    for (int i = 0; i < 6; ++i) {
        SetClip(stage);
        RECT area = stage.Box(0, 120, 90);
        if (stage.dice.OneIn(2)) GetClipBox(stage.hdc, &area);
        const int cx = area.right - area.left, cy = area.bottom - area.top;
        const Sheet canvas(stage, cx, cy);
        if (stage.dice.OneIn(3)) SelectClipRgn(canvas.hdc, stage.Keep(CreateRectRgn(9, 9, 70, 50)));
        DrawOn(stage, canvas.hdc);
        BitBlt(stage.hdc, area.left, area.top, cx, cy, canvas.hdc, area.left, area.top, SRCCOPY);
    }
}

}  // namespace scenes::blocks
