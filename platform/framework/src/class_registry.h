#pragma once

#include <windows.h>

/// Unregisters the window classes that were registered through the framework for this instance.
void UnregisterWindowClasses(HINSTANCE hInstance);
