/// Text, and text laid out in rectangles.
#include "scenes/scene.h"
#include "scenes/text_samples.h"

namespace scenes {

namespace {

constexpr UINT kAcross[] = {TA_LEFT, TA_CENTER, TA_RIGHT};
constexpr UINT kDown[] = {TA_TOP, TA_BASELINE, TA_BOTTOM};
constexpr UINT kLeftCenterRight[] = {DT_LEFT, DT_CENTER, DT_RIGHT};
constexpr UINT kTopMiddleBottom[] = {DT_TOP, DT_VCENTER, DT_BOTTOM};

using MakeFont = HFONT (*)(Dice&);
using MakeText = std::string (*)(Dice&);

void Colours(Stage& stage) {
    SetTextColor(stage.hdc, stage.dice.Colour());
    SetBkColor(stage.hdc, stage.dice.Colour());
    SetBkMode(stage.hdc, stage.dice.OneIn(2) ? TRANSPARENT : OPAQUE);
}

void Write(Stage& stage, const std::string& text) {
    const POINT at = stage.Point();
    TextOutA(stage.hdc, at.x, at.y, text.data(), static_cast<int>(text.size()));
}

void Lines(Stage& stage, MakeFont makeFont, MakeText makeText) {
    stage.Texture();
    for (int i = 0; i < 14; ++i) {
        SelectObject(stage.hdc, stage.Keep(makeFont(stage.dice)));
        Colours(stage);
        Write(stage, makeText(stage.dice));
    }
}

void Latin(Stage& stage) { Lines(stage, UsualFont, LatinText); }
void Chinese(Stage& stage) { Lines(stage, UsualFont, ChineseText); }
void Mixed(Stage& stage) { Lines(stage, UsualFont, MixedText); }
void Rare(Stage& stage) { Lines(stage, UsualFont, RareText); }
void Raw(Stage& stage) { Lines(stage, UsualFont, RawText); }
void Styles(Stage& stage) { Lines(stage, AnyFont, MixedText); }

void Aligned(Stage& stage) {
    stage.Texture();
    for (const UINT across : kAcross)
        for (const UINT down : kDown) {
            SelectObject(stage.hdc, stage.Keep(UsualFont(stage.dice)));
            Colours(stage);
            SetTextAlign(stage.hdc, across | down);
            Write(stage, MixedText(stage.dice));
        }
}

void AtPosition(Stage& stage) {
    stage.Texture();
    for (int i = 0; i < 8; ++i) {
        const POINT at = stage.Point();
        MoveToEx(stage.hdc, at.x, at.y, nullptr);
        SelectObject(stage.hdc, stage.Keep(UsualFont(stage.dice)));
        Colours(stage);
        SetTextAlign(stage.hdc, TA_UPDATECP | stage.dice.Of(kAcross) | stage.dice.Of(kDown));
        for (int piece = 0; piece < 3; ++piece) Write(stage, LatinText(stage.dice));
    }
}

void Clipped(Stage& stage) {
    stage.Texture();
    for (int i = 0; i < 12; ++i) {
        const RECT rc = stage.Box(5, 120, 60);
        const HRGN hRgn = stage.dice.OneIn(2) ? CreateEllipticRgnIndirect(&rc) : CreateRectRgnIndirect(&rc);
        SelectClipRgn(stage.hdc, stage.Keep(hRgn));
        SelectObject(stage.hdc, stage.Keep(UsualFont(stage.dice)));
        Colours(stage);
        for (int piece = 0; piece < 3; ++piece) Write(stage, MixedText(stage.dice));
    }
}

void InBox(Stage& stage, const std::string& text) {
    const UINT options = static_cast<UINT>(stage.dice.Between(0, 3)) * ETO_OPAQUE;
    const RECT rc = stage.Box(-2, 90, 30);
    INT advances[256];
    for (INT& advance : advances) advance = stage.dice.Between(-2, 12);
    const bool spaced = stage.dice.OneIn(3);
    const POINT at = {rc.left + stage.dice.Between(-8, 8), rc.top + stage.dice.Between(-4, 4)};
    ExtTextOutA(stage.hdc, at.x, at.y, options, stage.dice.OneIn(6) ? nullptr : &rc, text.data(),
                static_cast<UINT>(text.size()), spaced ? advances : nullptr);
}

void Boxes(Stage& stage) {
    stage.Texture();
    for (int i = 0; i < 14; ++i) {
        SelectObject(stage.hdc,
                     stage.Keep(stage.dice.OneIn(3) ? AnyFont(stage.dice) : UsualFont(stage.dice)));
        Colours(stage);
        SetTextAlign(stage.hdc, stage.dice.Of(kAcross) | stage.dice.Of(kDown));
        InBox(stage, MixedText(stage.dice));
    }
}

/// What a context has that nobody gave a font.
void Stock(Stage& stage) {
    Write(stage, MixedText(stage.dice));
    for (int i = 0; i < 12; ++i) {
        SelectObject(stage.hdc, GetStockObject(stage.dice.OneIn(2) ? SYSTEM_FONT : DEFAULT_GUI_FONT));
        Colours(stage);
        Write(stage, stage.dice.OneIn(3) ? RareText(stage.dice) : MixedText(stage.dice));
    }
}

void Monochrome(Stage& stage) {
    Sheet sheet(stage, stage.cx, stage.cy, Sheet::kMono);
    sheet.Texture(stage.dice);
    for (int i = 0; i < 12; ++i) {
        SelectObject(sheet.hdc, stage.Keep(UsualFont(stage.dice)));
        SetTextColor(sheet.hdc, stage.dice.OneIn(2) ? 0 : stage.dice.Colour());
        SetBkColor(sheet.hdc, stage.dice.OneIn(2) ? RGB(255, 255, 255) : stage.dice.Colour());
        SetBkMode(sheet.hdc, stage.dice.OneIn(2) ? TRANSPARENT : OPAQUE);
        const POINT at = stage.Point();
        const std::string text = MixedText(stage.dice);
        TextOutA(sheet.hdc, at.x, at.y, text.data(), static_cast<int>(text.size()));
    }
    BitBlt(stage.hdc, 0, 0, stage.cx, stage.cy, sheet.hdc, 0, 0, SRCCOPY);
}

/// `format` gives the flags of one call, `least`, `widest` and `highest` the rectangle.
void Layouts(Stage& stage, int widest, int highest, UINT (*format)(Dice&), MakeText makeText,
             int least = -1) {
    stage.Texture();
    for (int i = 0; i < 12; ++i) {
        SelectObject(stage.hdc, stage.Keep(UsualFont(stage.dice)));
        Colours(stage);
        RECT rc = stage.Box(least, widest, highest);
        const std::string text = makeText(stage.dice);
        const UINT flags = format(stage.dice);
        const int cb = stage.dice.OneIn(2) ? -1 : static_cast<int>(text.size());
        DrawTextA(stage.hdc, text.c_str(), cb, &rc, flags);
    }
}

UINT Sometimes(Dice& dice, UINT flag) { return dice.OneIn(3) ? flag : 0; }

UINT OneLine(Dice& dice) {
    const UINT place = dice.Of(kLeftCenterRight) | dice.Of(kTopMiddleBottom);
    const UINT clip = Sometimes(dice, DT_NOCLIP);
    return DT_SINGLELINE | place | clip | Sometimes(dice, DT_NOPREFIX);
}
UINT OneLineCut(Dice& dice) { return OneLine(dice) | DT_END_ELLIPSIS; }
UINT ManyLines(Dice& dice) {
    const UINT place = dice.Of(kLeftCenterRight), clip = Sometimes(dice, DT_NOCLIP);
    return place | clip | Sometimes(dice, DT_NOPREFIX);
}
UINT Wrapped(Dice& dice) {
    const UINT flags = DT_WORDBREAK | ManyLines(dice);
    return flags | Sometimes(dice, DT_END_ELLIPSIS);
}
/// The combinations that the controls use.
UINT AsControlsDo(Dice& dice) {
    constexpr UINT kCutLine = DT_SINGLELINE | DT_END_ELLIPSIS;
    constexpr UINT kFormats[] = {DT_RIGHT | DT_TOP | kCutLine,  // DT_TOP is no flag at all
                                 DT_RIGHT | DT_BOTTOM | kCutLine,
                                 DT_RIGHT | DT_VCENTER | kCutLine,
                                 DT_CENTER | kCutLine,
                                 DT_CENTER | DT_VCENTER | kCutLine,
                                 DT_VCENTER | kCutLine,
                                 DT_SINGLELINE | DT_VCENTER,
                                 DT_CENTER | DT_SINGLELINE,
                                 DT_CENTER | DT_BOTTOM | DT_SINGLELINE,
                                 DT_WORDBREAK,
                                 DT_CENTER | DT_WORDBREAK | DT_NOCLIP};
    return dice.Of(kFormats);
}

void LayoutOneLine(Stage& stage) { Layouts(stage, 100, 40, OneLine, LayoutText); }
void LayoutCut(Stage& stage) { Layouts(stage, 80, 30, OneLineCut, MixedText); }
void LayoutLines(Stage& stage) { Layouts(stage, 100, 60, ManyLines, LayoutText); }
void LayoutWrapped(Stage& stage) { Layouts(stage, 90, 70, Wrapped, LayoutText); }
void LayoutTight(Stage& stage) { Layouts(stage, 24, 90, Wrapped, MixedText); }
void LayoutControls(Stage& stage) { Layouts(stage, 120, 50, AsControlsDo, ControlText); }
void LayoutControlsTight(Stage& stage) { Layouts(stage, 30, 12, AsControlsDo, ControlText); }
/// Rectangles whose edges are exchanged, or without room.
void LayoutControlsBackwards(Stage& stage) { Layouts(stage, 0, 0, AsControlsDo, ControlText, -40); }

constexpr SIZE kSize{240, 160};
constexpr PictureKind kKinds[] = {
    {"text_latin", kSize, Latin},
    {"text_chinese", kSize, Chinese},
    {"text_mixed", kSize, Mixed},
    {"text_rare", kSize, Rare},
    {"text_raw_bytes", kSize, Raw},
    {"text_styles", kSize, Styles},
    {"text_aligned", kSize, Aligned},
    {"text_at_position", kSize, AtPosition},
    {"text_clipped", kSize, Clipped},
    {"text_boxes", kSize, Boxes},
    {"text_stock_fonts", kSize, Stock},
    {"text_monochrome", kSize, Monochrome},
    {"layout_one_line", kSize, LayoutOneLine},
    {"layout_cut", kSize, LayoutCut},
    {"layout_lines", kSize, LayoutLines},
    {"layout_wrapped", kSize, LayoutWrapped},
    {"layout_tight", kSize, LayoutTight},
    {"layout_controls", kSize, LayoutControls},
    {"layout_controls_tight", kSize, LayoutControlsTight},
    {"layout_controls_backwards", kSize, LayoutControlsBackwards},
    {"smooth_latin", kSize, Latin, Text::kSmooth},
    {"smooth_chinese", kSize, Chinese, Text::kSmooth},
    {"smooth_rare", kSize, Rare, Text::kSmooth},
    {"smooth_styles", kSize, Styles, Text::kSmooth},
    {"smooth_clipped", kSize, Clipped, Text::kSmooth},
    {"smooth_stock_fonts", kSize, Stock, Text::kSmooth},
    {"smooth_monochrome", kSize, Monochrome, Text::kSmooth},
    {"smooth_layout", kSize, LayoutWrapped, Text::kSmooth},
};

}  // namespace

std::span<const PictureKind> TextKinds() { return kKinds; }

}  // namespace scenes
