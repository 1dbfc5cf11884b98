#include <tavlon/proxy_wheel.h>

#include "../wheel/wheel_ctrl.h"
#include "forward.h"

CProxy_BR::CProxy_BR() : m_pControl(MakeControl<TavlonBR>()) {}
CProxy_BR::~CProxy_BR() = default;

int CProxy_BR::Create(CWnd* pParent, CRect rect, UINT nID) {
    return Forward(m_pControl, &TavlonBR::Create, pParent, rect, nID);
}
int CProxy_BR::Init(CArray<tagmyBRData, tagmyBRData&>& data, const tagBlocksInfo& info) {
    return Forward(m_pControl, &TavlonBR::Init, data, info);
}
int CProxy_BR::Play() { return Forward(m_pControl, &TavlonBR::Play); }
int CProxy_BR::Stop() { return Forward(m_pControl, &TavlonBR::Stop); }
void CProxy_BR::ReDraw() { Forward(m_pControl, &TavlonBR::ReDraw); }
void CProxy_BR::SetUpdateTime(CTime& time) { Forward(m_pControl, &TavlonBR::SetUpdateTime, time); }
int CProxy_BR::SetTitle(CString& title) { return Forward(m_pControl, &TavlonBR::SetTitle, title); }
void CProxy_BR::GetBlocksInfo(tagBlocksInfo& info) { Forward(m_pControl, &TavlonBR::GetBlocksInfo, info); }
int CProxy_BR::GetCurBlockData(tagmyBRData& data) {
    return Forward(m_pControl, &TavlonBR::GetCurBlockData, data);
}
int CProxy_BR::SetData(tagmyBRData& data) {
    return Forward(m_pControl, static_cast<int (TavlonBR::*)(tagmyBRData&)>(&TavlonBR::SetData), data);
}
int CProxy_BR::SetData(int index, tagmyBRData& data) {
    return Forward(m_pControl, static_cast<int (TavlonBR::*)(int, tagmyBRData&)>(&TavlonBR::SetData), index,
                   data);
}
