// What the default processing answers and sends on, and in which order a queue gives its messages.
#include <utility>

#include "scenes/window_kinds.h"
#include "scenes/window_steps.h"

namespace scenes {

namespace {

struct Plain {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};

/// Messages whose parameters are numbers alone.
constexpr Plain kPlain[] = {
    {WM_NULL, 0, 0},
    {WM_MOUSEMOVE, 0, MAKELPARAM(5, 5)},
    {WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5)},
    {WM_LBUTTONUP, 0, MAKELPARAM(5, 5)},
    {WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5)},
    {WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(5, 5)},
    {WM_RBUTTONUP, 0, MAKELPARAM(7, 9)},
    {WM_MBUTTONDOWN, 0, MAKELPARAM(7, 9)},
    {WM_KEYDOWN, VK_LEFT, 1},
    {WM_KEYDOWN, VK_RETURN, 1},
    {WM_KEYUP, VK_LEFT, 1},
    {WM_CHAR, 'a', 1},
    {WM_SIZE, SIZE_RESTORED, MAKELPARAM(50, 60)},
    {WM_MOVE, 0, MAKELPARAM(50, 60)},
    {WM_ENABLE, 1, 0},
    {WM_SHOWWINDOW, 1, 0},
    {WM_SHOWWINDOW, 0, 0},
    {WM_CANCELMODE, 0, 0},
    {WM_GETTEXTLENGTH, 0, 0},
    {WM_GETFONT, 0, 0},
    {WM_SETFOCUS, 0, 0},
    {WM_KILLFOCUS, 0, 0},
    {WM_ACTIVATE, WA_INACTIVE, 0},
    {WM_NCACTIVATE, 0, 0},
    {WM_NCACTIVATE, 1, 0},
    {WM_GETDLGCODE, 0, 0},
    {WM_SETREDRAW, 1, 0},
    {WM_CAPTURECHANGED, 0, 0},
    {WM_TIMER, 3, 0},
    {WM_COMMAND, 7, 0},
    {WM_USER + 1, 1, 2},
    {WM_USER + 2, 1, 2},
    {WM_APP + 1, 1, 2},
    {WM_PAINT, 0, 0},
    {WM_ERASEBKGND, 0, 0},
    {WM_CHILDACTIVATE, 0, 0},
    {WM_PARENTNOTIFY, WM_LBUTTONDOWN, MAKELPARAM(1, 2)},
    {WM_MOUSELEAVE, 0, 0},
    {WM_MOUSEWHEEL, MAKEWPARAM(0, 120), MAKELPARAM(100, 100)},
    {WM_SYSCOMMAND, SC_CLOSE, 0},
    {WM_CLOSE, 0, 0},
    {WM_ENTERSIZEMOVE, 0, 0},
    {WM_EXITSIZEMOVE, 0, 0},
};

void SendPlain(WindowLog& log, Dice& dice, HWND hWnd) {
    const Plain& plain = dice.Of(kPlain);
    log.Line("* send %s %x", log.NameOf(hWnd).c_str(), plain.message);
    const LRESULT result = SendMessage(hWnd, plain.message, plain.wParam, plain.lParam);
    log.Line("= %lld, capture %s", static_cast<long long>(result), log.NameOf(GetCapture()).c_str());
}

/// Messages about the pointer, that go up to parents.
void SendPointer(WindowLog& log, Dice& dice, HWND hWnd) {
    constexpr UINT kMessages[] = {WM_SETCURSOR, WM_MOUSEACTIVATE, WM_CONTEXTMENU};
    constexpr int kCodes[] = {HTCLIENT, HTCAPTION, HTBORDER, HTNOWHERE};
    constexpr UINT kCauses[] = {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_RBUTTONDOWN};
    const UINT message = dice.Of(kMessages);
    const int code = dice.Of(kCodes);
    const UINT cause = dice.Of(kCauses);
    SetCursor(nullptr);
    log.Line("* pointer %s %x %d %x", log.NameOf(hWnd).c_str(), message, code, cause);
    const LRESULT result =
        SendMessage(hWnd, message, reinterpret_cast<WPARAM>(hWnd), MAKELPARAM(code, cause));
    log.Line("= %lld, arrow %d", static_cast<long long>(result),
             GetCursor() == LoadCursor(nullptr, IDC_ARROW));
}

void SendText(WindowLog& log, Dice& dice, HWND hWnd) {
    constexpr const char* kTexts[] = {"", "a", "some words", "a longer text with more letters in it"};
    const char* text = dice.Of(kTexts);
    log.Line("* text %s", log.NameOf(hWnd).c_str());
    const LRESULT set = SendMessage(hWnd, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
    char back[40] = "untouched";
    const int room = dice.Between(0, 20);
    const LRESULT got =
        SendMessage(hWnd, WM_GETTEXT, static_cast<WPARAM>(room), reinterpret_cast<LPARAM>(back));
    log.Line("= %d, %d of %d: %s", static_cast<int>(set), static_cast<int>(got), room, back);
}

void SendSizing(WindowLog& log, Dice& dice, HWND hWnd) {
    WINDOWPOS pos{hWnd,
                  HWND_TOP,
                  dice.Between(0, 100),
                  dice.Between(0, 100),
                  dice.Between(0, 200),
                  dice.Between(0, 200),
                  dice.OneIn(2) ? 0u : SWP_NOSIZE};
    log.Line("* changing %s", log.NameOf(hWnd).c_str());
    const LRESULT result = SendMessage(hWnd, WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&pos));
    log.Line("= %d, %dx%d", static_cast<int>(result), pos.cx, pos.cy);
    if (!dice.OneIn(2)) return;
    log.Line("* changed %s", log.NameOf(hWnd).c_str());
    const LRESULT told = SendMessage(hWnd, WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&pos));
    log.Line("= %d", static_cast<int>(told));
}

void Erase(WindowLog& log, Dice& dice, HWND hWnd) {
    const HDC hdc = GetDC(hWnd);
    const int x = dice.Between(0, 30), y = dice.Between(0, 30);
    IntersectClipRect(hdc, 0, 0, x, y);
    log.Line("* erase %s", log.NameOf(hWnd).c_str());
    const LRESULT result = SendMessage(hWnd, WM_ERASEBKGND, reinterpret_cast<WPARAM>(hdc), 0);
    log.Line("= %d", static_cast<int>(result));
    ReleaseDC(hWnd, hdc);
}

struct Asked {
    UINT first, last;
};

/// One look into the queue.
void Look(WindowLog& log, Dice& dice) {
    constexpr Asked kRanges[] = {{0, 0},
                                 {0, 0},
                                 {WM_PAINT, WM_PAINT},
                                 {WM_USER, WM_APP + 10},
                                 {WM_KEYFIRST, WM_KEYLAST},
                                 {WM_MOUSEFIRST, WM_MOUSELAST},
                                 {WM_TIMER, WM_TIMER},
                                 {WM_QUIT, WM_QUIT}};
    const Asked& range = dice.Of(kRanges);
    const HWND hWnd = dice.OneIn(3) ? log.Any(dice) : nullptr;
    // A paint that was asked for without an update region need not survive being looked at.
    const bool mayPaint = range.first <= WM_PAINT;
    const bool remove = !dice.OneIn(4) || mayPaint;
    MSG msg{};
    const BOOL any = PeekMessage(&msg, hWnd, range.first, range.last, remove ? PM_REMOVE : PM_NOREMOVE);
    log.Line("* look at %s %x-%x, remove %d: %d", log.NameOf(hWnd).c_str(), range.first, range.last, remove,
             any);
    if (!any) return;
    log.Line("  %s %x %llx %llx", log.NameOf(msg.hwnd).c_str(), msg.message,
             static_cast<unsigned long long>(msg.wParam), static_cast<unsigned long long>(msg.lParam));
    if (remove && msg.message != WM_QUIT) DispatchMessage(&msg);
}

void Put(WindowLog& log, Dice& dice) {
    const HWND hWnd = log.Any(dice);
    const WPARAM number = static_cast<WPARAM>(dice.Between(1, 99));
    const std::string name = log.NameOf(hWnd);
    switch (dice.Between(0, 7)) {
        case 0:
            log.Line("* invalidate %s", name.c_str());
            InvalidateRect(hWnd, nullptr, TRUE);
            break;
        case 1:
            log.Line("* quit %d", static_cast<int>(number));
            PostQuitMessage(static_cast<int>(number));
            break;
        case 2:
            log.Line("* key");
            PostMessage(hWnd, WM_KEYDOWN, 'A', 1);
            break;
        case 3:
            log.Line("* to nobody");
            PostMessage(nullptr, WM_APP + 1, number, 0);
            break;
        case 4:
            log.Line("* internal paint %s", name.c_str());
            RedrawWindow(hWnd, nullptr, nullptr, RDW_INTERNALPAINT);
            break;
        default:
            log.Line("* post %s %d", name.c_str(), static_cast<int>(number));
            PostMessage(hWnd, dice.OneIn(2) ? WM_USER + 1 : WM_APP + 1, number, static_cast<LPARAM>(number));
    }
}

void DropQuit() {
    MSG msg;
    while (PeekMessage(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) {
    }
}

}  // namespace

void LogDefaults(std::string& text, Dice& dice) {
    constexpr void (*kSends[])(WindowLog&, Dice&, HWND) = {SendPlain, SendPlain,  SendPlain, SendPointer,
                                                           SendText,  SendSizing, Erase};
    WindowLog log(text);
    MakeTree(log, dice, 1, 4);
    for (int i = 0; i < 20; ++i)
        if (const HWND hWnd = log.Any(dice)) dice.Of(kSends)(log, dice, hWnd);
    log.Step("pump");
    log.Pump();
}

void LogQueue(std::string& text, Dice& dice) {
    WindowLog log(text);
    MakeTree(log, dice, 2, 3);
    for (int i = 0; i < 30; ++i) dice.OneIn(2) ? Put(log, dice) : Look(log, dice);
    DropQuit();
    log.Step("pump");
    log.Pump();
    DropQuit();
}

}  // namespace scenes
