#pragma once

#include <tavlon/framework.h>

#include "foundation/control_window.h"
#include "foundation/edge_border.h"

/// What the passive gauges share: the window, a filled background with four border lines, and setters that
/// only store until ReDraw. Each adds its layout and its picture.
class CGaugeCtrl : public CWnd {
public:
    int Create(CWnd* pParent, CRect rect, UINT nID);
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

    int Play() { return TRUE; }
    int Stop() { return TRUE; }
    void ReDraw();
    void SetColor(COLORREF clrBack, COLORREF clrText);
    void SetBorderColor(COLORREF clr, int nSide) { m_border.SetSide(clr, nSide); }

protected:
    explicit CGaugeCtrl(const ControlNames& names) : m_names(names) {}

    virtual void LayOut(const CRect& rcClient) = 0;  ///< At every new size.
    /// Draws inside the border. Texts are opaque on the background colour.
    virtual void DrawGauge(CDC& dc) = 0;

    COLORREF BackColour() const { return m_clrBack; }
    COLORREF TextColour() const { return m_clrText; }

    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    const ControlNames& m_names;
    COLORREF m_clrBack = RGB(255, 255, 255);
    COLORREF m_clrText = RGB(0, 0, 0);
    EdgeBorder m_border;
};

/// Title at the upper left of a gauge.
struct GaugeTitle {
    CString strText;
    COLORREF clr = RGB(0, 0, 0);

    /// Into that band, at most 63 bytes of it, shortened on a whole character.
    void Draw(CDC& dc, const CRect& rcBand) const;
};
