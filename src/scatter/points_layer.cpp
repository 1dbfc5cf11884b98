#include "points_layer.h"

namespace {
void CopyClipBox(CDC& dcTo, CDC& dcFrom, const CRect& rc) {
    dcTo.BitBlt(rc.left, rc.top, rc.Width(), rc.Height(), &dcFrom, rc.left, rc.top, SRCCOPY);
}
}  // namespace

bool IsLayerCurrent(const ScatterState& state) {
    return !state.m_bLayerStale && state.m_dcLayer.GetSafeHdc() != nullptr &&
           state.m_szLayer == state.m_rcClient.Size();
}

void StartPointsLayer(CDC& dcSurface, ScatterState& state) {
    CRect rcLayer;
    dcSurface.GetClipBox(&rcLayer);
    DeletePointsLayer(state);
    state.m_dcLayer.CreateCompatibleDC(&dcSurface);
    state.m_bmpLayer.CreateCompatibleBitmap(&dcSurface, rcLayer.Width(), rcLayer.Height());
    state.m_dcLayer.SelectObject(&state.m_bmpLayer);
    state.m_szLayer = rcLayer.Size();
    CopyClipBox(state.m_dcLayer, dcSurface, rcLayer);
}

void CopyPointsLayer(CDC& dcSurface, ScatterState& state) {
    CRect rcCopy;
    dcSurface.GetClipBox(&rcCopy);
    CopyClipBox(dcSurface, state.m_dcLayer, rcCopy);
}

void DeletePointsLayer(ScatterState& state) {
    state.m_dcLayer.DeleteDC();
    state.m_bmpLayer.DeleteObject();
    state.m_szLayer = CSize(0, 0);
}
