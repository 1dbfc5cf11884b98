#pragma once

#include <windows.h>

#include "export.h"

/// Registers a window class whose name says what it is made of, once; gives that name, which stays valid
/// while the program runs. Raises CResourceException when the system refuses.
TAVLON_FRAMEWORK_API LPCSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr,
                                                HBRUSH hbrBackground = nullptr, HICON hIcon = nullptr);

/// TRUE when the class is registered now or was already. Unregistered when its module leaves the program.
TAVLON_FRAMEWORK_API BOOL AfxRegisterClass(WNDCLASS* pWndClass);
