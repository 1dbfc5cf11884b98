#include <windows.h>

#include "scenes/region_log_tools.h"
#include "scenes/region_logs.h"
#include "scenes/stage.h"

namespace scenes {

namespace {

/// Changes the clip, or what coordinates it counts in.
void ChangeClip(LogLines& lines, HDC hdc, Regions& regions, Dice& dice) {
    const RECT rc = AnyRect(dice, 50);
    switch (dice.Between(1, 8)) {
        case 1:
            lines.Say("select", SelectClipRgn(hdc, dice.OneIn(3) ? nullptr : regions.Any(dice)));
            break;
        case 2:
        case 3: {
            const HRGN region = dice.OneIn(8) ? nullptr : regions.Any(dice);
            lines.Say("extend", ExtSelectClipRgn(hdc, region, dice.Between(RGN_AND - 1, RGN_COPY + 1)));
            break;
        }
        case 4:
            lines.Say("intersect", IntersectClipRect(hdc, rc.left, rc.top, rc.right, rc.bottom));
            break;
        case 5:
            lines.Say("exclude", ExcludeClipRect(hdc, rc.left, rc.top, rc.right, rc.bottom));
            break;
        case 6:
            SetViewportOrgEx(hdc, rc.left / 3, rc.top / 3, nullptr);
            break;
        case 7:
            SetWindowOrgEx(hdc, rc.left / 3, rc.top / 3, nullptr);
            break;
        default:
            if (dice.OneIn(2))
                lines.Say("save", SaveDC(hdc));
            else
                lines.Say("restore", RestoreDC(hdc, -1));
    }
}

void SayClip(LogLines& lines, HDC hdc, HRGN copy, Dice& dice) {
    RECT box{1, 2, 3, 4};
    lines.Say("clip", GetClipBox(hdc, &box));
    lines.Say("box", box);
    lines.Say("copied", GetClipRgn(hdc, copy));
    SayBox(lines, copy);
    const RECT asked = AnyRect(dice, 45);
    lines.Say("rectangle", RectVisible(hdc, &asked) != 0);
    lines.Say("point", PtVisible(hdc, asked.left, asked.top));
}

void ChangeClips(LogLines& lines, HDC hdc, Dice& dice) {
    Regions regions;
    const HRGN copy = regions.Keep(CreateRectRgn(0, 0, 0, 0));
    SayClip(lines, hdc, copy, dice);
    for (int i = 0; i < 40; ++i) {
        ChangeClip(lines, hdc, regions, dice);
        SayClip(lines, hdc, copy, dice);
    }
}

HWND MakeWindow(HWND parent, DWORD style, const RECT& rc) {
    return CreateWindowExA(0, "clip window", "", style | WS_VISIBLE, rc.left, rc.top, rc.right - rc.left,
                           rc.bottom - rc.top, parent, nullptr, GetModuleHandleA(nullptr), nullptr);
}

}  // namespace

void ClipAnswers(std::string& log, Dice& dice) {
    LogLines lines(log);
    Stage stage({40, 30}, static_cast<unsigned>(dice.Between(0, 1 << 20)));
    ChangeClips(lines, stage.hdc, dice);
}

/// A window that a child of its own covers in part, and the child.
void WindowClipAnswers(std::string& log, Dice& dice) {
    LogLines lines(log);
    WNDCLASSA known{};
    known.lpfnWndProc = DefWindowProcA;
    known.hInstance = GetModuleHandleA(nullptr);
    known.lpszClassName = "clip window";
    RegisterClassA(&known);
    const DWORD clipping = dice.OneIn(2) ? WS_CLIPCHILDREN : 0;
    const HWND host = MakeWindow(nullptr, WS_POPUP | clipping, {20, 10, 60, 40});
    const HWND child = MakeWindow(host, WS_CHILD, {dice.Between(-10, 30), 5, 35, 25});
    for (const HWND window : {host, child}) {
        const HDC hdc = dice.OneIn(3) ? GetWindowDC(window) : GetDC(window);
        ChangeClips(lines, hdc, dice);
        lines.Say("released", ReleaseDC(window, hdc));
    }
    DestroyWindow(host);
}

}  // namespace scenes
