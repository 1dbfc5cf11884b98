// What must hold whatever a host does: nothing crashes, nothing is left behind.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <ostream>
#include <vector>

#include "stress/wrapper_calls.h"

namespace {

/// A visible top-level window that the controls are made in.
class Host : public CWnd {
public:
    BOOL Open() {
        const char* pszClass = AfxRegisterWndClass(0);
        return CreateEx(0, pszClass, "host", WS_POPUP | WS_VISIBLE, CRect(10, 10, 410, 310), nullptr, 0);
    }
};

void PumpWaiting() {
    MSG msg;
    for (int n = 0; n < 200 && PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE); ++n) {
        if (AfxPreTranslateMessage(&msg)) continue;
        TranslateMessage(&msg);
        DispatchMessage(&msg);
    }
}

/// Objects alive. Where the system answers no count, the highest slot that a batch of new objects gets: the
/// slots of leaked objects are not given out again, so it climbs with them.
struct ObjectCounts {
    DWORD dwGdi = 0, dwUser = 0;
    bool bExact = true;

    static ObjectCounts Now() {
        const HANDLE hProcess = GetCurrentProcess();
        ObjectCounts counts{GetGuiResources(hProcess, GR_GDIOBJECTS),
                            GetGuiResources(hProcess, GR_USEROBJECTS)};
        if (counts.dwUser == 0)
            counts = {HighestSlot([] { return HANDLE(CreatePen(PS_SOLID, 1, 0)); }, DeleteObject),
                      HighestSlot([] { return HANDLE(CreatePopupMenu()); },
                                  [](HANDLE hMenu) { return DestroyMenu(static_cast<HMENU>(hMenu)); }),
                      false};
        return counts;
    }

    /// Whether a thousand objects or more of a kind have been added since `before`, or any where counts are
    /// exact.
    bool Grown(const ObjectCounts& before) const {
        if (bExact) return dwGdi != before.dwGdi || dwUser != before.dwUser;
        return dwGdi > before.dwGdi + kSlack || dwUser > before.dwUser + kSlack;
    }

private:
    static constexpr std::size_t kBatch = 200;
    static constexpr DWORD kSlack = 600;

    template <class Make, class Free>
    static DWORD HighestSlot(Make make, Free free) {
        std::array<HANDLE, kBatch> batch;
        DWORD dwHighest = 0;
        for (HANDLE& hObject : batch) {
            hObject = make();
            dwHighest = std::max<DWORD>(dwHighest, LOWORD(reinterpret_cast<ULONG_PTR>(hObject)));
        }
        for (HANDLE hObject : batch) free(hObject);
        return dwHighest;
    }
};

std::ostream& operator<<(std::ostream& out, const ObjectCounts& counts) {
    return out << counts.dwGdi << " graphics and " << counts.dwUser << " user objects";
}

/// Random calls on wrappers in random states, and random messages to their windows.
class RandomHost {
public:
    explicit RandomHost(unsigned nSeed) : m_dice(nSeed, m_pParent) { OpenParent(); }
    ~RandomHost() {
        for (auto& pWrapper : m_wrappers) pWrapper.reset();
        CloseParent();
    }

    void Step() {
        const int nKind = m_dice.Between(0, kWrapperKinds - 1);
        auto& pWrapper = m_wrappers[static_cast<std::size_t>(nKind)];
        if (!pWrapper) pWrapper = MakeWrapper(nKind);
        const int nWhat = m_dice.Between(0, 999);
        if (nWhat < 600)
            pWrapper->Call(
                static_cast<std::size_t>(m_dice.Between(0, static_cast<int>(pWrapper->MethodCount()) - 1)),
                m_dice);
        else if (nWhat < 930)
            SendRandomMessage();
        else if (nWhat < 950)
            pWrapper->Create(m_pParent, CRect(0, 0, m_dice.Between(0, 260), m_dice.Between(0, 200)), 100);
        else
            ChangeLife(nWhat, pWrapper);
    }

private:
    void OpenParent() {
        m_pParent = new Host;
        ASSERT_TRUE(static_cast<Host*>(m_pParent)->Open());
    }
    void CloseParent() {
        delete m_pParent;
        m_pParent = nullptr;
        PumpWaiting();
    }

    void ChangeLife(int nWhat, std::unique_ptr<AnyWrapper>& pWrapper) {
        if (nWhat < 970)
            PumpWaiting();
        else if (nWhat < 980)
            pWrapper.reset();
        else if (nWhat < 988)
            pWrapper = pWrapper->Copy();
        else if (nWhat < 995)
            ResizeOneChild();
        else if (nWhat < 999)
            DestroyWindow(OneChild());
        else
            CloseParent(), OpenParent();
    }

    HWND OneChild() {
        HWND hChild = ::GetWindow(m_pParent->GetSafeHwnd(), GW_CHILD);
        for (int n = m_dice.Between(0, 14); n > 0 && hChild; --n)
            if (HWND hNext = ::GetWindow(hChild, GW_HWNDNEXT)) hChild = hNext;
        return hChild;
    }

    void ResizeOneChild() {
        const CRect rect = m_dice.Make<CRect>();
        SetWindowPos(OneChild(), nullptr, rect.left, rect.top, m_dice.Between(-5, 300),
                     m_dice.Between(-5, 200), SWP_NOZORDER | SWP_NOACTIVATE);
    }

    /// Messages whose parameters carry no pointers: those are the sender's promise, everything else is not.
    void SendRandomMessage() {
        static constexpr UINT kMessages[] = {
            WM_PAINT,          WM_ERASEBKGND, WM_SIZE,          WM_MOUSEMOVE,     WM_MOUSEMOVE,
            WM_LBUTTONDOWN,    WM_LBUTTONUP,  WM_LBUTTONDBLCLK, WM_RBUTTONDOWN,   WM_RBUTTONDBLCLK,
            WM_MOUSELEAVE,     WM_SETFOCUS,   WM_KILLFOCUS,     WM_KEYDOWN,       WM_KEYUP,
            WM_CHAR,           WM_TIMER,      WM_COMMAND,       WM_SETCURSOR,     WM_USER,
            WM_USER + 1,       WM_USER + 2,   WM_USER + 301,    WM_CANCELMODE,    WM_SHOWWINDOW,
            WM_ENABLE,         WM_MOVE,       WM_MOUSEWHEEL,    WM_NCHITTEST,     WM_ACTIVATEAPP,
            WM_CAPTURECHANGED, WM_GETDLGCODE, WM_INITMENUPOPUP, WM_MOUSEACTIVATE, WM_NCPAINT};
        const UINT nMessage = kMessages[m_dice.Between(0, std::size(kMessages) - 1)];
        const auto wParam = static_cast<WPARAM>(m_dice.OneIn(3) ? m_dice.Bits() : m_dice.Bits() % 4);
        const auto lParam =
            m_dice.OneIn(3)
                ? static_cast<LPARAM>(m_dice.Bits())
                : static_cast<LPARAM>(MAKELPARAM(m_dice.Between(-5, 300), m_dice.Between(-5, 200)));
        const HWND hChild = OneChild();
        MSG msg{hChild, nMessage, wParam, lParam, 0, {0, 0}};
        if (m_dice.OneIn(3) && AfxPreTranslateMessage(&msg)) return;
        if (m_dice.OneIn(8))
            PostMessage(hChild, nMessage, wParam, lParam);
        else
            SendMessage(hChild, nMessage, wParam, lParam);
    }

    CWnd* m_pParent = nullptr;
    Dice m_dice;
    std::array<std::unique_ptr<AnyWrapper>, kWrapperKinds> m_wrappers;
};

/// TAVLON_STEPS and TAVLON_SEED change what is run; the seed of a failing run is the last one printed.
unsigned FromEnvironment(const char* pszName, unsigned nDefault) {
    const char* pszValue = std::getenv(pszName);
    return pszValue ? static_cast<unsigned>(std::strtoul(pszValue, nullptr, 10)) : nDefault;
}

TEST(Stress, RandomCallsAndMessages) {
    const unsigned nSteps = FromEnvironment("TAVLON_STEPS", 100000);
    constexpr unsigned kRounds = 10;
    const unsigned nFirstSeed = FromEnvironment("TAVLON_SEED", 1);
    ObjectCounts before;
    for (unsigned nRound = 0; nRound < kRounds; ++nRound) {
        const unsigned nSeed = nFirstSeed + nRound;
        std::printf("seed %u\n", nSeed);
        std::fflush(stdout);
        SCOPED_TRACE(nSeed);
        {
            RandomHost host(nSeed);
            for (unsigned n = 0; n < nSteps / kRounds; ++n) host.Step();
        }
        if (nRound == 0) before = ObjectCounts::Now();  // what the first use caches stays
    }
    const ObjectCounts after = ObjectCounts::Now();
    EXPECT_FALSE(after.Grown(before)) << before << ", then " << after;
}

TEST(Stress, ObjectCountsReturnAfterCreatePaintDestroy) {
    Host host;
    ASSERT_TRUE(host.Open());
    const auto OneRound = [&](int nKind) {
        auto pWrapper = MakeWrapper(nKind);
        ASSERT_TRUE(pWrapper->Create(&host, CRect(0, 0, 160, 120), 100));
        UpdateWindow(GetWindow(host.GetSafeHwnd(), GW_CHILD));
    };
    for (int nKind = 0; nKind < kWrapperKinds; ++nKind) {
        SCOPED_TRACE(nKind);
        OneRound(nKind);
        PumpWaiting();
        const ObjectCounts before = ObjectCounts::Now();
        for (int n = 0; n < 1000; ++n) OneRound(nKind);
        PumpWaiting();
        const ObjectCounts after = ObjectCounts::Now();
        EXPECT_FALSE(after.Grown(before)) << before << ", then " << after;
    }
}

TEST(Stress, ALeakWouldShow) {
    const ObjectCounts before = ObjectCounts::Now();
    std::vector<HPEN> pens(1000);
    std::vector<HMENU> menus(1000);
    for (HPEN& hPen : pens) hPen = CreatePen(PS_SOLID, 1, 0);
    EXPECT_TRUE(ObjectCounts::Now().Grown(before));
    for (HPEN hPen : pens) DeleteObject(hPen);
    for (HMENU& hMenu : menus) hMenu = CreatePopupMenu();
    EXPECT_TRUE(ObjectCounts::Now().Grown(before));
    for (HMENU hMenu : menus) DestroyMenu(hMenu);
}

}  // namespace
