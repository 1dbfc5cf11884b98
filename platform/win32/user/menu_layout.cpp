#include "user/menu_layout.h"

#include <algorithm>

namespace tavlon::win32 {

namespace {

constexpr int kFrame = 3, kRowHeight = 18, kSeparatorHeight = 9, kTextSpace = 4;

int TextWidth(HDC hdc, const MenuItem& item) {
    RECT rect{};
    DrawTextA(hdc, item.text.c_str(), static_cast<int>(item.text.size()), &rect, DT_SINGLELINE | DT_CALCRECT);
    return rect.right;
}

int WidestText(const Menu& menu) {
    const HDC hdc = CreateCompatibleDC(nullptr);
    const HGDIOBJ hOld = SelectObject(hdc, GetStockObject(DEFAULT_GUI_FONT));
    int widest = 0;
    for (const MenuItem& item : menu.items) widest = std::max(widest, TextWidth(hdc, item));
    SelectObject(hdc, hOld);
    DeleteDC(hdc);
    return widest;
}

}  // namespace

MenuLayout LayoutMenu(const Menu& menu) {
    MenuLayout layout;
    const int width = WidestText(menu) + 2 * kMenuGutter + 2 * kTextSpace;
    int top = kFrame;
    for (const MenuItem& item : menu.items) {
        const int height = item.IsSeparator() ? kSeparatorHeight : kRowHeight;
        layout.rows.push_back({kFrame, top, kFrame + width, top + height});
        top += height;
    }
    layout.size = {width + 2 * kFrame, top + kFrame};
    return layout;
}

int MenuRowAt(const MenuLayout& layout, POINT pt) {
    for (std::size_t i = 0; i < layout.rows.size(); ++i)
        if (PtInRect(&layout.rows[i], pt)) return static_cast<int>(i);
    return -1;
}

}  // namespace tavlon::win32
