#pragma once

#include <tavlon/export.h>
#include <tavlon/framework.h>
#include <tavlon/owned.h>
#include <tavlon/records.h>

class CMyTabControl;

/// Tab strip. Every click on a tab posts WM_COMMAND to the parent (wParam the control id, lParam 0), which
/// then asks GetActiveId.
class TAVLON_API CProxy_TabCtrl {
public:
    CProxy_TabCtrl();
    CProxy_TabCtrl(const CProxy_TabCtrl&) = default;
    CProxy_TabCtrl& operator=(const CProxy_TabCtrl&) = default;
    virtual ~CProxy_TabCtrl();
    int Create(CWnd* pParent, CRect rect, UINT nID,
               tagTabCtrlStyle style);  ///< See proxies.h; keeps the style.

    int AddItem(tagTabItemData item);  ///< Appends a tab and returns its position, 0 for the first; repaints.
    void ClearContent();               ///< Removes all tabs, none is active then; repaints.
    int GetActiveId();                 ///< Id of the active tab; -1 when there is none.
    void SelectTabById(int id);  ///< Activates the first tab of that id, if any, without telling the parent.
    void SetBackColor(COLORREF clr);           ///< Strip behind the tabs; repaints.
    void SetFontColor(COLORREF clr);           ///< Captions of the tabs that are not active; repaints.
    void SetActiveTabBackColor(COLORREF clr);  ///< Fill of the active tab; repaints.
    void SetActiveTabFontColor(COLORREF clr);  ///< Caption of the active tab; repaints.
    void SetNormalTabBackColor(COLORREF clr);  ///< Fill of the other tabs; repaints.
    void SetFontSize(int nHeight);             ///< Caption cell height in pixels; repaints.
    void SetFontBold(bool bBold);              ///< Caption weight; repaints.

private:
    Owned<CMyTabControl> m_pControl;
};
