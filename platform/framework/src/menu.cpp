#include "tavlon/framework/menu.h"

#include <utility>

#include "tavlon/framework/module.h"
#include "thread_state.h"

IMPLEMENT_DYNAMIC(CMenu, CObject)

CMenu::~CMenu() { DestroyMenu(); }

CMenu* CMenu::FromHandlePermanent(HMENU hMenu) {
    const ThreadState* pState = FindThreadState();
    return pState ? pState->menuOwners.Find(hMenu) : nullptr;
}

CMenu* CMenu::FromHandle(HMENU hMenu) {
    if (!hMenu) return nullptr;
    if (CMenu* pOwner = FromHandlePermanent(hMenu)) return pOwner;
    return GetThreadState().Temporary<CMenu>(hMenu);
}

BOOL CMenu::Attach(HMENU hMenu) {
    if (!hMenu || m_hMenu) return FALSE;
    m_hMenu = hMenu;
    GetThreadState().menuOwners.Add(hMenu, this);
    return TRUE;
}

HMENU CMenu::Detach() {
    const HMENU hMenu = m_hMenu;
    ThreadState* pState = FindThreadState();
    if (hMenu && pState) pState->menuOwners.Remove(hMenu, this);
    m_hMenu = nullptr;
    return hMenu;
}

BOOL CMenu::CreateMenu() { return !m_hMenu && Attach(::CreateMenu()); }
BOOL CMenu::CreatePopupMenu() { return !m_hMenu && Attach(::CreatePopupMenu()); }
BOOL CMenu::LoadMenu(UINT nIDResource) { return LoadMenu(MAKEINTRESOURCE(nIDResource)); }

BOOL CMenu::LoadMenu(LPCSTR pszResourceName) {
    return !m_hMenu && Attach(::LoadMenu(AfxFindResourceHandle(pszResourceName, RT_MENU), pszResourceName));
}

BOOL CMenu::DestroyMenu() { return m_hMenu ? ::DestroyMenu(Detach()) : FALSE; }

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, LPCSTR pszNewItem) {
    return ::AppendMenu(m_hMenu, nFlags, nIDNewItem, pszNewItem);
}

BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCSTR pszNewItem) {
    return ::ModifyMenu(m_hMenu, nPosition, nFlags, nIDNewItem, pszNewItem);
}

UINT CMenu::CheckMenuItem(UINT nIDCheckItem, UINT nCheck) {
    return static_cast<UINT>(::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck));
}

UINT CMenu::EnableMenuItem(UINT nIDEnableItem, UINT nEnable) {
    return static_cast<UINT>(::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable));
}

BOOL CMenu::CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags) {
    return ::CheckMenuRadioItem(m_hMenu, nIDFirst, nIDLast, nIDItem, nFlags);
}

UINT CMenu::GetMenuItemCount() const { return static_cast<UINT>(::GetMenuItemCount(m_hMenu)); }
UINT CMenu::GetMenuItemID(int nPos) const { return ::GetMenuItemID(m_hMenu, nPos); }
UINT CMenu::GetMenuState(UINT nID, UINT nFlags) const { return ::GetMenuState(m_hMenu, nID, nFlags); }
CMenu* CMenu::GetSubMenu(int nPos) const { return FromHandle(::GetSubMenu(m_hMenu, nPos)); }

int CMenu::GetMenuString(UINT nIDItem, CString& strText, UINT nFlags) const {
    const int nLength = ::GetMenuString(m_hMenu, nIDItem, nullptr, 0, nFlags);
    strText.Empty();
    if (nLength <= 0) return 0;
    ::GetMenuString(m_hMenu, nIDItem, strText.GetBuffer(nLength), nLength + 1, nFlags);
    strText.ReleaseBuffer();
    return strText.GetLength();
}

namespace {

/// Remembers the popup that is being run, for as long as it runs.
class TrackingScope {
public:
    explicit TrackingScope(HMENU hMenu) : m_hOuter(std::exchange(GetThreadState().hTrackingMenu, hMenu)) {}
    TrackingScope(const TrackingScope&) = delete;
    TrackingScope& operator=(const TrackingScope&) = delete;
    ~TrackingScope() { GetThreadState().hTrackingMenu = m_hOuter; }

private:
    HMENU m_hOuter;
};

}  // namespace

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT prc) {
    if (!m_hMenu) return FALSE;
    const TrackingScope scope(m_hMenu);
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, pWnd ? pWnd->m_hWnd : nullptr, prc);
}

HMENU AfxGetTrackingMenu() { return GetThreadState().hTrackingMenu; }
