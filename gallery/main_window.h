/// The gallery's top-level window: a strip with a tab for each page and one page at a time below it. The
/// tabs, PageDown and PageUp turn the pages.
#pragma once

#include <tavlon/tavlon.h>

#include <functional>

#include "core/arguments.h"
#include "page.h"

namespace gallery {

class MainWindow : public CWnd {
public:
    /// The pages in the order of their tabs, at least one; they must outlive the window.
    MainWindow(PageSettings settings, const std::vector<PageEntry>& pages);

    void Open(PageSize size);  ///< Makes and shows the window; an Error when that fails.
    /// Replaces the page; the Error of its data or of a window not made. When the user turned the page, the
    /// error leaves the message loop.
    void ShowPage(const PageEntry& page);
    /// Gives the page that client size; an Error when the screen is too small.
    void SetPageSize(PageSize size);

    /// Where things are, in client pixels. None of them overlap; in a low window they are empty.
    CRect ClientArea() const;
    CRect PageArea() const;
    CRect TabArea(const PageEntry& page) const;  ///< Empty when it is too narrow to be clicked.

    /// Calls tick about every ten milliseconds, also while a menu is open.
    void StartTicking(std::function<void()> tick);
    void StopTicking();

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* pInfo);
    afx_msg void OnTab();
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    void CreateTabs();
    bool NeedsShortTitles() const;
    void FillTabs();
    std::size_t PositionOf(const std::string& name) const;
    void TurnPages(int nBy);  ///< Past the last page comes the first.

    const std::vector<PageEntry>& m_pages;
    CProxy_TabCtrl m_tabs;
    PageSettings m_settings;
    std::unique_ptr<Page> m_pPage;
    std::string m_strPage;        ///< Name of the page shown.
    bool m_bShortTitles = false;  ///< In the tabs.
    std::function<void()> m_tick;
};

}  // namespace gallery
