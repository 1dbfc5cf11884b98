#pragma once

#include "cmd_target.h"
#include "menu.h"
#include "rect.h"
#include "region.h"
#include "text.h"
#include "window_dc.h"

/// A window. The object and the window have separate lives: the object exists before Create and after the
/// window is gone; deleting an object whose window still exists destroys the window. On an object without a
/// window every call answers FALSE, 0 or null. What a handler throws reaches the caller of the member that
/// sent the message, at the latest the message loop. Use from the thread that created the window.
class TAVLON_FRAMEWORK_API CWnd : public CCmdTarget {
    DECLARE_DYNAMIC(CWnd)
public:
    CWnd() = default;
    ~CWnd() override;

    HWND m_hWnd = nullptr;

    // Handles and objects
    HWND GetSafeHwnd() const { return m_hWnd; }
    operator HWND() const { return m_hWnd; }
    static CWnd* FromHandle(HWND hWnd);           ///< A temporary object when the window has none of its own.
    static CWnd* FromHandlePermanent(HWND hWnd);  ///< Null when the window has none of its own.
    BOOL Attach(HWND hWnd);
    HWND Detach();
    BOOL SubclassWindow(HWND hWnd);
    HWND UnsubclassWindow();
    virtual void PreSubclassWindow() {}

    // Life
    /// A child window; FALSE without a parent, and when the object has a window already.
    virtual BOOL Create(LPCSTR pszClassName, LPCSTR pszWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd, UINT nID, LPVOID pCreateParam = nullptr);
    BOOL CreateEx(DWORD dwExStyle, LPCSTR pszClassName, LPCSTR pszWindowName, DWORD dwStyle, int x, int y,
                  int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID pCreateParam = nullptr);
    BOOL CreateEx(DWORD dwExStyle, LPCSTR pszClassName, LPCSTR pszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID, LPVOID pCreateParam = nullptr);
    virtual BOOL DestroyWindow();
    /// May change how the window will be made; FALSE refuses. A window without a class name gets the
    /// framework's.
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual BOOL PreTranslateMessage(MSG* pMsg);  ///< TRUE: the message is done with.
    /// Asks the window of the message and its parents, up to hWndStop, for a PreTranslateMessage that is
    /// TRUE.
    static BOOL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);

    // Place and look
    DWORD GetStyle() const;
    DWORD GetExStyle() const;
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    BOOL ShowWindow(int nCmdShow);
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    BOOL EnableWindow(BOOL bEnable = TRUE) { return ::EnableWindow(m_hWnd, bEnable); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE);
    void MoveWindow(LPCRECT prc, BOOL bRepaint = TRUE);
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    BOOL BringWindowToTop() { return ::BringWindowToTop(m_hWnd); }
    void GetWindowRect(LPRECT prc) const;  ///< The empty rectangle when there is no window; so GetClientRect.
    void GetClientRect(LPRECT prc) const;
    void ClientToScreen(LPPOINT ppt) const { ::ClientToScreen(m_hWnd, ppt); }
    void ClientToScreen(LPRECT prc) const;
    void ScreenToClient(LPPOINT ppt) const { ::ScreenToClient(m_hWnd, ppt); }
    void ScreenToClient(LPRECT prc) const;
    void SetWindowText(LPCSTR pszText) { ::SetWindowText(m_hWnd, pszText ? pszText : ""); }
    int GetWindowText(LPSTR pszText, int nMaxCount) const;
    void GetWindowText(CString& strText) const;
    int GetWindowTextLength() const { return ::GetWindowTextLength(m_hWnd); }
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    CMenu* GetMenu() const;

    // Other windows
    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    CWnd* GetTopLevelParent() const;
    CWnd* GetDlgItem(int nID) const { return FromHandle(::GetDlgItem(m_hWnd, nID)); }
    BOOL IsChild(const CWnd* pWnd) const { return ::IsChild(m_hWnd, pWnd ? pWnd->m_hWnd : nullptr); }
    static CWnd* WindowFromPoint(POINT pt) { return FromHandle(::WindowFromPoint(pt)); }
    static CWnd* GetDesktopWindow() { return FromHandle(::GetDesktopWindow()); }

    // Painting. Without a window nothing is invalidated (the system would take that for every window).
    void Invalidate(BOOL bErase = TRUE) { InvalidateRect(nullptr, bErase); }
    void InvalidateRect(LPCRECT prc, BOOL bErase = TRUE);
    void InvalidateRgn(CRgn* pRgn, BOOL bErase = TRUE);
    void ValidateRect(LPCRECT prc);
    BOOL RedrawWindow(LPCRECT prc = nullptr, CRgn* pRgn = nullptr,
                      UINT nFlags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    void UpdateWindow();
    BOOL GetUpdateRect(LPRECT prc, BOOL bErase = FALSE) { return ::GetUpdateRect(m_hWnd, prc, bErase); }
    int GetUpdateRgn(CRgn* pRgn, BOOL bErase = FALSE);
    CDC* BeginPaint(PAINTSTRUCT* pPaint);
    void EndPaint(PAINTSTRUCT* pPaint) { ::EndPaint(m_hWnd, pPaint); }
    CDC* GetDC();
    CDC* GetWindowDC();
    int ReleaseDC(CDC* pDC);

    // Input
    CWnd* SetFocus();
    static CWnd* GetFocus() { return FromHandle(::GetFocus()); }
    CWnd* SetCapture();
    static CWnd* GetCapture() { return FromHandle(::GetCapture()); }
    CWnd* SetActiveWindow();
    static CWnd* GetActiveWindow() { return FromHandle(::GetActiveWindow()); }
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse);
    BOOL KillTimer(UINT_PTR nIDEvent);

    // Messages
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    static const MSG* GetCurrentMessage();

protected:
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual void PostNcDestroy() {}  ///< The last call of a window's life; `delete this` belongs here.
    /// Default processing of the message that is being handled now.
    LRESULT Default();

    // Default handlers: each gives the message to Default().
    afx_msg int OnCreate(LPCREATESTRUCT pCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnNcDestroy();
    afx_msg void OnClose();
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnMove(int x, int y);
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    afx_msg void OnEnable(BOOL bEnable);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* pInfo);
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg void OnActivateApp(BOOL bActive, DWORD dwThreadID);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDblClk(UINT nFlags, CPoint point);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos);
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnTimer(UINT_PTR nIDEvent);

    DECLARE_MESSAGE_MAP()

private:
    void Subclass(HWND hWnd);
    BOOL EndWindow();
    static BOOL CreateFrom(CWnd* pWnd, const CREATESTRUCT& cs);
    static LRESULT CALLBACK CreationHook(int nCode, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK EntryProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

    WNDPROC m_pfnSuper = nullptr;  ///< The window's own procedure, for default processing.
};
