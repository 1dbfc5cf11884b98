/// A value radar that tells its parent when a stock is clicked. The control itself has no such message, but
/// its class is open to hosts: what it knows of the stock under the mouse is there to be read.
#pragma once

#include <tavlon/tavlon.h>

#include <string>

namespace gallery {

/// Posted to the parent of a StockRadar; wParam is the control's id. The parent then asks PickedCode().
constexpr UINT kStockPicked = WM_APP + 1;

class StockRadar : public CRoePointCtrl {
public:
    /// Of the stock clicked last, six digits; empty before the first.
    const std::string& PickedCode() const { return m_strPicked; }

protected:
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    std::string m_strPressed;  ///< Code of the stock under the pressed button.
    CPoint m_ptPressed{0, 0};
    std::string m_strPicked;
};

}  // namespace gallery
