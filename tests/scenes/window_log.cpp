#include "scenes/window_log.h"

#include <cstdarg>
#include <cstdio>
#include <utility>

namespace scenes {

namespace {

constexpr const char* kClasses[] = {"white", "grey", "bare"};

WindowLog* g_log = nullptr;

}  // namespace

WindowLog::WindowLog(std::string& log) : m_log(log) {
    g_log = this;
    WNDCLASSA wc{};
    wc.lpfnWndProc = Procedure;
    wc.hInstance = GetModuleHandle(nullptr);
    wc.hCursor = LoadCursor(nullptr, IDC_ARROW);
    wc.style = CS_DBLCLKS;
    wc.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    wc.lpszClassName = kClasses[0];
    RegisterClass(&wc);
    wc.style = CS_HREDRAW | CS_VREDRAW;
    wc.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<ULONG_PTR>(COLOR_BTNFACE + 1));
    wc.lpszClassName = kClasses[1];
    RegisterClass(&wc);
    wc.style = 0;
    wc.hbrBackground = nullptr;
    wc.lpszClassName = kClasses[2];
    RegisterClass(&wc);
    SetCursorPos(1900, 1150);
    Pump();
}

WindowLog::~WindowLog() {
    quiet = true;
    react = nullptr;
    ReleaseCapture();
    for (HWND hWnd : Living())
        if (IsWindow(hWnd)) DestroyWindow(hWnd);
    Pump();
    g_log = nullptr;
    for (const char* name : kClasses) UnregisterClass(name, GetModuleHandle(nullptr));
}

HWND WindowLog::Create(const WindowPlan& plan) {
    m_next = std::string(1, static_cast<char>('A' + m_created++));
    const RECT& rc = plan.frame;
    const std::string name = m_next;
    return CreateWindowEx(plan.exStyle, kClasses[plan.cls], name.c_str(), plan.style, rc.left, rc.top,
                          rc.right - rc.left, rc.bottom - rc.top, plan.parent,
                          reinterpret_cast<HMENU>(static_cast<INT_PTR>(plan.id)), GetModuleHandle(nullptr),
                          nullptr);
}

std::string WindowLog::NameOf(HWND hWnd) const {
    const auto found = m_names.find(hWnd);
    return found != m_names.end() ? found->second : hWnd ? "?" : "-";
}

std::vector<HWND> WindowLog::Living() const {
    std::map<std::string, HWND> byName;
    for (const auto& [hWnd, name] : m_names)
        if (IsWindow(hWnd)) byName[name] = hWnd;
    std::vector<HWND> living;
    for (const auto& [name, hWnd] : byName) living.push_back(hWnd);
    return living;
}

HWND WindowLog::Any(Dice& dice) const {
    const std::vector<HWND> living = Living();
    if (living.empty()) return nullptr;
    return living[static_cast<std::size_t>(dice.Between(0, static_cast<int>(living.size()) - 1))];
}

void WindowLog::Line(const char* format, ...) {
    if (quiet) return;
    char line[400];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(line, sizeof line, format, arguments);
    va_end(arguments);
    m_log.append(static_cast<std::size_t>(m_depth) * 2, ' ').append(line).append("\n");
}

void WindowLog::Settle() {
    const bool was = std::exchange(m_pumping, true);
    MSG msg;
    PeekMessage(&msg, nullptr, 0, WM_PAINT - 1, PM_NOREMOVE);
    PeekMessage(&msg, nullptr, WM_PAINT + 1, WM_APP, PM_NOREMOVE);
    m_pumping = was;
}

void WindowLog::Pump() {
    constexpr int kEnough = 200;  // a window that never gets painted asks for it again and again
    MSG msg;
    const bool was = std::exchange(m_pumping, true);
    for (int i = 0; i < kEnough && PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE); ++i) {
        TranslateMessage(&msg);
        DispatchMessage(&msg);
    }
    m_pumping = was;
}

LRESULT CALLBACK WindowLog::Procedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (!g_log) return DefWindowProc(hWnd, message, wParam, lParam);
    return g_log->Handle({hWnd, message, wParam, lParam});
}

LRESULT WindowLog::Answer(const Told& told) {
    if (react)
        if (const std::optional<LRESULT> result = react(told)) return *result;
    return DefWindowProc(told.hWnd, told.message, told.wParam, told.lParam);
}

bool WindowLog::IsFirst(HWND hWnd) const {
    for (HWND hAbove = hWnd; (hAbove = GetWindow(hAbove, GW_HWNDPREV));)
        if (m_names.count(hAbove)) return false;
    return true;
}

void WindowLog::BringForward(HWND hWnd) {
    constexpr UINT kOrderAlone = SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOREDRAW;
    if (!IsFirst(hWnd)) SetWindowPos(hWnd, HWND_TOP, 0, 0, 0, 0, kOrderAlone);
    Settle();
    for (HWND hOwned : Living())
        if (GetWindow(hOwned, GW_OWNER) == hWnd) BringForward(hOwned);
}

void WindowLog::BringActiveForward() {
    const bool was = std::exchange(quiet, true);
    if (const HWND hActive = GetActiveWindow()) BringForward(hActive);
    quiet = was;
}

LRESULT WindowLog::Handle(const Told& told) {
    if (!m_names.count(told.hWnd)) m_names[told.hWnd] = m_next;
    const char* name = LoggedName(told.message);
    // The display tells that the pointer's window lost the keyboard whenever it likes.
    const bool fromDisplay = told.message == WM_CANCELMODE && m_pumping && m_depth == 0;
    if (fromDisplay) return 0;
    if (quiet || !name) return Answer(told);
    const std::string letter = NameOf(told.hWnd);
    Line("%s.%s%s", letter.c_str(), name, Parameters(*this, told).c_str());
    ++m_depth;
    const LRESULT result = Answer(told);
    if (const std::string outcome = results ? Outcome(*this, told, result) : ""; !outcome.empty())
        Line("=%s", outcome.c_str());
    --m_depth;
    if (told.message == WM_NCDESTROY) m_names.erase(told.hWnd);
    return result;
}

}  // namespace scenes
