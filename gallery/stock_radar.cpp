#include "stock_radar.h"

#include <cstdlib>
#include <string_view>
#include <utility>

namespace gallery {

namespace {

constexpr int kSteady = 3;  // pixels that a hand moves in a click
constexpr std::string_view kBeforeCode = "股票代码:";
constexpr std::size_t kCodeLength = 6;

/// The stock that the radar's information line names; empty when it names none.
std::string CodeIn(std::string_view info) {
    if (!info.starts_with(kBeforeCode)) return {};
    const std::string_view code = info.substr(kBeforeCode.size(), kCodeLength);
    return code.starts_with(' ') ? std::string() : std::string(code);  // blanks stand for none
}

}  // namespace

BEGIN_MESSAGE_MAP(StockRadar, CRoePointCtrl)
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
END_MESSAGE_MAP()

void StockRadar::OnLButtonDown(UINT nFlags, CPoint point) {
    // A press may come without a move before it: after a menu, a tip or from a program.
    CRoePointCtrl::OnMouseMove(nFlags & ~UINT{MK_LBUTTON}, point);
    m_strPressed = CodeIn(m_szStockInfo);
    m_ptPressed = point;
    CRoePointCtrl::OnLButtonDown(nFlags, point);
}

void StockRadar::OnLButtonUp(UINT nFlags, CPoint point) {
    CRoePointCtrl::OnLButtonUp(nFlags, point);
    const CSize moved = point - m_ptPressed;
    const std::string strCode = std::exchange(m_strPressed, {});
    if (strCode.empty() || std::abs(moved.cx) > kSteady || std::abs(moved.cy) > kSteady) return;
    m_strPicked = strCode;
    ::PostMessage(::GetParent(m_hWnd), kStockPicked, static_cast<WPARAM>(::GetDlgCtrlID(m_hWnd)), 0);
}

}  // namespace gallery
