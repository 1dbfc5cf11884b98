#include <tavlon/proxy_scatter.h>
#include <tavlon/value_radar.h>

#include "../scatter/point_radar_ctrl.h"
#include "../scatter/star_chart_ctrl.h"
#include "forward.h"

CProxy_RoePointCtrl::CProxy_RoePointCtrl() : m_pControl(MakeControl<CRoePointCtrl>()) {}
CProxy_RoePointCtrl::~CProxy_RoePointCtrl() = default;

int CProxy_RoePointCtrl::Create(CWnd* pParent, CRect rect, UINT nID) {
    return Forward(m_pControl, &CRoePointCtrl::Create, pParent, rect, nID);
}
int CProxy_RoePointCtrl::Init() { return Forward(m_pControl, &CRoePointCtrl::Init); }
int CProxy_RoePointCtrl::Play() { return Forward(m_pControl, &CRoePointCtrl::Play); }
void CProxy_RoePointCtrl::ActiveBlockByInfo(int id, const char* text) {
    Forward(m_pControl, &CRoePointCtrl::ActiveBlockByInfo, id, text);
}
int CProxy_RoePointCtrl::SetData(tagPointRadarItemData data) {
    return Forward(m_pControl, &CRoePointCtrl::SetData, data);
}
void CProxy_RoePointCtrl::SetGirdVisble(bool bShow) {
    Forward(m_pControl, &CRoePointCtrl::SetGirdVisble, bShow);
}
void CProxy_RoePointCtrl::SetCoordinateShaftFontSize(int nHeight) {
    Forward(m_pControl, &CRoePointCtrl::SetCoordinateShaftFontSize, nHeight);
}
void CProxy_RoePointCtrl::SetGateBkColor(COLORREF clr) {
    Forward(m_pControl, &CRoePointCtrl::SetGateBkColor, clr);
}
void CProxy_RoePointCtrl::SetFontColor(COLORREF clr) {
    Forward(m_pControl, &CRoePointCtrl::SetFontColor, clr);
}
void CProxy_RoePointCtrl::SetBorderColor(COLORREF clr) {
    Forward(m_pControl, &CRoePointCtrl::SetBorderColor, clr);
}
void CProxy_RoePointCtrl::SetGate(double dX, double dY) {
    Forward(m_pControl, &CRoePointCtrl::SetGate, dX, dY);
}
void CProxy_RoePointCtrl::SetUpdateTime(CTime& time) {
    Forward(m_pControl, &CRoePointCtrl::SetUpdateTime, time);
}
void CProxy_RoePointCtrl::SetTitle(CString& title) { Forward(m_pControl, &CRoePointCtrl::SetTitle, title); }
void CProxy_RoePointCtrl::SetCoordinateShaftLineColor(COLORREF clr) {
    Forward(m_pControl, &CRoePointCtrl::SetCoordinateShaftLineColor, clr);
}

CProxy_PointRadarCtrl::CProxy_PointRadarCtrl() : m_pControl(MakeControl<CPointRadarCtrl>()) {}
CProxy_PointRadarCtrl::~CProxy_PointRadarCtrl() = default;

int CProxy_PointRadarCtrl::Create(CWnd* pParent, CRect rect, UINT nID) {
    return Forward(m_pControl, &CPointRadarCtrl::Create, pParent, rect, nID);
}
int CProxy_PointRadarCtrl::Init() { return Forward(m_pControl, &CPointRadarCtrl::Init); }
int CProxy_PointRadarCtrl::Play() { return Forward(m_pControl, &CPointRadarCtrl::Play); }
void CProxy_PointRadarCtrl::ActiveBlockByInfo(int id, const char* text) {
    Forward(m_pControl, &CPointRadarCtrl::ActiveBlockByInfo, id, text);
}
void CProxy_PointRadarCtrl::ClearData() { Forward(m_pControl, &CPointRadarCtrl::ClearData); }
int CProxy_PointRadarCtrl::SetData(tagPointRadarItemData data) {
    return Forward(m_pControl, &CPointRadarCtrl::SetData, data);
}
void CProxy_PointRadarCtrl::SetGirdVisble(bool bShow) {
    Forward(m_pControl, &CPointRadarCtrl::SetGirdVisble, bShow);
}
void CProxy_PointRadarCtrl::SetCoordinateShaftFontSize(int nHeight) {
    Forward(m_pControl, &CPointRadarCtrl::SetCoordinateShaftFontSize, nHeight);
}
void CProxy_PointRadarCtrl::SetGateBkColor(COLORREF clr) {
    Forward(m_pControl, &CPointRadarCtrl::SetGateBkColor, clr);
}
void CProxy_PointRadarCtrl::SetCoordinateShaftLineColor(COLORREF clr) {
    Forward(m_pControl, &CPointRadarCtrl::SetCoordinateShaftLineColor, clr);
}
void CProxy_PointRadarCtrl::SetFontColor(COLORREF clr) {
    Forward(m_pControl, &CPointRadarCtrl::SetFontColor, clr);
}
void CProxy_PointRadarCtrl::SetBorderColor(COLORREF clr) {
    Forward(m_pControl, &CPointRadarCtrl::SetBorderColor, clr);
}
void CProxy_PointRadarCtrl::SetSouthGate(double dX, double dY) {
    Forward(m_pControl, &CPointRadarCtrl::SetSouthGate, dX, dY);
}
void CProxy_PointRadarCtrl::SetWestGate(double dX, double dY) {
    Forward(m_pControl, &CPointRadarCtrl::SetWestGate, dX, dY);
}
void CProxy_PointRadarCtrl::SetUpdateTime(CTime& time) {
    Forward(m_pControl, &CPointRadarCtrl::SetUpdateTime, time);
}

CProxy_PointStartCtrl::CProxy_PointStartCtrl() : m_pControl(MakeControl<CPointStartCtrl>()) {}
CProxy_PointStartCtrl::~CProxy_PointStartCtrl() = default;

int CProxy_PointStartCtrl::Create(CWnd* pParent, CRect rect, UINT nID) {
    return Forward(m_pControl, &CPointStartCtrl::Create, pParent, rect, nID);
}
int CProxy_PointStartCtrl::Init() { return Forward(m_pControl, &CPointStartCtrl::Init); }
int CProxy_PointStartCtrl::Play() { return Forward(m_pControl, &CPointStartCtrl::Play); }
void CProxy_PointStartCtrl::ClearData() { Forward(m_pControl, &CPointStartCtrl::ClearData); }
int CProxy_PointStartCtrl::SetData(tagmyStarData data) {
    return Forward(m_pControl, &CPointStartCtrl::SetData, data);
}
void CProxy_PointStartCtrl::SetCoordinateShaftFontSize(int nHeight) {
    Forward(m_pControl, &CPointStartCtrl::SetCoordinateShaftFontSize, nHeight);
}
void CProxy_PointStartCtrl::SetCoordinateShaftLineColor(COLORREF clr) {
    Forward(m_pControl, &CPointStartCtrl::SetCoordinateShaftLineColor, clr);
}
void CProxy_PointStartCtrl::SetFontColor(COLORREF clr) {
    Forward(m_pControl, &CPointStartCtrl::SetFontColor, clr);
}
void CProxy_PointStartCtrl::SetGirdVisble(bool bShow) {
    Forward(m_pControl, &CPointStartCtrl::SetGirdVisble, bShow);
}
void CProxy_PointStartCtrl::SetBorderColor(COLORREF clr) {
    Forward(m_pControl, &CPointStartCtrl::SetBorderColor, clr);
}
void CProxy_PointStartCtrl::SetUpdateTime(CTime& time) {
    Forward(m_pControl, &CPointStartCtrl::SetUpdateTime, time);
}
void CProxy_PointStartCtrl::SetTitle(CString& title) {
    Forward(m_pControl, &CPointStartCtrl::SetTitle, title);
}
