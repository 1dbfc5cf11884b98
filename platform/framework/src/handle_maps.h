#pragma once

#include <memory>
#include <unordered_map>

#include "tavlon/framework/menu.h"
#include "tavlon/framework/window.h"

/// Which object owns a handle. A handle that two objects claim belongs to the later one.
template <class Handle, class Object>
class PermanentMap {
public:
    Object* Find(Handle handle) const {
        const auto it = m_owners.find(handle);
        return it == m_owners.end() ? nullptr : it->second;
    }
    void Add(Handle handle, Object* pObject) { m_owners[handle] = pObject; }
    void Remove(Handle handle, const Object* pObject) {
        const auto it = m_owners.find(handle);
        if (it != m_owners.end() && it->second == pObject) m_owners.erase(it);
    }

private:
    std::unordered_map<Handle, Object*> m_owners;
};

inline void SetHandle(CGdiObject& object, HGDIOBJ hObject) { object.m_hObject = hObject; }
inline void SetHandle(CDC& dc, HDC hDC) { dc.m_hDC = dc.m_hAttribDC = hDC; }
inline void SetHandle(CMenu& menu, HMENU hMenu) { menu.m_hMenu = hMenu; }
inline void SetHandle(CWnd& wnd, HWND hWnd) { wnd.m_hWnd = hWnd; }

/// Objects that stand for handles which no object owns, until they are freed; they own nothing themselves.
template <class Handle, class Object>
class TemporaryMap {
public:
    TemporaryMap() = default;
    TemporaryMap(const TemporaryMap&) = delete;
    TemporaryMap& operator=(const TemporaryMap&) = delete;
    ~TemporaryMap() { Free(); }

    Object* Get(Handle handle) {
        auto& pObject = m_objects[handle];
        if (!pObject) pObject = std::make_unique<Object>();
        SetHandle(*pObject, handle);  // again: the holder may have detached it
        return pObject.get();
    }
    void Free() {
        for (auto& [handle, pObject] : m_objects) SetHandle(*pObject, nullptr);
        m_objects.clear();
    }
    size_t Size() const { return m_objects.size(); }

private:
    std::unordered_map<Handle, std::unique_ptr<Object>> m_objects;
};
