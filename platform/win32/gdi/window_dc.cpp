#include "gdi/dc_table.h"

namespace tavlon::win32 {

namespace {

void Retarget(DeviceContext& dc, SurfaceRef surface, POINT origin, const pixman_region32_t& visible) {
    AttachSurface(dc, std::move(surface));
    Region wanted(visible);
    dc.visible.Intersect(wanted);
    dc.origin = origin;
}

}  // namespace

HDC CreateWindowDc(HWND hWnd, SurfaceRef surface, POINT origin, const pixman_region32_t& visible) {
    if (!surface) return nullptr;
    DeviceContext* dc = AddDc(surface, nullptr);
    if (!dc) return nullptr;
    dc->window = hWnd;
    dc->memory = false;
    Retarget(*dc, std::move(surface), origin, visible);
    return dc->handle;
}

void RetargetWindowDc(HDC hdc, SurfaceRef surface, POINT origin, const pixman_region32_t& visible) {
    DeviceContext* dc = Dcs().Get(hdc);
    if (dc && !dc->memory && surface) Retarget(*dc, std::move(surface), origin, visible);
}

bool DestroyWindowDc(HDC hdc) {
    const DeviceContext* dc = Dcs().Get(hdc);
    if (!dc || dc->memory) return false;
    RemoveDc(hdc);
    return true;
}

HWND WindowOfDc(HDC hdc) {
    const DeviceContext* dc = Dcs().Get(hdc);
    return dc ? dc->window : nullptr;
}

void TakeWindowDcDamage(HDC hdc, pixman_region32_t& damage) {
    DeviceContext* dc = Dcs().Get(hdc);
    if (!dc) return;
    pixman_region32_union(&damage, &damage, dc->damage.Raw());
    dc->damage.Clear();
}

}  // namespace tavlon::win32
