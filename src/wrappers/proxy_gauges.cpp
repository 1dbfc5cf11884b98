#include <tavlon/proxy_gauges.h>

#include "../gauges/histogram_ctrl.h"
#include "../gauges/ladder_ctrl.h"
#include "../gauges/position_bar_ctrl.h"
#include "../gauges/risk_bar_ctrl.h"
#include "forward.h"

CProxy_RiskBarCtrl::CProxy_RiskBarCtrl() : m_pControl(MakeControl<TavlonRiskBar>()) {}
CProxy_RiskBarCtrl::~CProxy_RiskBarCtrl() = default;

int CProxy_RiskBarCtrl::Create(CWnd* pParent, CRect rect, UINT nID) {
    return Forward(m_pControl, &TavlonRiskBar::Create, pParent, rect, nID);
}
int CProxy_RiskBarCtrl::Play() { return Forward(m_pControl, &TavlonRiskBar::Play); }
int CProxy_RiskBarCtrl::Stop() { return Forward(m_pControl, &TavlonRiskBar::Stop); }
void CProxy_RiskBarCtrl::ReDraw() { Forward(m_pControl, &TavlonRiskBar::ReDraw); }
void CProxy_RiskBarCtrl::SetData(int nValue, int nWhich) {
    Forward(m_pControl, &TavlonRiskBar::SetData, nValue, nWhich);
}
void CProxy_RiskBarCtrl::SetTitle(CString& title) { Forward(m_pControl, &TavlonRiskBar::SetTitle, title); }
void CProxy_RiskBarCtrl::SetExplain(CString& text) { Forward(m_pControl, &TavlonRiskBar::SetExplain, text); }
void CProxy_RiskBarCtrl::SetColor(COLORREF clrBack, COLORREF clrText) {
    Forward(m_pControl, &TavlonRiskBar::SetColor, clrBack, clrText);
}
void CProxy_RiskBarCtrl::SetTitleTextColor(COLORREF clr) {
    Forward(m_pControl, &TavlonRiskBar::SetTitleTextColor, clr);
}
void CProxy_RiskBarCtrl::SetLineColor(COLORREF clr, int nWhich) {
    Forward(m_pControl, &TavlonRiskBar::SetLineColor, clr, nWhich);
}
void CProxy_RiskBarCtrl::SetBorderColor(COLORREF clr, int nSide) {
    Forward(m_pControl, &TavlonRiskBar::SetBorderColor, clr, nSide);
}

CProxy_PositionBarCtrl::CProxy_PositionBarCtrl() : m_pControl(MakeControl<CPositionBar>()) {}
CProxy_PositionBarCtrl::~CProxy_PositionBarCtrl() = default;

int CProxy_PositionBarCtrl::Create(CWnd* pParent, CRect rect, UINT nID) {
    return Forward(m_pControl, &CPositionBar::Create, pParent, rect, nID);
}
int CProxy_PositionBarCtrl::Play() { return Forward(m_pControl, &CPositionBar::Play); }
int CProxy_PositionBarCtrl::Stop() { return Forward(m_pControl, &CPositionBar::Stop); }
void CProxy_PositionBarCtrl::ReDraw() { Forward(m_pControl, &CPositionBar::ReDraw); }
void CProxy_PositionBarCtrl::SetData(int nValue, int nWhich) {
    Forward(m_pControl, &CPositionBar::SetData, nValue, nWhich);
}
void CProxy_PositionBarCtrl::SetTitle(CString& title) { Forward(m_pControl, &CPositionBar::SetTitle, title); }
void CProxy_PositionBarCtrl::SetColor(COLORREF clrBack, COLORREF clrText) {
    Forward(m_pControl, &CPositionBar::SetColor, clrBack, clrText);
}
void CProxy_PositionBarCtrl::SetTitleTextColor(COLORREF clr) {
    Forward(m_pControl, &CPositionBar::SetTitleTextColor, clr);
}
void CProxy_PositionBarCtrl::SetCylinderColor(COLORREF clr, int nWhich) {
    Forward(m_pControl, &CPositionBar::SetCylinderColor, clr, nWhich);
}
void CProxy_PositionBarCtrl::SetCoordinateColor(COLORREF clr) {
    Forward(m_pControl, &CPositionBar::SetCoordinateColor, clr);
}
void CProxy_PositionBarCtrl::SetBorderColor(COLORREF clr, int nSide) {
    Forward(m_pControl, &CPositionBar::SetBorderColor, clr, nSide);
}

CProxy_PrssureSupportCtrl::CProxy_PrssureSupportCtrl() : m_pControl(MakeControl<CPrssureSupportCtrl>()) {}
CProxy_PrssureSupportCtrl::~CProxy_PrssureSupportCtrl() = default;

int CProxy_PrssureSupportCtrl::Create(CWnd* pParent, CRect rect, UINT nID) {
    return Forward(m_pControl, &CPrssureSupportCtrl::Create, pParent, rect, nID);
}
int CProxy_PrssureSupportCtrl::Play() { return Forward(m_pControl, &CPrssureSupportCtrl::Play); }
int CProxy_PrssureSupportCtrl::Stop() { return Forward(m_pControl, &CPrssureSupportCtrl::Stop); }
void CProxy_PrssureSupportCtrl::ReDraw() { Forward(m_pControl, &CPrssureSupportCtrl::ReDraw); }
void CProxy_PrssureSupportCtrl::SetPriceData(float fPrice, int nLevel) {
    Forward(m_pControl, &CPrssureSupportCtrl::SetPriceData, fPrice, nLevel);
}
void CProxy_PrssureSupportCtrl::SetColor(COLORREF clrBack, COLORREF clrText) {
    Forward(m_pControl, &CPrssureSupportCtrl::SetColor, clrBack, clrText);
}
void CProxy_PrssureSupportCtrl::SetPrSuColor(COLORREF clr, int nLevel) {
    Forward(m_pControl, &CPrssureSupportCtrl::SetPrSuColor, clr, nLevel);
}
void CProxy_PrssureSupportCtrl::SetPrSuTextColor(COLORREF clr, int nLevel) {
    Forward(m_pControl, &CPrssureSupportCtrl::SetPrSuTextColor, clr, nLevel);
}
void CProxy_PrssureSupportCtrl::SetBigMidSmallColor(COLORREF clr, int nWhich) {
    Forward(m_pControl, &CPrssureSupportCtrl::SetBigMidSmallColor, clr, nWhich);
}
void CProxy_PrssureSupportCtrl::SetBorderColor(COLORREF clr, int nSide) {
    Forward(m_pControl, &CPrssureSupportCtrl::SetBorderColor, clr, nSide);
}
void CProxy_PrssureSupportCtrl::SerSeparLineColor(COLORREF clr) {
    Forward(m_pControl, &CPrssureSupportCtrl::SerSeparLineColor, clr);
}

CProxy_HistogramCtrl::CProxy_HistogramCtrl() : m_pControl(MakeControl<myHistogramCtrl>()) {}
CProxy_HistogramCtrl::~CProxy_HistogramCtrl() = default;

int CProxy_HistogramCtrl::Create(CWnd* pParent, CRect rect, UINT nID) {
    return Forward(m_pControl, &myHistogramCtrl::Create, pParent, rect, nID);
}
int CProxy_HistogramCtrl::Init() { return Forward(m_pControl, &myHistogramCtrl::Init); }
int CProxy_HistogramCtrl::SetData(tagHistogramData& data) {
    return Forward(m_pControl, &myHistogramCtrl::SetData, data);
}
int CProxy_HistogramCtrl::Play() { return Forward(m_pControl, &myHistogramCtrl::Play); }
int CProxy_HistogramCtrl::SetIndex(int nId) { return Forward(m_pControl, &myHistogramCtrl::SetIndex, nId); }
void CProxy_HistogramCtrl::SetCoordinateShaftColor(COLORREF clr) {
    Forward(m_pControl, &myHistogramCtrl::SetCoordinateShaftColor, clr);
}
void CProxy_HistogramCtrl::SetGirdColor(COLORREF clr) {
    Forward(m_pControl, &myHistogramCtrl::SetGirdColor, clr);
}
void CProxy_HistogramCtrl::SetBackColor(COLORREF clr) {
    Forward(m_pControl, &myHistogramCtrl::SetBackColor, clr);
}
void CProxy_HistogramCtrl::SetCoordinateShaftFontColor(COLORREF clr) {
    Forward(m_pControl, &myHistogramCtrl::SetCoordinateShaftFontColor, clr);
}
void CProxy_HistogramCtrl::SetCoordinateShaftTitleColor(COLORREF clr) {
    Forward(m_pControl, &myHistogramCtrl::SetCoordinateShaftTitleColor, clr);
}
void CProxy_HistogramCtrl::SetBorderColor(COLORREF clr) {
    Forward(m_pControl, &myHistogramCtrl::SetBorderColor, clr);
}
void CProxy_HistogramCtrl::DisplayGird(bool bShow) {
    Forward(m_pControl, &myHistogramCtrl::DisplayGird, bShow);
}
void CProxy_HistogramCtrl::SetYTitle(char* text) { Forward(m_pControl, &myHistogramCtrl::SetYTitle, text); }
void CProxy_HistogramCtrl::SetXTitle(char* text) { Forward(m_pControl, &myHistogramCtrl::SetXTitle, text); }
