#include "page.h"

#include <algorithm>
#include <utility>

namespace gallery {

namespace {
constexpr int kNoteHeight = 18;  // pixels a line
constexpr int kNoteMargin = 4;
constexpr COLORREF kBackground = RGB(0, 0, 0);
constexpr COLORREF kNoteColour = RGB(192, 192, 192);
constexpr char kNoteFace[] = "楷体";
constexpr int kNoteFontHeight = 14;

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
    m_notes = std::move(notes);
    if (m_bReady) PlaceControls(ContentRect()), Invalidate();
}

int Page::NotesHeight() const {
    return m_notes.empty() ? 0 : static_cast<int>(m_notes.size()) * kNoteHeight + 2 * kNoteMargin;
}

CRect Page::ContentRect() const {
    CRect rc;
    GetClientRect(&rc);
    rc.bottom = std::max(rc.bottom - NotesHeight(), rc.top);
    return rc;
}

void Page::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    if (m_bReady) PlaceControls(ContentRect()), Invalidate();
}

BOOL Page::OnEraseBkgnd(CDC*) { return TRUE; }

void Page::OnPaint() {
    CPaintDC dc(this);
    CRect rcClient;
    GetClientRect(&rcClient);
    dc.FillSolidRect(&rcClient, kBackground);
    CFont font;
    font.CreateFont(kNoteFontHeight, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, GB2312_CHARSET,
                    OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, kNoteFace);
    CFont* const pOldFont = dc.SelectObject(&font);
    dc.SetTextColor(kNoteColour);
    dc.SetBkMode(TRANSPARENT);
    CRect rcLine(rcClient.left + kNoteMargin, ContentRect().bottom + kNoteMargin,
                 rcClient.right - kNoteMargin, 0);
    for (const std::string& note : m_notes) {
        rcLine.bottom = rcLine.top + kNoteHeight;
        dc.DrawText(note.c_str(), static_cast<int>(note.size()), &rcLine,
                    DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
        rcLine.top = rcLine.bottom;
    }
    dc.SelectObject(pOldFont);
}

}  // namespace gallery
