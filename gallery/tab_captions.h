/// Fills tab strips.
#pragma once

#include <tavlon/tavlon.h>

#include <string>
#include <vector>

namespace gallery {

/// Adds a tab for each caption (code page 936); the tabs' ids are the captions' positions, 0 for the first.
void AddTabs(CProxy_TabCtrl& tabs, const std::vector<std::string>& captions);

/// White on blue and grey on dark grey, for a strip that people work with all the time.
void SetNavigationColours(CProxy_TabCtrl& tabs);

/// Makes a strip of such tabs, one of them active, of no size yet. FALSE: there is no window.
BOOL CreateNavigation(CProxy_TabCtrl& tabs, CWnd& wndParent, UINT nId, tagTabCtrlStyle style,
                      const std::vector<std::string>& captions, int nActive);

}  // namespace gallery
