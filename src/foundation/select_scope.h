#pragma once

#include <tavlon/framework.h>

/// Selects a pen, brush, font or bitmap and puts the one before it back on every way out. Declare it after
/// the object.
template <class Object>
class SelectScope {
public:
    SelectScope(CDC& dc, Object& object) : m_dc(dc), m_pOld(dc.SelectObject(&object)) {}
    ~SelectScope() {
        if (m_pOld != nullptr) m_dc.SelectObject(m_pOld);
    }
    SelectScope(const SelectScope&) = delete;
    SelectScope& operator=(const SelectScope&) = delete;

private:
    CDC& m_dc;
    Object* m_pOld;
};
