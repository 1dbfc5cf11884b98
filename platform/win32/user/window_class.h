/// Registered window classes.
#pragma once

#include <windows.h>

#include <memory>
#include <string>

namespace tavlon::win32 {

struct WindowClass {
    std::string name, menuName;
    ATOM atom = 0;
    UINT style = 0;
    WNDPROC procedure = nullptr;
    int classExtra = 0, windowExtra = 0;
    HINSTANCE instance = nullptr;
    HICON icon = nullptr;
    HCURSOR cursor = nullptr;
    HBRUSH background = nullptr;
    int windows = 0;  ///< Windows alive; a class with windows cannot be unregistered.
};
using ClassRef = std::shared_ptr<WindowClass>;

/// By name (any letter case) or atom (MAKEINTRESOURCE form); the instance's own classes come before the
/// global and system ones. Null when there is none.
ClassRef FindClass(LPCSTR name, HINSTANCE instance);

}  // namespace tavlon::win32
