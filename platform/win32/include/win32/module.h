/// How a native library gives its resources to the layer; on Windows the module loader does this.
#pragma once

#include "win32/base.h"

/// A compiled resource file (.res) held in memory for as long as the module is registered.
struct ModuleImage {
    const char* pszName;  ///< Base name, for GetModuleHandleA.
    const void* pRes;     ///< The file's bytes.
    std::size_t cbRes;
};

/// The handle under which FindResourceA, LoadBitmapA and their like see the image. The image is not copied.
TAVLON_PLATFORM_API HMODULE RegisterModule(const ModuleImage* pImage);
TAVLON_PLATFORM_API void UnregisterModule(HMODULE hModule);
