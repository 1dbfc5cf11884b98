#include "scenes/window_steps.h"

#include <algorithm>

namespace scenes {

namespace {

constexpr DWORD kFrames[] = {0,
                             0,
                             0,
                             WS_BORDER,
                             WS_DLGFRAME,
                             WS_CAPTION,
                             WS_THICKFRAME,
                             WS_CAPTION | WS_SYSMENU,
                             WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX};

bool OwnsAny(const WindowLog& log, HWND hWnd) {
    const std::vector<HWND> living = log.Living();
    return std::any_of(living.begin(), living.end(),
                       [hWnd](HWND hOther) { return GetWindow(hOther, GW_OWNER) == hWnd; });
}

bool HasOwned(const WindowLog& log) {
    const std::vector<HWND> living = log.Living();
    return std::any_of(living.begin(), living.end(), [](HWND hWnd) { return GetWindow(hWnd, GW_OWNER); });
}

void Showing(WindowLog& log, Dice& dice, HWND hWnd) {
    constexpr int kShows[] = {SW_HIDE,   SW_HIDE,           SW_SHOW,      SW_SHOW,
                              SW_SHOWNA, SW_SHOWNOACTIVATE, SW_SHOWNORMAL};
    int show = dice.Of(kShows);
    // Where owned windows stand when their owner becomes active depends on the display.
    if (show != SW_HIDE && OwnsAny(log, hWnd)) show = SW_SHOWNA;
    log.Line("* show %s %d", log.NameOf(hWnd).c_str(), show);
    const BOOL was = ShowWindow(hWnd, show);
    log.Line("= %d", was);
}

void Placing(WindowLog& log, Dice& dice, HWND hWnd) {
    RECT rc{};
    GetWindowRect(hWnd, &rc);
    POINT at{rc.left, rc.top};
    if (GetWindowLong(hWnd, GWL_STYLE) & WS_CHILD) ScreenToClient(GetParent(hWnd), &at);
    int cx = rc.right - rc.left, cy = rc.bottom - rc.top;
    const int what = dice.Between(0, 3);
    if (what != 1) at.x += dice.Between(-30, 30);
    if (what != 1) at.y += dice.Between(-30, 30);
    if (what != 0) cx = std::max(0, cx + dice.Between(-40, 40));
    if (what != 0) cy = std::max(0, cy + dice.Between(-40, 40));
    const BOOL repaint = !dice.OneIn(5);
    log.Line("* move %s to%s %dx%d, repaint %d", log.NameOf(hWnd).c_str(), TextOf(at).c_str(), cx, cy,
             repaint);
    MoveWindow(hWnd, at.x, at.y, cx, cy, repaint);
}

void Ordering(WindowLog& log, Dice& dice, HWND hWnd) {
    constexpr UINT kFlags[] = {0,
                               0,
                               0,
                               SWP_NOREDRAW,
                               SWP_FRAMECHANGED,
                               SWP_SHOWWINDOW,
                               SWP_HIDEWINDOW,
                               SWP_NOCOPYBITS,
                               SWP_NOOWNERZORDER,
                               SWP_NOSENDCHANGING};
    UINT flags = dice.Of(kFlags) | dice.Of(kFlags);
    if (!dice.OneIn(4)) flags |= SWP_NOSIZE;
    if (!dice.OneIn(4)) flags |= SWP_NOMOVE;
    if (dice.OneIn(3)) flags |= SWP_NOZORDER;
    if (!dice.OneIn(4)) flags |= SWP_NOACTIVATE;
    const bool child = (GetWindowLong(hWnd, GWL_STYLE) & WS_CHILD) != 0;
    // The display takes the keyboard from a hidden window whenever it likes.
    if (!child) flags &= ~SWP_HIDEWINDOW;
    // Where owned windows stand when their owner becomes active depends on the display, and so it does when
    // a window changes its place without changing the order.
    if (OwnsAny(log, hWnd)) flags |= SWP_NOACTIVATE;
    if (!child && HasOwned(log)) flags |= SWP_NOMOVE | SWP_NOSIZE;
    // The bottom of the desktop belongs to windows of the system.
    const int place = dice.Between(0, child ? 4 : 3) + (child ? 0 : 1);
    const HWND hAny = log.Any(dice), hSibling = child ? hAny : GetAncestor(hAny, GA_ROOT);
    const HWND hAfter = place == 1 ? HWND_TOP : place == 0 ? HWND_BOTTOM : hSibling;
    const int x = dice.Between(-20, 200), y = dice.Between(-20, 150);
    const int cx = dice.Between(0, 200), cy = dice.Between(0, 150);
    log.Line("* place %s behind %s at %d,%d %dx%d flags %x", log.NameOf(hWnd).c_str(),
             place == 1   ? "top"
             : place == 0 ? "bottom"
                          : log.NameOf(hAfter).c_str(),
             x, y, cx, cy, flags);
    const BOOL done = SetWindowPos(hWnd, hAfter, x, y, cx, cy, flags);
    if (log.Outermost()) log.Settle();
    log.Line("= %d", done);
    WriteOrder(log, child ? GetParent(hWnd) : nullptr);
}

RECT AnyArea(Dice& dice) {
    const int left = dice.Between(-20, 150), top = dice.Between(-20, 120);
    return {left, top, left + dice.Between(0, 100), top + dice.Between(1, 100)};
}

void Redrawing(WindowLog& log, Dice& dice, HWND hWnd, const RECT& rc) {
    constexpr UINT kFlags[] = {RDW_INVALIDATE, RDW_INVALIDATE, RDW_INVALIDATE | RDW_ERASE, RDW_VALIDATE,
                               RDW_INTERNALPAINT};
    constexpr UINT kMore[] = {0, 0, 0, RDW_ALLCHILDREN, RDW_NOCHILDREN};
    constexpr UINT kWhen[] = {0, 0, RDW_UPDATENOW, RDW_ERASENOW};
    constexpr UINT kFrame[] = {0, 0, 0, RDW_FRAME, RDW_NOERASE};
    const UINT what = dice.Of(kFlags), more = dice.Of(kMore), when = dice.Of(kWhen), frame = dice.Of(kFrame);
    const UINT flags = what | more | when | frame;
    const bool whole = dice.OneIn(3);
    log.Line("* redraw %s%s flags %x", log.NameOf(hWnd).c_str(), whole ? "" : TextOf(rc).c_str(), flags);
    RedrawWindow(hWnd, whole ? nullptr : &rc, nullptr, flags);
}

void InvalidatingRound(WindowLog& log, Dice& dice, HWND hWnd, const RECT& rc) {
    const HRGN region = CreateEllipticRgn(rc.left, rc.top, rc.right, rc.bottom);
    const BOOL erase = dice.OneIn(2), valid = dice.OneIn(4);
    log.Line("* %svalidate %s round%s %d", valid ? "" : "in", log.NameOf(hWnd).c_str(), TextOf(rc).c_str(),
             erase);
    if (valid)
        ValidateRgn(hWnd, region);
    else
        InvalidateRgn(hWnd, region, erase);
    DeleteObject(region);
}

void Invalidating(WindowLog& log, Dice& dice, HWND hWnd) {
    const RECT rc = AnyArea(dice);
    const BOOL erase = dice.OneIn(2);
    const bool whole = dice.OneIn(4);
    const RECT* area = whole ? nullptr : &rc;
    const std::string where = log.NameOf(hWnd) + (whole ? "" : TextOf(rc));
    switch (dice.Between(0, 5)) {
        case 0:
            log.Line("* validate %s", where.c_str());
            ValidateRect(hWnd, area);
            break;
        case 1:
        case 2:
            return Redrawing(log, dice, hWnd, rc);
        case 3:
            return InvalidatingRound(log, dice, hWnd, rc);
        default:
            log.Line("* invalidate %s erase %d", where.c_str(), erase);
            InvalidateRect(hWnd, area, erase);
    }
}

void Updating(WindowLog& log, Dice&, HWND hWnd) {
    log.Line("* update %s", log.NameOf(hWnd).c_str());
    const BOOL done = UpdateWindow(hWnd);
    log.Line("= %d", done);
}

void Enabling(WindowLog& log, Dice& dice, HWND hWnd) {
    const BOOL enable = dice.OneIn(2);
    log.Line("* enable %s %d", log.NameOf(hWnd).c_str(), enable);
    const BOOL was = EnableWindow(hWnd, enable);
    log.Line("= %d", was);
}

void Focusing(WindowLog& log, Dice& dice, HWND hWnd) {
    HWND hWas = nullptr;
    const std::string name = log.NameOf(hWnd);
    switch (dice.Between(0, 6)) {
        case 0:
            log.Line("* activate %s", name.c_str());
            hWas = SetActiveWindow(hWnd);
            break;
        case 1:
            log.Line("* to the front %s", name.c_str());
            SetForegroundWindow(hWnd);
            break;
        case 2:
            log.Line("* bring to top %s", name.c_str());
            BringWindowToTop(hWnd);
            break;
        case 3:
            log.Line("* focus none");
            hWas = SetFocus(nullptr);
            break;
        default:
            log.Line("* focus %s", name.c_str());
            hWas = SetFocus(hWnd);
    }
    log.Line("= %s, active %s, focus %s, front %s", log.NameOf(hWas).c_str(),
             log.NameOf(GetActiveWindow()).c_str(), log.NameOf(GetFocus()).c_str(),
             log.NameOf(GetForegroundWindow()).c_str());
    log.BringActiveForward();
}

void Capturing(WindowLog& log, Dice& dice, HWND hWnd) {
    HWND hWas = nullptr;
    switch (dice.Between(0, 3)) {
        case 0:
            log.Line("* release");
            ReleaseCapture();
            if (log.Outermost()) log.Pump();
            break;
        case 1:
            log.Line("* cancel mode %s", log.NameOf(hWnd).c_str());
            SendMessage(hWnd, WM_CANCELMODE, 0, 0);
            break;
        default:
            log.Line("* capture %s", log.NameOf(hWnd).c_str());
            hWas = SetCapture(hWnd);
    }
    log.Line("= %s, capture %s", log.NameOf(hWas).c_str(), log.NameOf(GetCapture()).c_str());
}

void Destroying(WindowLog& log, Dice&, HWND hWnd) {
    log.Line("* destroy %s", log.NameOf(hWnd).c_str());
    const BOOL done = DestroyWindow(hWnd);
    log.Line("= %d", done);
}

void Pumping(WindowLog& log, Dice&, HWND) {
    log.Step("pump");
    log.Pump();
}

void Styling(WindowLog& log, Dice& dice, HWND hWnd) {
    constexpr DWORD kBits[] = {WS_BORDER,       WS_DLGFRAME,     WS_THICKFRAME,
                               WS_CLIPCHILDREN, WS_CLIPSIBLINGS, WS_VISIBLE};
    const DWORD style = static_cast<DWORD>(GetWindowLong(hWnd, GWL_STYLE)) ^ dice.Of(kBits);
    log.Line("* style %s %lx", log.NameOf(hWnd).c_str(), static_cast<unsigned long>(style));
    const LONG was = SetWindowLong(hWnd, GWL_STYLE, static_cast<LONG>(style));
    log.Line("= %lx, now %lx", static_cast<unsigned long>(was) & 0xffffffff,
             static_cast<unsigned long>(GetWindowLong(hWnd, GWL_STYLE)) & 0xffffffff);
    if (dice.OneIn(2)) return;
    log.Step("frame changed");
    SetWindowPos(hWnd, nullptr, 0, 0, 0, 0,
                 SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

struct StepKind {
    unsigned bit;
    void (*take)(WindowLog&, Dice&, HWND);
};

constexpr StepKind kStepKinds[] = {
    {kShowing, Showing},   {kPlacing, Placing},       {kOrdering, Ordering}, {kInvalidating, Invalidating},
    {kUpdating, Updating}, {kEnabling, Enabling},     {kFocusing, Focusing}, {kCapturing, Capturing},
    {kPumping, Pumping},   {kDestroying, Destroying}, {kStyling, Styling},
};

}  // namespace

RECT AnyFrame(Dice& dice, const RECT& around, int least, int most) {
    const int left = dice.Between(around.left, around.right), top = dice.Between(around.top, around.bottom);
    const int cx = dice.Between(least, most), cy = dice.Between(least, most);
    return {left, top, left + cx, top + cy};
}

WindowPlan AnyTop(Dice& dice, HWND owner) {
    WindowPlan plan;
    plan.style = WS_POPUP | dice.Of(kFrames);
    if (dice.OneIn(2)) plan.style = dice.OneIn(5) ? WS_OVERLAPPED : WS_OVERLAPPEDWINDOW;
    if (dice.OneIn(3)) plan.style |= WS_CLIPCHILDREN;
    // Where an owned window stands that was never shown is left open.
    if (!dice.OneIn(3) || owner) plan.style |= WS_VISIBLE;
    if (dice.OneIn(6)) plan.exStyle |= WS_EX_TOPMOST;
    if (dice.OneIn(6)) plan.exStyle |= WS_EX_TOOLWINDOW;
    if (dice.OneIn(6)) plan.exStyle |= WS_EX_NOACTIVATE;
    if (owner) plan.exStyle &= ~WS_EX_NOACTIVATE;
    plan.parent = owner;
    plan.frame = AnyFrame(dice, {50, 50, 250, 200}, 120, 300);
    plan.cls = dice.Between(0, 2);
    return plan;
}

WindowPlan AnyChild(Dice& dice, HWND parent) {
    WindowPlan plan;
    plan.style = WS_CHILD | dice.Of(kFrames);
    if (dice.OneIn(3)) plan.style |= WS_CLIPCHILDREN;
    if (dice.OneIn(3)) plan.style |= WS_CLIPSIBLINGS;
    if (!dice.OneIn(4)) plan.style |= WS_VISIBLE;
    if (dice.OneIn(8)) plan.style |= WS_DISABLED;
    if (dice.OneIn(4)) plan.exStyle |= WS_EX_CLIENTEDGE;
    if (dice.OneIn(6)) plan.exStyle |= WS_EX_NOPARENTNOTIFY;
    plan.parent = parent;
    plan.frame = AnyFrame(dice, {-30, -30, 150, 120}, 10, 120);
    plan.cls = dice.Between(0, 2);
    plan.id = dice.Between(1, 40);
    return plan;
}

/// The display may have had a say in the order while the windows came up.
static void StandInOrder(WindowLog& log) {
    for (HWND hWnd : log.Living()) {
        if (GetWindowLong(hWnd, GWL_STYLE) & WS_CHILD) continue;
        SetWindowPos(hWnd, HWND_TOP, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE);
        log.Settle();
    }
}

void MakeTree(WindowLog& log, Dice& dice, int tops, int children) {
    log.quiet = true;
    for (int i = 0; i < tops; ++i) {
        const HWND owner = dice.OneIn(3) ? log.Any(dice) : nullptr;
        log.Create(AnyTop(dice, owner));
        log.Settle();
    }
    for (int i = 0; i < children; ++i) {
        const HWND parent = log.Any(dice);
        log.Create(AnyChild(dice, parent));
    }
    log.Pump();
    StandInOrder(log);
    log.Pump();
    log.quiet = false;
    WriteTree(log);
}

void WriteTree(WindowLog& log) {
    for (HWND hWnd : log.Living()) {
        RECT rc{}, client{};
        GetWindowRect(hWnd, &rc);
        GetClientRect(hWnd, &client);
        log.Line("%s%s%s style %lx %lx parent %s owner %s visible %d", log.NameOf(hWnd).c_str(),
                 TextOf(rc).c_str(), TextOf(client).c_str(),
                 static_cast<unsigned long>(GetWindowLong(hWnd, GWL_STYLE)) & 0xffffffff,
                 static_cast<unsigned long>(GetWindowLong(hWnd, GWL_EXSTYLE)) & 0xffffffff,
                 log.NameOf(GetAncestor(hWnd, GA_PARENT)).c_str(),
                 log.NameOf(GetWindow(hWnd, GW_OWNER)).c_str(), IsWindowVisible(hWnd));
    }
    WriteOrder(log, nullptr);
}

void WriteOrder(WindowLog& log, HWND parent) {
    std::string names;
    for (HWND hWnd = GetTopWindow(parent); hWnd; hWnd = GetWindow(hWnd, GW_HWNDNEXT))
        if (log.NameOf(hWnd) != "?") names += " " + log.NameOf(hWnd);
    log.Line("order%s", names.c_str());
}

bool TakeStep(WindowLog& log, Dice& dice, unsigned kinds) {
    const HWND hWnd = log.Any(dice);
    if (!hWnd) return false;
    for (;;) {
        const StepKind& kind = dice.Of(kStepKinds);
        if (kind.bit & kinds) return kind.take(log, dice, hWnd), true;
    }
}

}  // namespace scenes
