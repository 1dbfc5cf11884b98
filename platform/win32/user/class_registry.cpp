#include <strings.h>

#include <algorithm>
#include <vector>

#include "user/menu_popup.h"
#include "user/text_copy.h"
#include "user/window.h"
#include "user/window_class.h"

namespace tavlon::win32 {

namespace {

constexpr ATOM kFirstAtom = 0xC000;
constexpr int kMaxExtraBytes = 4096;
constexpr std::size_t kMaxNameLength = 255;

std::vector<ClassRef>& Classes() {
    static std::vector<ClassRef> classes;
    if (classes.empty()) classes.push_back(MakeMenuClass());
    return classes;
}

bool NameMatches(const WindowClass& cls, LPCSTR name) {
    if (IS_INTRESOURCE(name)) return cls.atom == LOWORD(reinterpret_cast<ULONG_PTR>(name));
    return strcasecmp(cls.name.c_str(), name) == 0;
}

/// Zero stands for the program itself, whichever way its handle is written.
HINSTANCE Normalised(HINSTANCE instance) { return instance ? instance : GetModuleHandleA(nullptr); }

bool BelongsTo(const WindowClass& cls, HINSTANCE instance) {
    return Normalised(cls.instance) == Normalised(instance);
}

bool IsGlobal(const WindowClass& cls) { return (cls.style & CS_GLOBALCLASS) != 0; }

/// The same name keeps its atom across registrations.
ATOM AtomOf(const std::string& name) {
    static std::vector<std::string> names;
    const auto same = [&name](const std::string& known) {
        return strcasecmp(known.c_str(), name.c_str()) == 0;
    };
    auto found = std::find_if(names.begin(), names.end(), same);
    if (found == names.end()) {
        if (names.size() >= 0x3000) return 0;
        found = names.insert(names.end(), name);
    }
    return static_cast<ATOM>(kFirstAtom + (found - names.begin()));
}

ClassRef FindOwn(LPCSTR name, HINSTANCE instance) {
    for (const ClassRef& cls : Classes())
        if (NameMatches(*cls, name) && BelongsTo(*cls, instance)) return cls;
    return nullptr;
}

ClassRef MakeClass(const WNDCLASSA& from) {
    auto cls = std::make_shared<WindowClass>();
    cls->name = from.lpszClassName;
    cls->atom = AtomOf(cls->name);
    cls->style = from.style;
    cls->procedure = from.lpfnWndProc;
    cls->classExtra = from.cbClsExtra;
    cls->windowExtra = from.cbWndExtra;
    cls->instance = from.hInstance;
    cls->icon = from.hIcon;
    cls->cursor = from.hCursor;
    cls->background = from.hbrBackground;
    if (from.lpszMenuName && !IS_INTRESOURCE(from.lpszMenuName)) cls->menuName = from.lpszMenuName;
    return cls;
}

bool ValidExtra(int bytes) { return bytes >= 0 && bytes <= kMaxExtraBytes; }

bool ValidClass(const WNDCLASSA* cls) {
    return cls && cls->lpszClassName && !IS_INTRESOURCE(cls->lpszClassName) && *cls->lpszClassName &&
           std::string_view(cls->lpszClassName).size() <= kMaxNameLength && ValidExtra(cls->cbClsExtra) &&
           ValidExtra(cls->cbWndExtra);
}

template <class Result>
Result Refuse(DWORD error) {
    SetLastError(error);
    return Result{};
}

void Describe(const WindowClass& cls, LPCSTR name, WNDCLASSA& out) {
    out = {};
    out.style = cls.style;
    out.lpfnWndProc = cls.procedure;
    out.cbClsExtra = cls.classExtra;
    out.cbWndExtra = cls.windowExtra;
    out.hInstance = cls.instance;
    out.hIcon = cls.icon;
    out.hCursor = cls.cursor;
    out.hbrBackground = cls.background;
    out.lpszMenuName = cls.menuName.empty() ? nullptr : cls.menuName.c_str();
    out.lpszClassName = name;
}

}  // namespace

ClassRef FindClass(LPCSTR name, HINSTANCE instance) {
    if (!name) return nullptr;
    if (ClassRef own = FindOwn(name, instance)) return own;
    for (const ClassRef& cls : Classes())
        if (IsGlobal(*cls) && NameMatches(*cls, name)) return cls;
    return nullptr;
}

}  // namespace tavlon::win32

using namespace tavlon::win32;

ATOM RegisterClassA(const WNDCLASSA* pClass) {
    if (!ValidClass(pClass)) return Refuse<ATOM>(ERROR_INVALID_PARAMETER);
    if (FindOwn(pClass->lpszClassName, pClass->hInstance)) return Refuse<ATOM>(ERROR_CLASS_ALREADY_EXISTS);
    ClassRef cls = MakeClass(*pClass);
    if (!cls->atom) return Refuse<ATOM>(ERROR_NOT_ENOUGH_MEMORY);
    Classes().push_back(cls);
    return cls->atom;
}

BOOL UnregisterClassA(LPCSTR pszClass, HINSTANCE hInstance) {
    const ClassRef cls = pszClass ? FindOwn(pszClass, hInstance) : nullptr;
    if (!cls || cls == Classes().front()) return Refuse<BOOL>(ERROR_CLASS_DOES_NOT_EXIST);
    if (cls->windows > 0) return Refuse<BOOL>(ERROR_CLASS_HAS_WINDOWS);
    std::erase(Classes(), cls);
    return TRUE;
}

BOOL GetClassInfoA(HINSTANCE hInstance, LPCSTR pszClass, WNDCLASSA* pClass) {
    const ClassRef cls = FindClass(pszClass, hInstance);
    if (!cls) return Refuse<BOOL>(ERROR_CLASS_DOES_NOT_EXIST);
    if (pClass) Describe(*cls, pszClass, *pClass);
    return cls->atom;
}

int GetClassNameA(HWND hWnd, LPSTR pszName, int cchName) {
    const Window* window = WindowOf(hWnd);
    return window ? CopyText(window->cls->name, pszName, cchName) : 0;
}

ULONG_PTR GetClassLongPtrA(HWND hWnd, int nIndex) {
    const Window* window = WindowOf(hWnd);
    if (!window) return 0;
    switch (nIndex) {
        case GCL_STYLE:
            return window->cls->style;
        case GCLP_HCURSOR:
            return reinterpret_cast<ULONG_PTR>(window->cls->cursor);
        case GCLP_HBRBACKGROUND:
            return reinterpret_cast<ULONG_PTR>(window->cls->background);
        case GCLP_WNDPROC:
            return reinterpret_cast<ULONG_PTR>(window->cls->procedure);
        default:
            return Refuse<ULONG_PTR>(ERROR_INVALID_INDEX);
    }
}
