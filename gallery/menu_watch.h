/// Learns which popup menu is open and which entry is marked in it, whichever window opened it.
#pragma once

#include <tavlon/framework.h>

#include <map>
#include <optional>
#include <string>

namespace gallery {

/// Menus report to the window that owns them, so the watch listens in on every window below the given one.
/// One watch a process.
class MenuWatch {
public:
    MenuWatch();
    ~MenuWatch();
    MenuWatch(const MenuWatch&) = delete;
    MenuWatch& operator=(const MenuWatch&) = delete;

    void Attach(
        HWND hTop);  ///< Listens to the windows that are there now; call again when there are new ones.

    /// A menu whose owner is destroyed ends without a word.
    bool IsOpen() const { return ::IsMenu(m_hMenu); }
    int EntryCount() const { return IsOpen() ? ::GetMenuItemCount(m_hMenu) : 0; }
    std::optional<UINT> EntryId(const std::string& gbkText) const;  ///< Of the entry with that text.
    bool IsMarked(UINT nId) const { return IsOpen() && m_marked == nId; }
    bool IsGreyed(UINT nId) const { return (::GetMenuState(m_hMenu, nId, MF_BYCOMMAND) & MF_GRAYED) != 0; }

private:
    static BOOL CALLBACK AttachOne(HWND hWnd, LPARAM lParam);
    static LRESULT CALLBACK Listen(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam);
    void Note(UINT nMessage, WPARAM wParam);

    static MenuWatch* s_pWatch;
    std::map<HWND, WNDPROC> m_procs;  ///< What each window's procedure was.
    HMENU m_hMenu = nullptr;
    std::optional<UINT> m_marked;
};

}  // namespace gallery
