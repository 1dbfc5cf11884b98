#pragma once

#include <windows.h>

#include "export.h"

class CObject;

/// What is known of a class at run time: its name, its size and its base.
struct TAVLON_FRAMEWORK_API CRuntimeClass {
    LPCSTR m_lpszClassName;
    int m_nObjectSize;
    CRuntimeClass* m_pBaseClass;  ///< Null for CObject only.

    /// TRUE for the class itself and for each of its bases; a null class is nobody's base.
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;
};

/// Root of the framework's classes.
class TAVLON_FRAMEWORK_API CObject {
public:
    virtual CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject() = default;

    BOOL IsKindOf(const CRuntimeClass* pClass) const;
    static CRuntimeClass* GetThisClass();

protected:
    CObject() = default;

private:
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
};

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

/// In the class: gives it run-time class information of its own.
#define DECLARE_DYNAMIC(class_name)                  \
public:                                              \
    CRuntimeClass* GetRuntimeClass() const override; \
    static CRuntimeClass* GetThisClass();

/// In one source file: defines what DECLARE_DYNAMIC declared.
#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                  \
    CRuntimeClass* class_name::GetThisClass() {                                         \
        static CRuntimeClass s_class{#class_name, static_cast<int>(sizeof(class_name)), \
                                     RUNTIME_CLASS(base_class_name)};                   \
        return &s_class;                                                                \
    }                                                                                   \
    CRuntimeClass* class_name::GetRuntimeClass() const { return GetThisClass(); }
