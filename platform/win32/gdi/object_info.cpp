#include <algorithm>
#include <cstring>

#include "gdi/colour.h"
#include "gdi/objects.h"

using namespace tavlon::win32;

namespace {

/// Answers the record's size when no buffer is given, else copies as much of it as fits.
template <class Record>
int CopyRecord(const Record& record, int cbBuffer, void* pBuffer) {
    if (!pBuffer) return static_cast<int>(sizeof record);
    // A negative size counts as a huge one.
    const std::size_t size = std::min<std::size_t>(sizeof record, static_cast<unsigned>(cbBuffer));
    std::memcpy(pBuffer, &record, size);
    return static_cast<int>(size);
}

struct InfoWriter {
    int cbBuffer;
    void* pBuffer;

    /// Of some records all is wanted or nothing.
    template <class Record>
    bool Fits(const Record& record) const {
        return !pBuffer || static_cast<unsigned>(cbBuffer) >= sizeof record;
    }

    int operator()(const PenObject& pen) const {
        LOGPEN record{static_cast<UINT>(pen.style), {pen.width, 0}, pen.colour};
        if (!Fits(record)) return 0;
        return CopyRecord(record, cbBuffer, pBuffer);
    }
    int operator()(const BrushObject& brush) const {
        return CopyRecord(LOGBRUSH{brush.style, brush.colour, 0}, cbBuffer, pBuffer);
    }
    int operator()(const LOGFONTA& font) const { return CopyRecord(font, cbBuffer, pBuffer); }
    int operator()(const BitmapObject& bitmap) const {
        Surface& surface = *bitmap.surface;
        BITMAP record{};
        record.bmWidth = surface.Width();
        record.bmHeight = surface.Height();
        record.bmPlanes = 1;
        record.bmBitsPixel = static_cast<WORD>(surface.BitsPerPixel());
        record.bmWidthBytes = (record.bmWidth * record.bmBitsPixel + 15) / 16 * 2;
        record.bmBits = surface.SectionBits();
        if (!Fits(record)) return 0;
        return CopyRecord(record, cbBuffer, pBuffer);
    }
    int operator()(const Region&) const { return 0; }
    int operator()(const PaletteObject&) const {
        const WORD entries = kPaletteEntries;
        return CopyRecord(entries, cbBuffer, pBuffer);
    }
};

}  // namespace

int GetObjectA(HANDLE hObject, int cbBuffer, LPVOID pBuffer) {
    const GdiObject* object = ObjectOf(hObject);
    return object ? std::visit(InfoWriter{cbBuffer, pBuffer}, object->data) : 0;
}
