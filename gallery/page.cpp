#include "page.h"

#include <algorithm>
#include <utility>

#include "text_lines.h"

namespace gallery {

namespace {
/// The page's own drawing leaves its children out, so that the controls do not flicker when it repaints.
constexpr DWORD kPageStyle = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN;

bool IsPress(UINT nMessage) {
    return nMessage == WM_LBUTTONDOWN || nMessage == WM_LBUTTONDBLCLK || nMessage == WM_RBUTTONDOWN ||
           nMessage == WM_RBUTTONDBLCLK;
}
}  // namespace

BEGIN_MESSAGE_MAP(Page, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
ON_WM_SETFOCUS()
END_MESSAGE_MAP()

BOOL Page::CreateOn(CWnd& wndParent, const CRect& rc) {
    const CString strClass = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW));
    if (!CWnd::Create(strClass, "", kPageStyle, rc, &wndParent, 1)) return FALSE;
    if (!CreateControls()) return FALSE;
    m_bReady = true;
    PlaceControls(ContentRect());
    return TRUE;
}

BOOL Page::PreTranslateMessage(MSG* pMsg) {
    if (IsPress(pMsg->message) && ::IsChild(m_hWnd, pMsg->hwnd) && ::GetFocus() != pMsg->hwnd)
        ::SetFocus(pMsg->hwnd);
    if (pMsg->message == WM_KEYDOWN && OnKey(static_cast<UINT>(pMsg->wParam))) return TRUE;
    return CWnd::PreTranslateMessage(pMsg);
}

/// The page itself has no use for keys: they go to its first control.
void Page::OnSetFocus(CWnd* pOldWnd) {
    CWnd::OnSetFocus(pOldWnd);
    if (const HWND hControl = ::GetWindow(m_hWnd, GW_CHILD)) ::SetFocus(hControl);
}

void Page::SetNotes(std::vector<std::string> notes) {
    const int nOldHeight = NotesHeight();
    m_notes = std::move(notes);
    if (!m_bReady) return;
    if (NotesHeight() != nOldHeight) PlaceControls(ContentRect()), Invalidate();
    const CRect rcNotes = NotesRect();
    InvalidateRect(&rcNotes);
}

int Page::NotesHeight() const {
    return m_notes.empty() ? 0 : static_cast<int>(m_notes.size()) * kLineHeight + 2 * kLineMargin;
}

CRect Page::ContentRect() const {
    CRect rc;
    GetClientRect(&rc);
    rc.bottom = std::max(rc.bottom - NotesHeight(), rc.top);
    return rc;
}

CRect Page::NotesRect() const {
    CRect rc;
    GetClientRect(&rc);
    rc.top = ContentRect().bottom;
    return rc;
}

void Page::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    if (m_bReady) PlaceControls(ContentRect()), Invalidate();
}

BOOL Page::OnEraseBkgnd(CDC*) { return TRUE; }

void Page::OnPaint() {
    CPaintDC dc(this);
    const CRect rcContent = ContentRect();
    dc.FillSolidRect(&rcContent, RGB(0, 0, 0));  // what the controls leave free
    DrawLines(dc, NotesRect(), m_notes);
}

}  // namespace gallery
