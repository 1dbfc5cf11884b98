/// The gallery's top-level window: one page at a time fills its client area. PageDown and PageUp turn the
/// pages.
#pragma once

#include <functional>

#include "core/arguments.h"
#include "page.h"

namespace gallery {

class MainWindow : public CWnd {
public:
    explicit MainWindow(std::filesystem::path dataDir);

    void Open(PageSize size);  ///< Makes and shows the window; an Error when that fails.
    void ShowPage(
        const PageEntry& page);  ///< Replaces the page; the Error of its data or of a window not made.
    void SetPageSize(
        PageSize size);  ///< Gives the page that client size; an Error when the screen is too small.

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
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    CRect ClientArea() const;
    void TurnPages(int nBy);  ///< Past the last page comes the first.

    std::filesystem::path m_dataDir;
    std::unique_ptr<Page> m_pPage;
    std::string m_strPage;  ///< Name of the page shown.
    std::function<void()> m_tick;
};

}  // namespace gallery
