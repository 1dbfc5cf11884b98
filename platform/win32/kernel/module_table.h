/// The modules that the layer knows: the host program and every registered library.
#pragma once

#include <string>
#include <vector>

#include "kernel/resource_file.h"

namespace tavlon::win32 {

struct Module {
    std::string name;               ///< Base name; empty for the host program.
    const void* address = nullptr;  ///< Something inside the library's image.
    std::vector<ResourceEntry> resources;
    std::vector<HRSRC> handles;  ///< One a resource, in the same order.
};

/// Null stands for the host program. Null result: no such module.
Module* ModuleOf(HMODULE hModule);
/// The resource's entry, or null for a handle that is not alive.
const ResourceEntry* ResourceOf(HRSRC hResource);
/// The bytes of a resource by type and name; empty, with the error set, when there is none.
Bytes FindResourceBytes(HMODULE hModule, LPCSTR pszName, LPCSTR pszType);

}  // namespace tavlon::win32
