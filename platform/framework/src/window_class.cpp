#include "tavlon/framework/window_class.h"

#include <mutex>
#include <set>
#include <string>
#include <vector>

#include "class_registry.h"
#include "tavlon/framework/exceptions.h"
#include "tavlon/framework/module.h"
#include "tavlon/framework/text.h"

namespace {

struct RegisteredClass {
    std::string strName;
    HINSTANCE hInstance;
};

/// Never destroyed, so that a library that leaves late still finds it.
struct Registry {
    std::mutex lock;
    std::vector<RegisteredClass> classes;
    std::set<std::string> madeNames;  ///< Names given out by AfxRegisterWndClass.
};

Registry& TheRegistry() {
    static Registry& registry = *new Registry;
    return registry;
}

LPCSTR KeepName(const CString& strName) {
    const std::lock_guard guard(TheRegistry().lock);
    return TheRegistry().madeNames.insert(strName.GetString()).first->c_str();
}

bool IsAtom(LPCSTR pszClass) { return reinterpret_cast<UINT_PTR>(pszClass) <= 0xFFFF; }

}  // namespace

BOOL AfxRegisterClass(WNDCLASS* pWndClass) {
    if (!pWndClass || !pWndClass->lpszClassName) return FALSE;
    WNDCLASS present = {};
    if (::GetClassInfo(pWndClass->hInstance, pWndClass->lpszClassName, &present)) return TRUE;
    if (!::RegisterClass(pWndClass)) return FALSE;
    const std::lock_guard guard(TheRegistry().lock);
    if (!IsAtom(pWndClass->lpszClassName))
        TheRegistry().classes.push_back({pWndClass->lpszClassName, pWndClass->hInstance});
    return TRUE;
}

LPCSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon) {
    WNDCLASS wc = {};
    wc.style = nClassStyle, wc.lpfnWndProc = ::DefWindowProc, wc.hInstance = AfxGetInstanceHandle();
    wc.hCursor = hCursor, wc.hbrBackground = hbrBackground, wc.hIcon = hIcon;
    CString strName;
    strName.Format("TavlonWnd:%p:%x:%p:%p:%p", static_cast<void*>(wc.hInstance), nClassStyle,
                   static_cast<void*>(hCursor), static_cast<void*>(hbrBackground), static_cast<void*>(hIcon));
    wc.lpszClassName = KeepName(strName);
    if (!AfxRegisterClass(&wc)) AfxThrowResourceException();
    return wc.lpszClassName;
}

void UnregisterWindowClasses(HINSTANCE hInstance) {
    const std::lock_guard guard(TheRegistry().lock);
    std::erase_if(TheRegistry().classes, [hInstance](const RegisteredClass& entry) {
        return entry.hInstance == hInstance && ::UnregisterClass(entry.strName.c_str(), hInstance);
    });
}
