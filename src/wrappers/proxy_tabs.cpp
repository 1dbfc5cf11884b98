#include <tavlon/proxy_tabs.h>

#include "../tabs/tab_ctrl.h"
#include "forward.h"

CProxy_TabCtrl::CProxy_TabCtrl() : m_pControl(MakeControl<CMyTabControl>()) {}
CProxy_TabCtrl::~CProxy_TabCtrl() = default;

int CProxy_TabCtrl::Create(CWnd* pParent, CRect rect, UINT nID, tagTabCtrlStyle style) {
    return Forward(m_pControl, &CMyTabControl::Create, pParent, rect, nID, style);
}
int CProxy_TabCtrl::AddItem(tagTabItemData item) {
    return Forward<-1>(m_pControl, &CMyTabControl::AddItem, item);
}
void CProxy_TabCtrl::ClearContent() { Forward(m_pControl, &CMyTabControl::ClearContent); }
int CProxy_TabCtrl::GetActiveId() { return Forward<-1>(m_pControl, &CMyTabControl::GetActiveId); }
void CProxy_TabCtrl::SelectTabById(int id) { Forward(m_pControl, &CMyTabControl::SelectTabById, id); }
void CProxy_TabCtrl::SetBackColor(COLORREF clr) { Forward(m_pControl, &CMyTabControl::SetBackColor, clr); }
void CProxy_TabCtrl::SetFontColor(COLORREF clr) { Forward(m_pControl, &CMyTabControl::SetFontColor, clr); }
void CProxy_TabCtrl::SetActiveTabBackColor(COLORREF clr) {
    Forward(m_pControl, &CMyTabControl::SetActiveTabBackColor, clr);
}
void CProxy_TabCtrl::SetActiveTabFontColor(COLORREF clr) {
    Forward(m_pControl, &CMyTabControl::SetActiveTabFontColor, clr);
}
void CProxy_TabCtrl::SetNormalTabBackColor(COLORREF clr) {
    Forward(m_pControl, &CMyTabControl::SetNormalTabBackColor, clr);
}
void CProxy_TabCtrl::SetFontSize(int nHeight) { Forward(m_pControl, &CMyTabControl::SetFontSize, nHeight); }
void CProxy_TabCtrl::SetFontBold(bool bBold) { Forward(m_pControl, &CMyTabControl::SetFontBold, bBold); }
