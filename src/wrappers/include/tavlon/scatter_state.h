#pragma once

#include <tavlon/framework.h>

/// Where the parts of a scatter chart lie, in client pixels.
struct ScatterLayout {
    CPoint m_ptOrigin{0, 0};       ///< Lower left corner of the plot rectangle: pixel of the least values.
    CRect m_rcShaft{0, 0, 0, 0};   ///< Axis rectangle.
    CRect m_rcClient{0, 0, 0, 0};  ///< Client rectangle.
    CRect m_rcInfo{0, 0, 0, 0};    ///< Info strip under the title.
    CRect m_rcTitle{0, 0, 0, 0};   ///< Title strip.
    bool m_bLaidOut = false;       ///< The client area was high enough; else there is no plot rectangle.
};

/// What the left mouse button does.
enum ScatterMouseMode { MOUSE_ZOOM = 0, MOUSE_DRAG = 1 };

/// What every scatter chart keeps, whatever its records; CScatterCtrl inherits it.
struct ScatterState : ScatterLayout {
    // Values at the ends of the axes.
    double m_dMinX = 0.0;
    double m_dMaxX = 27.0;
    double m_dMinY = 0.76;
    double m_dMaxY = 12.97;
    // Full range: what "show all" returns to; dragging stays inside it.
    double m_dFullMaxX = 27.0;
    double m_dFullMinX = 0.0;
    double m_dFullMaxY = 12.97;
    double m_dFullMinY = 0.76;
    bool m_bPointsDirty = false;  ///< The shown list must be rebuilt.
    bool m_bRangeDirty = false;   ///< The full range must be computed from the data.

    int m_nMouseMode = MOUSE_ZOOM;  ///< A ScatterMouseMode.
    bool m_bMouseDown = false;      ///< Left button held: no cross-hair is drawn.
    CPoint m_ptStart{0, 0};         ///< Where it was pressed.
    // Shown range when it was pressed.
    double m_dDragSpanX = 0.0;
    double m_dDragSpanY = 0.0;
    double m_dDragMinX = 0.0;
    double m_dDragMinY = 0.0;
    bool m_bBandShown = false;   ///< A rubber band lies over the window's picture, by exclusive or,
    CRect m_rcBand{0, 0, 0, 0};  ///< around this rectangle.
    CPoint m_ptLastCross{0, 0};  ///< Previous cross-hair point, as the mouse gave it.
    CPoint m_ptCross{0, 0};      ///< Current cross-hair point.

    COLORREF m_clrFont = RGB(192, 192, 192);       ///< Titles, update time, info text.
    CTime m_timeUpdate = CTime::GetCurrentTime();  ///< Shown when m_bUpdateTimeSet.
    COLORREF m_clrBorder = RGB(182, 0, 0);
    COLORREF m_clrBack = RGB(0, 0, 0);
    COLORREF m_clrShaftLine = RGB(182, 0, 0);    ///< Axis lines and the line under the info strip.
    COLORREF m_clrSelection = RGB(0, 255, 255);  ///< Rubber band.
    COLORREF m_clrCrossLine = RGB(150, 150, 150);
    COLORREF m_clrGrid = RGB(61, 61, 61);
    COLORREF m_clrCursor = RGB(192, 192, 0);  ///< Both mouse cursors.
    int m_nShaftFontSize = 12;                ///< Height of the axis numbers.

    CBitmap m_bmpPoint[4];            ///< Point sprites: red, green, white, yellow.
    CDC m_dcPoint[4];                 ///< Memory contexts that hold them.
    CSize m_szPoint[4];               ///< Their sizes; (0, 0) for one that could not be loaded.
    COLORREF m_clrPointMask[4] = {};  ///< Their transparent colours.
    bool m_bBigPoint = true;          ///< 10-pixel discs; false: 6-pixel discs.
    bool m_bPointLoaded = false;      ///< The sprites were loaded, in the size that m_bBigPointLoaded says.
    bool m_bBigPointLoaded = false;
    bool m_bGridVisible = true;
    char m_szStockInfo[500] = "";  ///< Info line: the stock under the mouse.
    bool m_bLayerStale = false;    ///< The points layer must be rebuilt.
    // Every bitmap stands before the context that holds it, so that the context goes first: a bitmap cannot
    // be deleted while it is selected.
    CBitmap m_bmpLayer;     ///< As large as the client area was when it was built.
    CDC m_dcLayer;          ///< Points layer: the picture below the axes, points included.
    CSize m_szLayer{0, 0};  ///< Size of m_bmpLayer.
    bool m_bUpdateTimeSet = false;
};
