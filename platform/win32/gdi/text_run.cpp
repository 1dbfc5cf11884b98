#include "gdi/text_run.h"

#include <algorithm>
#include <limits>

#include "gdi/surface.h"
#include "kernel/code_page.h"

namespace tavlon::win32 {
namespace {

constexpr UINT kHorizontalMask = TA_RIGHT | TA_CENTER;
constexpr UINT kVerticalMask = TA_BOTTOM | TA_BASELINE;
constexpr RECT kEverywhere{std::numeric_limits<LONG>::min(), std::numeric_limits<LONG>::min(),
                           std::numeric_limits<LONG>::max(), std::numeric_limits<LONG>::max()};

/// Coordinates near the ends of the range stay there instead of wrapping round.
int Add(int a, std::int64_t b) {
    return static_cast<int>(
        std::clamp<std::int64_t>(a + b, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

RECT Intersection(const RECT& a, const RECT& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom)};
}

bool IsEmpty(const RECT& rect) { return rect.left >= rect.right || rect.top >= rect.bottom; }

RECT Normalised(const RECT& rect) {
    return {std::min(rect.left, rect.right), std::min(rect.top, rect.bottom), std::max(rect.left, rect.right),
            std::max(rect.top, rect.bottom)};
}

/// Where the pen starts (surface pixels) and what surrounds the text.
struct Placement {
    POINT pen;  ///< On the baseline.
    RECT box;   ///< Advance width by cell height.
};

Placement Place(const DeviceContext& dc, const FontMetrics& metrics, POINT reference, int width) {
    const UINT align = dc.state.textAlign;
    Placement place{reference, {}};
    if ((align & kHorizontalMask) == TA_RIGHT) place.pen.x = Add(reference.x, -std::int64_t{width});
    if ((align & kHorizontalMask) == TA_CENTER) place.pen.x = Add(reference.x, -(width / 2));
    if ((align & kVerticalMask) == TA_TOP) place.pen.y = Add(reference.y, metrics.ascent);
    if ((align & kVerticalMask) == TA_BOTTOM) place.pen.y = Add(reference.y, -metrics.descent);
    place.box = {place.pen.x, Add(place.pen.y, -metrics.ascent), Add(place.pen.x, width),
                 Add(place.pen.y, metrics.descent)};
    return place;
}

/// The current position moves to where the next text would continue.
void MovePosition(DeviceContext& dc, int width) {
    const UINT horizontal = dc.state.textAlign & kHorizontalMask;
    if (horizontal == TA_CENTER) return;
    dc.state.position.x = Add(dc.state.position.x, horizontal == TA_RIGHT ? -std::int64_t{width} : width);
}

/// Draws the part of a glyph that lies inside `clip`.
void DrawGlyph(DeviceContext& dc, const Glyph& glyph, int x, int y, const RECT& clip) {
    const RECT whole{x, y, Add(x, glyph.width), Add(y, glyph.height)};
    const RECT part = Intersection(whole, clip);
    if (IsEmpty(part)) return;
    if (part.left == whole.left && part.right == whole.right) {  // whole rows lie one behind the other
        BlendCoverage(dc, x, part.top, glyph.width, part.bottom - part.top,
                      glyph.coverage + static_cast<std::ptrdiff_t>(part.top - y) * glyph.width,
                      dc.state.textColor);
        return;
    }
    for (int row = part.top; row < part.bottom; ++row)
        BlendCoverage(dc, part.left, row, part.right - part.left, 1,
                      glyph.coverage + static_cast<std::ptrdiff_t>(row - y) * glyph.width + (part.left - x),
                      dc.state.textColor);
}

/// Ink may lean out of the advance box, by no more than a cell or so.
RECT InkBounds(const Placement& place, const FontMetrics& metrics) {
    const std::int64_t margin = 2LL * std::max(metrics.maxCharWidth, metrics.ascent + metrics.descent);
    return {Add(place.box.left, -margin), Add(place.box.top, -margin), Add(place.box.right, margin),
            Add(place.box.bottom, margin)};
}

void DrawGlyphs(DeviceContext& dc, const TextRun& run, POINT pen, const RECT& clip) {
    for (const PlacedGlyph& placed : run.glyphs)
        if (placed.glyph->coverage)
            DrawGlyph(dc, *placed.glyph, Add(pen.x, std::int64_t{placed.x} + placed.glyph->left),
                      Add(pen.y, -placed.glyph->top), clip);
}

/// Lines that the description asks for under or through the text; ETO_CLIPPED does not clip them.
void DrawTextLines(DeviceContext& dc, const FontMetrics& metrics, const Placement& place) {
    const LOGFONTA& font = FontDescription(dc);
    const auto rule = [&](const TextRule& rows) {
        const int top = Add(place.pen.y, rows.top);
        const RECT rect{place.box.left, top, place.box.right, Add(top, rows.height)};
        if (!IsEmpty(rect)) FillDeviceRect(dc, rect, dc.state.textColor);
    };
    if (font.lfUnderline) rule(metrics.underline);
    if (font.lfStrikeOut) rule(metrics.strikeout);
}

/// What the caller's list has for the bytes of one character.
int SumOf(const INT* pDx, int bytes) {
    int sum = 0;
    for (int i = 0; i < bytes; ++i) sum = Add(sum, pDx[i]);
    return sum;
}

/// Calls visit(glyph, offset of its first byte, bytes) for every character.
template <class Visit>
void ForEachGlyph(FontFace& font, std::string_view text, Visit visit) {
    for (std::size_t at = 0; at < text.size();) {
        const DecodedCharacter next = Decode936(text.substr(at));
        visit(font.GlyphFor(next.character), at, next.bytes);
        at += static_cast<std::size_t>(next.bytes);
    }
}

/// The background box and the glyphs.
void DrawInk(DeviceContext& dc, const FontMetrics& metrics, const TextRun& run, const Placement& place,
             const RECT& clip) {
    const RECT ink = Intersection(InkBounds(place, metrics), clip);
    if (IsEmpty(ink) || !MayDraw(dc, ink)) return;
    const RECT box = Intersection(place.box, clip);
    if (dc.state.bkMode == OPAQUE && !IsEmpty(box)) FillBackground(dc, box);
    DrawGlyphs(dc, run, place.pen, clip);
}

}  // namespace

FontFace& FontOf(const DeviceContext& dc) {
    LOGFONTA description = FontDescription(dc);
    if (dc.surface && dc.surface->BitsPerPixel() == 1) description.lfQuality = NONANTIALIASED_QUALITY;
    return *FontForDescription(description);
}

TextRun LayOutRun(FontFace& font, std::string_view text, const INT* pDx) {
    TextRun run;
    run.glyphs.reserve(text.size());
    int x = 0;
    ForEachGlyph(font, text, [&](const Glyph& glyph, std::size_t at, int bytes) {
        const int asked = pDx ? SumOf(pDx + at, bytes) : 0;
        run.glyphs.push_back({&glyph, x});
        x = Add(x, pDx ? asked : glyph.drawnAdvance);
        run.width = Add(run.width, pDx ? asked : glyph.advance);
    });
    return run;
}

int WidthOf(FontFace& font, std::string_view text) {
    int width = 0;
    ForEachGlyph(font, text,
                 [&](const Glyph& glyph, std::size_t, int) { width = Add(width, glyph.advance); });
    return width;
}

void DrawRun(DeviceContext& dc, FontFace& font, POINT point, UINT options, const RECT* pRect,
             std::string_view text, const INT* pDx) {
    const bool follows = (dc.state.textAlign & TA_UPDATECP) != 0;
    const POINT logical = follows ? dc.state.position : point;
    const RECT rect = pRect ? Normalised(ToSurface(dc, *pRect)) : RECT{};
    const RECT clip = pRect && (options & ETO_CLIPPED) ? rect : kEverywhere;
    if (pRect && (options & ETO_OPAQUE)) FillBackground(dc, rect);
    if (text.empty()) return;
    const TextRun run = LayOutRun(font, text, pDx);
    const Placement place = Place(dc, font.Metrics(), ToSurface(dc, logical.x, logical.y), run.width);
    if (follows) MovePosition(dc, run.width);
    DrawInk(dc, font.Metrics(), run, place, clip);
    DrawTextLines(dc, font.Metrics(), place);
}

}  // namespace tavlon::win32
