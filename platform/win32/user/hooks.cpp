#include "user/hooks.h"

#include <algorithm>
#include <vector>

#include "kernel/handle_table.h"

namespace tavlon::win32 {

namespace {

struct Hook {
    HOOKPROC procedure;
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

LRESULT CallHook(HHOOK hHook, int code, WPARAM wParam, LPARAM lParam) {
    const Hook* hook = Table().Get(hHook);
    return hook ? hook->procedure(code, wParam, lParam) : 0;
}

}  // namespace

LRESULT AskCreationHooks(HWND hWnd, CBT_CREATEWNDA& creation) {
    if (Chain().empty()) return 0;
    return CallHook(Chain().back(), HCBT_CREATEWND, reinterpret_cast<WPARAM>(hWnd),
                    reinterpret_cast<LPARAM>(&creation));
}

}  // namespace tavlon::win32

using namespace tavlon::win32;

HHOOK SetWindowsHookExA(int nHook, HOOKPROC pfnHook, HINSTANCE, DWORD) {
    if (nHook != WH_CBT || !pfnHook) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    const auto hHook = static_cast<HHOOK>(Table().Add(std::make_unique<Hook>(Hook{pfnHook})));
    Chain().push_back(hHook);
    return hHook;
}

BOOL UnhookWindowsHookEx(HHOOK hHook) {
    std::erase(Chain(), hHook);
    return Table().Remove(hHook) != nullptr;
}

LRESULT CallNextHookEx(HHOOK hHook, int nCode, WPARAM wParam, LPARAM lParam) {
    const auto& chain = Chain();
    const auto found = std::find(chain.begin(), chain.end(), hHook);
    if (found == chain.end() || found == chain.begin()) return 0;
    return CallHook(*(found - 1), nCode, wParam, lParam);
}
