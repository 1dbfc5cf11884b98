#include <thread>

#include "test_window.h"

namespace {

const LPCSTR pszDisc = MAKEINTRESOURCE(3000);  // a bitmap that the control library carries

TEST(FrameworkModule, ResourcesAreFoundAlongTheChain) {
    const HINSTANCE hProgram = AfxGetInstanceHandle();
    AfxSetResourceHandle(hProgram);  // a control painted before may have made it the library's
    const HINSTANCE hLibrary = AfxFindResourceHandle(pszDisc, RT_BITMAP);
    ASSERT_NE(hProgram, hLibrary);
    CBitmap bitmap;
    EXPECT_TRUE(bitmap.LoadBitmap(3000));
    EXPECT_FALSE(bitmap.LoadBitmap(2999));
    for (const HINSTANCE hCurrent : {hLibrary, hProgram}) {  // where what is nowhere is expected
        AfxSetResourceHandle(hCurrent);
        EXPECT_EQ(hCurrent, AfxGetResourceHandle());
        EXPECT_EQ(hCurrent, AfxFindResourceHandle(MAKEINTRESOURCE(2999), RT_BITMAP));
        EXPECT_EQ(hCurrent, AfxFindResourceHandle(nullptr, RT_BITMAP));
    }
}

TEST(FrameworkModule, ExtensionModulesJoinAndLeave) {
    static int s_nSomewhere;
    const auto hFake = reinterpret_cast<HMODULE>(&s_nSomewhere);
    AFX_EXTENSION_MODULE module;
    module.hResource = AfxFindResourceHandle(pszDisc, RT_BITMAP);
    EXPECT_TRUE(AfxInitExtensionModule(module, hFake));
    EXPECT_TRUE(AfxInitExtensionModule(module, nullptr));  // a second time changes nothing
    EXPECT_EQ(hFake, module.hModule);
    auto* pLink = new CDynLinkLibrary(module);
    EXPECT_EQ(module.hResource, pLink->m_hResource);
    AfxTermExtensionModule(module);  // deletes the link
    EXPECT_FALSE(module.bInitialized);
    AfxTermExtensionModule(module);
    AFX_EXTENSION_MODULE plain;
    AfxInitExtensionModule(plain, hFake);
    EXPECT_EQ(hFake, plain.hResource);
    AfxTermExtensionModule(plain);
}

TEST(FrameworkModule, WindowClassesAreRegisteredOnce) {
    const LPCSTR pszName = AfxRegisterWndClass(CS_DBLCLKS);
    EXPECT_EQ(pszName, AfxRegisterWndClass(CS_DBLCLKS));
    EXPECT_STRNE(pszName, AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW)));
    WNDCLASS wc = {}, info = {};
    wc.lpfnWndProc = ::DefWindowProc, wc.hInstance = AfxGetInstanceHandle(),
    wc.lpszClassName = "__TwiceWnd__";
    EXPECT_TRUE(AfxRegisterClass(&wc) && AfxRegisterClass(&wc));
    EXPECT_FALSE(AfxRegisterClass(nullptr));
    EXPECT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), pszName, &info));
    EXPECT_EQ(static_cast<UINT>(CS_DBLCLKS), info.style);
    EXPECT_EQ(nullptr, info.hCursor);
}

TEST(FrameworkModule, ThreadsHaveObjectsOfTheirOwn) {
    CPen pen(PS_SOLID, 1, 0);
    CPen *pOther = nullptr, *pAgain = nullptr;
    std::thread([&] { pOther = CPen::FromHandle(pen), pAgain = CPen::FromHandle(pen); }).join();
    EXPECT_NE(&pen, pOther);
    EXPECT_EQ(pOther, pAgain);
    EXPECT_EQ(static_cast<DWORD>(OBJ_PEN), ::GetObjectType(pen));  // the thread's end deleted nothing
}

/// A program with one window that closes itself after the first idle time.
class CTestApp : public CWinApp {
public:
    CTestApp() : CWinApp("test") {}
    BOOL InitInstance() override {
        m_pMainWnd = &m_wnd;
        return m_wnd.CreateEx(0, nullptr, "main", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0);
    }
    BOOL OnIdle(LONG lCount) override {
        ++m_nIdle;
        CWinApp::OnIdle(lCount);
        if (lCount < 2) return TRUE;
        m_wnd.PostMessage(WM_CLOSE);
        return FALSE;
    }
    int m_nIdle = 0;

private:
    CWnd m_wnd;
};

TEST(FrameworkApp, RunsUntilItsMainWindowGoes) {
    EXPECT_EQ(-1, AfxWinMain());
    {
        CTestApp app;
        EXPECT_EQ(&app, AfxGetApp());
        EXPECT_EQ(0, AfxWinMain());
        EXPECT_EQ(3, app.m_nIdle);
        EXPECT_EQ(nullptr, AfxGetMainWnd());
        EXPECT_TRUE(app.m_strAppName == "test");
    }
    EXPECT_EQ(nullptr, AfxGetApp());
    EXPECT_EQ(nullptr, AfxGetThread());
}

}  // namespace
