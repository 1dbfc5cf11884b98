#pragma once

#include <tavlon/export.h>
#include <tavlon/framework.h>
#include <tavlon/owned.h>
#include <tavlon/records.h>

class CPointRadarCtrl;
class CPointStartCtrl;
class CRoePointCtrl;

/// Value radar: quarterly revenue growth (x) against price-to-sales ratio (y); the axes follow the data.
/// Forwards to CRoePointCtrl, which says more about range, gate and size, as CScatterCtrl does about mouse,
/// menu and commands.
///
/// Layer:   border, gate and grid lie below the points and are kept with them: their setters repaint, but the
///          new look is on the screen only when the points are drawn anew, which SetData, Init,
///          ActiveBlockByInfo, a new size, zoom and drag and the point size ask for.
/// Usage:   Init, SetData for each stock, ActiveBlockByInfo, Play, SetGate, SetUpdateTime, all before the
///          next message is handled.
class TAVLON_API CProxy_RoePointCtrl {
public:
    ///@{
    /// A control without a window; copies share it. See proxies.h.
    CProxy_RoePointCtrl();
    CProxy_RoePointCtrl(const CProxy_RoePointCtrl&) = default;
    CProxy_RoePointCtrl& operator=(const CProxy_RoePointCtrl&) = default;
    virtual ~CProxy_RoePointCtrl();
    ///@}
    int Create(CWnd* pParent, CRect rect, UINT nID);  ///< See proxies.h.

    int Init();  ///< Removes all points, deactivates the block, keeps its name; repaints; TRUE.
    /// Computes axis range and points, shows the whole range again and empties the gate: call SetGate
    /// afterwards. Repaints; TRUE.
    int Play();
    /// Stocks of block id turn yellow and go on top (-1: no block's, unless records have that id); the name,
    /// at most 254 bytes, stands in the information strip. Repaints.
    void ActiveBlockByInfo(int id, const char* text);
    /// Adds a point or replaces the one of the same market and code; FALSE when 3000 are held, even if the
    /// stock is one of them. Values are taken as they are; those outside the shown range (NaN included) are
    /// not drawn. Does not repaint, but the next paint computes the range anew, as Play does.
    int SetData(tagPointRadarItemData data);
    void SetGirdVisble(bool bShow);                  ///< Shows or hides the grid; repaints, see Layer.
    void SetCoordinateShaftFontSize(int nHeight);    ///< Axis number height, default 12; repaints.
    void SetGateBkColor(COLORREF clr);               ///< Fill of the gate area; repaints, see Layer.
    void SetFontColor(COLORREF clr);                 ///< Titles and information texts; repaints.
    void SetBorderColor(COLORREF clr);               ///< Border; repaints, see Layer.
    void SetGate(double dX, double dY);              ///< Gate right of and below it; repaints, see Layer.
    void SetUpdateTime(CTime& time);                 ///< Stores and shows the time; repaints.
    void SetTitle(CString& title);                   ///< Stores; 75 pixels are shown of it.
    void SetCoordinateShaftLineColor(COLORREF clr);  ///< Axis lines; repaints.

private:
    Owned<CRoePointCtrl> m_pControl;
};

/// Point radar: limit-up coefficient (x, 0 to 100) against the day's price change in percent (y, -10 to 10).
///
/// Range:  fixed; points outside it are kept and not shown. A client area of 50 px height or less is not
///         painted.
/// Gate:   what lies above and right of the line between two corners, at first (70, 5) and (87, -2); none
///         while a corner is not finite.
/// Layer:  grid and gate are kept with the points, as the value radar's; Play draws them anew as well.
/// Mouse:  as CScatterCtrl says, menu and commands as well. Escape shows the full range while the chart has
///         the keyboard focus, which it takes only from its host.
class TAVLON_API CProxy_PointRadarCtrl {
public:
    ///@{
    /// A control without a window; copies share it. See proxies.h.
    CProxy_PointRadarCtrl();
    CProxy_PointRadarCtrl(const CProxy_PointRadarCtrl&) = default;
    CProxy_PointRadarCtrl& operator=(const CProxy_PointRadarCtrl&) = default;
    virtual ~CProxy_PointRadarCtrl();
    ///@}
    int Create(CWnd* pParent, CRect rect, UINT nID);  ///< See proxies.h.

    /// Removes all points, deactivates the block (its name stays) and hides the time; repaints; TRUE.
    int Init();
    int Play();  ///< Draws points, grid and gate anew; keeps the shown range; repaints; TRUE.
    /// Stocks of block id turn yellow and go on top (-1: no block's, unless records have that id); the name,
    /// at most 254 bytes, stands in the information strip. Repaints.
    void ActiveBlockByInfo(int id, const char* text);
    void ClearData();  ///< As Init.
    /// Adds a point or replaces the one of the same market and code; FALSE when 3000 are held, even if the
    /// stock is one of them. Any values are taken. Does not repaint.
    int SetData(tagPointRadarItemData data);
    void SetGirdVisble(bool bShow);                  ///< Shows or hides the grid; repaints, see Layer.
    void SetCoordinateShaftFontSize(int nHeight);    ///< Axis number height, default 12; repaints.
    void SetGateBkColor(COLORREF clr);               ///< Fill of the gate area; repaints, see Layer.
    void SetCoordinateShaftLineColor(COLORREF clr);  ///< Axis lines, line under the strips; repaints.
    void SetFontColor(COLORREF clr);          ///< Title, time and information text, not the axes; repaints.
    void SetBorderColor(COLORREF clr);        ///< Stored, drawn by nothing; repaints.
    void SetSouthGate(double dX, double dY);  ///< Lower right corner of the gate; repaints, see Layer.
    void SetWestGate(double dX, double dY);   ///< Upper left corner of the gate; repaints, see Layer.
    void SetUpdateTime(CTime& time);          ///< Stores and shows the time; repaints.

private:
    Owned<CPointRadarCtrl> m_pControl;
};

/// Star chart: energy (x) against net buying (y) at the day's close; each star's disc is red, green or white
/// by the sign of fSignValue.
///
/// Range:  follows the data, as the value radar's. A client area of 25 px height or less is not painted.
/// Layer:  border and grid are kept with the stars, as the value radar's; Play draws them anew as well.
/// Mouse:  as CScatterCtrl says, menu and commands as well.
/// Label:  message WM_USER + 2 to the chart's window with wParam 12 or 14 renames the x axis from "主力能量"
///         to "强庄能量" and repaints; nothing sets it back.
class TAVLON_API CProxy_PointStartCtrl {
public:
    ///@{
    /// A control without a window; copies share it. See proxies.h.
    CProxy_PointStartCtrl();
    CProxy_PointStartCtrl(const CProxy_PointStartCtrl&) = default;
    CProxy_PointStartCtrl& operator=(const CProxy_PointStartCtrl&) = default;
    virtual ~CProxy_PointStartCtrl();
    ///@}
    int Create(CWnd* pParent, CRect rect, UINT nID);  ///< See proxies.h.

    int Init();        ///< Removes all stars; repaints; TRUE.
    int Play();        ///< Computes axis range and stars, shows the whole range; repaints; TRUE.
    void ClearData();  ///< As Init.
    /// Adds a star or replaces the one of the same market and code. FALSE: 3001 are held (even if the star is
    /// one of them), dwCheckB is 0, or fCheckA or fCheckC is negative or NaN. Does not repaint, but the next
    /// paint computes the range anew, as Play does.
    int SetData(tagmyStarData data);
    void SetCoordinateShaftFontSize(int nHeight);    ///< Axis number height, default 12; repaints.
    void SetCoordinateShaftLineColor(COLORREF clr);  ///< Axis lines; repaints.
    void SetFontColor(COLORREF clr);                 ///< Titles and information texts; repaints.
    void SetGirdVisble(bool bShow);                  ///< Shows or hides the grid; repaints, see Layer.
    void SetBorderColor(COLORREF clr);               ///< Border; repaints, see Layer.
    void SetUpdateTime(CTime& time);                 ///< Stores and shows the time; repaints.
    void SetTitle(CString& title);                   ///< Stores; 175 pixels are shown of it.

private:
    Owned<CPointStartCtrl> m_pControl;
};
