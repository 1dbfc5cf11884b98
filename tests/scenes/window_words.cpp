// What messages say, in words.
#include <cstdarg>
#include <cstdio>

#include "scenes/window_log.h"
#include "support/message_names.h"

namespace scenes {

namespace {

constexpr MessageName kMoreNames[] = {
    {WM_SETTEXT, "SETTEXT"},
    {WM_GETTEXT, "GETTEXT"},
    {WM_GETTEXTLENGTH, "GETTEXTLENGTH"},
    {WM_STYLECHANGING, "STYLECHANGING"},
    {WM_STYLECHANGED, "STYLECHANGED"},
    {WM_TIMER, "TIMER"},
    {WM_NCMOUSEMOVE, "NCMOUSEMOVE"},
    {WM_NCLBUTTONDOWN, "NCLBUTTONDOWN"},
    {WM_NCLBUTTONUP, "NCLBUTTONUP"},
    {WM_NCLBUTTONDBLCLK, "NCLBUTTONDBLCLK"},
    {WM_NCRBUTTONDOWN, "NCRBUTTONDOWN"},
    {WM_NCRBUTTONUP, "NCRBUTTONUP"},
    {WM_RBUTTONDBLCLK, "RBUTTONDBLCLK"},
    {WM_MBUTTONDOWN, "MBUTTONDOWN"},
    {WM_MBUTTONUP, "MBUTTONUP"},
    {WM_SYSKEYDOWN, "SYSKEYDOWN"},
    {WM_SYSKEYUP, "SYSKEYUP"},
    {WM_SYSCHAR, "SYSCHAR"},
    {WM_GETFONT, "GETFONT"},
    {WM_SETFONT, "SETFONT"},
    {WM_SETREDRAW, "SETREDRAW"},
    {WM_USER + 1, "USER1"},
    {WM_USER + 2, "USER2"},
    {WM_APP + 1, "APP1"},
};

std::string Format(const char* format, ...) __attribute__((format(printf, 1, 2)));
std::string Format(const char* format, ...) {
    char text[300];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    return text;
}

std::string Name(const WindowLog& log, WPARAM handle) {
    return " " + log.NameOf(reinterpret_cast<HWND>(handle));
}
std::string Name(const WindowLog& log, LPARAM handle) { return Name(log, static_cast<WPARAM>(handle)); }

template <class T>
const T& At(LPARAM lParam) {
    return *reinterpret_cast<const T*>(lParam);
}

std::string Numbers(const Told& told) {
    return Format(" %lx %lx", static_cast<unsigned long>(told.wParam & 0xffffffff),
                  static_cast<unsigned long>(told.lParam & 0xffffffff));
}

std::string Creation(const WindowLog& log, const CREATESTRUCT& creation) {
    return Format(" %d,%d %dx%d style %lx %lx in", creation.x, creation.y, creation.cx, creation.cy,
                  static_cast<unsigned long>(static_cast<DWORD>(creation.style)),
                  static_cast<unsigned long>(creation.dwExStyle)) +
           Name(log, reinterpret_cast<LPARAM>(creation.hwndParent));
}

/// The place behind: a window or one of the four special ones.
std::string Behind(const WindowLog& log, HWND hAfter) {
    const auto number = static_cast<long long>(reinterpret_cast<LONG_PTR>(hAfter));
    return number >= -2 && number <= 1 ? Format(" #%lld", number)
                                       : Name(log, reinterpret_cast<LPARAM>(hAfter));
}

std::string Position(const WindowLog& log, const WINDOWPOS& pos) {
    return Format(" %d,%d %dx%d flags %x", pos.x, pos.y, pos.cx, pos.cy, pos.flags) +
           Behind(log, pos.hwndInsertAfter);
}

std::string Limits(const MINMAXINFO& limits) {
    return " max" + TextOf(limits.ptMaxSize) + " at" + TextOf(limits.ptMaxPosition) + " from" +
           TextOf(limits.ptMinTrackSize) + " to" + TextOf(limits.ptMaxTrackSize);
}

std::string Sizes(const Told& told) {
    const RECT* rects = reinterpret_cast<const RECT*>(told.lParam);
    std::string text = TextOf(rects[0]);
    if (told.wParam) text += TextOf(rects[1]) + TextOf(rects[2]);
    return text;
}

std::string FrameArea(WPARAM wParam) {
    if (wParam <= 1) return Format(" %d", static_cast<int>(wParam));
    return TextOf(reinterpret_cast<HRGN>(wParam));
}

std::string ClipOf(WPARAM wParam) {
    RECT rc{};
    const int kind = GetClipBox(reinterpret_cast<HDC>(wParam), &rc);
    return kind == NULLREGION ? " clip nothing" : Format(" clip %d", kind) + TextOf(rc);
}

}  // namespace

std::string TextOf(const RECT& rc) {
    return Format(" (%d,%d %d,%d)", static_cast<int>(rc.left), static_cast<int>(rc.top),
                  static_cast<int>(rc.right), static_cast<int>(rc.bottom));
}

std::string TextOf(POINT pt) { return Format(" %d,%d", static_cast<int>(pt.x), static_cast<int>(pt.y)); }

std::string TextOf(HRGN region) {
    RECT rc{};
    const int kind = GetRgnBox(region, &rc);
    unsigned sum = 0;
    int count = 0;
    for (int y = rc.top; y < rc.bottom; ++y)
        for (int x = rc.left; x < rc.right; ++x)
            if (PtInRegion(region, x, y)) sum = sum * 31 + static_cast<unsigned>(x * 1000 + y), ++count;
    return Format(" region %d", kind) + TextOf(rc) + Format(" %d points %08x", count, sum);
}

const char* LoggedName(UINT message) {
    if (const char* name = NameOfMessage(message)) return name;
    const auto* found = std::find_if(std::begin(kMoreNames), std::end(kMoreNames),
                                     [message](const MessageName& name) { return name.nMessage == message; });
    return found == std::end(kMoreNames) ? nullptr : found->pszName;
}

std::string Parameters(const WindowLog& log, const Told& told) {
    const auto [hWnd, message, wParam, lParam] = told;
    switch (message) {
        case WM_NCCREATE:
        case WM_CREATE:
            return lParam ? Creation(log, At<CREATESTRUCT>(lParam)) : "";
        case WM_WINDOWPOSCHANGING:
        case WM_WINDOWPOSCHANGED:
            return lParam ? Position(log, At<WINDOWPOS>(lParam)) : "";
        case WM_GETMINMAXINFO:
            return lParam ? Limits(At<MINMAXINFO>(lParam)) : "";
        case WM_NCCALCSIZE:
            return lParam ? Format(" %d", static_cast<int>(wParam)) + Sizes(told) : "";
        case WM_STYLECHANGING:
        case WM_STYLECHANGED:
            return Format(" %d", static_cast<int>(wParam)) + TextOf(At<POINT>(lParam));
        case WM_NCPAINT:
            return FrameArea(wParam);
        case WM_ERASEBKGND:
            return ClipOf(wParam);
        case WM_PARENTNOTIFY:
            if (LOWORD(wParam) != WM_CREATE && LOWORD(wParam) != WM_DESTROY) return Numbers(told);
            return Format(" %x", static_cast<unsigned>(wParam)) + Name(log, lParam);
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            return Name(log, wParam);
        case WM_CAPTURECHANGED:
            return Name(log, lParam);
        case WM_ACTIVATE:
        case WM_NCACTIVATE:
            return Format(" %x", static_cast<unsigned>(wParam)) + Name(log, lParam);
        case WM_ACTIVATEAPP:
            return Format(" %x", static_cast<unsigned>(wParam));
        case WM_SETCURSOR:
        case WM_MOUSEACTIVATE:
        case WM_CONTEXTMENU:
            return Name(log, wParam) + Format(" %x", static_cast<unsigned>(lParam));
        case WM_SETTEXT:
            return lParam ? Format(" %s", reinterpret_cast<const char*>(lParam)) : "";
        case WM_GETTEXT:
            return Format(" %d", static_cast<int>(wParam));
        default:
            return Numbers(told);
    }
}

std::string Outcome(const WindowLog& log, const Told& told, LRESULT result) {
    std::string text = result ? Format(" %lld", static_cast<long long>(result)) : "";
    if (!told.lParam) return text;
    if (told.message == WM_WINDOWPOSCHANGING) return text + Position(log, At<WINDOWPOS>(told.lParam));
    if (told.message == WM_GETMINMAXINFO) return text + Limits(At<MINMAXINFO>(told.lParam));
    if (told.message == WM_NCCALCSIZE) return text + Sizes(told);
    return text;
}

}  // namespace scenes
