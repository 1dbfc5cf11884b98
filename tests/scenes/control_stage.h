/// A control in a window, and the picture it shows.
#pragma once

#include <tavlon/tavlon.h>

#include "scenes/scene.h"

namespace scenes {

/// A popup window in the corner of the screen to put one control into.
class ControlHost : public CWnd {
public:
    ControlHost();
    ~ControlHost() override;
    HWND Control() const;
    /// Lets the control paint and puts its client area on the stage.
    void Take(Stage& stage) const;

    static constexpr UINT kId = 7;
};

/// A rectangle for the control: the whole stage, another usual size, or one that is too small for anything.
CRect AnyPlace(Stage& stage);
/// Now and then a colour of the dice, else the usual one stays: true tells to set it.
bool Changes(Dice& dice);
/// A number with a fraction, the same on every platform.
double Number(Dice& dice, int low, int high);
/// A Chinese title, short or long.
CString AnyTitle(Dice& dice);
CTime AnyTime(Dice& dice);
/// Copies as much of a text as fits, with its end.
template <std::size_t N>
void Set(char (&field)[N], const CString& text) {
    std::size_t i = 0;
    for (const char* p = text; *p && i + 1 < N; ++p) field[i++] = *p;
    field[i] = 0;
}

/// A wrapped control on the stage: `feed` gives it data and colours before it is first painted.
template <class Proxy, class Feed>
void TakeControl(Stage& stage, Feed feed) {
    ControlHost host;
    Proxy proxy;
    proxy.Create(&host, AnyPlace(stage), ControlHost::kId);
    feed(proxy);
    host.Take(stage);
}

}  // namespace scenes
