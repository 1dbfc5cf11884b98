#pragma once

#include <tavlon/framework.h>

/// The library's own module: its bitmaps and its cursor are loaded from here. Null until the library is
/// attached.
HINSTANCE LibraryInstance();

/// Joins the host's resource chain as an extension module and keeps the module handle; FALSE when that fails.
/// Called once by the load hook.
BOOL AttachLibrary(HINSTANCE hInstance);

/// Undoes AttachLibrary, makes the program the current resource module if the library was, and frees what the
/// library shares between controls. Called once by the load hook.
void DetachLibrary();
