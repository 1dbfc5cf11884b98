#pragma once

#include "object.h"

class CWinApp;

/// What the program's modules share: its instance, where resources come from, its CWinApp.
struct AFX_MODULE_STATE {
    HINSTANCE m_hCurrentInstanceHandle = nullptr;
    HINSTANCE m_hCurrentResourceHandle = nullptr;
    CWinApp* m_pCurrentWinApp = nullptr;
};

/// A library that joined the program. One static object in the library.
struct AFX_EXTENSION_MODULE {
    BOOL bInitialized = FALSE;
    HMODULE hModule = nullptr;
    HMODULE hResource = nullptr;
};

/// One link of the resource chain, made with `new` while the library is initialised; AfxTermExtensionModule
/// deletes it.
class TAVLON_FRAMEWORK_API CDynLinkLibrary : public CObject {
    DECLARE_DYNAMIC(CDynLinkLibrary)
public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state);
    ~CDynLinkLibrary() override;

    HMODULE m_hModule;
    HMODULE m_hResource;
};

TAVLON_FRAMEWORK_API AFX_MODULE_STATE* AfxGetModuleState();
TAVLON_FRAMEWORK_API HINSTANCE AfxGetInstanceHandle();
TAVLON_FRAMEWORK_API HINSTANCE AfxGetResourceHandle();
TAVLON_FRAMEWORK_API void AfxSetResourceHandle(HINSTANCE hInstResource);

/// The module that has the resource: the current resource module first, then the program, then the chain,
/// newest link first. The current resource module when none has it.
TAVLON_FRAMEWORK_API HINSTANCE AfxFindResourceHandle(LPCSTR pszName, LPCSTR pszType);

TAVLON_FRAMEWORK_API BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);
/// Takes the library's links out of the chain and unregisters the window classes of its instance.
TAVLON_FRAMEWORK_API void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);
