#pragma once

#include <tavlon/point_store.h>
#include <tavlon/scatter_ctrl.h>

/// What the value radar and the point radar have in common: a record for each stock, and one block of them
/// that stands out.
class TAVLON_API CBlockRadarCtrl : public CScatterCtrl, protected PointStore {
public:
    /// Adds a point, or replaces the one of the same market byte and code (case-sensitive). FALSE when 3000
    /// are held, even if the item is one of them. Any values are taken. Does not repaint.
    int SetData(tagPointRadarItemData item);
    /// Points of block nId turn yellow and go on top (-1: none do, unless records have that block). Keeps 254
    /// bytes of the name; null is empty. Repaints.
    void ActiveBlockByInfo(int nId, const char* pszName);
    void SetGateBkColor(COLORREF clr);  ///< Fill of the gate; a setter as those of CScatterCtrl.

    /// @cond The library's own charts build on this.
protected:
    /// pszInfoFormat takes code, name, y and x of a point.
    CBlockRadarCtrl(const ScatterStyle& style, const ControlNames& names, const char* pszTitle,
                    const char* pszInfoFormat, COLORREF clrGateBack);

    void RemoveData() override;  ///< Deactivates the block as well; its name stays.
    void IncludeData(PairExtent& extent) const override;
    void RebuildShown() override;
    int ShownCount() const override;
    ScatterPoint ShownPoint(int nShown) const override;
    CString StockInfo(int nShown) const override;
    void DrawTitle(CDC* pDC) override;

    COLORREF m_clrGateBack;

private:
    COLORREF m_clrBlockText = RGB(192, 192, 0);  ///< The active-block line.
    const char* m_pszInfoFormat;
    /// @endcond
};
