#pragma once

#include <tavlon/export.h>
#include <tavlon/framework.h>
#include <tavlon/owned.h>
#include <tavlon/records.h>

class TavlonBR;

/// Sector rotation wheel: one spoke a sector, clockwise, the last one at twelve; its share as a dot between
/// the centre (the least share, at most 100) and the rim (the greatest, at least 0).
///
/// Mouse:   a click on a dot or a name selects that sector. A double click anywhere, as long as a sector is
///          selected, posts message WM_USER + 301 (both parameters 0) to the parent given to Create, which
///          then reads the selected record with GetCurBlockData. Dots and names are where they were painted.
/// Shares:  any number; one that is not finite has no dot and does not count for the scale. When all are
///          equal, or further apart than single precision can tell, there is neither scale nor dot.
/// Size:    names stand outside the rim, in the 30 px beside and the 65 px above the wheel, and may overlap;
///          no wheel is drawn in less than 59 px of width or 89 px of height.
/// Usage:   Init, ReDraw; then SetData for new shares, ReDraw.
class TAVLON_API CProxy_BR {
public:
    ///@{
    /// A control without a window; copies share it. See proxies.h.
    CProxy_BR();
    CProxy_BR(const CProxy_BR&) = default;
    CProxy_BR& operator=(const CProxy_BR&) = default;
    virtual ~CProxy_BR();
    ///@}
    int Create(CWnd* pParent, CRect rect, UINT nID);  ///< See proxies.h.

    /// Replaces the sectors and the block information; TRUE. Selects the last sector named info.current
    /// (ASCII case ignored); when there is none, what was selected stays selected by its position, as long as
    /// that exists. Does not repaint.
    int Init(CArray<tagmyBRData, tagmyBRData&>& data, const tagBlocksInfo& info);
    int Play();                               ///< TRUE; nothing else.
    int Stop();                               ///< TRUE; nothing else.
    void ReDraw();                            ///< Repaints.
    void SetUpdateTime(CTime& time);          ///< Stores the time and shows the time line; repaints.
    int SetTitle(CString& title);             ///< Stores; FALSE when the title is 32 bytes or longer.
    void GetBlocksInfo(tagBlocksInfo& info);  ///< Copies out the block information with the current title.
    /// Copies out the selected sector; FALSE when none is selected, the record stays as it was.
    int GetCurBlockData(tagmyBRData& data);
    /// Replaces the first record of that name (ASCII case ignored). FALSE: empty or unknown name. Does not
    /// repaint.
    int SetData(tagmyBRData& data);
    /// Replaces record `index`, from 0; its name may change. FALSE: no such index, or an empty name. Does not
    /// repaint.
    int SetData(int index, tagmyBRData& data);

private:
    Owned<TavlonBR> m_pControl;
};
