#include "user/menu_popup.h"

#include <algorithm>
#include <string_view>

#include "user/screen.h"

namespace tavlon::win32 {

namespace {

constexpr char kClassName[] = "#32768";

constexpr int kTextMargin = 7;  // right of what long texts are cut
constexpr COLORREF kGreyText = RGB(0x80, 0x80, 0x80);

/// The marks are drawn with the pen, which has the entry's colour.
void DrawCheck(HDC hdc, POINT box) {
    const int x = box.x + 3, y = box.y + 5;
    for (int i = 0; i < 3; ++i) {
        MoveToEx(hdc, x, y + i, nullptr);
        LineTo(hdc, x + 2, y + i + 2);
        LineTo(hdc, x + 6, y + i - 2);
    }
}

void DrawBullet(HDC hdc, POINT box) {
    constexpr int kInset[] = {1, 0, 0, 1};
    for (int i = 0; i < 4; ++i) {
        MoveToEx(hdc, box.x + 5 + kInset[i], box.y + 5 + i, nullptr);
        LineTo(hdc, box.x + 9 - kInset[i], box.y + 5 + i);
    }
}

void DrawArrow(HDC hdc, POINT box) {
    for (int i = 0; i < 5; ++i) {
        MoveToEx(hdc, box.x + 6 + i, box.y + 2 + i, nullptr);
        LineTo(hdc, box.x + 6 + i, box.y + 11 - i);
    }
}

void DrawSeparator(HDC hdc, const RECT& row) {
    const int y = (row.top + row.bottom) / 2;
    const RECT line{row.left + 1, y, row.right - 1, y + 1};
    FillRect(hdc, &line, GetSysColorBrush(COLOR_3DSHADOW));
}

void DrawMarks(HDC hdc, const MenuItem& item, const RECT& row, COLORREF clr) {
    const HPEN hPen = CreatePen(PS_SOLID, 1, clr);
    const HGDIOBJ hOld = SelectObject(hdc, hPen);
    const int width = GetSystemMetrics(SM_CXMENUCHECK);
    const int top = row.top + (row.bottom - row.top - GetSystemMetrics(SM_CYMENUCHECK)) / 2;
    if (item.state & MF_CHECKED) (item.HasBullet() ? DrawBullet : DrawCheck)(hdc, {row.left, top});
    if (item.submenu) DrawArrow(hdc, {row.right - width, top});
    SelectObject(hdc, hOld);
    DeleteObject(hPen);
}

void DrawPart(HDC hdc, std::string_view text, RECT rect, UINT format) {
    DrawTextA(hdc, text.data(), static_cast<int>(text.size()), &rect, DT_SINGLELINE | DT_VCENTER | format);
}

void DrawTexts(HDC hdc, std::string_view text, const RECT& row, const MenuLayout& layout) {
    const std::size_t cut = text.find_first_of("\t\b");
    const LONG right = row.right - kTextMargin;
    DrawPart(hdc, text.substr(0, cut), {layout.textLeft, row.top, right, row.bottom}, DT_LEFT);
    if (cut == text.npos) return;
    const std::string_view rest = text.substr(cut + 1);
    if (text[cut] == '\t')
        DrawPart(hdc, rest, {layout.tabStop, row.top, right, row.bottom}, DT_LEFT);
    else
        DrawPart(hdc, rest, {layout.textLeft, row.top, layout.tabStop, row.bottom}, DT_RIGHT);
}

/// Greyed texts and greyed marks differ in their grey.
void DrawItem(HDC hdc, const MenuItem& item, const RECT& row, const MenuLayout& layout, bool selected) {
    if (item.IsSeparator()) return DrawSeparator(hdc, row);
    if (selected) FillRect(hdc, &row, GetSysColorBrush(COLOR_HIGHLIGHT));
    const bool grey = (item.state & MF_GRAYED) != 0;
    const COLORREF clr = GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_MENUTEXT);
    SetTextColor(hdc, grey ? kGreyText : clr);
    DrawMarks(hdc, item, row, grey ? GetSysColor(COLOR_GRAYTEXT) : clr);
    DrawTexts(hdc, item.text, row, layout);
}

void DrawMenu(HDC hdc, const MenuPopup& popup) {
    const MenuLayout& layout = popup.layout;
    const RECT rect{0, 0, layout.size.cx, layout.size.cy};
    FillRect(hdc, &rect, GetSysColorBrush(COLOR_MENU));
    FrameRect(hdc, &rect, GetSysColorBrush(COLOR_3DSHADOW));
    const HGDIOBJ hOld = SelectObject(hdc, GetStockObject(DEFAULT_GUI_FONT));
    SetBkMode(hdc, TRANSPARENT);
    for (int i = 0; i < popup.Count(); ++i)
        DrawItem(hdc, *popup.ItemAt(i), layout.rows[static_cast<std::size_t>(i)], layout,
                 i == popup.selected);
    SelectObject(hdc, hOld);
}

LRESULT Paint(HWND hWnd) {
    PAINTSTRUCT paint;
    const HDC hdc = BeginPaint(hWnd, &paint);
    if (const MenuPopup* popup = OpenMenuPopup(hWnd)) DrawMenu(hdc, *popup);
    EndPaint(hWnd, &paint);
    return 0;
}

LRESULT ShownMenu(HWND hWnd) {
    const MenuPopup* popup = OpenMenuPopup(hWnd);
    return reinterpret_cast<LRESULT>(popup ? popup->menu : nullptr);
}

LRESULT CALLBACK MenuWindowProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ERASEBKGND:
            return TRUE;
        case WM_MOUSEACTIVATE:
            return MA_NOACTIVATE;
        case WM_PAINT:
            return Paint(hWnd);
        case MN_GETHMENU:
            return ShownMenu(hWnd);
        default:
            return DefWindowProcA(hWnd, message, wParam, lParam);
    }
}

/// In one direction. Ends at the other point when it does not fit behind the first and does before the other.
LONG OnScreen(LONG at, const LONG* other, LONG size, LONG screen) {
    if (other && at + size > screen && *other >= size) at = *other - size;
    return std::clamp<LONG>(at, 0, std::max<LONG>(screen - size, 0));
}

}  // namespace

ClassRef MakeMenuClass() {
    auto cls = std::make_shared<WindowClass>();
    cls->name = kClassName;
    cls->atom = 0x8000;
    cls->style = CS_GLOBALCLASS | CS_SAVEBITS;
    cls->procedure = MenuWindowProc;
    cls->cursor = LoadCursorA(nullptr, IDC_ARROW);
    return cls;
}

MenuPopup MenuPopup::Open(HMENU hMenu, POINT at, const POINT* other, HWND hOwner) {
    MenuPopup popup{hMenu, nullptr, LayoutMenu(*MenuOf(hMenu)), -1};
    const SIZE size = popup.layout.size;
    const RECT screen = ScreenRect();
    at.x = OnScreen(std::min<LONG>(at.x, screen.right), other ? &other->x : nullptr, size.cx, screen.right);
    at.y = OnScreen(std::min<LONG>(at.y, screen.bottom), other ? &other->y : nullptr, size.cy, screen.bottom);
    popup.window = CreateWindowExA(WS_EX_TOPMOST, kClassName, "", WS_POPUP, at.x, at.y, size.cx, size.cy,
                                   hOwner, nullptr, nullptr, nullptr);
    return popup;
}

void MenuPopup::Close() {
    DestroyWindow(window);
    window = nullptr;
}

bool MenuPopup::Contains(POINT screen) const {
    RECT rect{};
    return GetWindowRect(window, &rect) && PtInRect(&rect, screen);
}

int MenuPopup::RowAt(POINT screen) const {
    ScreenToClient(window, &screen);
    return MenuRowAt(layout, screen);
}

int MenuPopup::Count() const {
    const Menu* model = MenuOf(menu);
    return model ? static_cast<int>(std::min(model->items.size(), layout.rows.size())) : 0;
}

const MenuItem* MenuPopup::ItemAt(int row) const {
    return row >= 0 && row < Count() ? &MenuOf(menu)->items[static_cast<std::size_t>(row)] : nullptr;
}

void MenuPopup::Select(int row) {
    if (row >= static_cast<int>(layout.rows.size())) return;
    for (int changed : {selected, row})
        if (changed >= 0) InvalidateRect(window, &layout.rows[static_cast<std::size_t>(changed)], FALSE);
    selected = row;
}

}  // namespace tavlon::win32
