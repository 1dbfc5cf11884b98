#include "points_layer.h"

namespace {
void CopyClipBox(CDC& dcTo, CDC& dcFrom, const CRect& rc) {
    dcTo.BitBlt(rc.left, rc.top, rc.Width(), rc.Height(), &dcFrom, rc.left, rc.top, SRCCOPY);
}

/// The context goes first: a bitmap cannot be deleted while it is selected.
void DeletePointsLayer(ScatterState& state) {
    state.m_dcLayer.DeleteDC();
    state.m_bmpLayer.DeleteObject();
    state.m_szLayer = CSize(0, 0);
}

bool MakePointsLayer(CDC& dcSurface, ScatterState& state, const CSize& size) {
    return size.cx > 0 && size.cy > 0 && state.m_dcLayer.CreateCompatibleDC(&dcSurface) &&
           state.m_bmpLayer.CreateCompatibleBitmap(&dcSurface, size.cx, size.cy) &&
           state.m_dcLayer.SelectObject(&state.m_bmpLayer) != nullptr;
}
}  // namespace

bool IsLayerCurrent(const ScatterState& state) {
    return !state.m_bLayerStale && state.m_dcLayer.GetSafeHdc() != nullptr &&
           state.m_szLayer == state.m_rcClient.Size();
}

bool StartPointsLayer(CDC& dcSurface, ScatterState& state) {
    CRect rcLayer(0, 0, 0, 0);
    dcSurface.GetClipBox(&rcLayer);
    DeletePointsLayer(state);
    if (!MakePointsLayer(dcSurface, state, rcLayer.Size())) {
        DeletePointsLayer(state);
        return false;
    }
    state.m_szLayer = rcLayer.Size();
    CopyClipBox(state.m_dcLayer, dcSurface, rcLayer);
    return true;
}

void CopyPointsLayer(CDC& dcSurface, ScatterState& state) {
    CRect rcCopy;
    dcSurface.GetClipBox(&rcCopy);
    CopyClipBox(dcSurface, state.m_dcLayer, rcCopy);
}
