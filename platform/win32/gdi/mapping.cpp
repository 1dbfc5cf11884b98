#include "gdi/device_context.h"
#include "gdi/rectangle_math.h"

using namespace tavlon::win32;

namespace {

int WrappingAdd(int a, int b) {
    return static_cast<int>(static_cast<unsigned>(a) + static_cast<unsigned>(b));
}

BOOL ReadPoint(HDC hdc, POINT DcState::*member, LPPOINT pPoint) {
    const DeviceContext* dc = DcOf(hdc);
    if (!dc || !pPoint) return FALSE;
    *pPoint = dc->state.*member;
    return TRUE;
}

BOOL WritePoint(HDC hdc, POINT DcState::*member, POINT value, LPPOINT pOld) {
    DeviceContext* dc = DcOf(hdc);
    if (!dc) return FALSE;
    if (pOld) *pOld = dc->state.*member;
    dc->state.*member = value;
    return TRUE;
}

/// Moves points between logical and device coordinates: device coordinates count from the context's origin.
BOOL MapPoints(HDC hdc, LPPOINT pPoints, int nCount, int direction) {
    const DeviceContext* dc = DcOf(hdc);
    if (!dc || (!pPoints && nCount > 0)) return FALSE;
    const std::int64_t dx = (std::int64_t{dc->state.viewportOrg.x} - dc->state.windowOrg.x) * direction;
    const std::int64_t dy = (std::int64_t{dc->state.viewportOrg.y} - dc->state.windowOrg.y) * direction;
    for (int i = 0; i < nCount; ++i) pPoints[i] = {Saturate(pPoints[i].x + dx), Saturate(pPoints[i].y + dy)};
    return TRUE;
}

}  // namespace

BOOL SetViewportOrgEx(HDC hdc, int x, int y, LPPOINT pOld) {
    return WritePoint(hdc, &DcState::viewportOrg, {x, y}, pOld);
}
BOOL GetViewportOrgEx(HDC hdc, LPPOINT pPoint) { return ReadPoint(hdc, &DcState::viewportOrg, pPoint); }
BOOL OffsetViewportOrgEx(HDC hdc, int x, int y, LPPOINT pOld) {
    POINT now{};
    if (!GetViewportOrgEx(hdc, &now)) return FALSE;
    return SetViewportOrgEx(hdc, WrappingAdd(now.x, x), WrappingAdd(now.y, y), pOld);
}
BOOL SetWindowOrgEx(HDC hdc, int x, int y, LPPOINT pOld) {
    return WritePoint(hdc, &DcState::windowOrg, {x, y}, pOld);
}
BOOL GetWindowOrgEx(HDC hdc, LPPOINT pPoint) { return ReadPoint(hdc, &DcState::windowOrg, pPoint); }
BOOL GetCurrentPositionEx(HDC hdc, LPPOINT pPoint) { return ReadPoint(hdc, &DcState::position, pPoint); }
BOOL MoveToEx(HDC hdc, int x, int y, LPPOINT pOld) {
    return WritePoint(hdc, &DcState::position, {x, y}, pOld);
}
BOOL DPtoLP(HDC hdc, LPPOINT pPoints, int nCount) { return MapPoints(hdc, pPoints, nCount, -1); }
BOOL LPtoDP(HDC hdc, LPPOINT pPoints, int nCount) { return MapPoints(hdc, pPoints, nCount, 1); }
