#pragma once

#include <tavlon/export.h>
#include <tavlon/framework.h>

/// Owner of one mouse cursor that is made from a bitmap. Copying is not possible; destruction destroys it.
class TAVLON_API CScatterCursor {
public:
    CScatterCursor() = default;
    virtual ~CScatterCursor();
    CScatterCursor(const CScatterCursor&) = delete;
    CScatterCursor& operator=(const CScatterCursor&) = delete;

    /// Replaces the cursor by one that shows the bitmap, but the screen wherever a pixel has the transparent
    /// colour. The hot spot counts from the top left corner. The bitmap stays the caller's. There is no
    /// cursor afterwards when the bitmap is null, or selected into a device context, or the system refuses.
    void CreateFromBitmap(HBITMAP hBitmap, COLORREF clrTransparent, DWORD dwXHotspot, DWORD dwYHotspot);
    HCURSOR GetHandle() const { return m_hCursor; }  ///< Null: there is none.
    void Destroy();

    /// Makes the two bitmaps of a cursor, which the caller deletes: a mask, white where the pixels are
    /// transparent and black elsewhere, and the picture, black where they are. Both or, after a failure,
    /// neither: then both are null.
    void MakeMaskAndColor(HBITMAP hBitmap, COLORREF clrTransparent, HBITMAP* phMask, HBITMAP* phColor);

private:
    HCURSOR m_hCursor = nullptr;
};
