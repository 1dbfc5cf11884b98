#include "tavlon/framework/cmd_ui.h"

#include "tavlon/framework/window.h"

void CCmdUI::Enable(BOOL bOn) {
    m_bEnableChanged = TRUE;
    if (ChangesMenuEntry())
        m_pMenu->EnableMenuItem(m_nIndex, MF_BYPOSITION | (bOn ? MF_ENABLED : MF_DISABLED | MF_GRAYED));
    else if (!m_pMenu && m_pOther)
        m_pOther->EnableWindow(bOn);
}

void CCmdUI::SetCheck(int nCheck) {
    if (ChangesMenuEntry())
        m_pMenu->CheckMenuItem(m_nIndex, MF_BYPOSITION | (nCheck ? MF_CHECKED : MF_UNCHECKED));
}

void CCmdUI::SetRadio(BOOL bOn) {
    if (!bOn) return SetCheck(0);
    if (ChangesMenuEntry()) m_pMenu->CheckMenuRadioItem(m_nIndex, m_nIndex, m_nIndex, MF_BYPOSITION);
}

void CCmdUI::SetText(LPCSTR pszText) {
    if (ChangesMenuEntry()) {
        const UINT nState =
            m_pMenu->GetMenuState(m_nIndex, MF_BYPOSITION) & (MF_CHECKED | MF_DISABLED | MF_GRAYED);
        m_pMenu->ModifyMenu(m_nIndex, MF_BYPOSITION | MF_STRING | nState, m_nID, pszText ? pszText : "");
    } else if (!m_pMenu && m_pOther) {
        m_pOther->SetWindowText(pszText);
    }
}

BOOL CCmdUI::DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHandler) {
    if (!pTarget || m_nID == 0 || LOWORD(m_nID) == 0xFFFF)
        return TRUE;  // a separator or a submenu has no state
    m_bEnableChanged = FALSE;
    const BOOL bResult = pTarget->OnCmdMsg(m_nID, CN_UPDATE_COMMAND_UI, this, nullptr);
    if (bDisableIfNoHandler && !m_bEnableChanged) {
        AFX_CMDHANDLERINFO info;
        Enable(pTarget->OnCmdMsg(m_nID, CN_COMMAND, this, &info));
    }
    return bResult;
}

namespace {

/// The popup itself while it is the one that is run, else the menu bar that opens it.
CMenu* FindParentMenu(const CWnd* pWnd, CMenu* pPopupMenu) {
    if (AfxGetTrackingMenu() == pPopupMenu->m_hMenu) return pPopupMenu;
    const CWnd* pTop = pWnd->GetTopLevelParent();
    CMenu* pBar = pTop ? pTop->GetMenu() : nullptr;
    const int nCount = pBar ? static_cast<int>(pBar->GetMenuItemCount()) : 0;
    for (int i = 0; i < nCount; ++i)
        if (pBar->GetSubMenu(i) == pPopupMenu) return pBar;
    return nullptr;
}

void UpdateEntry(CCmdUI& ui, CWnd* pWnd, BOOL bDisableIfNoHandler) {
    ui.m_nID = ui.m_pMenu->GetMenuItemID(static_cast<int>(ui.m_nIndex));
    ui.m_pSubMenu = nullptr;
    if (ui.m_nID != static_cast<UINT>(-1)) {
        ui.DoUpdate(pWnd, bDisableIfNoHandler);
        return;
    }
    ui.m_pSubMenu = ui.m_pMenu->GetSubMenu(static_cast<int>(ui.m_nIndex));
    if (!ui.m_pSubMenu) return;
    ui.m_nID = ui.m_pSubMenu->GetMenuItemID(0);
    ui.DoUpdate(pWnd, TRUE);
}

}  // namespace

void AfxUpdatePopupMenu(CWnd* pWnd, CMenu* pPopupMenu, BOOL bDisableIfNoHandler) {
    if (!pWnd || !pPopupMenu || !pPopupMenu->m_hMenu) return;
    CCmdUI ui;
    ui.m_pMenu = pPopupMenu;
    ui.m_pParentMenu = FindParentMenu(pWnd, pPopupMenu);
    const int nCount = static_cast<int>(pPopupMenu->GetMenuItemCount());
    ui.m_nIndexMax = nCount > 0 ? static_cast<UINT>(nCount) : 0;
    for (ui.m_nIndex = 0; ui.m_nIndex < ui.m_nIndexMax; ++ui.m_nIndex)
        UpdateEntry(ui, pWnd, bDisableIfNoHandler);
}
