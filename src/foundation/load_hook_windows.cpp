#include "library.h"

extern "C" BOOL APIENTRY DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID) {
    if (dwReason == DLL_PROCESS_ATTACH) return AttachLibrary(hInstance);
    if (dwReason == DLL_PROCESS_DETACH) DetachLibrary();
    return TRUE;
}
