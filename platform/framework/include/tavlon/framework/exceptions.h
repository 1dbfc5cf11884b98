#pragma once

#include "object.h"

/// Exceptions are thrown as pointers; who catches one ends its life with Delete().
class TAVLON_FRAMEWORK_API CException : public CObject {
    DECLARE_DYNAMIC(CException)
public:
    CException() = default;
    void Delete() { delete this; }

protected:
    ~CException() override = default;
};

/// A resource could not be found, loaded or made.
class TAVLON_FRAMEWORK_API CResourceException : public CException {
    DECLARE_DYNAMIC(CResourceException)
};

/// An argument was outside what the call accepts, for example an index outside an array.
class TAVLON_FRAMEWORK_API CInvalidArgException : public CException {
    DECLARE_DYNAMIC(CInvalidArgException)
};

/// Memory ran out, or a size was asked for that no memory can hold.
class TAVLON_FRAMEWORK_API CMemoryException : public CException {
    DECLARE_DYNAMIC(CMemoryException)
};

[[noreturn]] TAVLON_FRAMEWORK_API void AfxThrowResourceException();
[[noreturn]] TAVLON_FRAMEWORK_API void AfxThrowInvalidArgException();
[[noreturn]] TAVLON_FRAMEWORK_API void AfxThrowMemoryException();
