#include "tab_captions.h"

#include "core/text.h"

namespace gallery {

void AddTabs(CProxy_TabCtrl& tabs, const std::vector<std::string>& captions) {
    tagTabItemData item{};
    for (const std::string& caption : captions) {
        CopyToField(item.szText, caption);
        tabs.AddItem(item);
        ++item.nId;
    }
}

void SetNavigationColours(CProxy_TabCtrl& tabs) {
    tabs.SetActiveTabBackColor(RGB(0, 84, 166));
    tabs.SetActiveTabFontColor(RGB(255, 255, 255));
    tabs.SetNormalTabBackColor(RGB(32, 32, 32));
}

BOOL CreateNavigation(CProxy_TabCtrl& tabs, CWnd& wndParent, UINT nId, tagTabCtrlStyle style,
                      const std::vector<std::string>& captions, int nActive) {
    if (!tabs.Create(&wndParent, CRect(0, 0, 0, 0), nId, style)) return FALSE;
    AddTabs(tabs, captions);
    SetNavigationColours(tabs);
    tabs.SelectTabById(nActive);
    return TRUE;
}

}  // namespace gallery
