#include <tavlon/proxy_pie.h>

#include "../pie/pie_ctrl.h"
#include "../pie/price_radar_ctrl.h"
#include "forward.h"

CProxy_PieChartCtrl::CProxy_PieChartCtrl() : m_pControl(MakeControl<CPieChartCtrl>()) {}
CProxy_PieChartCtrl::~CProxy_PieChartCtrl() = default;

int CProxy_PieChartCtrl::Create(CWnd* pParent, CRect rect, UINT nID) {
    return Forward(m_pControl, &CPieChartCtrl::Create, pParent, rect, nID);
}
int CProxy_PieChartCtrl::Init() { return Forward(m_pControl, &CPieChartCtrl::Init); }
int CProxy_PieChartCtrl::SetData(tagPieChartData data) {
    return Forward(m_pControl, &CPieChartCtrl::SetData, data);
}
int CProxy_PieChartCtrl::Play() { return Forward(m_pControl, &CPieChartCtrl::Play); }
int CProxy_PieChartCtrl::SelectPieById(int id) {
    return Forward(m_pControl, &CPieChartCtrl::SelectPieById, id);
}
void CProxy_PieChartCtrl::SetBorderColor(COLORREF clr) {
    Forward(m_pControl, &CPieChartCtrl::SetBorderColor, clr);
}
void CProxy_PieChartCtrl::SetCircleBorderColor(COLORREF clr) {
    Forward(m_pControl, &CPieChartCtrl::SetCircleBorderColor, clr);
}
void CProxy_PieChartCtrl::SetCircleBackgroundColor(COLORREF clr) {
    Forward(m_pControl, &CPieChartCtrl::SetCircleBackgroundColor, clr);
}
void CProxy_PieChartCtrl::SetBackColor(COLORREF clr) {
    Forward(m_pControl, &CPieChartCtrl::SetBackColor, clr);
}
void CProxy_PieChartCtrl::SetPieBorderColor(COLORREF clr) {
    Forward(m_pControl, &CPieChartCtrl::SetPieBorderColor, clr);
}
void CProxy_PieChartCtrl::SetSumTipTitleColor(COLORREF clr) {
    Forward(m_pControl, &CPieChartCtrl::SetSumTipTitleColor, clr);
}
void CProxy_PieChartCtrl::SetSumTipContxtColor(COLORREF clr) {
    Forward(m_pControl, &CPieChartCtrl::SetSumTipContxtColor, clr);
}
void CProxy_PieChartCtrl::SetActivePieBackColor(COLORREF clr) {
    Forward(m_pControl, &CPieChartCtrl::SetActivePieBackColor, clr);
}
void CProxy_PieChartCtrl::SetSeparateLineColor(COLORREF clr) {
    Forward(m_pControl, &CPieChartCtrl::SetSeparateLineColor, clr);
}
void CProxy_PieChartCtrl::SetInfoTipWidth(int nWidth) {
    Forward(m_pControl, &CPieChartCtrl::SetInfoTipWidth, nWidth);
}
void CProxy_PieChartCtrl::SetInfoTipHeight(int nHeight) {
    Forward(m_pControl, &CPieChartCtrl::SetInfoTipHeight, nHeight);
}
void CProxy_PieChartCtrl::SetInfoTipTitleBackColor(COLORREF clr) {
    Forward(m_pControl, &CPieChartCtrl::SetInfoTipTitleBackColor, clr);
}
void CProxy_PieChartCtrl::SetInfoTipTitleFontColor(COLORREF clr) {
    Forward(m_pControl, &CPieChartCtrl::SetInfoTipTitleFontColor, clr);
}
void CProxy_PieChartCtrl::SetInfoTipContextBackColor(COLORREF clr) {
    Forward(m_pControl, &CPieChartCtrl::SetInfoTipContextBackColor, clr);
}
void CProxy_PieChartCtrl::SetInfoTipContextFontColor(COLORREF clr) {
    Forward(m_pControl, &CPieChartCtrl::SetInfoTipContextFontColor, clr);
}
void CProxy_PieChartCtrl::SetSumTipTitleTopText(char* text) {
    Forward(m_pControl, &CPieChartCtrl::SetSumTipTitleTopText, text);
}
void CProxy_PieChartCtrl::SetSumTipTitleBottomText(char* text) {
    Forward(m_pControl, &CPieChartCtrl::SetSumTipTitleBottomText, text);
}

CProxy_PriceRadarCtrl::CProxy_PriceRadarCtrl() : m_pControl(MakeControl<CPriceRadarCtrl>()) {}
CProxy_PriceRadarCtrl::~CProxy_PriceRadarCtrl() = default;

int CProxy_PriceRadarCtrl::Create(CWnd* pParent, CRect rect, UINT nID) {
    return Forward(m_pControl, &CPriceRadarCtrl::Create, pParent, rect, nID);
}
void CProxy_PriceRadarCtrl::Init() { Forward(m_pControl, &CPriceRadarCtrl::Init); }
int CProxy_PriceRadarCtrl::SetData(tagPriceRadarItemData data) {
    return Forward(m_pControl, &CPriceRadarCtrl::SetData, data);
}
void CProxy_PriceRadarCtrl::Play() { Forward(m_pControl, &CPriceRadarCtrl::Play); }
void CProxy_PriceRadarCtrl::SetTitleText(char* text) {
    Forward(m_pControl, &CPriceRadarCtrl::SetTitleText, text);
}
void CProxy_PriceRadarCtrl::SetTitleFontColor(COLORREF clr) {
    Forward(m_pControl, &CPriceRadarCtrl::SetTitleFontColor, clr);
}
void CProxy_PriceRadarCtrl::SetBackColor(COLORREF clr) {
    Forward(m_pControl, &CPriceRadarCtrl::SetBackColor, clr);
}
void CProxy_PriceRadarCtrl::SetTitleBackColor(COLORREF clr) {
    Forward(m_pControl, &CPriceRadarCtrl::SetTitleBackColor, clr);
}
void CProxy_PriceRadarCtrl::SetLeftBorderColor(COLORREF clr) {
    Forward(m_pControl, &CPriceRadarCtrl::SetLeftBorderColor, clr);
}
void CProxy_PriceRadarCtrl::SetRightBorderColor(COLORREF clr) {
    Forward(m_pControl, &CPriceRadarCtrl::SetRightBorderColor, clr);
}
void CProxy_PriceRadarCtrl::SetTopBorderColor(COLORREF clr) {
    Forward(m_pControl, &CPriceRadarCtrl::SetTopBorderColor, clr);
}
void CProxy_PriceRadarCtrl::SetBottomBorderColor(COLORREF clr) {
    Forward(m_pControl, &CPriceRadarCtrl::SetBottomBorderColor, clr);
}
void CProxy_PriceRadarCtrl::SetTitleFontSize(int nHeight) {
    Forward(m_pControl, &CPriceRadarCtrl::SetTitleFontSize, nHeight);
}
void CProxy_PriceRadarCtrl::SetTitleHeight(int nHeight) {
    Forward(m_pControl, &CPriceRadarCtrl::SetTitleHeight, nHeight);
}
void CProxy_PriceRadarCtrl::SetLabelHeight(int nHeight) {
    Forward(m_pControl, &CPriceRadarCtrl::SetLabelHeight, nHeight);
}
void CProxy_PriceRadarCtrl::SetSelectId(int id) { Forward(m_pControl, &CPriceRadarCtrl::SetSelectId, id); }
