#include "point_sprites.h"

#include "foundation/library.h"
#include "resources/resource.h"

namespace {
constexpr int k_nSlots = 4;
constexpr UINT k_bigPointIds[k_nSlots] = {IDB_POINT_RED_BIG, IDB_POINT_GREEN_BIG, IDB_POINT_WHITE_BIG,
                                          IDB_POINT_YELLOW_BIG};
constexpr UINT k_smallPointIds[k_nSlots] = {IDB_POINT_RED_SMALL, IDB_POINT_GREEN_SMALL, IDB_POINT_WHITE_SMALL,
                                            IDB_POINT_YELLOW_SMALL};

void LoadSlot(CDC& dcWindow, UINT nID, ScatterState& state, int nSlot) {
    CDC& dc = state.m_dcPoint[nSlot];
    CBitmap& bitmap = state.m_bmpPoint[nSlot];
    dc.DeleteDC();  // first: a bitmap cannot be deleted while it is selected
    bitmap.DeleteObject();
    state.m_szPoint[nSlot] = CSize(0, 0);
    if (!bitmap.LoadBitmap(nID) || !dc.CreateCompatibleDC(&dcWindow)) return;
    dc.SelectObject(&bitmap);
    CRect rcSprite;
    dc.GetClipBox(&rcSprite);
    state.m_szPoint[nSlot] = rcSprite.Size();
    state.m_clrPointMask[nSlot] = dc.GetPixel(1, 1);
}
}  // namespace

PointSlot SlotOfSign(double dValue) {
    if (dValue > 0) return POINT_UP;
    return dValue < 0 ? POINT_DOWN : POINT_LEVEL;
}

void SelectPointBitmap(CWnd& wnd, ScatterState& state) {
    const HINSTANCE hLibrary = LibraryInstance();
    CDC* pWindowDC = hLibrary != nullptr ? wnd.GetDC() : nullptr;
    if (pWindowDC == nullptr) return;
    AfxSetResourceHandle(hLibrary);
    const UINT* pIds = state.m_bBigPoint ? k_bigPointIds : k_smallPointIds;
    for (int nSlot = 0; nSlot < k_nSlots; ++nSlot) LoadSlot(*pWindowDC, pIds[nSlot], state, nSlot);
    state.m_bPointLoaded = true;
    state.m_bBigPointLoaded = state.m_bBigPoint;
    wnd.ReleaseDC(pWindowDC);
}

void OnDisplayPointSize(CWnd& wnd, ScatterState& state) {
    if (!state.m_bPointLoaded || state.m_bBigPointLoaded != state.m_bBigPoint) SelectPointBitmap(wnd, state);
}

void TransparentBitBlt(CDC& dc, ScatterState& state, PointSlot slot, int x, int y) {
    const CSize szPoint = state.m_szPoint[slot];
    if (szPoint.cx == 0) return;
    dc.TransparentBlt(x - szPoint.cx / 2, y - szPoint.cy / 2, szPoint.cx, szPoint.cy, &state.m_dcPoint[slot],
                      0, 0, szPoint.cx, szPoint.cy, state.m_clrPointMask[slot]);
}
