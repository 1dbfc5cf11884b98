#include "test_window.h"

namespace {

/// Commands 100 (checked), 101 (greyed), 102 (renamed), 103 (a radio mark), 104 (no update), 105 (nobody's).
class CMenuWnd : public CHostWnd {
public:
    CMenu* m_pParent = nullptr;
    BOOL m_bAutoDisable = FALSE;

protected:
    void OnNothing() {}
    void OnCheck(CCmdUI* p) { p->SetCheck(1), m_pParent = p->m_pParentMenu; }
    void OnGrey(CCmdUI* p) { p->Enable(FALSE); }
    void OnRename(CCmdUI* p) { p->SetText("新名称"); }
    void OnRadio(CCmdUI* p) { p->SetRadio(); }
    void OnInitMenuPopup(CMenu* pPopup, UINT, BOOL) { AfxUpdatePopupMenu(this, pPopup, m_bAutoDisable); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CMenuWnd, CWnd)
ON_COMMAND(104, OnNothing)
ON_UPDATE_COMMAND_UI(100, OnCheck)
ON_UPDATE_COMMAND_UI(101, OnGrey)
ON_UPDATE_COMMAND_UI(102, OnRename)
ON_UPDATE_COMMAND_UI(103, OnRadio)
ON_WM_INITMENUPOPUP()
END_MESSAGE_MAP()

class FrameworkCmdUI : public testing::Test {
protected:
    FrameworkCmdUI() {
        EXPECT_TRUE(m_sub.CreatePopupMenu() && m_sub.AppendMenu(MF_STRING, 101, "first"));
        EXPECT_TRUE(m_menu.CreatePopupMenu());
        for (UINT nID = 100; nID <= 105; ++nID) EXPECT_TRUE(m_menu.AppendMenu(MF_STRING, nID, "name"));
        EXPECT_TRUE(m_menu.AppendMenu(MF_SEPARATOR));
        EXPECT_TRUE(m_menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(m_sub.Detach()), "sub"));
    }
    void Open() { m_wnd.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(m_menu.m_hMenu), 0); }
    bool Has(UINT nPos, UINT nMask) { return (m_menu.GetMenuState(nPos, MF_BYPOSITION) & nMask) != 0; }

    CMenu m_sub, m_menu;
    CMenuWnd m_wnd;
};

TEST_F(FrameworkCmdUI, UpdateHandlersSetTheMarksOfARealMenu) {
    m_menu.CheckMenuItem(2, MF_BYPOSITION | MF_CHECKED);
    Open();
    EXPECT_TRUE(Has(0, MF_CHECKED));
    EXPECT_TRUE(Has(1, MF_GRAYED | MF_DISABLED));
    CString strText;
    EXPECT_EQ(6, m_menu.GetMenuString(2, strText, MF_BYPOSITION));
    EXPECT_TRUE(strText == "新名称");
    EXPECT_EQ(102u, m_menu.GetMenuItemID(2));
    EXPECT_TRUE(Has(2, MF_CHECKED));  // renaming keeps the mark
    EXPECT_TRUE(Has(3, MF_CHECKED));
    for (const UINT nPos : {4u, 5u}) EXPECT_FALSE(Has(nPos, MF_GRAYED | MF_DISABLED | MF_CHECKED)) << nPos;
    EXPECT_FALSE(Has(7, MF_GRAYED | MF_DISABLED));  // an entry with a submenu is never greyed
    EXPECT_EQ(0u, m_menu.GetSubMenu(7)->GetMenuState(0, MF_BYPOSITION) & MF_GRAYED);
    EXPECT_EQ(nullptr, m_wnd.m_pParent);  // the popup is not being run
    m_wnd.m_bAutoDisable = TRUE;
    Open();
    EXPECT_FALSE(Has(4, MF_GRAYED));
    EXPECT_TRUE(Has(5, MF_GRAYED));  // nobody handles it
}

TEST_F(FrameworkCmdUI, OddEntriesChangeNothing) {
    CCmdUI ui;
    ui.m_pMenu = &m_menu;
    EXPECT_TRUE(ui.DoUpdate(&m_wnd, TRUE));  // id 0
    ui.m_nID = static_cast<UINT>(-1);
    EXPECT_TRUE(ui.DoUpdate(&m_wnd, TRUE));
    ui.m_nID = 105;
    EXPECT_TRUE(ui.DoUpdate(nullptr, TRUE));
    EXPECT_FALSE(ui.DoUpdate(&m_wnd, FALSE));
    ui.m_nIndex = 99;  // outside the menu
    ui.SetCheck(), ui.SetText(nullptr), ui.Enable(FALSE), ui.SetRadio();
    EXPECT_FALSE(Has(0, MF_GRAYED | MF_CHECKED));
    AfxUpdatePopupMenu(nullptr, &m_menu, TRUE);
    AfxUpdatePopupMenu(&m_wnd, nullptr, TRUE);
}

TEST_F(FrameworkCmdUI, MenusThatDoNotExist) {
    CMenu none;
    EXPECT_FALSE(none.AppendMenu(MF_STRING, 1, "x") || none.TrackPopupMenu(0, 0, 0, &m_wnd) ||
                 none.DestroyMenu());
    EXPECT_EQ(static_cast<UINT>(-1), none.GetMenuItemCount());
    EXPECT_EQ(nullptr, none.GetSubMenu(0));
    EXPECT_FALSE(m_menu.CreatePopupMenu());  // it has a menu
    EXPECT_EQ(nullptr, AfxGetTrackingMenu());
    EXPECT_EQ(&m_menu, CMenu::FromHandle(m_menu.m_hMenu));
}

}  // namespace
