#include "library.h"

#include "toolkit.h"

namespace {
AFX_EXTENSION_MODULE s_module;
HINSTANCE s_hInstance = nullptr;
}  // namespace

HINSTANCE LibraryInstance() { return s_hInstance; }

BOOL AttachLibrary(HINSTANCE hInstance) {
    if (!AfxInitExtensionModule(s_module, hInstance)) return FALSE;
    new CDynLinkLibrary(s_module);  // owned by the framework's module state from here on
    s_hInstance = hInstance;
    return TRUE;
}

void DetachLibrary() {
    ReleaseKaiTiFont();
    AfxTermExtensionModule(s_module);
    // A control that loads its bitmaps makes the library's module the current one and leaves it so.
    if (AfxGetResourceHandle() == s_hInstance) AfxSetResourceHandle(AfxGetInstanceHandle());
    s_hInstance = nullptr;
}
