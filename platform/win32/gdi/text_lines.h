/// DrawText's layout: a text cut into lines that fit a width.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "gdi/text_breaks.h"
#include "gdi/text_font.h"

namespace tavlon::win32 {

/// One character of a text from which the prefix marks are gone.
struct TextCell {
    char32_t character = 0;
    std::string_view bytes;
    int width = 0;
    bool underlined = false;
    BreakClass kind = BreakClass::kLetter;  ///< Known where lines are wrapped.
};

/// A line: cells [first, end), and whether three dots stand for what was cut off behind them.
struct TextLine {
    std::size_t first = 0, end = 0;
    bool ellipsis = false;
    int width = 0;
    std::size_t next = 0;  ///< Where the following line begins.
};

class LineBreaker {
public:
    LineBreaker(FontFace& font, std::string_view text, UINT format, int width);

    const std::vector<TextCell>& Cells() const { return m_cells; }
    /// The line that begins at cell `first`. `isLast`: no line will follow, whatever text is left.
    TextLine LineAt(std::size_t first, bool isLast) const;
    bool IsTab(const TextCell& cell) const;
    /// Where the pen is after a cell that it enters at `x`, counted from the start of the line.
    int Advance(int x, const TextCell& cell) const;

private:
    void SplitCells(FontFace& font, std::string_view text);
    void Classify();
    std::size_t ParagraphEnd(std::size_t first) const;
    std::size_t AfterLineBreak(std::size_t at) const;
    std::size_t Fitting(std::size_t first, std::size_t end, int width) const;
    std::size_t SegmentEnd(std::size_t first, std::size_t end) const;
    bool MayBreakBefore(std::size_t first, std::size_t at) const;
    std::size_t WrapPoint(std::size_t first, std::size_t fitting, std::size_t end) const;
    void Wrap(TextLine& line) const;
    void AddEllipsis(TextLine& line) const;
    int WidthOf(std::size_t first, std::size_t end) const;

    UINT m_format;
    int m_width;
    int m_ellipsisWidth;
    int m_tabWidth;
    std::vector<TextCell> m_cells;
};

}  // namespace tavlon::win32
