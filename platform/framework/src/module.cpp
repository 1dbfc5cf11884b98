#include "tavlon/framework/module.h"

#include <algorithm>
#include <mutex>
#include <vector>

#include "class_registry.h"

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CObject)

namespace {

/// Never destroyed: libraries leave the chain after this one's own statics are gone.
struct ModuleChain {
    std::mutex lock;
    std::vector<CDynLinkLibrary*> links;  ///< Oldest first.
    AFX_MODULE_STATE state{::GetModuleHandle(nullptr), ::GetModuleHandle(nullptr), nullptr};
};

ModuleChain& Chain() {
    static ModuleChain& chain = *new ModuleChain;
    return chain;
}

/// The links of one library, or of all.
std::vector<CDynLinkLibrary*> LinksOf(HMODULE hModule) {
    const std::lock_guard guard(Chain().lock);
    std::vector<CDynLinkLibrary*> links = Chain().links;
    std::erase_if(links, [hModule](const CDynLinkLibrary* p) { return p->m_hModule != hModule; });
    return links;
}

bool HasResource(HINSTANCE hInstance, LPCSTR pszName, LPCSTR pszType) {
    return ::FindResource(hInstance, pszName, pszType) != nullptr;
}

}  // namespace

AFX_MODULE_STATE* AfxGetModuleState() { return &Chain().state; }
HINSTANCE AfxGetInstanceHandle() { return Chain().state.m_hCurrentInstanceHandle; }
HINSTANCE AfxGetResourceHandle() { return Chain().state.m_hCurrentResourceHandle; }
void AfxSetResourceHandle(HINSTANCE hInstResource) { Chain().state.m_hCurrentResourceHandle = hInstResource; }

HINSTANCE AfxFindResourceHandle(LPCSTR pszName, LPCSTR pszType) {
    const HINSTANCE hCurrent = AfxGetResourceHandle(), hProgram = AfxGetInstanceHandle();
    if (!pszName || !pszType || HasResource(hCurrent, pszName, pszType)) return hCurrent;
    // A library may have made its own module the current one: the program still comes before the libraries.
    if (HasResource(hProgram, pszName, pszType)) return hProgram;
    const std::lock_guard guard(Chain().lock);
    const auto& links = Chain().links;
    const auto it = std::find_if(links.rbegin(), links.rend(), [=](const CDynLinkLibrary* p) {
        return p->m_hResource && HasResource(p->m_hResource, pszName, pszType);
    });
    return it == links.rend() ? hCurrent : (*it)->m_hResource;
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state)
    : m_hModule(state.hModule), m_hResource(state.hResource) {
    const std::lock_guard guard(Chain().lock);
    Chain().links.push_back(this);
}

CDynLinkLibrary::~CDynLinkLibrary() {
    const std::lock_guard guard(Chain().lock);
    std::erase(Chain().links, this);
}

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule) {
    if (state.bInitialized) return TRUE;
    state.bInitialized = TRUE;
    state.hModule = hModule;
    if (!state.hResource) state.hResource = hModule;  // the library may have named another one
    return TRUE;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL) {
    if (!state.bInitialized) return;
    state.bInitialized = FALSE;
    for (CDynLinkLibrary* pLink : LinksOf(state.hModule)) delete pLink;
    UnregisterWindowClasses(state.hModule);
}
