#pragma once

#include "object.h"

class CCmdTarget;
class CCmdUI;

#define afx_msg

constexpr int CN_COMMAND = 0;             ///< OnCmdMsg code: a command was chosen.
constexpr int CN_UPDATE_COMMAND_UI = -1;  ///< OnCmdMsg code: a menu entry or button asks for its state.

/// One message or command on its way to a handler.
struct AFX_MSGCALL {
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    LRESULT lResult = 0;
    UINT nID = 0;              ///< Commands and their updates only.
    CCmdUI* pCmdUI = nullptr;  ///< Updates only.
};

using AFX_PMSGCALL = void (*)(CCmdTarget* pTarget, AFX_MSGCALL& call);

/// One entry of a message map; the macros of <tavlon/framework/messages.h> write them.
struct AFX_MSGMAP_ENTRY {
    UINT nMessage;  ///< Window message; WM_COMMAND for commands and their updates.
    int nCode;      ///< Notification, CN_COMMAND or CN_UPDATE_COMMAND_UI; 0 for other messages.
    UINT nID;       ///< First and last id of a command.
    UINT nLastID;
    AFX_PMSGCALL pfnCall;  ///< Null ends the map.
};

/// A class's entries, and where the search goes on in its base class.
struct AFX_MSGMAP {
    const AFX_MSGMAP* (*pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* pEntries;
};

/// Who would handle a command: filled in by OnCmdMsg instead of the call.
struct AFX_CMDHANDLERINFO {
    CCmdTarget* pTarget = nullptr;
    AFX_PMSGCALL pfnCall = nullptr;
};

/// Receiver of commands through a message map.
class TAVLON_FRAMEWORK_API CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)
public:
    /// Finds the handler of a command (nCode CN_COMMAND or a notification) or of an update (pExtra is the
    /// CCmdUI) and calls it, or only names it when pHandlerInfo is given. FALSE when there is none.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

protected:
    CCmdTarget() = default;
    virtual const AFX_MSGMAP* GetMessageMap() const;
    static const AFX_MSGMAP* GetThisMessageMap();
};

/// In the class: gives it a message map.
#define DECLARE_MESSAGE_MAP()                         \
protected:                                            \
    const AFX_MSGMAP* GetMessageMap() const override; \
    static const AFX_MSGMAP* GetThisMessageMap();

/// In one source file, around the entries.
#define BEGIN_MESSAGE_MAP(the_class, base_class)                                       \
    const AFX_MSGMAP* the_class::GetMessageMap() const { return GetThisMessageMap(); } \
    const AFX_MSGMAP* the_class::GetThisMessageMap() {                                 \
        using ThisClass [[maybe_unused]] = the_class;                                  \
        using ThisBaseClass = base_class;                                              \
        static const AFX_MSGMAP_ENTRY s_entries[] = {
#define END_MESSAGE_MAP()                                                           \
    { 0, 0, 0, 0, nullptr }                                                         \
    }                                                                               \
    ;                                                                               \
    static const AFX_MSGMAP s_map = {&ThisBaseClass::GetThisMessageMap, s_entries}; \
    return &s_map;                                                                  \
    }
