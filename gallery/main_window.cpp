#include "main_window.h"

#include <algorithm>
#include <utility>

#include "core/error.h"
#include "core/split.h"
#include "loading_note.h"
#include "tab_captions.h"

namespace gallery {

namespace {
constexpr UINT_PTR kTimerId = 1;
constexpr UINT kTickMs = 10;
constexpr UINT kTabsId = 2;
constexpr int kTabsHeight = 24;
constexpr int kWidestTitle = 4 * 12 + 2;  // four characters at the strip's font height
constexpr DWORD kStyle = WS_OVERLAPPEDWINDOW;
constexpr char kCaption[] = "Tavlon";
constexpr char kKeysInCaption[] = "（PageUp、PageDown换页）";

SIZE WindowSizeFor(PageSize size) {
    RECT rc{0, 0, size.cx, kTabsHeight + size.cy};
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
ON_COMMAND(kTabsId, OnTab)
END_MESSAGE_MAP()

MainWindow::MainWindow(PageSettings settings, const std::vector<PageEntry>& pages)
    : m_pages(pages), m_settings(std::move(settings)) {}

void MainWindow::Open(PageSize size) {
    const CString strClass = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW));
    const SIZE sz = WindowSizeFor(size);
    if (!CreateEx(0, strClass, kCaption, kStyle, 0, 0, sz.cx, sz.cy, nullptr, nullptr))
        throw Error("the main window cannot be made");
    CreateTabs();
    ShowWindow(SW_SHOW);
    ::SetForegroundWindow(m_hWnd);
    UpdateWindow();
}

void MainWindow::CreateTabs() {
    CRect rcRest = ClientArea();
    if (!m_tabs.Create(this, TakeTop(rcRest, kTabsHeight), kTabsId, TAB_HORZ_BOX))
        throw Error("the tab strip cannot be made");
    SetNavigationColours(m_tabs);
    m_bShortTitles = NeedsShortTitles();
    FillTabs();
}

bool MainWindow::NeedsShortTitles() const {
    return ClientArea().Width() < kWidestTitle * static_cast<int>(m_pages.size());
}

void MainWindow::FillTabs() {
    std::vector<std::string> titles;
    titles.reserve(m_pages.size());
    for (const PageEntry& page : m_pages) titles.push_back(m_bShortTitles ? page.shortTitle : page.title);
    m_tabs.ClearContent();
    AddTabs(m_tabs, titles);
    if (!m_strPage.empty()) m_tabs.SelectTabById(static_cast<int>(PositionOf(m_strPage)));
}

void MainWindow::ShowPage(const PageEntry& page) {
    std::unique_ptr<Page> pNew;
    {
        const LoadingNote note(*this, PageArea());
        pNew = page.pfnMake(m_settings);
    }
    m_pPage.reset();
    if (!pNew->CreateOn(*this, PageArea()))
        throw Error("the windows of page " + page.name + " cannot be made");
    m_pPage = std::move(pNew);
    m_strPage = page.name;
    m_tabs.SelectTabById(static_cast<int>(PositionOf(page.name)));
    SetWindowText((kCaption + ("：" + page.title) + kKeysInCaption).c_str());
    m_pPage->SetFocus();
}

std::size_t MainWindow::PositionOf(const std::string& name) const {
    return static_cast<std::size_t>(std::ranges::find(m_pages, name, &PageEntry::name) - m_pages.begin());
}

void MainWindow::TurnPages(int nBy) {
    const auto nAll = static_cast<int>(m_pages.size());
    const int nNext = (static_cast<int>(PositionOf(m_strPage)) + nBy + nAll) % nAll;
    ShowPage(m_pages[static_cast<std::size_t>(nNext)]);
}

/// A tab was clicked. The strip posted this, so no control is at work while its page goes.
void MainWindow::OnTab() {
    const auto nPage = static_cast<std::size_t>(m_tabs.GetActiveId());
    if (nPage < m_pages.size() && m_pages[nPage].name != m_strPage) ShowPage(m_pages[nPage]);
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
    CRect rcOnScreen = PageArea();
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

CRect MainWindow::PageArea() const {
    CRect rc = ClientArea();
    TakeTop(rc, kTabsHeight);
    return rc;
}

CRect MainWindow::TabArea(const PageEntry& page) const {
    CRect rcRest = ClientArea(), rc = TakeTop(rcRest, kTabsHeight);
    const int nWidth = rc.Width() / static_cast<int>(m_pages.size());
    rc.left += static_cast<int>(PositionOf(page.name)) * nWidth;
    rc.right = rc.left + nWidth;
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
    if (nType == SIZE_MINIMIZED) return;
    CRect rcPage = ClientArea();
    const CRect rcTabs = TakeTop(rcPage, kTabsHeight);
    if (CWnd* const pTabs = GetDlgItem(kTabsId)) pTabs->MoveWindow(&rcTabs);
    if (std::exchange(m_bShortTitles, NeedsShortTitles()) != m_bShortTitles) FillTabs();
    if (m_pPage) m_pPage->MoveWindow(&rcPage);
}

BOOL MainWindow::OnEraseBkgnd(CDC*) { return TRUE; }  // strip and page cover everything

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
