#include "gdi/dc_table.h"
#include "gdi/objects.h"

namespace tavlon::win32 {

void HoldState(const DcState& state, HDC hdc) {
    HoldObject(state.pen);
    HoldObject(state.brush);
    HoldObject(state.font);
    HoldObject(state.bitmap);
    if (auto* bitmap = ObjectAs<BitmapObject>(state.bitmap)) bitmap->selectedInto = hdc;
}

void DropState(const DcState& state) {
    DropObject(state.pen);
    DropObject(state.brush);
    DropObject(state.font);
    DropObject(state.bitmap);
}

void AttachSurface(DeviceContext& dc, SurfaceRef surface) {
    dc.surface = std::move(surface);
    dc.visible.Set(dc.surface->Bounds());
    dc.effectiveStale = true;
}

DeviceContext* AddDc(SurfaceRef surface, HBITMAP bitmap) {
    auto made = std::make_unique<DeviceContext>();
    DeviceContext& dc = *made;
    dc.state.pen = static_cast<HPEN>(GetStockObject(BLACK_PEN));
    dc.state.brush = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    dc.state.font = static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
    dc.state.bitmap = bitmap;
    AttachSurface(dc, std::move(surface));
    const auto handle = static_cast<HDC>(Dcs().Add(std::move(made)));
    if (!handle) return nullptr;  // the context is gone already
    dc.handle = handle;
    HoldState(dc.state, handle);
    return &dc;
}

void RemoveDc(HDC hdc) {
    const auto dc = Dcs().Remove(hdc);
    if (!dc) return;
    DropState(dc->state);
    for (const DcState& state : dc->saved) DropState(state);
}

DWORD CountGdiObjects() { return CountObjects() + static_cast<DWORD>(Dcs().Live()); }

}  // namespace tavlon::win32

using namespace tavlon::win32;

HDC CreateCompatibleDC(HDC hdc) {
    if (hdc && !Dcs().Get(hdc)) return nullptr;
    const DeviceContext* dc = AddDc(SurfaceOf(StockBitmap()), StockBitmap());
    return dc ? dc->handle : nullptr;
}

BOOL DeleteDC(HDC hdc) {
    if (!DcOf(hdc)) return FALSE;
    RemoveDc(hdc);
    return TRUE;
}

int SaveDC(HDC hdc) {
    DeviceContext* dc = DcOf(hdc);
    if (!dc) return 0;
    HoldState(dc->state, hdc);
    dc->saved.push_back(dc->state);
    return static_cast<int>(dc->saved.size());
}

BOOL RestoreDC(HDC hdc, int nSaved) {
    DeviceContext* dc = DcOf(hdc);
    if (!dc) return FALSE;
    const int depth = static_cast<int>(dc->saved.size());
    if (nSaved == 0 || nSaved > depth || nSaved < -depth) return FALSE;
    const std::size_t level = static_cast<std::size_t>(nSaved > 0 ? nSaved - 1 : depth + nSaved);
    while (dc->saved.size() > level) {
        DropState(dc->state);
        dc->state = std::move(dc->saved.back());
        dc->saved.pop_back();
    }
    if (dc->memory) AttachSurface(*dc, SurfaceOf(dc->state.bitmap));
    dc->effectiveStale = true;
    return TRUE;
}

BOOL GdiFlush() { return TRUE; }
