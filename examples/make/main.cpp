// One control in a window of its own: how much of their capital three kinds of investors hold in stocks.
#include <tavlon/tavlon.h>

constexpr UINT k_nBarId = 1001;

class CPositionWnd : public CWnd {
public:
    BOOL Open() {
        CRect rc(100, 100, 500, 400);
        if (!CreateEx(0, AfxRegisterWndClass(0), "Positions", WS_OVERLAPPEDWINDOW, rc, nullptr, 0))
            return FALSE;
        GetClientRect(&rc);
        if (!m_bar.Create(this, rc, k_nBarId)) return FALSE;
        CString title("仓位建议");
        m_bar.SetTitle(title);
        m_bar.SetData(80, 1);  // aggressive, in percent
        m_bar.SetData(55, 2);  // steady
        m_bar.SetData(30, 3);  // conservative
        m_bar.ReDraw();        // setters only store
        return ShowWindow(SW_SHOW), TRUE;
    }

private:
    CProxy_PositionBarCtrl m_bar;
};

class CPositionApp : public CWinApp {
    CPositionWnd m_wnd;
    BOOL InitInstance() override { return m_pMainWnd = &m_wnd, m_wnd.Open(); }
};

int main() {
    CPositionApp app;
    return AfxWinMain();
}
