#pragma once

#include "object.h"

/// Owner of one drawing object of the system, deleted with it. FromHandle gives a temporary object instead,
/// which owns nothing and lives until the message loop is idle. An object that gets a new handle deletes its
/// old one.
class TAVLON_FRAMEWORK_API CGdiObject : public CObject {
    DECLARE_DYNAMIC(CGdiObject)
public:
    CGdiObject() = default;
    ~CGdiObject() override;

    HGDIOBJ m_hObject = nullptr;

    operator HGDIOBJ() const { return m_hObject; }
    HGDIOBJ GetSafeHandle() const { return m_hObject; }
    static CGdiObject* FromHandle(HGDIOBJ hObject);

    BOOL Attach(HGDIOBJ hObject);  ///< FALSE, and no change, for a null handle.
    HGDIOBJ Detach();
    BOOL DeleteObject();
    int GetObject(int nCount, LPVOID pObject) const;
    BOOL CreateStockObject(int nIndex);
};
