#include "recorder.h"

#include <algorithm>
#include <utility>

#include "support/message_names.h"

namespace user_test {

namespace {

Recorder* g_pRecorder = nullptr;

bool Holds(const std::vector<UINT>& messages, UINT nMessage) {
    return std::find(messages.begin(), messages.end(), nMessage) != messages.end();
}

void DispatchWaiting() {
    MSG msg;
    while (PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&msg);
        DispatchMessage(&msg);
    }
}

}  // namespace

Recorder::Recorder() {
    g_pRecorder = this;
    WNDCLASS wc{};
    wc.lpfnWndProc = WindowProc;
    wc.hInstance = GetModuleHandle(nullptr);
    wc.hCursor = LoadCursor(nullptr, IDC_ARROW);
    wc.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    wc.style = CS_DBLCLKS;
    wc.lpszClassName = "recorder";
    RegisterClass(&wc);
    wc.style = CS_HREDRAW | CS_VREDRAW;
    wc.lpszClassName = "redrawer";
    RegisterClass(&wc);
    SetCursorPos(900, 700);
    Pump();
}

Recorder::~Recorder() {
    m_handlers.clear();
    ReleaseCapture();
    for (const auto& [hWnd, name] : std::map(m_names))
        if (IsWindow(hWnd)) DestroyWindow(hWnd);
    Pump();
    g_pRecorder = nullptr;
    UnregisterClass("recorder", GetModuleHandle(nullptr));
    UnregisterClass("redrawer", GetModuleHandle(nullptr));
}

HWND Recorder::Create(const char* pszName, DWORD dwStyle, HWND hParent, RECT rc, const char* pszClass) {
    m_nextName = pszName;
    return CreateWindow(pszClass, pszName, dwStyle, rc.left, rc.top, rc.right - rc.left, rc.bottom - rc.top,
                        hParent, nullptr, GetModuleHandle(nullptr), nullptr);
}

HWND Recorder::CreateTop(const char* pszName) {
    const HWND hWnd = Create(pszName, WS_OVERLAPPEDWINDOW, nullptr, {100, 100, 500, 400});
    ShowWindow(hWnd, SW_SHOW);
    UpdateWindow(hWnd);
    Pump();
    Clear();
    return hWnd;
}

HWND Recorder::CreateChild(HWND hParent, const char* pszName) {
    const HWND hWnd = Create(pszName, WS_CHILD | WS_VISIBLE, hParent, {10, 10, 110, 90});
    Pump();
    Clear();
    return hWnd;
}

void Recorder::Ignore(std::initializer_list<UINT> messages) {
    m_ignored.insert(m_ignored.end(), messages.begin(), messages.end());
}

void Recorder::Only(std::initializer_list<UINT> messages) { m_only = messages; }

std::vector<std::string> Recorder::Take() { return std::exchange(m_log, {}); }

LRESULT CALLBACK Recorder::WindowProc(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam) {
    if (!g_pRecorder) return DefWindowProc(hWnd, nMessage, wParam, lParam);
    return g_pRecorder->Handle({hWnd, nMessage, wParam, lParam});
}

LRESULT Recorder::Handle(const Message& message) {
    if (!m_names.count(message.hWnd)) m_names[message.hWnd] = m_nextName;
    Log(message);
    const auto found = m_handlers.find(message.nMessage);
    if (found != m_handlers.end()) return Handler(found->second)(message);
    return DefWindowProc(message.hWnd, message.nMessage, message.wParam, message.lParam);
}

bool Recorder::Wanted(UINT nMessage) const {
    return m_only.empty() ? !Holds(m_ignored, nMessage) : Holds(m_only, nMessage);
}

void Recorder::Log(const Message& message) {
    const char* pszName = NameOfMessage(message.nMessage);
    if (pszName && Wanted(message.nMessage)) m_log.push_back(m_names[message.hWnd] + "." + pszName);
}

void Pump() {
#ifdef _WIN32
    for (int nRound = 0; nRound < 3; ++nRound) {
        DispatchWaiting();
        Sleep(10);
    }
#endif
    DispatchWaiting();
}

void Click(int x, int y) {
    SetCursorPos(x, y);
    mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    Pump();
}

void Press(int nKey) {
    keybd_event(static_cast<BYTE>(nKey), 0, 0, 0);
    keybd_event(static_cast<BYTE>(nKey), 0, KEYEVENTF_KEYUP, 0);
}

std::string Joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += (text.empty() ? "" : " ") + line;
    return text;
}

}  // namespace user_test
