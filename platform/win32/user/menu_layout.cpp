#include "user/menu_layout.h"

#include <algorithm>
#include <string_view>

namespace tavlon::win32 {

namespace {

constexpr int kRowHeight = 18, kSeparatorHeight = 9, kSeparatorWidth = 14;
constexpr int kMarkSpace = 4, kTabSpace = 4, kShortcutSpace = 7, kArrowSpace = 12;

/// What the texts before and after the tabs need.
struct Columns {
    int left = -1, right = -1;  // -1 without one
};

int TextWidth(HDC hdc, std::string_view text) {
    RECT rect{};
    DrawTextA(hdc, text.data(), static_cast<int>(text.size()), &rect, DT_SINGLELINE | DT_CALCRECT);
    return rect.right;
}

void Widen(Columns& columns, HDC hdc, std::string_view text) {
    const std::size_t tab = text.find('\t');
    columns.left = std::max(columns.left, TextWidth(hdc, text.substr(0, tab)));
    if (tab != text.npos) columns.right = std::max(columns.right, TextWidth(hdc, text.substr(tab + 1)));
}

Columns WidestTexts(const Menu& menu) {
    const HDC hdc = CreateCompatibleDC(nullptr);
    const HGDIOBJ hOld = SelectObject(hdc, GetStockObject(DEFAULT_GUI_FONT));
    Columns widest;
    for (const MenuItem& item : menu.items)
        if (!item.IsSeparator()) Widen(widest, hdc, item.text);
    SelectObject(hdc, hOld);
    DeleteDC(hdc);
    return widest;
}

/// A column for marks, the texts, what follows the tabs, a column for arrows.
int PlaceColumns(MenuLayout& layout, const Columns& widest) {
    layout.textLeft = kMenuFrame + GetSystemMetrics(SM_CXMENUCHECK) + kMarkSpace;
    if (widest.left < 0) return kSeparatorWidth;
    layout.tabStop = layout.textLeft + widest.left + kTabSpace;
    const int shortcuts = widest.right < 0 ? 0 : widest.right + kShortcutSpace;
    return layout.tabStop - kMenuFrame + shortcuts + kArrowSpace;
}

}  // namespace

MenuLayout LayoutMenu(const Menu& menu) {
    MenuLayout layout;
    if (menu.items.empty()) return layout;
    const int width = PlaceColumns(layout, WidestTexts(menu));
    int top = kMenuFrame;
    for (const MenuItem& item : menu.items) {
        const int height = item.IsSeparator() ? kSeparatorHeight : kRowHeight;
        layout.rows.push_back({kMenuFrame, top, kMenuFrame + width, top + height});
        top += height;
    }
    layout.size = {width + 2 * kMenuFrame, top + kMenuFrame};
    return layout;
}

int MenuRowAt(const MenuLayout& layout, POINT pt) {
    for (std::size_t i = 0; i < layout.rows.size(); ++i)
        if (PtInRect(&layout.rows[i], pt)) return static_cast<int>(i);
    return -1;
}

}  // namespace tavlon::win32
