#include <dlfcn.h>
#include <strings.h>
#include <unistd.h>
#include <windows.h>

#include <cstring>

#include "kernel/code_page.h"
#include "kernel/handle_table.h"
#include "kernel/module_table.h"

namespace tavlon::win32 {
namespace {

constexpr DWORD kErrorModuleNotFound = 126;

struct LoadedResource {
    ResourceEntry entry;
};

// Never destroyed: a library may unregister itself after the statics of this one are gone.
HandleTable<Module, kTagModule>& Modules() {
    static auto& modules = *new HandleTable<Module, kTagModule>;
    return modules;
}

HandleTable<LoadedResource, kTagResource>& Resources() {
    static auto& resources = *new HandleTable<LoadedResource, kTagResource>;
    return resources;
}

HMODULE HostModule() {
    static const auto hHost = static_cast<HMODULE>(Modules().Add(std::make_unique<Module>()));
    return hHost;
}

std::string_view WithoutExtension(std::string_view name) {
    const std::size_t dot = name.rfind('.');
    return dot == std::string_view::npos ? name : name.substr(0, dot);
}

bool SameName(std::string_view a, std::string_view b) {
    return a.size() == b.size() && strncasecmp(a.data(), b.data(), a.size()) == 0;
}

/// A name without an extension means the library of that name.
bool Names(std::string_view asked, std::string_view module) {
    const bool bare = asked.find('.') == std::string_view::npos;
    return SameName(asked, bare ? WithoutExtension(module) : module);
}

std::string HostFileName() {
    char path[4096];
    const ssize_t count = readlink("/proc/self/exe", path, sizeof path);
    return count > 0 ? std::string(path, static_cast<std::size_t>(count)) : std::string();
}

std::string FileNameOf(const Module& module) {
    if (!module.address) return HostFileName();
    Dl_info info{};
    if (dladdr(module.address, &info) && info.dli_fname && *info.dli_fname) return info.dli_fname;
    return module.name;
}

void AddResourceHandles(Module& module) {
    for (const ResourceEntry& entry : module.resources)
        module.handles.push_back(
            static_cast<HRSRC>(Resources().Add(std::make_unique<LoadedResource>(LoadedResource{entry}))));
}

}  // namespace

Module* ModuleOf(HMODULE hModule) { return Modules().Get(hModule ? hModule : HostModule()); }

const ResourceEntry* ResourceOf(HRSRC hResource) {
    const LoadedResource* resource = Resources().Get(hResource);
    return resource ? &resource->entry : nullptr;
}

}  // namespace tavlon::win32

using namespace tavlon::win32;

HMODULE RegisterModule(const ModuleImage* pImage) {
    HostModule();
    if (!pImage || !pImage->pRes || !pImage->pszName) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    auto resources = ParseResourceFile({static_cast<const std::uint8_t*>(pImage->pRes), pImage->cbRes});
    if (!resources) {
        SetLastError(ERROR_RESOURCE_DATA_NOT_FOUND);
        return nullptr;
    }
    auto module = std::make_unique<Module>(Module{pImage->pszName, pImage->pRes, std::move(*resources), {}});
    AddResourceHandles(*module);
    return static_cast<HMODULE>(Modules().Add(std::move(module)));
}

void UnregisterModule(HMODULE hModule) {
    if (hModule == HostModule()) return;
    const std::unique_ptr<Module> module = Modules().Remove(hModule);
    if (!module) return;
    for (const HRSRC hResource : module->handles) Resources().Remove(hResource);
}

extern "C" {

HMODULE GetModuleHandleA(LPCSTR pszName) {
    if (!pszName) return HostModule();
    HMODULE hFound = nullptr;
    Modules().ForEach([&](void* handle, const Module& module) {
        if (!hFound && module.address && Names(pszName, module.name)) hFound = static_cast<HMODULE>(handle);
    });
    if (!hFound) SetLastError(kErrorModuleNotFound);
    return hFound;
}

DWORD GetModuleFileNameA(HMODULE hModule, LPSTR pszFile, DWORD cchFile) {
    const Module* pModule = ModuleOf(hModule);
    if (!pModule) {
        SetLastError(kErrorModuleNotFound);
        return 0;
    }
    if (!pszFile || cchFile == 0) {
        SetLastError(ERROR_INSUFFICIENT_BUFFER);
        return 0;
    }
    const std::string name = EncodeCodePage936(DecodeUtf8Text(FileNameOf(*pModule)));
    const bool fits = name.size() < cchFile;
    const std::size_t count = fits ? name.size() : cchFile - 1;
    std::memcpy(pszFile, name.data(), count);
    pszFile[count] = 0;
    SetLastError(fits ? ERROR_SUCCESS : ERROR_INSUFFICIENT_BUFFER);
    return fits ? static_cast<DWORD>(count) : cchFile;
}

}  // extern "C"
