#pragma once

#include "cmd_target.h"
#include "menu.h"

class CWnd;

/// One menu entry or button while it asks for its state. An entry of a menu is m_nIndex of m_pMenu;
/// m_pSubMenu is set when the entry opens a submenu. Else m_pOther is the button, or nothing is changed.
class TAVLON_FRAMEWORK_API CCmdUI {
public:
    CCmdUI() = default;
    virtual ~CCmdUI() = default;

    UINT m_nID = 0;
    UINT m_nIndex = 0;
    CMenu* m_pMenu = nullptr;
    CMenu* m_pSubMenu = nullptr;
    CMenu* m_pParentMenu = nullptr;
    CWnd* m_pOther = nullptr;
    UINT m_nIndexMax = 0;
    BOOL m_bEnableChanged = FALSE;
    BOOL m_bContinueRouting = FALSE;

    virtual void Enable(BOOL bOn = TRUE);
    virtual void SetCheck(int nCheck = 1);
    virtual void SetRadio(BOOL bOn = TRUE);
    virtual void SetText(LPCSTR pszText);

    void ContinueRouting() { m_bContinueRouting = TRUE; }
    /// Asks the target; an entry that nothing handles is greyed when bDisableIfNoHandler says so.
    BOOL DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHandler);

private:
    BOOL ChangesMenuEntry() const { return m_pMenu && !m_pSubMenu; }
};

/// The usual OnInitMenuPopup: asks the state of every entry of the popup from pWnd. An entry that opens a
/// submenu is asked with its first entry's id, and may be greyed; the others are greyed only when
/// bDisableIfNoHandler says so.
TAVLON_FRAMEWORK_API void AfxUpdatePopupMenu(CWnd* pWnd, CMenu* pPopupMenu, BOOL bDisableIfNoHandler);
