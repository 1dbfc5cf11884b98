// What geometry and the tree answer, for random windows after random steps.
#include <utility>

#include "scenes/window_kinds.h"
#include "scenes/window_steps.h"

namespace scenes {

namespace {

std::string BoxOf(HDC hdc) {
    RECT rc{};
    const int kind = GetClipBox(hdc, &rc);
    return kind == NULLREGION ? " nothing" : " " + std::to_string(kind) + TextOf(rc);
}

void WritePlace(WindowLog& log, HWND hWnd) {
    const std::string name = log.NameOf(hWnd);
    RECT rc{}, client{};
    GetWindowRect(hWnd, &rc);
    GetClientRect(hWnd, &client);
    const HDC hdc = GetDC(hWnd), hdcWhole = GetWindowDC(hWnd);
    log.Line("%s frame%s client%s, drawing%s, whole%s", name.c_str(), TextOf(rc).c_str(),
             TextOf(client).c_str(), BoxOf(hdc).c_str(), BoxOf(hdcWhole).c_str());
    ReleaseDC(hWnd, hdc);
    ReleaseDC(hWnd, hdcWhole);
}

void WriteKin(WindowLog& log, HWND hWnd) {
    log.Line("%s parent %s owner %s child %s", log.NameOf(hWnd).c_str(), log.NameOf(GetParent(hWnd)).c_str(),
             log.NameOf(GetWindow(hWnd, GW_OWNER)).c_str(), log.NameOf(GetWindow(hWnd, GW_CHILD)).c_str());
    if (!(GetWindowLong(hWnd, GWL_STYLE) & WS_CHILD)) return;  // among the others are windows of the system
    log.Line(
        "%s next %s previous %s first %s last %s", log.NameOf(hWnd).c_str(),
        log.NameOf(GetWindow(hWnd, GW_HWNDNEXT)).c_str(), log.NameOf(GetWindow(hWnd, GW_HWNDPREV)).c_str(),
        log.NameOf(GetWindow(hWnd, GW_HWNDFIRST)).c_str(), log.NameOf(GetWindow(hWnd, GW_HWNDLAST)).c_str());
}

void WriteState(WindowLog& log, HWND hWnd) {
    log.Line("%s visible %d enabled %d id %d style %lx %lx root %s %s", log.NameOf(hWnd).c_str(),
             IsWindowVisible(hWnd), IsWindowEnabled(hWnd), GetDlgCtrlID(hWnd),
             static_cast<unsigned long>(GetWindowLong(hWnd, GWL_STYLE)) & 0xffffffff,
             static_cast<unsigned long>(GetWindowLong(hWnd, GWL_EXSTYLE)) & 0xffffffff,
             log.NameOf(GetAncestor(hWnd, GA_ROOT)).c_str(),
             log.NameOf(GetAncestor(hWnd, GA_ROOTOWNER)).c_str());
}

void WriteMapping(WindowLog& log, Dice& dice, HWND hWnd) {
    POINT pts[2] = {{dice.Between(-50, 500), dice.Between(-50, 400)},
                    {dice.Between(-50, 500), dice.Between(-50, 400)}};
    POINT there = pts[0], back = pts[0];
    ClientToScreen(hWnd, &there);
    ScreenToClient(hWnd, &back);
    const HWND hOther = dice.OneIn(4) ? nullptr : log.Any(dice);
    const int moved = MapWindowPoints(hWnd, hOther, pts, 2);
    log.Line("%s to screen%s, from screen%s, to %s%s%s by %x", log.NameOf(hWnd).c_str(),
             TextOf(there).c_str(), TextOf(back).c_str(), log.NameOf(hOther).c_str(), TextOf(pts[0]).c_str(),
             TextOf(pts[1]).c_str(), static_cast<unsigned>(moved));
    log.Line("%s above %s: %d", log.NameOf(hWnd).c_str(), log.NameOf(hOther).c_str(), IsChild(hWnd, hOther));
}

void WriteFound(WindowLog& log, Dice& dice, HWND hWnd) {
    RECT rc{};
    GetWindowRect(hWnd, &rc);
    const POINT pt{dice.Between(rc.left - 3, rc.right + 3), dice.Between(rc.top - 3, rc.bottom + 3)};
    const POINT in{dice.Between(-5, 150), dice.Between(-5, 150)};
    log.quiet = true;
    const std::string found = log.NameOf(WindowFromPoint(pt));
    log.quiet = false;
    log.Line("at%s %s, in %s at%s %s", TextOf(pt).c_str(), found == "?" ? "-" : found.c_str(),
             log.NameOf(hWnd).c_str(), TextOf(in).c_str(),
             log.NameOf(ChildWindowFromPoint(hWnd, in)).c_str());
}

void WriteAdjusted(WindowLog& log, Dice& dice) {
    constexpr DWORD kBits[] = {0,        WS_BORDER, WS_DLGFRAME, WS_CAPTION, WS_THICKFRAME,
                               WS_CHILD, WS_POPUP,  WS_SYSMENU};
    constexpr DWORD kExBits[] = {
        0, 0, WS_EX_CLIENTEDGE, WS_EX_TOOLWINDOW, WS_EX_DLGMODALFRAME, WS_EX_TOPMOST};
    for (int i = 0; i < 6; ++i) {
        const DWORD style = dice.Of(kBits) | dice.Of(kBits) | dice.Of(kBits);
        const DWORD exStyle = dice.Of(kExBits) | dice.Of(kExBits);
        const BOOL menu = dice.OneIn(4);
        RECT rc{10, 20, 110, 90};
        AdjustWindowRectEx(&rc, style, menu, exStyle);
        log.Line("style %lx %lx menu %d needs%s", static_cast<unsigned long>(style),
                 static_cast<unsigned long>(exStyle), menu, TextOf(rc).c_str());
    }
}

/// Regions of the frame, a point a line.
void WriteHits(WindowLog& log, Dice& dice, HWND hWnd) {
    RECT rc{};
    GetWindowRect(hWnd, &rc);
    std::string codes;
    for (int i = 0; i < 40; ++i) {
        const bool edge = dice.OneIn(2);
        const int x = edge ? rc.left + dice.Between(-2, 24) : rc.right - dice.Between(-2, 60);
        const int y = dice.OneIn(2) ? rc.top + dice.Between(-2, 30) : rc.bottom - dice.Between(-2, 24);
        const LRESULT code = DefWindowProc(hWnd, WM_NCHITTEST, 0, MAKELPARAM(x, y));
        codes += " " + std::to_string(x - rc.left) + "," + std::to_string(y - rc.top) + "=" +
                 std::to_string(static_cast<int>(code));
        if (i % 10 == 9) log.Line("%s", std::exchange(codes, "").c_str());
    }
}

}  // namespace

void LogGeometry(std::string& text, Dice& dice) {
    WindowLog log(text);
    MakeTree(log, dice, 2, 5);
    log.quiet = true;
    for (int i = 0; i < 6; ++i) TakeStep(log, dice, kPlacing | kOrdering | kShowing | kEnabling);
    log.Pump();
    log.quiet = false;
    for (HWND hWnd : log.Living()) {
        WritePlace(log, hWnd);
        WriteKin(log, hWnd);
        WriteState(log, hWnd);
        WriteMapping(log, dice, hWnd);
        for (int i = 0; i < 3; ++i) WriteFound(log, dice, hWnd);
    }
    WriteAdjusted(log, dice);
}

void LogHits(std::string& text, Dice& dice) {
    WindowLog log(text);
    log.quiet = true;
    for (int i = 0; i < 2; ++i) log.Create(AnyTop(dice, nullptr));
    for (int i = 0; i < 4; ++i) {
        const HWND parent = log.Any(dice);
        WindowPlan plan = AnyChild(dice, parent);
        if (dice.OneIn(3)) plan.exStyle |= WS_EX_DLGMODALFRAME;
        plan.frame.right += 50, plan.frame.bottom += 50;
        log.Create(plan);
    }
    log.quiet = false;
    WriteTree(log);
    for (HWND hWnd : log.Living()) WriteHits(log, dice, hWnd);
}

}  // namespace scenes
