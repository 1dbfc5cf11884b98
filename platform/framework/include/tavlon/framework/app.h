#pragma once

#include "window.h"

/// A thread with a message loop.
class TAVLON_FRAMEWORK_API CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)
public:
    ~CWinThread() override;

    CWnd* m_pMainWnd = nullptr;  ///< When its window goes, the loop ends.

    virtual BOOL InitInstance() { return TRUE; }  ///< FALSE: do not run.
    virtual int Run();                            ///< Until WM_QUIT; gives ExitInstance().
    virtual int ExitInstance();
    virtual BOOL PumpMessage();  ///< Waits for one message and handles it; FALSE on WM_QUIT.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// Called when the queue is empty, with 0, 1, 2 ... until it answers FALSE; frees the temporary objects.
    virtual BOOL OnIdle(LONG lCount);

protected:
    CWinThread() = default;
    MSG m_msgCur = {};
};

/// The program. One object of a class derived from it exists for the whole run.
class TAVLON_FRAMEWORK_API CWinApp : public CWinThread {
    DECLARE_DYNAMIC(CWinApp)
public:
    explicit CWinApp(LPCSTR pszAppName = nullptr);
    ~CWinApp() override;

    HINSTANCE m_hInstance = nullptr;
    CString m_strAppName;

    HCURSOR LoadCursor(UINT nIDResource) const;  ///< Found along the resource chain.
    HCURSOR LoadStandardCursor(LPCSTR pszCursorName) const { return ::LoadCursor(nullptr, pszCursorName); }
};

TAVLON_FRAMEWORK_API CWinApp* AfxGetApp();        ///< Null when the host has none.
TAVLON_FRAMEWORK_API CWinThread* AfxGetThread();  ///< Null when the host has none.
TAVLON_FRAMEWORK_API CWnd* AfxGetMainWnd();       ///< Null when there is none.

/// Runs the program's CWinApp from InitInstance to ExitInstance, for main(); gives the exit code, -1 without
/// one.
TAVLON_FRAMEWORK_API int AfxWinMain();

/// For a host with a message loop of its own, called before translating and dispatching; TRUE: do neither.
TAVLON_FRAMEWORK_API BOOL AfxPreTranslateMessage(MSG* pMsg);

/// For a host with a message loop of its own, when its queue is empty: frees the temporary objects of this
/// thread.
TAVLON_FRAMEWORK_API void AfxFreeTemporaryObjects();
