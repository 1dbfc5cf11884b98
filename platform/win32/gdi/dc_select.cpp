#include "gdi/dc_table.h"
#include "gdi/objects.h"

using namespace tavlon::win32;

namespace {

template <class Handle>
HGDIOBJ Exchange(Handle& selected, HGDIOBJ handle) {
    const HGDIOBJ old = selected;
    HoldObject(handle);
    selected = static_cast<Handle>(handle);
    DropObject(old);
    return old;
}

HGDIOBJ SelectBitmap(DeviceContext& dc, HGDIOBJ handle, const GdiObject& object) {
    auto& bitmap = *ObjectAs<BitmapObject>(handle);
    const bool elsewhere = !object.system && object.selections > 0 && bitmap.selectedInto != dc.handle;
    if (!dc.memory || elsewhere) {
        SetLastError(ERROR_INVALID_HANDLE);
        return nullptr;
    }
    bitmap.selectedInto = dc.handle;
    AttachSurface(dc, bitmap.surface);
    return Exchange(dc.state.bitmap, handle);
}

}  // namespace

HGDIOBJ SelectObject(HDC hdc, HGDIOBJ hObject) {
    DeviceContext* dc = DcOf(hdc);
    const GdiObject* object = dc ? ObjectOf(hObject) : nullptr;
    if (!object) return nullptr;
    switch (GetObjectType(hObject)) {
        case OBJ_PEN:
            return Exchange(dc->state.pen, hObject);
        case OBJ_BRUSH:
            return Exchange(dc->state.brush, hObject);
        case OBJ_FONT:
            return Exchange(dc->state.font, hObject);
        case OBJ_BITMAP:
            return SelectBitmap(*dc, hObject, *object);
        case OBJ_REGION:
            return reinterpret_cast<HGDIOBJ>(
                static_cast<ULONG_PTR>(SelectClipRgn(hdc, static_cast<HRGN>(hObject))));
        default:
            return nullptr;
    }
}

HGDIOBJ GetCurrentObject(HDC hdc, UINT nType) {
    const DeviceContext* dc = DcOf(hdc);
    if (!dc) return nullptr;
    switch (nType) {
        case OBJ_PEN:
            return dc->state.pen;
        case OBJ_BRUSH:
            return dc->state.brush;
        case OBJ_FONT:
            return dc->state.font;
        case OBJ_BITMAP:
            return dc->state.bitmap;
        case OBJ_PAL:
            return GetStockObject(DEFAULT_PALETTE);
        default:
            return nullptr;
    }
}
