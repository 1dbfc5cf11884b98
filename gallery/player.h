/// Plays a script on the gallery's window.
#pragma once

#include <vector>

#include "core/script.h"
#include "main_window.h"
#include "menu_watch.h"

namespace gallery {

/// One step a tick. Ticks come from a timer, so before each the input and painting of the step before is
/// through, and they go on while a menu's own message loop runs.
class Player {
public:
    Player(MainWindow& wnd, std::vector<Step> steps, std::string strScript);

    /// Runs the message loop until the script is through. An Error names the line that could not be done.
    void Play();

private:
    void Tick();
    bool Run(const Step& step);  ///< True when the step is done, false when it wants another tick.
    bool MayPress(CPoint ptScreen);
    bool PressHere();
    bool PressAt(CPoint ptScreen, int nClicks);
    bool PressTab(const PageEntry& page);
    bool ChooseEntry(const std::string& gbkText);
    void Finish();
    CPoint OnScreen(const Step& step) const;

    MainWindow& m_wnd;
    std::vector<Step> m_steps;
    std::string m_strScript;
    std::size_t m_nNext = 0;
    MenuWatch m_menus;
    int m_nDownKeys = 0;  ///< Spent on the menu step that runs.
    bool m_bLeftHeld = false;
    bool m_bClicked = false;  ///< There was a press, at m_ptClick and m_dwClick.
    CPoint m_ptClick;
    DWORD m_dwClick = 0;
    std::string
        m_strFailure;  ///< What Play throws in the end; an exception may not cross a window procedure.
};

}  // namespace gallery
