/// Windows with letters for names, which write down every message they get, with what it says.
#pragma once

#include <windows.h>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "scenes/dice.h"

namespace scenes {

struct Told {
    HWND hWnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};

/// What a window is made of. Class 0 has a white background and hears of double clicks, 1 is grey and redraws
/// when sized, 2 has no background.
struct WindowPlan {
    DWORD style = WS_CHILD | WS_VISIBLE, exStyle = 0;
    HWND parent = nullptr;
    RECT frame{};
    int cls = 0, id = 0;
};

class WindowLog {
public:
    explicit WindowLog(std::string& log);
    ~WindowLog();  ///< Silent: destroys what is left.
    WindowLog(const WindowLog&) = delete;
    WindowLog& operator=(const WindowLog&) = delete;

    HWND Create(const WindowPlan& plan);
    /// The letter; "-" for none, "?" for a window that is not of the scene.
    std::string NameOf(HWND hWnd) const;
    std::vector<HWND> Living() const;
    HWND Any(Dice& dice) const;  ///< One of the living windows, or null.
    void Line(const char* format, ...) __attribute__((format(printf, 2, 3)));
    /// Writes the step down, before what it causes.
    void Step(const std::string& what) { Line("* %s", what.c_str()); }
    /// An active window stands in front, and what it owns in front of it. The reference leaves that to a
    /// window manager, and there is none.
    void BringActiveForward();
    /// The display gets its say about the order of the windows now: told of several changes at once, it may
    /// come to another order than the one asked for. No window hears of anything.
    void Settle();
    /// Dispatches everything that waits.
    void Pump();

    bool Outermost() const { return m_depth == 0; }  ///< In no handler.

    /// Instead of the default processing; nothing: leave it to that.
    std::function<std::optional<LRESULT>(const Told&)> react;
    bool quiet = false;   ///< Nothing is written down.
    bool results = true;  ///< What handlers answered is written down, too.

private:
    static LRESULT CALLBACK Procedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(const Told& told);
    bool IsFirst(HWND hWnd) const;
    void BringForward(HWND hWnd);
    LRESULT Answer(const Told& told);

    std::string& m_log;
    std::map<HWND, std::string> m_names;
    std::string m_next;
    int m_depth = 0, m_created = 0;
    bool m_pumping = false;
};

std::string TextOf(const RECT& rc);
std::string TextOf(POINT pt);
/// Kind, bounds, and a checksum of the points inside.
std::string TextOf(HRGN region);
/// Null for a message that is not logged.
const char* LoggedName(UINT message);
/// What the parameters say.
std::string Parameters(const WindowLog& log, const Told& told);
/// What the handlers changed in what the parameters point to, and the result when it is not 0.
std::string Outcome(const WindowLog& log, const Told& told, LRESULT result);

}  // namespace scenes
