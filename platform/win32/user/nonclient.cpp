#include "user/nonclient.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "user/geometry.h"

namespace tavlon::win32 {

namespace {

constexpr int kEdge = 2;          // a sunken edge around the client area
constexpr int kCornerReach = 22;  // how far along an edge the corners can be gripped

/// Two raised rings around dialogs and sizing frames, unless one sunken ring is asked for instead.
int OuterEdge(DWORD style, DWORD exStyle) {
    if (exStyle & WS_EX_DLGMODALFRAME) return 2;
    if (exStyle & WS_EX_STATICEDGE) return 1;
    return (style & (WS_DLGFRAME | WS_THICKFRAME)) ? 2 : 0;
}

bool HasLine(DWORD style, DWORD exStyle) {
    return (exStyle & WS_EX_DLGMODALFRAME) || (style & (WS_BORDER | WS_DLGFRAME));
}

int BorderWidth(DWORD style, DWORD exStyle) {
    return OuterEdge(style, exStyle) + ((style & WS_THICKFRAME) ? 1 : 0) + (HasLine(style, exStyle) ? 1 : 0);
}

bool HasCaption(DWORD style) { return (style & WS_CAPTION) == WS_CAPTION; }

int CaptionHeight(DWORD style, DWORD exStyle) {
    constexpr int kSmall = 17;
    if (!HasCaption(style)) return 0;
    return (exStyle & WS_EX_TOOLWINDOW) ? kSmall : GetSystemMetrics(SM_CYCAPTION);
}

bool Inside(const RECT& rect, POINT pt) {
    return pt.x >= rect.left && pt.x < rect.right && pt.y >= rect.top && pt.y < rect.bottom;
}

int EdgeCode(const RECT& frame, POINT pt, int border) {
    constexpr int kCodes[3][3] = {
        {HTTOPLEFT, HTTOP, HTTOPRIGHT}, {HTLEFT, HTBORDER, HTRIGHT}, {HTBOTTOMLEFT, HTBOTTOM, HTBOTTOMRIGHT}};
    const auto band = [border](LONG at, LONG low, LONG high, bool wide) {
        const int reach = wide ? kCornerReach : border;
        return at < low + reach ? 0 : at >= high - reach ? 2 : 1;
    };
    const bool onSide = pt.x < frame.left + border || pt.x >= frame.right - border;
    return kCodes[band(pt.y, frame.top, frame.bottom, onSide)][band(pt.x, frame.left, frame.right, !onSide)];
}

/// Where a sizing frame without a line of its own meets a sunken edge, one more pixel can be gripped.
int GripWidth(const Window& window) {
    const bool bare = !HasLine(window.style, window.exStyle);
    const bool more = bare && window.Has(WS_THICKFRAME) && (window.exStyle & WS_EX_CLIENTEDGE);
    return BorderWidth(window.style, window.exStyle) + (more ? 1 : 0);
}

RECT CaptionRect(const Window& window) {
    const int border = BorderWidth(window.style, window.exStyle);
    return {border, border, window.Width() - border,
            border + CaptionHeight(window.style, window.exStyle) - 1};
}

/// The buttons stand at the caption's right end: close, then maximise, then minimise; either of the latter
/// brings the place for both.
int CaptionCode(const Window& window, const RECT& caption, POINT pt) {
    constexpr int kButton = 18;
    if (!window.Has(WS_SYSMENU)) return HTCAPTION;
    const bool tool = (window.exStyle & WS_EX_TOOLWINDOW) != 0;
    const bool icon = !tool && !(window.exStyle & WS_EX_DLGMODALFRAME);
    const bool boxes = !tool && (window.style & (WS_MINIMIZEBOX | WS_MAXIMIZEBOX));
    if (icon && pt.x < caption.left + kButton) return HTSYSMENU;
    const int slot = (caption.right - 1 - pt.x) / kButton;
    if (slot == 0) return HTCLOSE;
    if (boxes && slot == 1) return HTMAXBUTTON;
    if (boxes && slot == 2) return HTMINBUTTON;
    return HTCAPTION;
}

/// One ring, with light from the left top; the rectangle shrinks to what is inside it. In a window too small
/// for its rings the rectangle turns over, and the bars run backwards.
void Ring(HDC hdc, RECT& rect, int leftTop, int rightBottom) {
    const int width = rect.right - rect.left, height = rect.bottom - rect.top;
    const HGDIOBJ hOld = SelectObject(hdc, GetSysColorBrush(leftTop));
    PatBlt(hdc, rect.left, rect.top, 1, height, PATCOPY);
    PatBlt(hdc, rect.left, rect.top, width, 1, PATCOPY);
    SelectObject(hdc, GetSysColorBrush(rightBottom));
    PatBlt(hdc, rect.right - 1, rect.top, 1, height, PATCOPY);
    PatBlt(hdc, rect.left, rect.bottom - 1, width, 1, PATCOPY);
    SelectObject(hdc, hOld);
    InflateRect(&rect, -1, -1);
}

void OuterRings(HDC hdc, RECT& rect, int edge) {
    if (edge == 1) Ring(hdc, rect, COLOR_3DSHADOW, COLOR_3DHILIGHT);
    if (edge != 2) return;
    Ring(hdc, rect, COLOR_3DLIGHT, COLOR_3DDKSHADOW);
    Ring(hdc, rect, COLOR_3DHILIGHT, COLOR_3DSHADOW);
}

/// The line looks like the face beside an edge, and like a drawn frame without one.
int LineColour(const Window& window) {
    const bool edged = HasRaisedEdge(window.style, window.exStyle) || (window.exStyle & WS_EX_CLIENTEDGE);
    return edged ? COLOR_3DFACE : COLOR_WINDOWFRAME;
}

void FrameRings(HDC hdc, const Window& window) {
    RECT rect = LocalRect(window.Width(), window.Height());
    const int line = LineColour(window);
    OuterRings(hdc, rect, OuterEdge(window.style, window.exStyle));
    if (window.Has(WS_THICKFRAME)) Ring(hdc, rect, COLOR_ACTIVEBORDER, COLOR_ACTIVEBORDER);
    if (HasLine(window.style, window.exStyle)) Ring(hdc, rect, line, line);
}

void SunkenEdge(HDC hdc, const Window& window) {
    if (!(window.exStyle & WS_EX_CLIENTEDGE)) return;
    const int border = BorderWidth(window.style, window.exStyle);
    RECT rect = LocalRect(window.Width(), window.Height());
    InflateRect(&rect, -border, -border);
    rect.top += CaptionHeight(window.style, window.exStyle);
    Ring(hdc, rect, COLOR_3DSHADOW, COLOR_3DHILIGHT);
    Ring(hdc, rect, COLOR_3DDKSHADOW, COLOR_3DLIGHT);
}

void PaintCloseButton(HDC hdc, const RECT& caption) {
    const int size = caption.bottom - caption.top;
    RECT button{caption.right - size + 2, caption.top + 2, caption.right - 2, caption.bottom - 2};
    FillRect(hdc, &button, GetSysColorBrush(COLOR_3DFACE));
    InflateRect(&button, -4, -4);
    for (int shift : {0, 1}) {
        MoveToEx(hdc, button.left + shift, button.top, nullptr);
        LineTo(hdc, button.right + shift, button.bottom);
        MoveToEx(hdc, button.left + shift, button.bottom - 1, nullptr);
        LineTo(hdc, button.right + shift, button.top - 1);
    }
}

/// The title as the window itself gives it.
std::string CaptionText(HWND hWnd) {
    char text[256] = "";
    SendMessageA(hWnd, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
    return {text, strnlen(text, sizeof text)};
}

void PaintCaption(HDC hdc, const Window& window, const std::string& text) {
    RECT caption = CaptionRect(window);
    const bool active = GetActiveWindow() == window.self;
    FillRect(hdc, &caption, GetSysColorBrush(active ? COLOR_ACTIVECAPTION : COLOR_INACTIVECAPTION));
    RECT line{caption.left, caption.bottom, caption.right, caption.bottom + 1};
    FillRect(hdc, &line, GetSysColorBrush(LineColour(window)));
    if (window.Has(WS_SYSMENU)) PaintCloseButton(hdc, caption);
    const HGDIOBJ hOld = SelectObject(hdc, GetStockObject(DEFAULT_GUI_FONT));
    SetBkMode(hdc, TRANSPARENT);
    SetTextColor(hdc, GetSysColor(COLOR_CAPTIONTEXT));
    caption.left += 4;
    DrawTextA(hdc, text.c_str(), static_cast<int>(text.size()), &caption,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    SelectObject(hdc, hOld);
}

void ClipToFrame(HDC hdc, const Window& window, HRGN hClip) {
    pixman_region32_t* clip = RegionOf(hClip);
    if (clip) {
        const POINT at = FrameOrigin(window);
        const HRGN hLocal = CreateRectRgn(0, 0, 0, 0);
        CombineRgn(hLocal, hClip, nullptr, RGN_COPY);
        OffsetRgn(hLocal, -at.x, -at.y);
        SelectClipRgn(hdc, hLocal);
        DeleteObject(hLocal);
    }
    const POINT client = ClientInFrame(window);
    ExcludeClipRect(hdc, client.x, client.y, client.x + window.ClientWidth(),
                    client.y + window.ClientHeight());
}

RECT Within(const RECT& rect, const RECT& margins) {
    const LONG left = rect.left + margins.left, top = rect.top + margins.top;
    return {left, top, std::max(rect.right - margins.right, left),
            std::max(rect.bottom - margins.bottom, top)};
}

}  // namespace

RECT FrameMargins(DWORD style, DWORD exStyle) {
    const int border = BorderWidth(style, exStyle) + ((exStyle & WS_EX_CLIENTEDGE) ? kEdge : 0);
    return {border, border + CaptionHeight(style, exStyle), border, border};
}

bool HasRaisedEdge(DWORD style, DWORD exStyle) { return OuterEdge(style, exStyle) == 2; }

LRESULT CalculateClient(RECT& rect, const Window& window) {
    rect = Within(ClampedRect(rect), FrameMargins(window.style, window.exStyle & ~WS_EX_CLIENTEDGE));
    const bool room = rect.right - rect.left > 2 * kEdge && rect.bottom - rect.top > 2 * kEdge;
    if ((window.exStyle & WS_EX_CLIENTEDGE) && room) InflateRect(&rect, -kEdge, -kEdge);
    return 0;
}

LRESULT HitTestFrame(HWND hWnd, POINT pt) {
    const Window* window = WindowOf(hWnd);
    if (!window) return HTERROR;
    if (Inside(ClientOnScreen(*window), pt)) return HTCLIENT;
    const RECT frame = FrameOnScreen(*window);
    if (!Inside(frame, pt)) return HTNOWHERE;
    const int border = GripWidth(*window);
    RECT inner = frame;
    InflateRect(&inner, -border, -border);
    if (!Inside(inner, pt)) return window->Has(WS_THICKFRAME) ? EdgeCode(frame, pt, border) : HTBORDER;
    const RECT caption = MovedRect(CaptionRect(*window), frame.left, frame.top);
    return HasCaption(window->style) && Inside(caption, pt) ? CaptionCode(*window, caption, pt) : HTNOWHERE;
}

void PaintFrame(HWND hWnd, HRGN hClip) {
    const Window* window = WindowOf(hWnd);
    if (!window || (window->ClientWidth() == window->Width() && window->ClientHeight() == window->Height()))
        return;
    const HDC hdc = GetWindowDC(hWnd);
    ClipToFrame(hdc, *window, hClip);
    FrameRings(hdc, *window);
    const RECT caption = CaptionRect(*window);
    if (HasCaption(window->style) && !IsRectEmpty(&caption) && RectVisible(hdc, &caption)) {
        const std::string text = CaptionText(hWnd);
        if ((window = WindowOf(hWnd))) PaintCaption(hdc, *window, text);
    }
    if (window) SunkenEdge(hdc, *window);
    ReleaseDC(hWnd, hdc);
}

}  // namespace tavlon::win32

using namespace tavlon::win32;

BOOL AdjustWindowRectEx(LPRECT pRect, DWORD dwStyle, BOOL bMenu, DWORD dwExStyle) {
    if (!pRect) return FALSE;
    const RECT margins = FrameMargins(dwStyle, dwExStyle);
    const int menu = bMenu ? GetSystemMetrics(SM_CYCAPTION) : 0;
    const RECT inner = ClampedRect(*pRect);
    *pRect = {inner.left - margins.left, inner.top - margins.top - menu, inner.right + margins.right,
              inner.bottom + margins.bottom};
    return TRUE;
}

BOOL AdjustWindowRect(LPRECT pRect, DWORD dwStyle, BOOL bMenu) {
    return AdjustWindowRectEx(pRect, dwStyle, bMenu, 0);
}
