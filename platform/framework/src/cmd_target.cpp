#include "tavlon/framework/cmd_target.h"

#include "tavlon/framework/cmd_ui.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const { return GetThisMessageMap(); }

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap() {
    static const AFX_MSGMAP_ENTRY s_end = {0, 0, 0, 0, nullptr};
    static const AFX_MSGMAP s_map = {nullptr, &s_end};
    return &s_map;
}

namespace {

const AFX_MSGMAP_ENTRY* FindCommand(const AFX_MSGMAP* pMap, UINT nID, int nCode) {
    for (; pMap; pMap = pMap->pfnGetBaseMap ? pMap->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* p = pMap->pEntries; p->pfnCall; ++p)
            if (p->nMessage == WM_COMMAND && p->nCode == nCode && nID >= p->nID && nID <= p->nLastID)
                return p;
    }
    return nullptr;
}

/// FALSE when the handler wants others to be asked as well.
BOOL CallUpdate(const AFX_MSGMAP_ENTRY& entry, CCmdTarget* pTarget, UINT nID, CCmdUI& ui) {
    AFX_MSGCALL call;
    call.message = WM_COMMAND, call.nID = nID, call.pCmdUI = &ui;
    ui.m_bContinueRouting = FALSE;
    entry.pfnCall(pTarget, call);
    const BOOL bHandled = !ui.m_bContinueRouting;
    ui.m_bContinueRouting = FALSE;
    return bHandled;
}

BOOL CallCommand(const AFX_MSGMAP_ENTRY& entry, CCmdTarget* pTarget, UINT nID, int nCode) {
    AFX_MSGCALL call;
    call.message = WM_COMMAND, call.wParam = MAKEWPARAM(nID, nCode), call.nID = nID;
    entry.pfnCall(pTarget, call);
    return TRUE;
}

}  // namespace

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    const bool bUpdate = nCode == CN_UPDATE_COMMAND_UI;
    if (bUpdate && !pExtra) return FALSE;
    const AFX_MSGMAP_ENTRY* pEntry = FindCommand(GetMessageMap(), nID, nCode);
    if (!pEntry) return FALSE;
    if (pHandlerInfo) {
        pHandlerInfo->pTarget = this, pHandlerInfo->pfnCall = pEntry->pfnCall;
        return TRUE;
    }
    return bUpdate ? CallUpdate(*pEntry, this, nID, *static_cast<CCmdUI*>(pExtra))
                   : CallCommand(*pEntry, this, nID, nCode);
}
