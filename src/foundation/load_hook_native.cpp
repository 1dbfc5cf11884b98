#include <module_image.h>

#include "library.h"

namespace {
/// An object, not a pair of constructor functions: objects of the libraries below are destroyed after this
/// one.
class LoadHook {
public:
    LoadHook() : m_hModule(RegisterModule(&TavlonModuleImage())) { AttachLibrary(m_hModule); }
    ~LoadHook() {
        DetachLibrary();
        UnregisterModule(m_hModule);
    }
    LoadHook(const LoadHook&) = delete;
    LoadHook& operator=(const LoadHook&) = delete;

private:
    HMODULE m_hModule;
};

const LoadHook s_hook;
}  // namespace
