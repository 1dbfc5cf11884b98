// One control in a window of its own: the point radar with five stocks.
#include <tavlon/tavlon.h>

constexpr UINT k_nRadarId = 1001;

// Market, code, name, limit-up coefficient (0 to 100), change of the day in percent, sector.
constexpr tagPointRadarItemData k_stocks[] = {
    {1, "600000", "浦发银行", 34, 1.8, 45},  {1, "600036", "招商银行", 62, 3.1, 45},
    {0, "000001", "平安银行", 71, 4.3, 45},  {0, "000002", "万科Ａ", 88, 7.5, 20},
    {1, "600276", "恒瑞医药", 23, -2.4, 32},
};

class CStocksWnd : public CWnd {
public:
    BOOL Open() {
        CRect rc(100, 100, 900, 700);
        if (!CreateEx(0, AfxRegisterWndClass(0), "Stocks", WS_OVERLAPPEDWINDOW, rc, nullptr, 0)) return FALSE;
        GetClientRect(&rc);
        if (!m_radar.Create(this, rc, k_nRadarId)) return FALSE;
        for (const tagPointRadarItemData& stock : k_stocks) m_radar.SetData(stock);
        m_radar.ActiveBlockByInfo(45, "金融行业");  // its stocks stand out
        m_radar.Play();                             // the data is complete: show it
        return ShowWindow(SW_SHOW), TRUE;
    }

private:
    afx_msg void OnSize(UINT, int cx, int cy) {
        if (CWnd* pRadar = GetDlgItem(k_nRadarId)) pRadar->MoveWindow(0, 0, cx, cy);
    }
    DECLARE_MESSAGE_MAP()
    CProxy_PointRadarCtrl m_radar;
};

BEGIN_MESSAGE_MAP(CStocksWnd, CWnd)
ON_WM_SIZE()
END_MESSAGE_MAP()

class CStocksApp : public CWinApp {
    CStocksWnd m_wnd;
    BOOL InitInstance() override { return m_pMainWnd = &m_wnd, m_wnd.Open(); }
};

int main() {
    CStocksApp app;
    return AfxWinMain();
}
