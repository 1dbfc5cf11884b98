#include "tavlon/framework/object.h"

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const {
    const CRuntimeClass* pClass = this;
    while (pClass && pClass != pBaseClass) pClass = pClass->m_pBaseClass;
    return pClass != nullptr;
}

CRuntimeClass* CObject::GetThisClass() {
    static CRuntimeClass s_class{"CObject", static_cast<int>(sizeof(CObject)), nullptr};
    return &s_class;
}

CRuntimeClass* CObject::GetRuntimeClass() const { return GetThisClass(); }

BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const { return GetRuntimeClass()->IsDerivedFrom(pClass); }
