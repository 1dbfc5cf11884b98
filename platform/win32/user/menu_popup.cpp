#include "user/menu_popup.h"

#include <algorithm>

#include "user/screen.h"

namespace tavlon::win32 {

namespace {

constexpr char kClassName[] = "#32768";

void DrawCheck(HDC hdc, const RECT& row) {
    const int x = row.left + 6, y = (row.top + row.bottom) / 2;
    for (int i = 0; i < 3; ++i) {
        MoveToEx(hdc, x, y - 1 + i, nullptr);
        LineTo(hdc, x + 3, y + 2 + i);
        LineTo(hdc, x + 9, y - 4 + i);
    }
}

void DrawArrow(HDC hdc, const RECT& row) {
    const int x = row.right - 10, y = (row.top + row.bottom) / 2;
    for (int i = 0; i < 4; ++i) {
        MoveToEx(hdc, x + i, y - 3 + i, nullptr);
        LineTo(hdc, x + i, y + 4 - i);
    }
}

void DrawSeparator(HDC hdc, const RECT& row) {
    const int y = (row.top + row.bottom) / 2;
    RECT line{row.left + 1, y, row.right - 1, y + 1};
    FillRect(hdc, &line, GetSysColorBrush(COLOR_3DSHADOW));
    OffsetRect(&line, 0, 1);
    FillRect(hdc, &line, GetSysColorBrush(COLOR_BTNHIGHLIGHT));
}

int TextColour(const MenuItem& item, bool selected) {
    if (!item.IsEnabled()) return COLOR_GRAYTEXT;
    return selected ? COLOR_HIGHLIGHTTEXT : COLOR_MENUTEXT;
}

void DrawItem(HDC hdc, const MenuItem& item, RECT row, bool selected) {
    FillRect(hdc, &row, GetSysColorBrush(selected && !item.IsSeparator() ? COLOR_HIGHLIGHT : COLOR_MENU));
    if (item.IsSeparator()) return DrawSeparator(hdc, row);
    const COLORREF clr = GetSysColor(TextColour(item, selected));
    SetTextColor(hdc, clr);
    const HPEN hPen = CreatePen(PS_SOLID, 1, clr);
    const HGDIOBJ hOld = SelectObject(hdc, hPen);
    if (item.state & MF_CHECKED) DrawCheck(hdc, row);
    if (item.submenu) DrawArrow(hdc, row);
    SelectObject(hdc, hOld);
    DeleteObject(hPen);
    row.left += kMenuGutter;
    DrawTextA(hdc, item.text.c_str(), static_cast<int>(item.text.size()), &row, DT_SINGLELINE | DT_VCENTER);
}

void DrawMenu(HDC hdc, const MenuPopup& popup) {
    RECT rect{0, 0, popup.layout.size.cx, popup.layout.size.cy};
    FillRect(hdc, &rect, GetSysColorBrush(COLOR_MENU));
    FrameRect(hdc, &rect, GetSysColorBrush(COLOR_3DSHADOW));
    const HGDIOBJ hOld = SelectObject(hdc, GetStockObject(DEFAULT_GUI_FONT));
    SetBkMode(hdc, TRANSPARENT);
    for (int i = 0; i < popup.Count(); ++i)
        DrawItem(hdc, *popup.ItemAt(i), popup.layout.rows[static_cast<std::size_t>(i)], i == popup.selected);
    SelectObject(hdc, hOld);
}

LRESULT CALLBACK MenuWindowProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_ERASEBKGND) return TRUE;
    if (message == WM_MOUSEACTIVATE) return MA_NOACTIVATE;
    if (message != WM_PAINT) return DefWindowProcA(hWnd, message, wParam, lParam);
    PAINTSTRUCT paint;
    const HDC hdc = BeginPaint(hWnd, &paint);
    if (const MenuPopup* popup = OpenMenuPopup(hWnd)) DrawMenu(hdc, *popup);
    EndPaint(hWnd, &paint);
    return 0;
}

POINT OnScreen(POINT at, SIZE size, int beside) {
    const RECT screen = ScreenRect();
    if (at.x + size.cx > screen.right) at.x -= size.cx + beside;
    if (at.y + size.cy > screen.bottom) at.y = beside ? screen.bottom - size.cy : at.y - size.cy;
    return {std::max<LONG>(at.x, 0), std::max<LONG>(at.y, 0)};
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

MenuPopup MenuPopup::Open(HMENU hMenu, POINT at, int beside, HWND hOwner) {
    MenuPopup popup{hMenu, nullptr, LayoutMenu(*MenuOf(hMenu)), -1};
    const SIZE size = popup.layout.size;
    at = OnScreen({std::clamp<LONG>(at.x, -32768, 32767), std::clamp<LONG>(at.y, -32768, 32767)}, size,
                  beside);
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
