#include "scenes/control_stage.h"

#include <algorithm>

namespace scenes {

ControlHost::ControlHost() {
    CreateEx(0, AfxRegisterWndClass(0), "host", WS_POPUP, 0, 0, 500, 400, nullptr, nullptr);
    ShowWindow(SW_SHOWNOACTIVATE);
}

ControlHost::~ControlHost() { DestroyWindow(); }

HWND ControlHost::Control() const { return ::GetDlgItem(m_hWnd, static_cast<int>(kId)); }

void ControlHost::Take(Stage& stage) const {
    const HWND hWnd = Control();
    if (!hWnd) return;
    ::UpdateWindow(hWnd);
    RECT rc{};
    ::GetClientRect(hWnd, &rc);
    const HDC hdc = ::GetDC(hWnd);
    BitBlt(stage.hdc, 0, 0, rc.right, rc.bottom, hdc, 0, 0, SRCCOPY);
    ::ReleaseDC(hWnd, hdc);
}

CRect AnyPlace(Stage& stage) {
    Dice& dice = stage.dice;
    const int kind = dice.Between(0, 9);
    if (kind < 5) return CRect(0, 0, stage.cx, stage.cy);
    const int least = kind < 9 ? 60 : 1, most = kind < 9 ? 1000 : 60;
    const int x = dice.Between(0, 30), y = dice.Between(0, 30);
    const int cx = std::min(dice.Between(least, most), stage.cx),
              cy = std::min(dice.Between(least, most), stage.cy);
    return CRect(x, y, x + cx, y + cy);
}

bool Changes(Dice& dice) { return dice.OneIn(2); }

double Number(Dice& dice, int low, int high) {
    const int whole = dice.Between(low, high - 1);
    return whole + dice.Between(0, 999) / 1000.0;
}

CString AnyTitle(Dice& dice) {
    static constexpr const char* kTitles[] = {
        "价值雷达",     "板块轮动", "主力资金流向",
        "短",           "",         "沪深两市主力资金当日净买入与换手率对照表（万元）",
        "Top 10 强势股"};
    return CString(dice.Of(kTitles));
}

CTime AnyTime(Dice& dice) {
    const int day = dice.Between(1, 28), hour = dice.Between(9, 15), minute = dice.Between(0, 59);
    return CTime(2015, 6, day, hour, minute, 0);
}

}  // namespace scenes
