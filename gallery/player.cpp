#include "player.h"

#include <cstdlib>
#include <utility>

#include "capture.h"
#include "core/error.h"
#include "input.h"
#include "message_loop.h"
#include "pages.h"

namespace gallery {

Player::Player(MainWindow& wnd, std::vector<Step> steps, std::string strScript)
    : m_wnd(wnd), m_steps(std::move(steps)), m_strScript(std::move(strScript)) {}

void Player::Play() {
    m_wnd.StartTicking([this] { Tick(); });
    RunMessageLoop();
    if (m_strFailure.empty() && m_nNext < m_steps.size())
        m_strFailure = m_strScript + ": the window was closed";
    if (!m_strFailure.empty()) throw Error(m_strFailure);
}

void Player::Tick() {
    if (m_nNext == m_steps.size() || !m_strFailure.empty()) return Finish();
    const Step& step = m_steps[m_nNext];
    try {
        m_menus.Attach(m_wnd.m_hWnd);
        if (Run(step)) ++m_nNext;
    } catch (const std::exception& error) {
        m_strFailure = m_strScript + ": line " + std::to_string(step.nLine) + ": " + error.what();
    }
}

bool Player::Run(const Step& step) {
    switch (step.action) {
        case Action::Page:
            m_wnd.ShowPage(FindPage(step.text));
            return true;
        case Action::Tab:
            return PressTab(FindPage(step.text));
        case Action::Size:
            m_wnd.SetPageSize(step.size);
            return true;
        case Action::Move:
            MoveMouse(OnScreen(step));
            return true;
        case Action::Press:
            return PressHere();
        case Action::Release:
            ReleaseLeft(), m_bLeftHeld = false;
            return true;
        case Action::Click:
            return PressAt(OnScreen(step), 1);
        case Action::DoubleClick:
            return PressAt(OnScreen(step), 2);
        case Action::RightClick:
            MoveMouse(OnScreen(step)), ClickRight();
            return true;
        case Action::Key:
            TypeKey(step.nKey);
            return true;
        case Action::Menu:
            return ChooseEntry(step.text);
        case Action::Shot:
            SaveClientArea(m_wnd, m_wnd.PageArea(), step.text);
            return true;
        case Action::Window:
            SaveClientArea(m_wnd, m_wnd.ClientArea(), step.text);
            return true;
    }
    return true;
}

CPoint Player::OnScreen(const Step& step) const {
    CPoint pt = m_wnd.PageArea().TopLeft() + CSize(step.x, step.y);
    m_wnd.ClientToScreen(&pt);
    return pt;
}

/// Two presses on one spot must not become a double click: the second waits.
bool Player::MayPress(CPoint ptScreen) {
    const bool bNear = std::abs(ptScreen.x - m_ptClick.x) <= ::GetSystemMetrics(SM_CXDOUBLECLK) &&
                       std::abs(ptScreen.y - m_ptClick.y) <= ::GetSystemMetrics(SM_CYDOUBLECLK);
    if (m_bClicked && bNear && ::GetTickCount() - m_dwClick <= ::GetDoubleClickTime()) return false;
    m_bClicked = true, m_ptClick = ptScreen, m_dwClick = ::GetTickCount();
    return true;
}

bool Player::PressHere() {
    CPoint ptMouse;
    ::GetCursorPos(&ptMouse);
    if (!MayPress(ptMouse)) return false;
    PressLeft(), m_bLeftHeld = true;
    return true;
}

bool Player::PressAt(CPoint ptScreen, int nClicks) {
    if (!MayPress(ptScreen)) return false;
    MoveMouse(ptScreen);
    for (int n = 0; n < nClicks; ++n) ClickLeft();
    return true;
}

bool Player::PressTab(const PageEntry& page) {
    CRect rc = m_wnd.TabArea(page);
    if (rc.IsRectEmpty()) throw Error("the window is too small for its tabs");
    m_wnd.ClientToScreen(&rc);
    return PressAt(rc.CenterPoint(), 1);
}

/// One press of the down key a tick until the entry is marked, then Enter.
bool Player::ChooseEntry(const std::string& gbkText) {
    if (!m_menus.IsOpen()) throw Error("no menu is open");
    const std::optional<UINT> nId = m_menus.EntryId(gbkText);
    if (!nId) throw Error("the open menu has no such entry");
    if (m_menus.IsGreyed(*nId)) throw Error("the entry is greyed");
    const bool bMarked = m_menus.IsMarked(*nId);
    if (!bMarked && m_nDownKeys++ > 2 * m_menus.EntryCount()) throw Error("the entry cannot be reached");
    TypeKey(bMarked ? VK_RETURN : VK_DOWN);
    if (bMarked) m_nDownKeys = 0;
    return bMarked;
}

/// Leaves mouse and menus as they were, then ends the message loop.
void Player::Finish() {
    if (std::exchange(m_bLeftHeld, false)) return ReleaseLeft();
    if (m_menus.IsOpen()) return TypeKey(VK_ESCAPE);
    m_wnd.StopTicking();
    ::PostQuitMessage(0);
}

}  // namespace gallery
