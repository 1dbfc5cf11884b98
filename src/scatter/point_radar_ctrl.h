#pragma once

#include <tavlon/framework.h>
#include <tavlon/point_store.h>
#include <tavlon/records.h>
#include <tavlon/scatter_state.h>

/// Point radar: keeps the points, gate corners, active block, look and shown range. The exported contract is
/// CProxy_PointRadarCtrl. Paints its background only so far: no points, and only Escape reaches the shown
/// range.
class CPointRadarCtrl : public CWnd, private ScatterState, private PointStore {
public:
    CPointRadarCtrl();
    int Create(CWnd* pParent, CRect rect, UINT nID);
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

    int Init();
    int Play();
    void ClearData();
    int SetData(tagPointRadarItemData data);
    void ActiveBlockByInfo(int id, const char* text);
    void SetGirdVisble(bool bShow);
    void SetCoordinateShaftFontSize(int nHeight);
    void SetGateBkColor(COLORREF clr);
    void SetCoordinateShaftLineColor(COLORREF clr);
    void SetFontColor(COLORREF clr);
    void SetBorderColor(COLORREF clr);
    void SetSouthGate(double dX, double dY);
    void SetWestGate(double dX, double dY);
    void SetUpdateTime(CTime& time);

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    void SetFullRange();
    void ShowFullRange();
    void MarkStale();

    double m_dWestGateX = 70.0;  ///< Upper left corner of the gate.
    double m_dWestGateY = 5.0;
    double m_dSouthGateX = 87.0;  ///< Lower right corner of the gate.
    double m_dSouthGateY = -2.0;
    COLORREF m_clrGateBack = RGB(157, 188, 252);
};
