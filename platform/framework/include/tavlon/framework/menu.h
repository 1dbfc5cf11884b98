#pragma once

#include "object.h"
#include "text.h"

class CWnd;

/// Owner of a menu, destroyed with it.
class TAVLON_FRAMEWORK_API CMenu : public CObject {
    DECLARE_DYNAMIC(CMenu)
public:
    CMenu() = default;
    ~CMenu() override;

    HMENU m_hMenu = nullptr;

    static CMenu* FromHandle(HMENU hMenu);
    static CMenu* FromHandlePermanent(HMENU hMenu);
    operator HMENU() const { return m_hMenu; }
    HMENU GetSafeHmenu() const { return m_hMenu; }
    BOOL Attach(HMENU hMenu);  ///< FALSE for a null handle, and when the object holds a menu already.
    HMENU Detach();

    BOOL CreateMenu();
    BOOL CreatePopupMenu();
    BOOL LoadMenu(UINT nIDResource);  ///< Found along the resource chain.
    BOOL LoadMenu(LPCSTR pszResourceName);
    BOOL DestroyMenu();

    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCSTR pszNewItem = nullptr);
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCSTR pszNewItem = nullptr);
    UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck);
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable);
    BOOL CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags);

    UINT GetMenuItemCount() const;
    UINT GetMenuItemID(int nPos) const;
    UINT GetMenuState(UINT nID, UINT nFlags) const;
    int GetMenuString(UINT nIDItem, CString& strText, UINT nFlags) const;
    CMenu* GetSubMenu(int nPos) const;

    /// Runs the popup; with TPM_RETURNCMD the result is the chosen id.
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT prc = nullptr);
};

/// The popup that CMenu::TrackPopupMenu is running on this thread, or null.
TAVLON_FRAMEWORK_API HMENU AfxGetTrackingMenu();
