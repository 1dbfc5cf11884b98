#include <windows.h>

#include <algorithm>

#include "kernel/module_table.h"

namespace tavlon::win32 {

Bytes FindResourceBytes(HMODULE hModule, LPCSTR pszName, LPCSTR pszType) {
    const ResourceEntry* pEntry = ResourceOf(FindResourceA(hModule, pszName, pszType));
    return pEntry ? pEntry->data : Bytes{};
}

namespace {

/// The error that tells apart a module without resources, a type it has none of, and a name.
DWORD WhyNotFound(const Module& module, const ResourceId& type) {
    if (module.resources.empty()) return ERROR_RESOURCE_DATA_NOT_FOUND;
    const bool hasType = std::any_of(module.resources.begin(), module.resources.end(),
                                     [&](const ResourceEntry& entry) { return entry.type == type; });
    return hasType ? ERROR_RESOURCE_NAME_NOT_FOUND : ERROR_RESOURCE_TYPE_NOT_FOUND;
}

}  // namespace
}  // namespace tavlon::win32

using namespace tavlon::win32;

extern "C" {

HRSRC FindResourceA(HMODULE hModule, LPCSTR pszName, LPCSTR pszType) {
    const Module* pModule = ModuleOf(hModule);
    if (!pModule) {
        SetLastError(ERROR_RESOURCE_DATA_NOT_FOUND);
        return nullptr;
    }
    const ResourceId type = ResourceIdOf(pszType), name = ResourceIdOf(pszName);
    for (std::size_t i = 0; i < pModule->resources.size(); ++i)
        if (pModule->resources[i].type == type && pModule->resources[i].name == name)
            return pModule->handles[i];
    SetLastError(WhyNotFound(*pModule, type));
    return nullptr;
}

HGLOBAL LoadResource(HMODULE hModule, HRSRC hResource) {
    return ModuleOf(hModule) && ResourceOf(hResource) ? hResource : nullptr;
}

LPVOID LockResource(HGLOBAL hData) {
    const ResourceEntry* pEntry = ResourceOf(static_cast<HRSRC>(hData));
    return pEntry ? const_cast<std::uint8_t*>(pEntry->data.data()) : nullptr;
}

DWORD SizeofResource(HMODULE hModule, HRSRC hResource) {
    const ResourceEntry* pEntry = ModuleOf(hModule) ? ResourceOf(hResource) : nullptr;
    return pEntry ? static_cast<DWORD>(pEntry->data.size()) : 0;
}

}  // extern "C"
