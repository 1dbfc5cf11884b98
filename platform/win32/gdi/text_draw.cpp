// DrawText: lines laid out in a rectangle.

#include <algorithm>
#include <cstring>
#include <limits>

#include "gdi/text_lines.h"
#include "gdi/text_run.h"

namespace tavlon::win32 {
namespace {

std::int64_t HeightOf(const RECT& rect) { return std::int64_t{rect.bottom} - rect.top; }

int Clamped(std::int64_t value) {
    return static_cast<int>(
        std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

/// One call of DrawText.
class TextBlock {
public:
    TextBlock(DeviceContext& dc, std::string_view text, const RECT& rect, UINT format)
        : m_dc(dc),
          m_font(FontOf(dc)),
          m_rect(rect),
          m_format(format),
          m_lineHeight(m_font.Metrics().ascent + m_font.Metrics().descent),
          m_lines(m_font, text, format, Clamped(std::int64_t{rect.right} - rect.left)) {}

    /// Draws unless only measuring, and gives the system's answer: the height used, counted from the top.
    int Run();
    /// The rectangle around the text, for a caller who measures.
    RECT Measured() const {
        return {m_rect.left, m_rect.top, Clamped(std::int64_t{m_rect.left} + m_widest),
                Clamped(m_rect.top + m_used)};
    }

private:
    bool Measuring() const { return (m_format & DT_CALCRECT) != 0; }
    bool SingleLine() const { return (m_format & DT_SINGLELINE) != 0; }
    /// Whether the rectangle's bottom ends the text.
    bool BoundedBelow() const { return !Measuring() && (m_format & DT_NOCLIP) == 0; }

    bool Editing() const { return (m_format & DT_EDITCONTROL) != 0; }
    /// Whether the rectangle has no room for a line behind the one that begins now. An edit control shows no
    /// line of which more than a row would be cut off.
    bool IsLastLine() const {
        if (SingleLine()) return true;
        if (!BoundedBelow()) return false;
        return Editing() ? m_used + 2 * m_lineHeight > HeightOf(m_rect) + 1
                         : m_used + m_lineHeight > HeightOf(m_rect);
    }

    std::int64_t FirstLineOffset() const;
    std::int64_t LeftOf(const TextLine& line) const;
    void DrawLine(const TextLine& line, std::int64_t y);
    void DrawPiece(std::string_view text, std::int64_t x, std::int64_t y);
    void UnderlineMarked(const TextLine& line, std::int64_t left, std::int64_t y);
    void Underline(std::int64_t x, std::int64_t y, int width);

    DeviceContext& m_dc;
    FontFace& m_font;
    RECT m_rect;
    UINT m_format;
    int m_lineHeight;
    LineBreaker m_lines;
    int m_widest = 0;
    std::int64_t m_used = 0;  ///< From the rectangle's top to the bottom of the last line.
};

/// Only single lines stand anywhere but at the top.
std::int64_t TextBlock::FirstLineOffset() const {
    if (!SingleLine()) return 0;
    if (m_format & DT_VCENTER) return HeightOf(m_rect) / 2 - m_lineHeight / 2;
    return m_format & DT_BOTTOM ? HeightOf(m_rect) - m_lineHeight : 0;
}

std::int64_t TextBlock::LeftOf(const TextLine& line) const {
    if (m_format & DT_CENTER) return (std::int64_t{m_rect.left} + m_rect.right - line.width) / 2;
    return m_format & DT_RIGHT ? std::int64_t{m_rect.right} - line.width : m_rect.left;
}

void TextBlock::DrawPiece(std::string_view text, std::int64_t x, std::int64_t y) {
    const UINT options = m_format & DT_NOCLIP ? 0 : ETO_CLIPPED;
    DrawRun(m_dc, m_font, {Clamped(x), Clamped(y)}, options, &m_rect, text, nullptr);
}

void TextBlock::Underline(std::int64_t x, std::int64_t y, int width) {
    const std::int64_t line = y + m_font.Metrics().ascent + 1;
    RECT rect{Clamped(x), Clamped(line), Clamped(x + width - 1), Clamped(line + 1)};
    const RECT clip{m_rect.left, m_rect.top, m_rect.right, Clamped(std::int64_t{m_rect.bottom} + 1)};
    if (!(m_format & DT_NOCLIP) && !IntersectRect(&rect, &rect, &clip)) return;
    FillDeviceRect(m_dc, ToSurface(m_dc, rect), m_dc.state.textColor);
}

void TextBlock::DrawLine(const TextLine& line, std::int64_t y) {
    const std::int64_t left = LeftOf(line);
    std::string piece;
    std::int64_t pieceStart = 0, x = 0;
    const auto flush = [&] {
        if (!piece.empty()) DrawPiece(piece, left + pieceStart, y);
        piece.clear();
        pieceStart = x;
    };
    for (std::size_t i = line.first; i < line.end; ++i) {
        const TextCell& cell = m_lines.Cells()[i];
        x = m_lines.Advance(static_cast<int>(x), cell);
        if (m_lines.IsTab(cell))
            flush();
        else
            piece += cell.bytes;
    }
    if (line.ellipsis) piece += "...";
    flush();
    UnderlineMarked(line, left, y);
}

/// Only a line's last mark shows: on top of the text and of its background.
void TextBlock::UnderlineMarked(const TextLine& line, std::int64_t left, std::int64_t y) {
    const TextCell* pMarked = nullptr;
    int x = 0, xMarked = 0;
    for (std::size_t i = line.first; i < line.end; ++i) {
        const TextCell& cell = m_lines.Cells()[i];
        if (cell.underlined) pMarked = &cell, xMarked = x;
        x = m_lines.Advance(x, cell);
    }
    if (pMarked) Underline(left + xMarked, y, pMarked->width);
}

int TextBlock::Run() {
    if (m_lines.Cells().empty()) {
        m_used = SingleLine() ? m_lineHeight : 0;
        return m_lineHeight;  // what the system answers, though nothing is used
    }
    const std::int64_t offset = FirstLineOffset();
    std::size_t at = 0;
    m_used = offset;
    do {
        const bool isLast = IsLastLine();
        const TextLine line = m_lines.LineAt(at, isLast);
        if (!Measuring()) DrawLine(line, m_rect.top + m_used);
        m_widest = std::max(m_widest, line.width);
        m_used += m_lineHeight;
        at = line.next;
        if (isLast) break;
    } while (at < m_lines.Cells().size());
    return m_used == 0 ? 1 : Clamped(m_used);  // 0 would mean failure
}

}  // namespace
}  // namespace tavlon::win32

using namespace tavlon::win32;

extern "C" int DrawTextA(HDC hdc, LPCSTR pszText, int cbText, LPRECT pRect, UINT nFormat) {
    DeviceContext* pDc = DcOf(hdc);
    if (!pDc || !pRect || cbText == 0 || cbText < -1) return 0;
    const char* pszSafe = pszText ? pszText : "";
    const std::size_t count = !pszText     ? 0
                              : cbText < 0 ? std::strlen(pszText)
                                           : static_cast<std::size_t>(cbText);
    TextBlock block(*pDc, {pszSafe, count}, *pRect, nFormat);
    const int nHeight = block.Run();
    if (nFormat & DT_CALCRECT) *pRect = block.Measured();
    return nHeight;
}
