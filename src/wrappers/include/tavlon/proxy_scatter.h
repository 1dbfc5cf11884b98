#pragma once

#include <tavlon/export.h>
#include <tavlon/framework.h>
#include <tavlon/owned.h>
#include <tavlon/records.h>

class CPointRadarCtrl;
class CPointStartCtrl;
class CRoePointCtrl;

/// Value radar: quarterly revenue growth (x) against price-to-sales ratio (y); the axes follow the data.
/// Forwards to CRoePointCtrl.
class TAVLON_API CProxy_RoePointCtrl {
public:
    CProxy_RoePointCtrl();
    CProxy_RoePointCtrl(const CProxy_RoePointCtrl&) = default;
    CProxy_RoePointCtrl& operator=(const CProxy_RoePointCtrl&) = default;
    virtual ~CProxy_RoePointCtrl();
    int Create(CWnd* pParent, CRect rect, UINT nID);  ///< See proxies.h.

    int Init();  ///< Clears all points; repaints; TRUE.
    int Play();  ///< Computes axis range and points; repaints; TRUE. Moves the gate away: call SetGate
                 ///< afterwards.
    void ActiveBlockByInfo(int id,
                           const char* text);  ///< Marks one block; keeps 254 bytes of its name; repaints.
    /// Adds a point or replaces the one of the same market and code; FALSE when 3000 are held. Values are
    /// taken as they are; those outside the shown range (NaN included) are not drawn. Does not repaint.
    int SetData(tagPointRadarItemData data);
    void SetGirdVisble(bool bShow);                  ///< Shows or hides the grid; repaints.
    void SetCoordinateShaftFontSize(int nHeight);    ///< Axis number height in pixels; repaints.
    void SetGateBkColor(COLORREF clr);               ///< Fill of the gate area; repaints.
    void SetFontColor(COLORREF clr);                 ///< Titles and information texts; repaints.
    void SetBorderColor(COLORREF clr);               ///< Border; repaints.
    void SetGate(double dX, double dY);              ///< Corner of the gate area, in data units; repaints.
    void SetUpdateTime(CTime& time);                 ///< Stores and shows the time; repaints.
    void SetTitle(CString& title);                   ///< Stores.
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
/// Mouse:  as CScatterCtrl says, menu and commands as well. Escape shows the full range while the chart has
///         the keyboard focus, which it takes only from its host.
class TAVLON_API CProxy_PointRadarCtrl {
public:
    CProxy_PointRadarCtrl();
    CProxy_PointRadarCtrl(const CProxy_PointRadarCtrl&) = default;
    CProxy_PointRadarCtrl& operator=(const CProxy_PointRadarCtrl&) = default;
    virtual ~CProxy_PointRadarCtrl();
    int Create(CWnd* pParent, CRect rect, UINT nID);  ///< See proxies.h.

    int Init();  ///< Clears all points and hides the time; repaints; TRUE.
    int Play();  ///< Rebuilds the shown points; repaints; TRUE.
    void ActiveBlockByInfo(int id,
                           const char* text);  ///< Marks one block; keeps 254 bytes of its name; repaints.
    void ClearData();                          ///< As Init.
    /// Adds a point or replaces the one of the same market and code; FALSE when 3000 are held. Does not
    /// repaint.
    int SetData(tagPointRadarItemData data);
    void SetGirdVisble(bool bShow);                  ///< Shows or hides the grid; repaints.
    void SetCoordinateShaftFontSize(int nHeight);    ///< Axis number height in pixels; repaints.
    void SetGateBkColor(COLORREF clr);               ///< Fill of the gate area; repaints.
    void SetCoordinateShaftLineColor(COLORREF clr);  ///< Axis lines; repaints.
    void SetFontColor(COLORREF clr);                 ///< Titles and information texts; repaints.
    void SetBorderColor(COLORREF clr);               ///< Stored, drawn by nothing; repaints.
    void SetSouthGate(double dX, double dY);  ///< Lower right corner of the gate, in data units; repaints.
    void SetWestGate(double dX, double dY);   ///< Upper left corner of the gate, in data units; repaints.
    void SetUpdateTime(CTime& time);          ///< Stores and shows the time; repaints.

private:
    Owned<CPointRadarCtrl> m_pControl;
};

/// Star chart: energy (x) against net buying (y) at the day's close; each star's disc is red, green or white
/// by the sign of fSignValue.
///
/// Range:  follows the data, as the value radar's. A client area of 25 px height or less is not painted.
/// Mouse:  as CScatterCtrl says, menu and commands as well.
/// Label:  message WM_USER + 2 with wParam 12 or 14 renames the x axis from "主力能量" to "强庄能量"; nothing
///         sets it back.
class TAVLON_API CProxy_PointStartCtrl {
public:
    CProxy_PointStartCtrl();
    CProxy_PointStartCtrl(const CProxy_PointStartCtrl&) = default;
    CProxy_PointStartCtrl& operator=(const CProxy_PointStartCtrl&) = default;
    virtual ~CProxy_PointStartCtrl();
    int Create(CWnd* pParent, CRect rect, UINT nID);  ///< See proxies.h.

    int Init();        ///< Clears all stars; repaints; TRUE.
    int Play();        ///< Computes axis range and stars; repaints; TRUE.
    void ClearData();  ///< Clears all stars; repaints.
    /// Adds a star or replaces the one of the same market and code. FALSE: 3001 are held, dwCheckB is 0, or
    /// fCheckA or fCheckC is negative or NaN. Does not repaint.
    int SetData(tagmyStarData data);
    void SetCoordinateShaftFontSize(int nHeight);    ///< Axis number height in pixels; repaints.
    void SetCoordinateShaftLineColor(COLORREF clr);  ///< Axis lines; repaints.
    void SetFontColor(COLORREF clr);                 ///< Titles and information texts; repaints.
    void SetGirdVisble(bool bShow);                  ///< Shows or hides the grid; repaints.
    void SetBorderColor(COLORREF clr);               ///< Border; repaints.
    void SetUpdateTime(CTime& time);                 ///< Stores and shows the time; repaints.
    void SetTitle(CString& title);                   ///< Stores.

private:
    Owned<CPointStartCtrl> m_pControl;
};
