// The tab strip in its four styles: two above, two beside an area that lists the clicks they report.
#include <array>
#include <utility>

#include "core/split.h"
#include "pages.h"
#include "tab_captions.h"
#include "text_lines.h"

namespace gallery {

namespace {

constexpr UINT kFirstStripId = 200;
constexpr UINT kAreaId = 100;
constexpr int kGap = 6;
constexpr std::size_t kMostLines = 50;

struct StripSpec {
    tagTabCtrlStyle style;
    const char* pszName;
    CRect (*pfnTake)(CRect&, int);  // where it lies
    int nThickness;                 // height of a row, width of a column
    std::vector<std::string> captions;
};

const std::vector<StripSpec>& Strips() {
    static const std::vector<StripSpec> strips{
        {TAB_HORZ_CHAMFER, "横排切角", TakeTop, 24, {"沪深Ａ股", "创业板", "科创板", "北证Ａ股", "港股通"}},
        {TAB_HORZ_BOX,
         "横排方框",
         TakeTop,
         24,
         {"分时", "资金流向", "主力资金净流入排行", "行业轮动", "沪深港通十大成交活跃股与持股变动"}},
        {TAB_VERT_CHAMFER,
         "竖排切角",
         TakeLeft,
         26,
         {"自选股", "龙虎榜", "主力资金净流入排行", "融资融券余额变动", "公告"}},
        {TAB_VERT_NONE,
         "竖排无框",
         TakeRight,
         72,
         {"日线", "周线", "月线", "行业轮动", "主力资金净流入排行"}},
    };
    return strips;
}

/// A window with lines of text.
class LinesArea : public CWnd {
public:
    BOOL CreateOn(CWnd& wndParent, UINT nId) {
        const CString strClass = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW));
        return Create(strClass, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), &wndParent, nId);
    }
    void AddOnTop(std::string line) {
        m_lines.insert(m_lines.begin(), std::move(line));
        if (m_lines.size() > kMostLines) m_lines.pop_back();
        Invalidate();
    }

protected:
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; }
    afx_msg void OnSize(UINT nType, int cx, int cy) {
        CWnd::OnSize(nType, cx, cy);
        Invalidate();
    }
    afx_msg void OnPaint() {
        CPaintDC dc(this);
        CRect rc;
        GetClientRect(&rc);
        DrawLines(dc, rc, m_lines);
    }
    DECLARE_MESSAGE_MAP()

private:
    std::vector<std::string> m_lines;
};

BEGIN_MESSAGE_MAP(LinesArea, CWnd)
ON_WM_ERASEBKGND()
ON_WM_SIZE()
ON_WM_PAINT()
END_MESSAGE_MAP()

class TabsPage : public Page {
public:
    TabsPage() { Tell("点击任一标签，本页即收到WM_COMMAND并用GetActiveId询问"); }

protected:
    afx_msg void OnTab(UINT nId);
    DECLARE_MESSAGE_MAP()

private:
    BOOL CreateControls() override;
    void PlaceControls(const CRect& rcContent) override;

    void Place(UINT nId, const CRect& rc) {
        if (CWnd* const pWnd = GetDlgItem(static_cast<int>(nId))) pWnd->MoveWindow(&rc);
    }
    void Tell(const std::string& strLast) {
        SetNotes({"上方为横排的两种样式，两侧为竖排的两种；竖排放不下的标题以\":\"收尾", strLast});
    }

    std::array<CProxy_TabCtrl, 4> m_strips;
    LinesArea m_area;
    int m_nClicks = 0;
};

BEGIN_MESSAGE_MAP(TabsPage, Page)
ON_COMMAND_RANGE(kFirstStripId, kFirstStripId + 3, OnTab)
END_MESSAGE_MAP()

BOOL TabsPage::CreateControls() {
    UINT nId = kFirstStripId;
    for (const StripSpec& spec : Strips()) {
        CProxy_TabCtrl& strip = m_strips[nId - kFirstStripId];
        if (!strip.Create(this, CRect(0, 0, 0, 0), nId++, spec.style)) return FALSE;
        AddTabs(strip, spec.captions);
        strip.SetActiveTabFontColor(RGB(255, 255, 255));
        strip.SelectTabById(0);
    }
    return m_area.CreateOn(*this, kAreaId);
}

void TabsPage::PlaceControls(const CRect& rcContent) {
    CRect rcRest = rcContent;
    TakeTop(rcRest, kGap);
    UINT nId = kFirstStripId;
    for (const StripSpec& spec : Strips()) {
        Place(nId++, spec.pfnTake(rcRest, spec.nThickness));
        spec.pfnTake(rcRest, kGap);
    }
    Place(kAreaId, rcRest);
}

void TabsPage::OnTab(UINT nId) {
    const std::size_t nStrip = nId - kFirstStripId;
    const int nTab = m_strips[nStrip].GetActiveId();
    const StripSpec& spec = Strips()[nStrip];
    if (nTab < 0 || nTab >= static_cast<int>(spec.captions.size())) return;
    const std::string strClick = std::string(spec.pszName) + "：第" + std::to_string(nTab + 1) + "个标签“" +
                                 spec.captions[static_cast<std::size_t>(nTab)] + "”";
    m_area.AddOnTop(std::to_string(++m_nClicks) + ". " + strClick);
    Tell("刚才点击的是" + strClick);
}

}  // namespace

std::unique_ptr<Page> MakeTabsPage(const PageSettings&) { return std::make_unique<TabsPage>(); }

}  // namespace gallery
