#pragma once

#include <exception>
#include <tuple>

#include "handle_maps.h"

class CWinThread;

/// One CWnd::CreateEx in progress.
struct Creation {
    explicit Creation(CWnd* pNew) : pWnd(pNew) {}

    CWnd* pWnd;
    HWND hWnd = nullptr;  ///< Set once the hook has seen the window.
    Creation* pOuter = nullptr;
};

/// What the framework keeps for each thread.
struct ThreadState {
    PermanentMap<HGDIOBJ, CGdiObject> gdiOwners;
    PermanentMap<HDC, CDC> dcOwners;
    PermanentMap<HMENU, CMenu> menuOwners;
    PermanentMap<HWND, CWnd> wndOwners;

    std::tuple<TemporaryMap<HGDIOBJ, CGdiObject>, TemporaryMap<HGDIOBJ, CPen>, TemporaryMap<HGDIOBJ, CBrush>,
               TemporaryMap<HGDIOBJ, CFont>, TemporaryMap<HGDIOBJ, CBitmap>, TemporaryMap<HGDIOBJ, CRgn>,
               TemporaryMap<HDC, CDC>, TemporaryMap<HMENU, CMenu>, TemporaryMap<HWND, CWnd>>
        temporaries;

    MSG msgLastSent = {};  ///< The message that the innermost running handler got.
    int nHandlers = 0;     ///< Handlers running, one inside the other.
    Creation* pCreation = nullptr;
    std::exception_ptr heldError;
    HHOOK hHook = nullptr;
    HMENU hTrackingMenu = nullptr;
    CWinThread* pThread = nullptr;

    template <class Object, class Handle>
    Object* Temporary(Handle handle) {
        return std::get<TemporaryMap<Handle, Object>>(temporaries).Get(handle);
    }
    void FreeTemporaries();
    size_t TemporaryCount() const;
};

ThreadState& GetThreadState();
/// Null before the first use and after the thread's end, when objects that outlive it are still destroyed.
ThreadState* FindThreadState();
