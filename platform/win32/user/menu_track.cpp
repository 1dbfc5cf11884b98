#include "user/menu_track.h"

#include <cctype>

#include "user/capture.h"

namespace tavlon::win32 {

namespace {

constexpr WPARAM kIdleInMenu = 2;
constexpr int kOverlap = 4;  // of a submenu with the level it opens to the right of

char Lower(char character) { return static_cast<char>(std::tolower(static_cast<unsigned char>(character))); }

/// The character behind a single '&', 0 without one.
char MnemonicOf(const std::string& text) {
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != '&') continue;
        if (text[i + 1] != '&') return Lower(text[i + 1]);
        ++i;
    }
    return 0;
}

/// The first letter stands in for a missing mnemonic.
char KeyOf(const MenuItem& item) {
    if (item.IsSeparator() || item.text.empty()) return 0;
    const char mnemonic = MnemonicOf(item.text);
    return mnemonic ? mnemonic : Lower(item.text[0]);
}

}  // namespace

bool MenuTracker::Begin(POINT at) {
    if (!(m_flags & TPM_NONOTIFY)) Notify(WM_ENTERMENULOOP, TRUE, 0);
    Notify(WM_SETCURSOR, reinterpret_cast<WPARAM>(m_owner), HTCAPTION);
    if (!(m_flags & TPM_NONOTIFY)) Notify(WM_INITMENU, reinterpret_cast<WPARAM>(m_menu), 0);
    if (!OpenLevel(m_menu, at, nullptr, 0)) return false;
    SetCapture(m_levels.front().window);
    return true;
}

void MenuTracker::End() {
    if (!m_levels.empty() && GetCapture() == m_levels.front().window) EndCapture();
    CloseTo(0);
    Notify(WM_MENUSELECT, MAKEWPARAM(0, 0xffff), 0);
    Notify(WM_EXITMENULOOP, TRUE, 0);
}

/// What a handler of the closing throws leaves the levels below it still to be closed.
void MenuTracker::Abandon() noexcept {
    while (!m_levels.empty()) {
        MenuPopup popup = Last();
        m_levels.pop_back();
        try {
            popup.Close();
        } catch (...) {
        }
    }
}

bool MenuTracker::Running() const {
    return !m_done && IsWindow(m_owner) && !m_levels.empty() && IsWindow(m_levels.front().window) &&
           GetCapture() == m_levels.front().window;
}

void MenuTracker::TellIdle() {
    if (!m_levels.empty()) Notify(WM_ENTERIDLE, kIdleInMenu, reinterpret_cast<LPARAM>(Last().window));
}

void MenuTracker::Notify(UINT message, WPARAM wParam, LPARAM lParam) const {
    if (IsWindow(m_owner)) SendMessageA(m_owner, message, wParam, lParam);
}

bool MenuTracker::OpenLevel(HMENU hMenu, POINT at, const POINT* other, int position) {
    if (!(m_flags & TPM_NONOTIFY))
        Notify(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(hMenu), MAKELPARAM(position, 0));
    if (!IsWindow(m_owner) || !IsMenu(hMenu)) return false;
    if (m_levels.empty() && MenuOf(hMenu)->items.empty()) return false;
    MenuPopup popup = MenuPopup::Open(hMenu, at, other, m_owner);
    if (!popup.window) return false;
    m_levels.push_back(popup);
    SetWindowPos(popup.window, HWND_TOPMOST, 0, 0, 0, 0,
                 SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    return true;
}

void MenuTracker::CloseTo(std::size_t count) {
    while (m_levels.size() > count) {
        MenuPopup popup = Last();
        m_levels.pop_back();
        popup.Close();
        if (!(m_flags & TPM_NONOTIFY)) Notify(WM_UNINITMENUPOPUP, reinterpret_cast<WPARAM>(popup.menu), 0);
    }
}

void MenuTracker::SelectRow(std::size_t level, int row) {
    if (m_levels[level].selected == row) return;
    CloseTo(level + 1);
    m_levels[level].Select(row);
    TellSelected(m_levels[level]);
}

void MenuTracker::TellSelected(const MenuPopup& popup) const {
    const MenuItem* item = popup.ItemAt(popup.selected);
    if (!item) return;
    UINT flags = item->state;
    if (!item->IsSeparator()) flags |= MF_HILITE;
    if (item->submenu) flags |= MF_POPUP;
    const UINT_PTR id = item->submenu ? static_cast<UINT_PTR>(popup.selected) : item->id;
    Notify(WM_MENUSELECT, MAKEWPARAM(id, flags), reinterpret_cast<LPARAM>(popup.menu));
}

int MenuTracker::LevelAt(POINT pt) const {
    for (std::size_t i = m_levels.size(); i-- > 0;)
        if (m_levels[i].Contains(pt)) return static_cast<int>(i);
    return -1;
}

void MenuTracker::Hover(POINT pt) {
    const int level = LevelAt(pt);
    if (level < 0) return;
    const auto at = static_cast<std::size_t>(level);
    const int row = m_levels[at].RowAt(pt);
    if (row < 0 || row == m_levels[at].selected) return;
    SelectRow(at, row);
    if (m_levels.size() != at + 1) return;
    OpenSelected();
}

void MenuTracker::Release(POINT pt) {
    const int level = LevelAt(pt);
    if (level < 0) return;
    Hover(pt);
    const auto at = static_cast<std::size_t>(level);
    if (at >= m_levels.size() || m_levels[at].RowAt(pt) != m_levels[at].selected) return;
    const MenuItem* item = m_levels[at].ItemAt(m_levels[at].selected);
    if (item && item->IsEnabled() && !item->submenu) Choose(*item);
}

void MenuTracker::Step(int direction) {
    const int count = Last().Count();
    int row = Last().selected;
    if (row < 0 && direction < 0) row = 0;
    for (int tried = 0; tried < count; ++tried) {
        row = (row + direction + count) % count;
        if (!Last().ItemAt(row)->IsSeparator()) return SelectRow(m_levels.size() - 1, row);
    }
}

void MenuTracker::SelectEnd(bool last) {
    Last().Select(-1);
    Step(last ? -1 : 1);
}

void MenuTracker::OpenSelected() {
    const MenuPopup& popup = Last();
    const MenuItem* item = popup.ItemAt(popup.selected);
    if (!item || !item->submenu || !item->IsEnabled()) return;
    RECT row = popup.layout.rows[static_cast<std::size_t>(popup.selected)];
    MapWindowPoints(popup.window, nullptr, reinterpret_cast<POINT*>(&row), 2);
    const POINT at{row.right + kMenuFrame - kOverlap, row.top - kMenuFrame};
    const POINT other{row.left, row.bottom + kMenuFrame};
    OpenLevel(item->submenu, at, &other, popup.selected);
}

void MenuTracker::EnterSubmenu() {
    const std::size_t depth = m_levels.size();
    OpenSelected();
    if (m_levels.size() > depth) Step(1);
}

void MenuTracker::LeaveSubmenu() {
    if (m_levels.size() > 1) CloseTo(m_levels.size() - 1);
}

void MenuTracker::CloseLast() {
    if (m_levels.size() > 1)
        LeaveSubmenu();
    else
        Cancel();
}

void MenuTracker::Execute() {
    const MenuItem* item = Last().ItemAt(Last().selected);
    if (!item) return Cancel();
    if (item->submenu)
        EnterSubmenu();
    else
        Choose(*item);
}

/// A greyed entry ends the menu without a command, as the keyboard can stand on it.
void MenuTracker::Choose(const MenuItem& item) {
    if (item.IsEnabled()) m_command = item.id;
    m_done = true;
}

int MenuTracker::RowTyped(char character) const {
    for (int i = 0; i < Last().Count(); ++i)
        if (KeyOf(*Last().ItemAt(i)) == Lower(character)) return i;
    return -1;
}

void MenuTracker::Type(char character) {
    const int row = character ? RowTyped(character) : -1;
    if (row < 0) {
        Notify(WM_MENUCHAR, MAKEWPARAM(static_cast<unsigned char>(character), MF_POPUP),
               reinterpret_cast<LPARAM>(Last().menu));
        return;
    }
    SelectRow(m_levels.size() - 1, row);
    if (Running()) Execute();
}

const MenuPopup* MenuTracker::Find(HWND hWnd) const {
    for (const MenuPopup& popup : m_levels)
        if (popup.window == hWnd) return &popup;
    return nullptr;
}

}  // namespace tavlon::win32
