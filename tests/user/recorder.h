/// Windows that write down the messages they get.
#pragma once

#include <windows.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace user_test {

struct Message {
    HWND hWnd;
    UINT nMessage;
    WPARAM wParam;
    LPARAM lParam;
};

/// What a test does with one kind of message instead of the default processing.
using Handler = std::function<LRESULT(const Message&)>;

/// Names windows by their title and keeps one log for all of them. Only messages of the table in
/// message_names.h are logged.
class Recorder {
public:
    Recorder();
    ~Recorder();
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    /// The class "recorder" has CS_DBLCLKS and a white background, "redrawer" CS_HREDRAW | CS_VREDRAW.
    HWND Create(const char* pszName, DWORD dwStyle, HWND hParent, RECT rc, const char* pszClass = "recorder");
    HWND CreateTop(const char* pszName = "top");  ///< Shown at (100,100), 400 by 300, painted, log cleared.
    HWND CreateChild(HWND hParent, const char* pszName = "child");  ///< At (10,10), 100 by 80, likewise.

    void On(UINT nMessage, Handler handler) { m_handlers[nMessage] = std::move(handler); }
    void Ignore(std::initializer_list<UINT> messages);  ///< Not logged from now on.
    void Only(std::initializer_list<UINT> messages);    ///< Nothing else is logged from now on.
    void Clear() { m_log.clear(); }
    std::vector<std::string> Take();  ///< The log so far, which starts anew.

private:
    static LRESULT CALLBACK WindowProc(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(const Message& message);
    void Log(const Message& message);
    bool Wanted(UINT nMessage) const;

    std::map<HWND, std::string> m_names;
    std::map<UINT, Handler> m_handlers;
    std::vector<UINT> m_ignored, m_only;
    std::vector<std::string> m_log;
    std::string m_nextName;
};

/// Handles everything that is waiting; on a desktop also what arrives a little later.
void Pump();
void Click(int x, int y);
void Press(int nKey);
/// The lines with blanks between, for readable expectations.
std::string Joined(const std::vector<std::string>& lines);

}  // namespace user_test
