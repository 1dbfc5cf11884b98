#include "user/hooks.h"

#include <cstdint>
#include <utility>
#include <vector>

#include "kernel/handle_table.h"

namespace tavlon::win32 {

namespace {

/// `number` counts all hooks ever set, so that a hook which removed itself still knows its place.
struct Hook {
    HOOKPROC procedure;
    std::uint64_t number;
};

using HookTable = HandleTable<Hook, kTagHook>;

HookTable& Table() {
    static HookTable table;
    return table;
}

/// The newest last.
std::vector<HHOOK>& Chain() {
    static std::vector<HHOOK> chain;
    return chain;
}

std::uint64_t g_running = 0;  // the number of the hook that runs now, 0 for none
std::uint64_t g_set = 0;      // hooks set so far

class RunningHook {
public:
    explicit RunningHook(std::uint64_t number) : m_before(std::exchange(g_running, number)) {}
    ~RunningHook() { g_running = m_before; }
    RunningHook(const RunningHook&) = delete;
    RunningHook& operator=(const RunningHook&) = delete;

private:
    std::uint64_t m_before;
};

/// The newest of the hooks set before the given one; null for none.
const Hook* HookBefore(std::uint64_t number) {
    const auto& chain = Chain();
    for (auto i = chain.rbegin(); i != chain.rend(); ++i)
        if (const Hook* hook = Table().Get(*i); hook && hook->number < number) return hook;
    return nullptr;
}

LRESULT CallHookBefore(std::uint64_t number, int code, WPARAM wParam, LPARAM lParam) {
    const Hook* hook = HookBefore(number);
    if (!hook) return 0;
    const RunningHook running(hook->number);
    return hook->procedure(code, wParam, lParam);
}

}  // namespace

LRESULT AskCreationHooks(HWND hWnd, CBT_CREATEWNDA& creation) {
    return CallHookBefore(g_set + 1, HCBT_CREATEWND, reinterpret_cast<WPARAM>(hWnd),
                          reinterpret_cast<LPARAM>(&creation));
}

}  // namespace tavlon::win32

using namespace tavlon::win32;

HHOOK SetWindowsHookExA(int nHook, HOOKPROC pfnHook, HINSTANCE, DWORD) {
    if (nHook != WH_CBT || !pfnHook) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    const auto hHook = static_cast<HHOOK>(Table().Add(std::make_unique<Hook>(Hook{pfnHook, ++g_set})));
    Chain().push_back(hHook);
    return hHook;
}

BOOL UnhookWindowsHookEx(HHOOK hHook) {
    std::erase(Chain(), hHook);
    return Table().Remove(hHook) != nullptr;
}

/// The handle says nothing: the hook that runs now is the one to go on from.
LRESULT CallNextHookEx(HHOOK, int nCode, WPARAM wParam, LPARAM lParam) {
    return CallHookBefore(g_running, nCode, wParam, lParam);
}
