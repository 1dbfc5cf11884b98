/// The library's compiled resources where the system's module loader does not find them by itself.
#pragma once

#include <win32/module.h>

/// The library's name and resources, for RegisterModule when the library is loaded. Valid as long as the
/// library.
const ModuleImage& TavlonModuleImage();
