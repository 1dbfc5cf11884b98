#pragma once

#include <tavlon/export.h>
#include <tavlon/framework.h>
#include <tavlon/owned.h>
#include <tavlon/records.h>

class CMyTabControl;

/// Tab strip: equal tabs side by side or below each other, each with a caption and an id of the host's, at
/// most one of them active.
///
/// Layout: a tab has the client width (stacked: height) divided by the number of tabs, rounded down, and the
///         whole of the other side. What is left over belongs to no tab, but the last one's look reaches the
///         strip's last pixel; without a pixel for each tab, none can be clicked.
/// Click:  WM_LBUTTONDOWN on a tab makes it active, repaints and posts WM_COMMAND to the parent (wParam the
///         control id, lParam 0), on the active tab as well. The parent then asks GetActiveId; it may destroy
///         the strip or itself there. The second press of a double click does nothing.
/// Text:   captions are centred, with an ellipsis where they are too wide. Those of TAB_VERT_CHAMFER run
///         downwards, always bold, in rows as high as a character of a 12 pixels high font, ":" in the last
///         row that there is room for telling that the caption goes on.
/// Style:  TAB_VERT_NONE shows captions without tabs, a bar at the left edge in the active tab's fill marking
///         the active one; from left to right, or downwards in a strip too narrow for four characters.
class TAVLON_API CProxy_TabCtrl {
public:
    ///@{
    /// A control without a window; copies share it. See proxies.h.
    CProxy_TabCtrl();
    CProxy_TabCtrl(const CProxy_TabCtrl&) = default;
    CProxy_TabCtrl& operator=(const CProxy_TabCtrl&) = default;
    virtual ~CProxy_TabCtrl();
    ///@}
    /// See proxies.h. Keeps the style; a value that is none of the four is taken as TAB_HORZ_CHAMFER.
    int Create(CWnd* pParent, CRect rect, UINT nID, tagTabCtrlStyle style);

    /// Appends a tab and returns its position, 0 for the first; repaints. The active tab stays. At most 254
    /// bytes of the caption are kept; ids need not differ.
    int AddItem(tagTabItemData item);
    void ClearContent();  ///< Removes all tabs, none is active then; repaints.
    int GetActiveId();    ///< Id of the active tab; -1 when there is none: give tabs other ids.
    /// Activates the first tab of that id without telling the parent; repaints. Nothing when there is none.
    void SelectTabById(int id);
    void SetBackColor(COLORREF clr);           ///< Strip behind the tabs, default black; repaints.
    void SetFontColor(COLORREF clr);           ///< Captions of the tabs that are not active; repaints.
    void SetActiveTabBackColor(COLORREF clr);  ///< Fill of the active tab; repaints.
    void SetActiveTabFontColor(COLORREF clr);  ///< Caption of the active tab; repaints.
    void SetNormalTabBackColor(COLORREF clr);  ///< Fill of the other tabs, default black; repaints.
    /// Caption cell height in pixels, default 12; negative: character height; 0: the system's choice.
    /// Repaints.
    void SetFontSize(int nHeight);
    void SetFontBold(bool bBold);  ///< Weight of captions from left to right, default bold; repaints.

private:
    Owned<CMyTabControl> m_pControl;
};
