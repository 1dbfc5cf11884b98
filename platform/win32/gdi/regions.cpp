#include <algorithm>

#include "gdi/objects.h"
#include "gdi/rectangle_math.h"
#include "gdi/scan_ellipse.h"

namespace tavlon::win32 {

pixman_region32_t* RegionOf(HRGN hRgn) {
    Region* region = ObjectAs<Region>(hRgn);
    return region ? region->Raw() : nullptr;
}

}  // namespace tavlon::win32

using namespace tavlon::win32;

namespace {

/// Shapes are cut to this square around the origin, which is far larger than any surface.
constexpr int kReach = 1 << 16;
constexpr RECT kShapeBounds{-kReach, -kReach, kReach, kReach};

Region* RegionFor(HRGN hRgn) {
    Region* region = ObjectAs<Region>(hRgn);
    if (!region) SetLastError(ERROR_INVALID_HANDLE);
    return region;
}

/// Whether a rectangle runs through the inside of the region, if only as a line without area.
bool Meets(const Region& region, const RECT& rect) {
    int count = 0;
    const pixman_box32_t* boxes = region.Boxes(count);
    return std::any_of(boxes, boxes + count, [&](const pixman_box32_t& box) {
        return rect.left < box.x2 && rect.right > box.x1 && rect.top < box.y2 && rect.bottom > box.y1;
    });
}

}  // namespace

HRGN CreateRectRgn(int nLeft, int nTop, int nRight, int nBottom) {
    return MakeObject<HRGN>(Region(Ordered({nLeft, nTop, nRight, nBottom})));
}

HRGN CreateRectRgnIndirect(const RECT* pRect) {
    return pRect ? CreateRectRgn(pRect->left, pRect->top, pRect->right, pRect->bottom) : nullptr;
}

HRGN CreateEllipticRgn(int nLeft, int nTop, int nRight, int nBottom) {
    RECT box = Ordered({nLeft, nTop, nRight, nBottom});
    box.right = Saturate(std::int64_t{box.right} - 1);
    box.bottom = Saturate(std::int64_t{box.bottom} - 1);
    box = Ordered(box);  // without area, it runs one pixel backwards from the edge
    RegionBuilder builder;
    ScanEllipse(kShapeBounds, box, builder.Sink());
    return MakeObject<HRGN>(builder.Build());
}

HRGN CreateEllipticRgnIndirect(const RECT* pRect) {
    return pRect ? CreateEllipticRgn(pRect->left, pRect->top, pRect->right, pRect->bottom) : nullptr;
}

HRGN CreatePolygonRgn(const POINT* pPoints, int nCount, int nMode) {
    if (!pPoints || nCount < 0) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    RegionBuilder builder;
    ScanPolygon(kShapeBounds, {pPoints, static_cast<std::size_t>(nCount)}, nMode, builder.Sink());
    return MakeObject<HRGN>(builder.Build());
}

BOOL SetRectRgn(HRGN hRgn, int nLeft, int nTop, int nRight, int nBottom) {
    Region* region = RegionFor(hRgn);
    if (!region) return FALSE;
    region->Set(Ordered({nLeft, nTop, nRight, nBottom}));
    return TRUE;
}

int CombineRgn(HRGN hDst, HRGN hSrc1, HRGN hSrc2, int nMode) {
    Region* target = RegionFor(hDst);
    const Region* first = target ? RegionFor(hSrc1) : nullptr;
    const Region* second = first && nMode != RGN_COPY ? RegionFor(hSrc2) : first;
    Region result = first ? *first : Region();
    if (!second || !result.Combine(*second, nMode)) return ERROR;
    *target = result;
    return target->Complexity();
}

int OffsetRgn(HRGN hRgn, int x, int y) {
    Region* region = RegionFor(hRgn);
    if (!region) return ERROR;
    region->Translate(x, y);
    return region->Complexity();
}

BOOL EqualRgn(HRGN hRgn1, HRGN hRgn2) {
    const Region* first = RegionFor(hRgn1);
    const Region* second = RegionFor(hRgn2);
    return first && second && *first == *second;
}

BOOL PtInRegion(HRGN hRgn, int x, int y) {
    const Region* region = RegionFor(hRgn);
    return region && region->Contains(x, y);
}

BOOL RectInRegion(HRGN hRgn, const RECT* pRect) {
    const Region* region = RegionFor(hRgn);
    return region && pRect && Meets(*region, Ordered(*pRect));
}

int GetRgnBox(HRGN hRgn, LPRECT pRect) {
    const Region* region = RegionFor(hRgn);
    if (!region || !pRect) return ERROR;
    *pRect = region->Bounds();
    return region->Complexity();
}
