#include "main_window.h"

#include <algorithm>
#include <utility>

#include "core/error.h"
#include "pages.h"

namespace gallery {

namespace {
constexpr UINT_PTR kTimerId = 1;
constexpr UINT kTickMs = 10;
constexpr DWORD kStyle = WS_OVERLAPPEDWINDOW;
constexpr char kCaption[] = "Tavlon";
constexpr char kKeysInCaption[] = "（PageUp、PageDown换页）";

SIZE WindowSizeFor(PageSize size) {
    RECT rc{0, 0, size.cx, size.cy};
    ::AdjustWindowRectEx(&rc, kStyle, FALSE, 0);
    return {rc.right - rc.left, rc.bottom - rc.top};
}
}  // namespace

BEGIN_MESSAGE_MAP(MainWindow, CWnd)
ON_WM_SIZE()
ON_WM_ERASEBKGND()
ON_WM_DESTROY()
ON_WM_SETFOCUS()
ON_WM_TIMER()
ON_WM_GETMINMAXINFO()
END_MESSAGE_MAP()

MainWindow::MainWindow(std::filesystem::path dataDir) : m_dataDir(std::move(dataDir)) {}

void MainWindow::Open(PageSize size) {
    const CString strClass = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW));
    const SIZE sz = WindowSizeFor(size);
    if (!CreateEx(0, strClass, kCaption, kStyle, 0, 0, sz.cx, sz.cy, nullptr, nullptr))
        throw Error("the main window cannot be made");
    ShowWindow(SW_SHOW);
    ::SetForegroundWindow(m_hWnd);
    UpdateWindow();
}

void MainWindow::ShowPage(const PageEntry& page) {
    std::unique_ptr<Page> pNew = page.pfnMake(m_dataDir);
    m_pPage.reset();
    if (!pNew->CreateOn(*this, ClientArea()))
        throw Error("the windows of page " + page.name + " cannot be made");
    m_pPage = std::move(pNew);
    m_strPage = page.name;
    SetWindowText((kCaption + ("：" + page.title) + kKeysInCaption).c_str());
    m_pPage->SetFocus();
}

void MainWindow::TurnPages(int nBy) {
    const auto& pages = Pages();
    const auto nAll = static_cast<int>(pages.size());
    const auto it = std::ranges::find(pages, m_strPage, &PageEntry::name);
    const int nNext = (static_cast<int>(it - pages.begin()) + nBy + nAll) % nAll;
    ShowPage(pages[static_cast<std::size_t>(nNext)]);
}

BOOL MainWindow::PreTranslateMessage(MSG* pMsg) {
    const bool bNext = pMsg->wParam == VK_NEXT;
    if (pMsg->message != WM_KEYDOWN || (!bNext && pMsg->wParam != VK_PRIOR))
        return CWnd::PreTranslateMessage(pMsg);
    TurnPages(bNext ? 1 : -1);
    return TRUE;
}

/// The keyboard comes here when the window is brought to the front.
void MainWindow::OnSetFocus(CWnd* pOldWnd) {
    CWnd::OnSetFocus(pOldWnd);
    if (m_pPage) m_pPage->SetFocus();
}

void MainWindow::SetPageSize(PageSize size) {
    const SIZE sz = WindowSizeFor(size);
    SetWindowPos(nullptr, 0, 0, sz.cx, sz.cy, SWP_NOZORDER | SWP_NOACTIVATE);
    CRect rcOnScreen = ClientArea();
    ClientToScreen(&rcOnScreen);
    const bool bFits = rcOnScreen.right <= ::GetSystemMetrics(SM_CXSCREEN) &&
                       rcOnScreen.bottom <= ::GetSystemMetrics(SM_CYSCREEN);
    // What is off the screen has no pixels to copy.
    if (!bFits || rcOnScreen.Width() != size.cx || rcOnScreen.Height() != size.cy)
        throw Error("a page of " + std::to_string(size.cx) + "x" + std::to_string(size.cy) +
                    " does not fit the screen");
}

CRect MainWindow::ClientArea() const {
    CRect rc;
    GetClientRect(&rc);
    return rc;
}

void MainWindow::StartTicking(std::function<void()> tick) {
    m_tick = std::move(tick);
    SetTimer(kTimerId, kTickMs);
}

void MainWindow::StopTicking() {
    KillTimer(kTimerId);
    m_tick = nullptr;
}

void MainWindow::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    if (m_pPage && nType != SIZE_MINIMIZED) m_pPage->MoveWindow(0, 0, cx, cy);
}

BOOL MainWindow::OnEraseBkgnd(CDC*) { return TRUE; }  // the page covers everything

void MainWindow::OnTimer(UINT_PTR) {
    if (const std::function<void()> tick = m_tick) tick();  // a copy: the tick may end the ticking
}

void MainWindow::OnGetMinMaxInfo(MINMAXINFO* pInfo) {
    constexpr LONG kWidest = 2 * PageSize::kMaxSide;  // larger than the screen is allowed
    pInfo->ptMinTrackSize = {1, 1};
    pInfo->ptMaxTrackSize = {kWidest, kWidest};
}

void MainWindow::OnDestroy() {
    m_pPage.reset();
    CWnd::OnDestroy();
    ::PostQuitMessage(0);
}

}  // namespace gallery
