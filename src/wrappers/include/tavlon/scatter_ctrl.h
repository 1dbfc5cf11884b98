#pragma once

#include <tavlon/export.h>
#include <tavlon/framework.h>
#include <tavlon/scatter_cursor.h>
#include <tavlon/scatter_state.h>

#include <memory>

struct ControlNames;
struct ScatterPoint;
struct ScatterStyle;
struct ShaftTitles;
class PairExtent;

/// What the value radar, the point radar and the star chart have in common: points on two axes, an info line
/// that names the one under the mouse, zoom to a dragged rectangle, drag to pan, a cross-hair, two cursors
/// and a context menu. Hosts use the charts that derive from it.
///
/// Mouse:  in zoom mode a rectangle dragged with the left button becomes the shown range, unless a division
///         of the axis, an eighth of it, would become 0.1 or less (y), 0.01 or less (x); each axis is decided
///         by itself. In drag mode the hand moves the shown range inside the full range. The mouse is not
///         captured; when it leaves the window, the button counts as released, without a zoom.
/// Menu:   commands 103 show all, 100 zoom mode, 102 drag mode, 104 big points, 105 small points; they can be
///         sent as WM_COMMAND as well.
/// Thread: use from the thread that created the window.
class TAVLON_API CScatterCtrl : public CWnd, protected ScatterState {
public:
    using CCursor = CScatterCursor;  ///< Of the zoom and the drag mode.

    ~CScatterCtrl() override;  ///< Destroys the window, if it still exists.

    /// Makes the visible child window; FALSE without a parent, when it cannot be made, or when there is one
    /// already. See proxies.h.
    int Create(CWnd* pParent, CRect rect, UINT nID);
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;  ///< Names the window class.

    int Init();        ///< As ClearData; TRUE.
    int Play();        ///< The data is complete: computes range and positions, repaints; TRUE.
    void ClearData();  ///< Removes all points; repaints.

    // Setters store and repaint. What lies below the points (border, gate, grid) shows its new look when the
    // points are next drawn anew: after SetData, ClearData, ActiveBlockByInfo, a new size, zoom, drag or
    // another point size.
    void SetBorderColor(COLORREF clr);               ///< Border, where the chart has one.
    void SetCoordinateShaftFontSize(int nHeight);    ///< Axis number height in pixels, default 12.
    void SetCoordinateShaftLineColor(COLORREF clr);  ///< Axis lines and the line under the info strip.
    void SetFontColor(COLORREF clr);                 ///< Axis titles, title, update time and info text.
    void SetGirdVisble(bool bVisible);               ///< Shows or hides the grid.
    void SetUpdateTime(CTime& time);                 ///< Shows "更新时间:..." in local time.

    /// @cond The library's own charts build on this.
protected:
    /// The style and the names outlive the chart.
    CScatterCtrl(const ScatterStyle& style, const ControlNames& names, const char* pszTitle);

    // What each chart does in its own way.
    virtual void RemoveData() = 0;
    virtual void IncludeData(PairExtent& extent) const = 0;  ///< Every value pair that the host gave.
    virtual void RebuildShown() = 0;                         ///< The points in range, in drawing order.
    virtual int ShownCount() const = 0;
    virtual ScatterPoint ShownPoint(int nShown) const = 0;
    virtual CString StockInfo(int nShown) const = 0;  ///< The info line for a shown point; -1: for none.
    virtual ShaftTitles AxisTitles() const = 0;
    virtual void DrawGate(CDC* pDC);             ///< Nothing.
    virtual void DrawTitle(CDC* pDC);            ///< The texts of both strips.
    virtual void CaclCoordinateShaftMaxMinXY();  ///< The full range, when it is dirty.

    int GetScreenXPos(double dX) const;
    int GetScreenYPos(double dY) const;
    bool IsPointInCoordinateShaft(double dX, double dY) const;
    void MarkStale();        ///< The shown list and the points layer.
    void MarkDataChanged();  ///< Besides, the full range, where it follows the data.

    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnPaint();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg int OnCreate(LPCREATESTRUCT pCreate);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT nMessage);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint point);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnDisplayAll();
    afx_msg void OnSelectEnLarge();
    afx_msg void OnUpdateSelectEnLargeCmdUI(CCmdUI* pCmdUI);
    afx_msg void OnDragMode();
    afx_msg void OnDragModeCmdUI(CCmdUI* pCmdUI);
    afx_msg void OnBigPointMode();
    afx_msg void OnSmallPointMode();
    afx_msg void OnInitMenuPopup(CMenu* pPopup, UINT nIndex, BOOL bSysMenu);
    DECLARE_MESSAGE_MAP()

    const ScatterStyle& m_style;
    CString m_strTitle;

private:
    struct HitIndex;

    // Layout and points.
    int CaclCoordinateShaftPosInfo();
    void CaclPointsInfo();
    int FindShownPoint(CPoint point);
    void OnCheckPoint(CPoint point);
    void SetDisplayBigPoint(bool bBig);

    // Mouse and cursors.
    void DragTo(CPoint point);
    bool ZoomTo(CRect rcBand);
    void EndPress();
    void OnCreateCursor();

    // Paint.
    void ReDraw(CDC* pDC, CRgn* pRgnUpdate);
    void DrawBelowPoints(CDC* pDC);
    void DrawBackground(CDC* pDC);
    void DrawGird(CDC* pDC);
    void DrawBorder(CDC* pDC);
    void DrawAllPoints(CDC* pDC);
    void DrawNormalPoints(CDC* pDC);
    void DrawCoordinateShaft(CDC* pDC);
    void DrawIntersectLine(CDC* pDC);

    const ControlNames& m_names;
    std::unique_ptr<HitIndex> m_pHits;  ///< Finds the shown point under the mouse.
    CCursor m_cursorEnlarge;            ///< Zoom mode.
    CCursor m_cursorDrag;               ///< Drag mode.
    /// @endcond
};
