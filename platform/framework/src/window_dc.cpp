#include "tavlon/framework/window_dc.h"

#include "tavlon/framework/exceptions.h"
#include "tavlon/framework/window.h"

IMPLEMENT_DYNAMIC(CPaintDC, CDC)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)

namespace {

HWND HandleOf(const CWnd* pWnd) { return pWnd ? pWnd->m_hWnd : nullptr; }

}  // namespace

CPaintDC::CPaintDC(CWnd* pWnd) : m_hWnd(HandleOf(pWnd)) {
    if (!m_hWnd || !Attach(::BeginPaint(m_hWnd, &m_ps))) AfxThrowResourceException();
}

CPaintDC::~CPaintDC() {
    Detach();
    ::EndPaint(m_hWnd, &m_ps);
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(HandleOf(pWnd)) {
    if (!Attach(::GetDC(m_hWnd))) AfxThrowResourceException();
}

CClientDC::~CClientDC() { ::ReleaseDC(m_hWnd, Detach()); }

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(HandleOf(pWnd)) {
    if (!Attach(::GetWindowDC(m_hWnd))) AfxThrowResourceException();
}

CWindowDC::~CWindowDC() { ::ReleaseDC(m_hWnd, Detach()); }
