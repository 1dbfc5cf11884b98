#include "scenes/fill_scenes.h"

#include <tavlon/framework.h>

#include <utility>

namespace scenes {

namespace {

constexpr DWORD kOperations[] = {PATCOPY, PATINVERT, DSTINVERT, BLACKNESS, WHITENESS};
constexpr int kSystemColours[] = {
    COLOR_SCROLLBAR, COLOR_BACKGROUND,    COLOR_ACTIVECAPTION, COLOR_INACTIVECAPTION, COLOR_MENU,
    COLOR_WINDOW,    COLOR_WINDOWFRAME,   COLOR_MENUTEXT,      COLOR_WINDOWTEXT,      COLOR_CAPTIONTEXT,
    COLOR_HIGHLIGHT, COLOR_HIGHLIGHTTEXT, COLOR_BTNFACE,       COLOR_BTNSHADOW,       COLOR_GRAYTEXT,
    COLOR_BTNTEXT,   COLOR_BTNHIGHLIGHT,  COLOR_3DDKSHADOW,    COLOR_3DLIGHT,
};

/// A rectangle that may be empty or have its edges the wrong way round.
RECT OddBox(Stage& stage) {
    RECT rc = stage.Box(-3, 50, 40);
    if (stage.dice.OneIn(5)) std::swap(rc.left, rc.right);
    if (stage.dice.OneIn(5)) std::swap(rc.top, rc.bottom);
    return rc;
}

void FillSolid(HDC hdc, const RECT& rc, COLORREF colour) { CDC::FromHandle(hdc)->FillSolidRect(&rc, colour); }

/// One fill of any sort on a context whose brush is selected.
void AnyFill(Stage& stage, HDC hdc, HBRUSH brush) {
    const RECT rc = OddBox(stage);
    switch (stage.dice.Between(1, 7)) {
        case 1:
            return FillSolid(hdc, rc, stage.dice.Colour());
        case 2:
            FrameRect(hdc, &rc, brush);
            break;
        case 3:
            InvertRect(hdc, &rc);
            break;
        case 4:
        case 5:
            PatBlt(hdc, rc.left, rc.top, rc.right - rc.left, rc.bottom - rc.top, stage.dice.Of(kOperations));
            break;
        default:
            FillRect(hdc, &rc, brush);
    }
}

void AnyFills(Stage& stage, HDC hdc) {
    for (int i = 0; i < 40; ++i) {
        const HBRUSH brush = stage.Keep(CreateSolidBrush(stage.dice.Colour()));
        SelectObject(hdc, stage.dice.OneIn(9) ? GetStockObject(NULL_BRUSH) : brush);
        SetROP2(hdc, stage.dice.OneIn(3) ? R2_XORPEN : R2_COPYPEN);  // fills do not heed it
        AnyFill(stage, hdc, brush);
    }
}

void DottedLine(Stage& stage, HDC hdc) {
    const POINT from = stage.Point(), to = stage.Point();
    MoveToEx(hdc, from.x, from.y, nullptr);
    LineTo(hdc, to.x, to.y);
}

}  // namespace

void Fills(Stage& stage) {
    stage.Texture();
    AnyFills(stage, stage.hdc);
}

void MonochromeFills(Stage& stage) {
    Sheet sheet(stage, stage.cx, stage.cy, Sheet::kMono);
    sheet.Texture(stage.dice);
    AnyFills(stage, sheet.hdc);
    stage.SelectNoPen();
    for (int i = 0; i < 6; ++i) {
        const RECT rc = OddBox(stage);
        SelectObject(sheet.hdc, stage.Keep(CreateSolidBrush(stage.dice.Colour())));
        SetROP2(sheet.hdc, stage.dice.Between(R2_BLACK, R2_WHITE));
        Rectangle(sheet.hdc, rc.left, rc.top, rc.right, rc.bottom);
        const POINT triangle[] = {stage.Point(), stage.Point(), stage.Point()};
        Polygon(sheet.hdc, triangle, 3);
    }
    BitBlt(stage.hdc, 0, 0, stage.cx, stage.cy, sheet.hdc, 0, 0, SRCCOPY);
}

/// A solid fill leaves its colour as the background of what follows.
void BackgroundAfterFills(Stage& stage) {
    stage.SelectFont("楷体", stage.dice.Between(12, 16));
    for (int i = 0; i < 12; ++i) {
        const RECT filled = stage.Box(1, 50, 40);
        FillSolid(stage.hdc, filled, stage.dice.Colour());
        SetBkMode(stage.hdc, stage.dice.OneIn(3) ? TRANSPARENT : OPAQUE);
        stage.SelectPen(stage.dice.Of<int>({PS_DASH, PS_DOT, PS_DASHDOT, PS_DASHDOTDOT}), 1,
                        stage.dice.Colour());
        DottedLine(stage, stage.hdc);
        const POINT at = stage.Point();
        SetTextColor(stage.hdc, stage.dice.Colour());
        TextOutA(stage.hdc, at.x, at.y, "12.5", 4);
        const RECT rc = stage.Box(1, 40, 30);
        ExtTextOutA(stage.hdc, at.x, at.y, ETO_OPAQUE | ETO_CLIPPED, &rc, "", 0, nullptr);
    }
}

/// Points set and read, beside the raster and through clips too. What was read is drawn again elsewhere.
void Pixels(Stage& stage) {
    stage.Texture();
    for (int i = 0; i < 400; ++i) {
        if (i % 100 == 50) {
            const RECT rc = stage.Box(20, 100, 80);
            IntersectClipRect(stage.hdc, rc.left, rc.top, rc.right, rc.bottom);
        }
        if (i % 100 == 0) SelectClipRgn(stage.hdc, nullptr);
        const POINT at = stage.Point(), from = stage.Point(), to = stage.Point();
        const COLORREF set = SetPixel(stage.hdc, at.x, at.y, stage.dice.Colour());
        SetPixelV(stage.hdc, to.x, to.y, GetPixel(stage.hdc, from.x, from.y));
        if (set != CLR_INVALID) SetPixelV(stage.hdc, to.x + 1, to.y, set ^ RGB(255, 255, 255));
    }
}

void Frames3d(Stage& stage) {
    CDC& dc = *CDC::FromHandle(stage.hdc);
    for (int i = 0; i < 16; ++i) {
        const RECT rc = OddBox(stage);
        const bool system = stage.dice.OneIn(2);
        const COLORREF lit = system ? GetSysColor(COLOR_BTNHIGHLIGHT) : stage.dice.Colour();
        const COLORREF dark = system ? GetSysColor(COLOR_BTNSHADOW) : stage.dice.Colour();
        if (system) dc.FillSolidRect(&rc, GetSysColor(COLOR_BTNFACE));
        dc.Draw3dRect(&rc, lit, dark);
    }
}

/// Swatches of every colour, filled from its brush, from its value and from its index.
void SystemColours(Stage& stage) {
    for (int i = 0; i < 25; ++i) {
        const int index = stage.dice.Of(kSystemColours);
        const RECT rc = stage.Box(3, 40, 30);
        switch (stage.dice.Between(1, 4)) {
            case 1:
                FillRect(stage.hdc, &rc, GetSysColorBrush(index));
                break;
            case 2:
                FillSolid(stage.hdc, rc, GetSysColor(index));
                break;
            case 3:
                FrameRect(stage.hdc, &rc, GetSysColorBrush(index));
                break;
            default:
                FillRect(stage.hdc, &rc, reinterpret_cast<HBRUSH>(static_cast<ULONG_PTR>(index + 1)));
        }
    }
}

void StockObjects(Stage& stage) {
    for (int i = 0; i < 30; ++i) {
        SelectObject(stage.hdc, GetStockObject(stage.dice.Between(WHITE_BRUSH, NULL_BRUSH)));
        SelectObject(stage.hdc, GetStockObject(stage.dice.Between(WHITE_PEN, NULL_PEN)));
        const RECT rc = stage.Box(2, 40, 40);
        if (stage.dice.OneIn(2))
            Rectangle(stage.hdc, rc.left, rc.top, rc.right, rc.bottom);
        else
            DottedLine(stage, stage.hdc);
        if (stage.dice.OneIn(3)) FillSolid(stage.hdc, rc, stage.dice.Colour());
    }
}

}  // namespace scenes
