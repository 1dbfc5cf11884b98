// Loaded into a host before its own first line (LD_PRELOAD): once its main window is there, prints how many
// colours the client area shows, and closes the window as a user does.
#include <tavlon/tavlon.h>

#include <cstdio>
#include <set>

namespace {

std::size_t ColoursIn(CWnd& wnd) {
    ::RedrawWindow(wnd.m_hWnd, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    CRect rc;
    wnd.GetClientRect(&rc);
    CClientDC dc(&wnd);
    std::set<COLORREF> colours;
    for (int y = 0; y < rc.Height(); ++y)
        for (int x = 0; x < rc.Width(); ++x) colours.insert(dc.GetPixel(x, y));
    return colours.size();
}

void CALLBACK LookAndClose(HWND, UINT, UINT_PTR nTimer, DWORD) {
    CWnd* pMainWnd = AfxGetMainWnd();
    if (!pMainWnd || !pMainWnd->IsWindowVisible()) return;  // the timer comes again
    ::KillTimer(nullptr, nTimer);
    std::printf("%zu\n", ColoursIn(*pMainWnd));
    pMainWnd->PostMessage(WM_CLOSE);
}

const UINT_PTR s_nTimer = ::SetTimer(nullptr, 0, 50, LookAndClose);

}  // namespace
