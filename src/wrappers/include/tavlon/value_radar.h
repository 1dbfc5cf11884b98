#pragma once

#include <tavlon/export.h>
#include <tavlon/framework.h>
#include <tavlon/point_store.h>
#include <tavlon/records.h>
#include <tavlon/scatter_state.h>

/// Value radar: each stock a point at its quarterly revenue growth (x) and price-to-sales ratio (y).
/// Units:  records and gate are in the caller's values, everything on the screen in client pixels, y
///         downwards. Colours are 0x00BBGGRR.
/// Shape:  a title strip of 25 px, an info strip of 40 px, below them the axis rectangle with 50 px for the y
///         labels and 30 px for the x labels; values map into the axis rectangle less a tenth at each side.
///         A client area of 40 px height or less is not painted.
/// Range:  computed from the finite records at the first paint after SetData, or by Play: their extremes, at
///         least 5.0 apart. Records that are not finite are kept but neither drawn nor counted.
/// Gate:   the area right of and below one corner, empty until SetGate and while the corner is not finite.
///         Each computation of the range empties it again, so call SetGate after Play.
/// Usage:  Init, SetData for each stock, ActiveBlockByInfo, Play, SetGate, SetUpdateTime.
/// Thread: use from the thread that created the window.
class TAVLON_API CRoePointCtrl : public CWnd, private ScatterState, private PointStore {
public:
    CRoePointCtrl();
    virtual ~CRoePointCtrl();

    /// Makes the visible child window; FALSE without a parent, when it cannot be made, or when there is one
    /// already.
    int Create(CWnd* pParent, CRect rect, UINT nID);
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;  ///< Names the window class.

    int Init();  ///< As ClearData; TRUE.
    int Play();  ///< The data is complete: computes range and positions, repaints; TRUE. Empties the gate.
    /// Adds a point, or replaces the one of the same market byte and code (case-sensitive). FALSE when 3000
    /// are held, even if the item is one of them. Any values are taken. Does not repaint.
    int SetData(tagPointRadarItemData item);
    void ClearData();  ///< Removes all points and deactivates the block, whose name stays; repaints.

    /// Points of block nId (-1: none) turn yellow and go on top. Keeps 254 bytes of the name; null is empty.
    /// Repaints.
    void ActiveBlockByInfo(int nId, const char* pszName);
    // Setters store and repaint, but for the title. What lies below the points (border, gate, grid) shows its
    // new look when the points are next drawn anew.
    void SetBorderColor(COLORREF clr);
    void SetCoordinateShaftFontSize(int nHeight);    ///< Axis number height in pixels, default 12.
    void SetCoordinateShaftLineColor(COLORREF clr);  ///< Axis lines and the line under the info strip.
    void SetFontColor(COLORREF clr);                 ///< Axis titles, title, update time and info text.
    void SetGate(double dX, double dY);              ///< Gate corner; none when not finite.
    void SetGateBkColor(COLORREF clr);
    void SetGirdVisble(bool bVisible);
    void SetTitle(CString& strTitle);  ///< Chart title, default "价值雷达". Does not repaint.
    void SetUpdateTime(CTime& time);   ///< Shows "更新时间:..." in local time.

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnPaint();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    // Layout and mapping.
    int CaclCoordinateShaftPosInfo();
    void CaclCoordinateShaftMaxMinXY();
    int GetShaftXLong() const;
    int GetShaftYLong() const;
    double GetRealXPos(int nX) const;
    double GetRealYPos(int nY) const;
    int GetScreenXPos(double dX) const;
    int GetScreenYPos(double dY) const;
    bool IsPointInCoordinateShaft(double dX, double dY) const;

    // Points.
    void CaclPointsInfo();
    void SetStockInfo(const char* pszText);
    void OnCheckPoint(const CPoint& point);
    void SetDisplayBigPoint(bool bBig);

    // Paint.
    void ReDraw(CDC* pDC, CRgn* pRgnUpdate);
    void DrawBackground(CDC* pDC);
    void DrawGird(CDC* pDC);
    void DrawGate(CDC* pDC);
    void DrawBorder(CDC* pDC);
    void DrawAllPoints(CDC* pDC);
    void DrawNormalPoint(CDC* pDC, const tagPointRadarItemData& item);
    void DrawCoordinateShaft(CDC* pDC);
    void DrawIntersectLine(CDC* pDC);
    void DrawTitle(CDC* pDC);

    // Largest and smallest values of the data.
    double m_dFullMaxX = 27.0;
    double m_dFullMinX = 0.0;
    double m_dFullMaxY = 12.97;
    double m_dFullMinY = 0.76;
    double m_dGateX = m_dFullMaxX;  ///< Corner of the gate; it starts empty.
    double m_dGateY = m_dFullMinY;
    COLORREF m_clrGateBack = RGB(66, 61, 6);
    bool m_bRangeDirty = false;                  ///< The full range must be computed from the data.
    COLORREF m_clrBlockText = RGB(192, 192, 0);  ///< The active-block line.
    CString m_strTitle;
};
