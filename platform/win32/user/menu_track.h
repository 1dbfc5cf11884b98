/// A menu while the user chooses from it.
#pragma once

#include "user/menu_popup.h"

namespace tavlon::win32 {

/// The open levels of one menu, what is selected in them and how the choice ends. Every operation may send
/// messages; whoever handles them may destroy the owner or the menu.
class MenuTracker {
public:
    MenuTracker(HMENU hMenu, UINT flags, HWND hOwner) : m_menu(hMenu), m_owner(hOwner), m_flags(flags) {}

    bool Begin(POINT at);
    void End();
    void Abandon() noexcept;  ///< Closes what is still open without telling the owner.

    bool Running() const;
    void Cancel() { m_done = true; }
    UINT_PTR Command() const { return m_command; }
    HWND Owner() const { return m_owner; }
    bool TakesRightButton() const { return (m_flags & TPM_RIGHTBUTTON) != 0; }
    void TellIdle();

    // Pointer, screen coordinates
    bool Contains(POINT pt) const { return LevelAt(pt) >= 0; }
    void Hover(POINT pt);
    void Release(POINT pt);

    // Keyboard
    void Step(int direction);  ///< To the next or previous entry, separators left out, around the ends.
    void SelectEnd(bool last);
    void OpenSelected();
    void EnterSubmenu();
    void LeaveSubmenu();
    void CloseLast();  ///< The whole menu when one level is left.
    void Execute();
    void Type(char character);

    const MenuPopup* Find(HWND hWnd) const;

private:
    MenuPopup& Last() { return m_levels.back(); }
    const MenuPopup& Last() const { return m_levels.back(); }
    int LevelAt(POINT pt) const;
    void Notify(UINT message, WPARAM wParam, LPARAM lParam) const;
    bool OpenLevel(HMENU hMenu, POINT at, const POINT* other, int position);
    void CloseTo(std::size_t count);
    void SelectRow(std::size_t level, int row);
    void TellSelected(const MenuPopup& popup) const;
    void Choose(const MenuItem& item);
    int RowTyped(char character) const;

    HMENU m_menu;
    HWND m_owner;
    UINT m_flags;
    std::vector<MenuPopup> m_levels;
    bool m_done = false;
    UINT_PTR m_command = 0;
};

}  // namespace tavlon::win32
