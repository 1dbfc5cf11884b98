/// The objects behind pen, brush, font, bitmap and region handles.
#pragma once

#include <windows.h>

#include <memory>
#include <utility>
#include <variant>

#include "gdi/region.h"
#include "gdi/surface.h"

namespace tavlon::win32 {

struct PenObject {
    int style = PS_SOLID;
    int width = 1;
    COLORREF colour = 0;
};
struct BrushObject {
    UINT style = BS_SOLID;
    COLORREF colour = 0;
};
struct BitmapObject {
    SurfaceRef surface;
    HDC selectedInto = nullptr;  ///< A bitmap is in one memory device context at a time.
};

struct PaletteObject {};  ///< There is one palette, which nothing can change.

struct GdiObject {
    std::variant<PenObject, BrushObject, LOGFONTA, BitmapObject, Region, PaletteObject> data;
    bool system = false;  ///< Stock or cached: never deleted, never counted.
    int selections = 0;   ///< Device context states, current and saved, that hold it.
    bool doomed = false;  ///< DeleteObject was called while it was selected.
};

/// Takes the object in; null when handles have run out.
HGDIOBJ AddObject(GdiObject object);
/// The object behind a handle, or null.
GdiObject* ObjectOf(HGDIOBJ handle);

/// The object of one kind behind a handle; null when it is dead or of another kind.
template <class Kind>
Kind* ObjectAs(HGDIOBJ handle) {
    GdiObject* object = ObjectOf(handle);
    return object ? std::get_if<Kind>(&object->data) : nullptr;
}

/// Makes a handle of a fresh object of one kind.
template <class Handle, class Kind>
Handle MakeObject(Kind kind) {
    GdiObject object;
    object.data = std::move(kind);
    return static_cast<Handle>(AddObject(std::move(object)));
}

/// Counts a selection of the object up or down; the last one down deletes a doomed object.
void HoldObject(HGDIOBJ handle);
void DropObject(HGDIOBJ handle);

/// Objects alive that are not the system's.
DWORD CountObjects();

/// The one-by-one monochrome bitmap that fresh memory device contexts hold.
HBITMAP StockBitmap();

}  // namespace tavlon::win32
