#include <windows.h>

#include "scenes/context_logs.h"
#include "scenes/log_lines.h"
#include "scenes/stage.h"

namespace scenes {

namespace {

constexpr UINT kSelected[] = {OBJ_PEN, OBJ_BRUSH, OBJ_FONT, OBJ_PAL};

/// Stock objects by number, others by 0.
int StockIndex(HGDIOBJ object) {
    for (int i = WHITE_BRUSH; i <= DEFAULT_GUI_FONT; ++i)
        if (object && GetStockObject(i) == object) return i + 1;
    return 0;
}

void SayState(LogLines& lines, HDC hdc) {
    lines.Say("text colour", GetTextColor(hdc));
    lines.Say("background", GetBkColor(hdc));
    lines.Say("background mode", GetBkMode(hdc));
    lines.Say("align", GetTextAlign(hdc));
    lines.Say("operation", GetROP2(hdc));
    lines.Say("polygon fill", GetPolyFillMode(hdc));
    lines.Say("stretch mode", GetStretchBltMode(hdc));
    lines.Say("map mode", GetMapMode(hdc));
    lines.Say("extra", GetTextCharacterExtra(hdc));
    POINT pt{-7, -7};
    lines.Say("viewport", GetViewportOrgEx(hdc, &pt) != 0);
    lines.Say("at", pt);
    lines.Say("window", GetWindowOrgEx(hdc, &pt) != 0);
    lines.Say("at", pt);
    lines.Say("position", GetCurrentPositionEx(hdc, &pt) != 0);
    lines.Say("at", pt);
    for (const UINT type : kSelected) lines.Say("stock object", StockIndex(GetCurrentObject(hdc, type)));
    RECT box{1, 2, 3, 4};
    lines.Say("clip", GetClipBox(hdc, &box));
    lines.Say("box", box);
    lines.Say("type", GetObjectType(hdc));
}

void SayBitmap(LogLines& lines, HGDIOBJ object) {
    BITMAP record{};
    lines.Say("bitmap", GetObjectA(object, sizeof record, &record));
    lines.Say("width", record.bmWidth);
    lines.Say("height", record.bmHeight);
    lines.Say("bytes", record.bmWidthBytes);
    lines.Say("bits", record.bmBitsPixel);
    lines.Say("planes", record.bmPlanes);
}

void ChangeState(HDC hdc, Dice& dice) {
    const int value = dice.Between(-3, 40), other = dice.Between(-3, 40);
    switch (dice.Between(1, 12)) {
        case 1:
            SetTextColor(hdc, dice.Colour());
            break;
        case 2:
            SetBkColor(hdc, dice.Colour());
            break;
        case 3:
            SetBkMode(hdc, dice.Between(TRANSPARENT, OPAQUE));
            break;
        case 4:
            SetTextAlign(hdc, TA_CENTER | TA_BASELINE);
            break;
        case 5:
            SetROP2(hdc, dice.Between(R2_BLACK, R2_WHITE));
            break;
        case 6:
            SetPolyFillMode(hdc, dice.Between(ALTERNATE, WINDING));
            break;
        case 7:
            SetStretchBltMode(hdc, dice.Between(BLACKONWHITE, HALFTONE));
            break;
        case 8:
            SetViewportOrgEx(hdc, value, other, nullptr);
            break;
        case 9:
            SetWindowOrgEx(hdc, value, other, nullptr);
            break;
        case 10:
            LineTo(hdc, value, other);
            break;
        case 11:
            IntersectClipRect(hdc, 0, 0, value, other);
            break;
        default:
            SelectObject(hdc, GetStockObject(dice.Between(WHITE_BRUSH, DEFAULT_GUI_FONT)));
    }
}

}  // namespace

void FreshContexts(std::string& log, Dice& dice) {
    LogLines lines(log);
    const HDC screen = GetDC(nullptr);
    SayState(lines, screen);
    const HDC memory = CreateCompatibleDC(dice.OneIn(2) ? screen : nullptr);
    SayState(lines, memory);
    SayBitmap(lines, GetCurrentObject(memory, OBJ_BITMAP));
    const int width = dice.Between(-1, 40), height = dice.Between(0, 30);
    const HBITMAP bitmap = CreateCompatibleBitmap(dice.OneIn(3) ? memory : screen, width, height);
    lines.Say("selected", SelectObject(memory, bitmap) != nullptr);
    SayState(lines, memory);
    SayBitmap(lines, bitmap);
    DeleteDC(memory);
    DeleteObject(bitmap);
    ReleaseDC(nullptr, screen);
    SayState(lines, nullptr);
    SayState(lines, memory);
}

void SavedStates(std::string& log, Dice& dice) {
    LogLines lines(log);
    Stage stage({40, 30}, 1);
    for (int i = 0; i < 60; ++i) {
        ChangeState(stage.hdc, dice);
        if (dice.OneIn(5)) lines.Say("save", SaveDC(stage.hdc));
        if (dice.OneIn(8)) lines.Say("restore", RestoreDC(stage.hdc, dice.Between(-3, 3)));
        if (i % 10 == 9) SayState(lines, stage.hdc);
    }
}

void Attributes(std::string& log, Dice& dice) {
    LogLines lines(log);
    const HDC memory = CreateCompatibleDC(nullptr);
    for (int i = 0; i < 40; ++i) {
        const HDC hdc = dice.OneIn(5) ? nullptr : memory;
        const int value = dice.Between(-1, 18);
        switch (dice.Between(1, 8)) {
            case 1:
                lines.Say("text colour", SetTextColor(hdc, dice.Colour()));
                break;
            case 2:
                lines.Say("background", SetBkColor(hdc, dice.Colour()));
                break;
            case 3:
                lines.Say("background mode", SetBkMode(hdc, value));
                break;
            case 4:
                lines.Say("align", SetTextAlign(hdc, static_cast<UINT>(value)));
                break;
            case 5:
                lines.Say("operation", SetROP2(hdc, value));
                break;
            case 6:
                lines.Say("polygon fill", SetPolyFillMode(hdc, value));
                break;
            case 7:
                lines.Say("stretch mode", SetStretchBltMode(hdc, value));
                break;
            default:
                lines.Say("map mode", SetMapMode(hdc, MM_TEXT));
        }
    }
    SayState(lines, memory);
    DeleteDC(memory);
}

void Origins(std::string& log, Dice& dice) {
    LogLines lines(log);
    Stage stage({40, 30}, 1);
    for (int i = 0; i < 40; ++i) {
        const int reach = dice.OneIn(4) ? 1000000 : 50;
        const int x = dice.Between(-reach, reach), y = dice.Between(-reach, reach);
        POINT pt{-7, -7};
        switch (dice.Between(1, 7)) {
            case 1:
                lines.Say("viewport", SetViewportOrgEx(stage.hdc, x, y, &pt) != 0);
                break;
            case 2:
                lines.Say("window", SetWindowOrgEx(stage.hdc, x, y, &pt) != 0);
                break;
            case 3:
                lines.Say("offset", OffsetViewportOrgEx(stage.hdc, x, y, &pt) != 0);
                break;
            case 4:
                lines.Say("move", MoveToEx(stage.hdc, x, y, &pt) != 0);
                break;
            case 5:
                pt = {x, y};
                lines.Say("to device", LPtoDP(stage.hdc, &pt, dice.Between(0, 1)) != 0);
                break;
            case 6:
                pt = {x, y};
                lines.Say("to logical", DPtoLP(stage.hdc, &pt, dice.Between(0, 1)) != 0);
                break;
            default: {
                const POINT points[] = {{x, y}, {y, x}, {1, 2}};
                lines.Say("line", LineTo(stage.hdc, x, y) != 0);
                lines.Say("polyline", Polyline(stage.hdc, points, dice.Between(0, 3)) != 0);
                lines.Say("rectangle", Rectangle(stage.hdc, x, y, y, x) != 0);
            }
        }
        lines.Say("at", pt);
        GetCurrentPositionEx(stage.hdc, &pt);
        lines.Say("position", pt);
        RECT box{};
        lines.Say("clip", GetClipBox(stage.hdc, &box));
        lines.Say("box", box);
    }
}

}  // namespace scenes
