#pragma once

#include <tavlon/framework.h>
#include <tavlon/records.h>

/// What a tab strip keeps: its tabs, the active one and the look. Tabs and captions are laid out from it anew
/// whenever they are painted or clicked.
struct TabStripState {
    tagTabCtrlStyle m_eStyle = TAB_HORZ_CHAMFER;  ///< One of the four.
    COLORREF m_clrBack = RGB(0, 0, 0);
    COLORREF m_clrFont = RGB(186, 187, 182);
    COLORREF m_clrFrame = RGB(182, 0, 0);  ///< Outline of every tab.
    COLORREF m_clrActiveTabBack = RGB(1, 153, 255);
    COLORREF m_clrActiveTabFont = RGB(182, 0, 0);
    COLORREF m_clrNormalTabBack = RGB(0, 0, 0);
    int m_nFontSize = 12;
    int m_nActive = -1;  ///< Position of the active tab; -1: none.
    int m_bFontBold = 1;
    CArray<tagTabItemData, tagTabItemData&> m_arrItems;  ///< In the order added, each caption with its end.

    int TabCount() const { return static_cast<int>(m_arrItems.GetSize()); }
};
