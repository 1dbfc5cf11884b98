#include <memory>
#include <string>

#include "test_window.h"

namespace {

enum class Refuse { Nothing, PreCreate, NcCreate, Create };

/// Writes down what reaches it; registers a class whose procedure is the default one, as the controls do.
class CLoggedWnd : public CWnd {
public:
    explicit CLoggedWnd(std::string& strLog, Refuse refuse = Refuse::Nothing)
        : m_log(strLog), m_refuse(refuse) {}

    BOOL Make(CWnd* pParent) {
        return Create(AfxRegisterWndClass(CS_DBLCLKS), "logged", WS_CHILD | WS_VISIBLE, CRect(1, 2, 41, 32),
                      pParent, 77);
    }

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override {
        WNDCLASS wc = {};
        wc.lpfnWndProc = ::DefWindowProc, wc.hInstance = AfxGetInstanceHandle(),
        wc.lpszClassName = "__LoggedWnd__";
        cs.lpszClass = wc.lpszClassName;
        return m_refuse != Refuse::PreCreate && AfxRegisterClass(&wc);
    }
    void PreSubclassWindow() override { m_log += "attached "; }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_NCCREATE) m_log += "nccreate ";
        if (message == WM_NCCREATE && m_refuse == Refuse::NcCreate) return FALSE;
        return CWnd::WindowProc(message, wParam, lParam);
    }
    int OnCreate(LPCREATESTRUCT pcs) {
        m_log += "create ";
        if (m_refuse == Refuse::Create || CWnd::OnCreate(pcs) == -1) return -1;
        return FromHandlePermanent(m_hWnd) == this && pcs->cx == 40 && pcs->cy == 30 ? 0 : -1;
    }
    void OnSize(UINT nType, int cx, int cy) {
        CWnd::OnSize(nType, cx, cy);
        m_log += "size" + std::to_string(cx) + "x" + std::to_string(cy) + " ";
    }
    void OnDestroy() {
        // A window refused at WM_CREATE goes with or without this message.
        if (m_refuse != Refuse::Create) m_log += "destroy ";
        CWnd::OnDestroy();
    }
    void PostNcDestroy() override { m_log += m_hWnd ? "post?! " : "post "; }

    DECLARE_MESSAGE_MAP()

private:
    std::string& m_log;
    Refuse m_refuse;
};

BEGIN_MESSAGE_MAP(CLoggedWnd, CWnd)
ON_WM_CREATE()
ON_WM_SIZE()
ON_WM_DESTROY()
END_MESSAGE_MAP()

TEST(FrameworkWindow, MessagesOfCreationReachTheObjectInOrder) {
    struct Case {
        const char* pszName;
        Refuse refuse;
        const char* pszWant;
    };
    CHostWnd host;
    for (const Case& c : {Case{"accepted", Refuse::Nothing, "attached nccreate create size40x30 "},
                          Case{"refused before", Refuse::PreCreate, "post "},
                          Case{"refused at WM_NCCREATE", Refuse::NcCreate, "attached nccreate post "},
                          Case{"refused at WM_CREATE", Refuse::Create, "attached nccreate create post "}}) {
        SCOPED_TRACE(c.pszName);
        std::string strLog;
        CLoggedWnd wnd(strLog, c.refuse);
        EXPECT_EQ(c.refuse == Refuse::Nothing, wnd.Make(&host) != FALSE);
        EXPECT_EQ(c.pszWant, strLog);
        EXPECT_EQ(c.refuse == Refuse::Nothing, wnd.m_hWnd != nullptr);
    }
}

TEST(FrameworkWindow, ObjectsOutliveTheirWindowsAndCanMakeAnother) {
    std::string strLog;
    CLoggedWnd wnd(strLog);
    {
        CHostWnd host;
        ASSERT_TRUE(wnd.Make(&host));
        EXPECT_EQ(77, wnd.GetDlgCtrlID());
        EXPECT_FALSE(wnd.Make(&host));  // it has a window
        strLog.clear();
    }
    EXPECT_EQ("destroy post ", strLog);  // with its parent
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    CHostWnd host;
    EXPECT_TRUE(wnd.Make(&host));
    EXPECT_TRUE(wnd.DestroyWindow());
    EXPECT_FALSE(wnd.DestroyWindow());
    EXPECT_FALSE(wnd.Make(nullptr));
    auto pWnd = std::make_unique<CLoggedWnd>(strLog);
    ASSERT_TRUE(pWnd->Make(&host));
    const HWND hWnd = pWnd->m_hWnd;
    pWnd.reset();
    EXPECT_FALSE(::IsWindow(hWnd)) << "goes with its object";
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hWnd));
}

constexpr UINT WM_END = WM_USER + 7;
enum class End { DestroyWindow, DestroyParent, DeleteObject, SelfDelete };

/// Ends its own life inside a handler.
class CEndingWnd : public CWnd {
public:
    CEndingWnd(End end, CWnd& parent) : m_end(end), m_parent(parent) {
        EXPECT_TRUE(Create(nullptr, "", WS_CHILD, CRect(0, 0, 9, 9), &parent, 1));
    }
    ~CEndingWnd() override { ++s_nDeleted; }
    static inline int s_nDeleted = 0;

protected:
    LRESULT OnEnd(WPARAM, LPARAM) {
        if (m_end == End::DeleteObject) return delete this, 5;
        (m_end == End::DestroyParent ? m_parent : *this).DestroyWindow();
        return 5;
    }
    void PostNcDestroy() override {
        if (m_end == End::SelfDelete) delete this;
    }
    DECLARE_MESSAGE_MAP()

private:
    End m_end;
    CWnd& m_parent;
};

BEGIN_MESSAGE_MAP(CEndingWnd, CWnd)
ON_MESSAGE(WM_END, OnEnd)
END_MESSAGE_MAP()

TEST(FrameworkWindow, AHandlerMayEndItsOwnWindowOrObject) {
    for (const End end : {End::DestroyWindow, End::DestroyParent, End::DeleteObject, End::SelfDelete}) {
        CHostWnd host;
        const bool bDeletes = end == End::DeleteObject || end == End::SelfDelete;
        CEndingWnd::s_nDeleted = 0;
        auto* pWnd = new CEndingWnd(end, host);
        const HWND hWnd = pWnd->m_hWnd;
        EXPECT_EQ(5, ::SendMessage(hWnd, WM_END, 0, 0)) << static_cast<int>(end);
        EXPECT_FALSE(::IsWindow(hWnd));
        EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hWnd));
        EXPECT_EQ(bDeletes, CEndingWnd::s_nDeleted == 1);
        if (!bDeletes) delete pWnd;
    }
}

/// Raises what the framework's callers raise, from inside a handler.
class CThrowingWnd : public CWnd {
protected:
    int OnCreate(LPCREATESTRUCT pcs) { return pcs->lpCreateParams ? AfxThrowResourceException(), 0 : 0; }
    LRESULT OnThrow(WPARAM, LPARAM) { AfxThrowResourceException(); }
    void OnSize(UINT, int cx, int) {
        if (cx == 66) AfxThrowResourceException();
    }
    void OnPaint() { AfxThrowResourceException(); }
    void OnDestroy() { AfxThrowResourceException(); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CThrowingWnd, CWnd)
ON_WM_CREATE()
ON_MESSAGE(WM_END, OnThrow)
ON_WM_SIZE()
ON_WM_PAINT()
ON_WM_DESTROY()
END_MESSAGE_MAP()

template <class Call>
bool RaisesResourceException(Call call) {
    try {
        call();
    } catch (CResourceException* e) {
        return e->Delete(), true;
    }
    return false;
}

TEST(FrameworkWindow, ExceptionsOfHandlersReachTheCaller) {
    CHostWnd host;
    host.ShowWindow(SW_SHOWNOACTIVATE);
    CThrowingWnd wnd;
    const auto create = [&](int cx, LPVOID pParam) {
        wnd.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, cx, 9), &host, 1, pParam);
    };
    EXPECT_TRUE(RaisesResourceException([&] { create(9, &host); }));
    EXPECT_TRUE(RaisesResourceException([&] { create(66, nullptr); }));
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_FALSE(RaisesResourceException([&] { create(9, nullptr); }));
    EXPECT_TRUE(RaisesResourceException([&] { wnd.SendMessage(WM_END); }));
    wnd.PostMessage(WM_END);
    EXPECT_TRUE(RaisesResourceException(PumpAll));
    EXPECT_TRUE(RaisesResourceException([&] { wnd.MoveWindow(0, 0, 66, 9); }));
    wnd.Invalidate();
    EXPECT_TRUE(RaisesResourceException([&] { wnd.UpdateWindow(); }));
    EXPECT_FALSE(wnd.GetUpdateRect(nullptr));  // or the message would come for ever
    ::MoveWindow(wnd.m_hWnd, 0, 0, 5, 9, FALSE), ::MoveWindow(wnd.m_hWnd, 0, 0, 66, 9, FALSE);
    MSG msg = {};
    EXPECT_TRUE(RaisesResourceException([&] { AfxPreTranslateMessage(&msg); }));  // raised by the loop
    EXPECT_TRUE(RaisesResourceException([&] { wnd.DestroyWindow(); }));
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_EQ(nullptr, CWnd::GetCurrentMessage()->hwnd);  // no handler counts as running any more
    EXPECT_TRUE(RaisesResourceException([] { CPaintDC dc(nullptr); }));
}

TEST(FrameworkWindow, CallsWithoutAWindowAreHarmless) {
    CWnd wnd;
    CRect rc(1, 2, 3, 4);
    CString strText("x");
    wnd.GetClientRect(&rc);
    wnd.GetWindowText(strText);
    wnd.Invalidate(), wnd.UpdateWindow(), wnd.MoveWindow(0, 0, 1, 1), wnd.InvalidateRgn(nullptr);
    EXPECT_TRUE(rc.IsRectNull() && strText.IsEmpty());
    EXPECT_FALSE(wnd.GetDC() || wnd.GetParent() || wnd.SetFocus() || wnd.PostMessage(WM_USER) ||
                 wnd.SetTimer(1, 10) || wnd.IsWindowVisible() || wnd.RedrawWindow() || wnd.GetDlgCtrlID() ||
                 wnd.SendMessage(WM_USER) || wnd.ReleaseDC(nullptr));
}

TEST(FrameworkWindow, HandlesHaveOneObjectEach) {
    CHostWnd host;
    CWnd child;
    ASSERT_TRUE(child.Create(nullptr, "child", WS_CHILD, CRect(10, 20, 30, 50), &host, 5));
    EXPECT_EQ(&host, child.GetParent());
    EXPECT_EQ(&child, host.GetDlgItem(5));
    const HWND hRaw = ::CreateWindowEx(0, AfxRegisterWndClass(0), "raw", WS_CHILD, 0, 0, 1, 1, host.m_hWnd,
                                       nullptr, AfxGetInstanceHandle(), nullptr);
    CWnd* pTemporary = CWnd::FromHandle(hRaw);
    EXPECT_EQ(pTemporary, CWnd::FromHandle(hRaw));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hRaw));
    pTemporary->Detach();
    EXPECT_EQ(hRaw, CWnd::FromHandle(hRaw)->m_hWnd);
    AfxFreeTemporaryObjects();
    EXPECT_EQ(nullptr, CWnd::FromHandle(nullptr));
    EXPECT_TRUE(::IsWindow(hRaw));  // a temporary object owns nothing
    CRect rc(0, 0, 5, 6);
    child.ClientToScreen(&rc);
    host.ScreenToClient(&rc);
    EXPECT_TRUE(rc == CRect(10, 20, 15, 26));
}

}  // namespace
