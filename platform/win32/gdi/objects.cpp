#include "gdi/objects.h"

#include "gdi/device_context.h"
#include "kernel/handle_table.h"

namespace tavlon::win32 {

namespace {

using ObjectTable = HandleTable<GdiObject, kTagGdiObject>;

ObjectTable& Table() {
    static auto* table = new ObjectTable;  // outlives every static that may still release objects
    return *table;
}

DWORD g_systemObjects = 0;

}  // namespace

HGDIOBJ AddObject(GdiObject object) {
    g_systemObjects += object.system;
    return Table().Add(std::make_unique<GdiObject>(std::move(object)));
}

GdiObject* ObjectOf(HGDIOBJ handle) { return Table().Get(handle); }

void HoldObject(HGDIOBJ handle) {
    if (GdiObject* object = ObjectOf(handle)) ++object->selections;
}

void DropObject(HGDIOBJ handle) {
    GdiObject* object = ObjectOf(handle);
    if (object && --object->selections == 0 && object->doomed) Table().Remove(handle);
}

DWORD CountObjects() { return static_cast<DWORD>(Table().Live()) - g_systemObjects; }

}  // namespace tavlon::win32

using namespace tavlon::win32;

BOOL DeleteObject(HGDIOBJ hObject) {
    GdiObject* object = ObjectOf(hObject);
    if (!object) return GetObjectType(hObject) != 0 && DeleteDC(static_cast<HDC>(hObject));
    if (object->system) return TRUE;
    if (object->selections > 0)
        object->doomed = true;
    else
        Table().Remove(hObject);
    return TRUE;
}

DWORD GetObjectType(HGDIOBJ hObject) {
    static constexpr DWORD kTypes[] = {OBJ_PEN, OBJ_BRUSH, OBJ_FONT, OBJ_BITMAP, OBJ_REGION, OBJ_PAL};
    if (const GdiObject* object = ObjectOf(hObject)) return kTypes[object->data.index()];
    const DeviceContext* dc = DcOf(static_cast<HDC>(hObject));
    if (!dc) return 0;
    return dc->memory ? OBJ_MEMDC : OBJ_DC;
}
