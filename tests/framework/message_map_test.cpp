#include <string>

#include "test_window.h"

namespace {

class CBaseWnd : public CWnd {
    DECLARE_DYNAMIC(CBaseWnd)
public:
    std::string m_strLog;

protected:
    void Note(const char* pszWhat, int a = 0, int b = 0, int c = 0) {
        m_strLog += std::string(pszWhat) + " " + std::to_string(a) + " " + std::to_string(b) + " " +
                    std::to_string(c) + ";";
    }
    void OnMouseMove(UINT nFlags, CPoint pt) { Note("base move", static_cast<int>(nFlags), pt.x, pt.y); }
    void OnSize(UINT nType, int cx, int cy) { Note("size", static_cast<int>(nType), cx, cy); }
    void OnMove(int x, int y) { Note("move", x, y); }
    void OnKeyDown(UINT nChar, UINT nRepeat, UINT nFlags) { Note("key", nChar, nRepeat, nFlags); }
    BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt) {
        return Note("wheel", nFlags, zDelta, pt.x), TRUE;
    }
    BOOL OnEraseBkgnd(CDC* pDC) { return Note("erase", pDC == nullptr), 3; }
    BOOL OnSetCursor(CWnd* pWnd, UINT nHit, UINT message) {
        return Note("cursor", pWnd == this, nHit, message), TRUE;
    }
    void OnActivate(UINT nState, CWnd* pOther, BOOL bMin) { Note("activate", nState, pOther == this, bMin); }
    void OnCommandBoth() { Note("base command"); }
    void OnCommandBase() { Note("base only"); }
    void OnChild() { Note("child"); }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNAMIC(CBaseWnd, CWnd)

BEGIN_MESSAGE_MAP(CBaseWnd, CWnd)
ON_WM_MOUSEMOVE()
ON_WM_SIZE()
ON_WM_MOVE()
ON_WM_KEYDOWN()
ON_WM_MOUSEWHEEL()
ON_WM_ERASEBKGND()
ON_WM_SETCURSOR()
ON_WM_ACTIVATE()
ON_COMMAND(100, OnCommandBoth)
ON_COMMAND(101, OnCommandBase)
ON_CONTROL(5, 100, OnChild)
END_MESSAGE_MAP()

class CDerivedWnd : public CBaseWnd {
protected:
    void OnMouseMove(UINT nFlags, CPoint pt) { Note("derived move"), CBaseWnd::OnMouseMove(nFlags, pt); }
    LRESULT OnMouseLeave(WPARAM, LPARAM lParam) { return Note("leave"), lParam + 1; }
    void OnCommandBoth() { Note("derived command"); }
    void OnRange(UINT nID) { Note("range", static_cast<int>(nID)); }
    void OnGreyUpdate(CCmdUI* pCmdUI) { pCmdUI->Enable(FALSE); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CDerivedWnd, CBaseWnd)
ON_WM_MOUSEMOVE()
ON_WM_RBUTTONUP()
ON_MESSAGE(WM_MOUSELEAVE, OnMouseLeave)
ON_COMMAND(100, OnCommandBoth)
ON_COMMAND_RANGE(200, 210, OnRange)
ON_UPDATE_COMMAND_UI(210, OnGreyUpdate)
END_MESSAGE_MAP()

TEST(FrameworkMessageMap, MessagesReachTheNearestHandlerDecoded) {
    CHostWnd host;
    CDerivedWnd wnd;
    ASSERT_TRUE(wnd.Create(nullptr, "", WS_CHILD, CRect(0, 0, 10, 10), &host, 1));
    const auto hWnd = reinterpret_cast<WPARAM>(wnd.m_hWnd);
    const auto lWnd = static_cast<LPARAM>(hWnd);
    struct Case {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        const char* pszWant;
        LRESULT lWant;
    };
    for (const Case& c :
         {Case{WM_MOUSEMOVE, 1, MAKELPARAM(-3, 4), "derived move 0 0 0;base move 1 -3 4;", 0},
          Case{WM_SIZE, 2, MAKELPARAM(40000, 3), "size 2 40000 3;", 0},
          Case{WM_MOVE, 0, MAKELPARAM(-40, 3), "move -40 3 0;", 0},
          Case{WM_KEYDOWN, VK_LEFT, MAKELPARAM(1, 0x4B), "key 37 1 75;", 0},
          Case{WM_MOUSEWHEEL, MAKEWPARAM(8, static_cast<WORD>(-120)), MAKELPARAM(1, 2), "wheel 8 -120 1;", 1},
          Case{WM_ERASEBKGND, 0, 0, "erase 1 0 0;", 3},
          Case{WM_SETCURSOR, hWnd, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE), "cursor 1 1 512;", 1},
          Case{WM_SETCURSOR, hWnd, MAKELPARAM(HTERROR, 0), "cursor 1 -2 0;", 1},
          Case{WM_ACTIVATE, MAKEWPARAM(2, 1), lWnd, "activate 2 1 1;", 0},
          Case{WM_MOUSELEAVE, 0, 41, "leave 0 0 0;", 42},
          Case{WM_RBUTTONUP, 0, 0, "", 0},  // the default handler
          Case{WM_COMMAND, 100, 0, "derived command 0 0 0;", 0},
          Case{WM_COMMAND, MAKEWPARAM(101, 1), 0, "base only 0 0 0;", 0},  // from an accelerator
          Case{WM_COMMAND, 205, 0, "range 205 0 0;", 0},
          Case{WM_COMMAND, 210, 0, "", 0},  // greyed by its update handler
          Case{WM_COMMAND, 211, 0, "", 0}, Case{WM_COMMAND, 0, 0, "", 0},
          Case{WM_COMMAND, MAKEWPARAM(100, 5), lWnd, "child 0 0 0;", 0},
          Case{WM_COMMAND, MAKEWPARAM(210, 0xFFFF), lWnd, "", 0}}) {
        wnd.m_strLog.clear();
        EXPECT_EQ(c.lWant, wnd.SendMessage(c.message, c.wParam, c.lParam)) << c.message << " " << c.pszWant;
        EXPECT_EQ(c.pszWant, wnd.m_strLog) << c.message;
    }
}

TEST(FrameworkMessageMap, CommandsCanBeLookedUpWithoutRunning) {
    CDerivedWnd wnd;
    AFX_CMDHANDLERINFO info;
    EXPECT_TRUE(wnd.OnCmdMsg(101, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(&wnd, info.pTarget);
    EXPECT_FALSE(wnd.OnCmdMsg(102, CN_COMMAND, nullptr, &info));
    EXPECT_FALSE(wnd.OnCmdMsg(210, CN_UPDATE_COMMAND_UI, nullptr, nullptr));  // an update without its entry
    EXPECT_EQ("", wnd.m_strLog);
}

TEST(FrameworkMessageMap, RunTimeClasses) {
    CDerivedWnd derived;  // declares none of its own
    EXPECT_STREQ("CBaseWnd", derived.GetRuntimeClass()->m_lpszClassName);
    EXPECT_STREQ("CWnd", derived.GetRuntimeClass()->m_pBaseClass->m_lpszClassName);
    EXPECT_TRUE(derived.IsKindOf(RUNTIME_CLASS(CObject)) && !CWnd().IsKindOf(RUNTIME_CLASS(CBaseWnd)));
    EXPECT_FALSE(derived.IsKindOf(nullptr));
}

/// Takes the messages of its children, and of itself, before they are dispatched.
class CFilterWnd : public CWnd {
public:
    int m_nAsked = 0;
    BOOL m_bTake = FALSE;
    BOOL PreTranslateMessage(MSG* pMsg) override {
        m_nAsked += pMsg->message == WM_USER + 3;
        return m_bTake && pMsg->message == WM_USER + 3;
    }
};

TEST(FrameworkMessageMap, ParentsAreAskedBeforeAMessageIsDispatched) {
    CFilterWnd parent, child;
    ASSERT_TRUE(parent.CreateEx(0, nullptr, "", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0));
    ASSERT_TRUE(child.Create(nullptr, "", WS_CHILD, CRect(0, 0, 5, 5), &parent, 1));
    MSG msg = {};
    msg.hwnd = child.m_hWnd, msg.message = WM_USER + 3;
    EXPECT_FALSE(AfxPreTranslateMessage(&msg));
    EXPECT_EQ(1, child.m_nAsked);
    EXPECT_EQ(1, parent.m_nAsked);
    EXPECT_FALSE(CWnd::WalkPreTranslateTree(child.m_hWnd, &msg));  // not beyond the child
    EXPECT_EQ(1, parent.m_nAsked);
    child.m_bTake = TRUE;
    EXPECT_TRUE(AfxPreTranslateMessage(&msg));
    EXPECT_EQ(1, parent.m_nAsked);
    child.DestroyWindow();
    EXPECT_FALSE(AfxPreTranslateMessage(&msg));
    EXPECT_FALSE(AfxPreTranslateMessage(nullptr));
}

}  // namespace
