#pragma once

#include "thread_state.h"

/// The object that owns the handle when it is of the class asked for, else a temporary one.
template <class Object>
Object* GdiFromHandle(HGDIOBJ hObject) {
    if (!hObject) return nullptr;
    ThreadState& state = GetThreadState();
    if (auto* pOwner = dynamic_cast<Object*>(state.gdiOwners.Find(hObject))) return pOwner;
    return state.Temporary<Object>(hObject);
}

/// The same for a handle of any kind: the temporary object has the class that fits the handle.
CGdiObject* GdiFromAnyHandle(HGDIOBJ hObject);
