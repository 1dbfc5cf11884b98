#pragma once

#include "dc.h"

class CWnd;

/// Painting of one WM_PAINT: begun by the constructor, ended by the destructor. The constructors of these
/// three raise CResourceException when the system gives no context.
class TAVLON_FRAMEWORK_API CPaintDC : public CDC {
    DECLARE_DYNAMIC(CPaintDC)
public:
    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps = {};

protected:
    HWND m_hWnd;
};

/// The client area of a window; null stands for the screen.
class TAVLON_FRAMEWORK_API CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)
public:
    explicit CClientDC(CWnd* pWnd);
    ~CClientDC() override;

protected:
    HWND m_hWnd;
};

/// A whole window, with its frame; null stands for the screen.
class TAVLON_FRAMEWORK_API CWindowDC : public CDC {
    DECLARE_DYNAMIC(CWindowDC)
public:
    explicit CWindowDC(CWnd* pWnd);
    ~CWindowDC() override;

protected:
    HWND m_hWnd;
};
