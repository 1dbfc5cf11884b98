#include <tavlon/proxy_minute.h>

#include "../minute/minute_ctrl.h"
#include "forward.h"

CProxy_ChartOL::CProxy_ChartOL() : m_pControl(MakeControl<TavlonOL>()) {}
CProxy_ChartOL::~CProxy_ChartOL() = default;

int CProxy_ChartOL::Create(CWnd* pParent, CRect rect, UINT nID) {
    return Forward(m_pControl, &TavlonOL::Create, pParent, rect, nID);
}
int CProxy_ChartOL::Init(tagStockItem& item) { return Forward(m_pControl, &TavlonOL::Init, item); }
int CProxy_ChartOL::SetData(tagmyMinuteData& data) { return Forward(m_pControl, &TavlonOL::SetData, data); }
int CProxy_ChartOL::SetJueShaData(tagJueShaMinuteData& data) {
    return Forward(m_pControl, &TavlonOL::SetJueShaData, data);
}
int CProxy_ChartOL::Play() { return Forward(m_pControl, &TavlonOL::Play); }
int CProxy_ChartOL::Stop() { return Forward(m_pControl, &TavlonOL::Stop); }
