#include "gdi/text_lines.h"

#include <algorithm>
#include <limits>

#include "gdi/text_breaks.h"
#include "gdi/text_run.h"
#include "kernel/code_page.h"

namespace tavlon::win32 {
namespace {

bool IsLineEnd(const TextCell& cell) { return cell.character == U'\n' || cell.character == U'\r'; }
bool IsSpace(const TextCell& cell) { return cell.character == U' '; }

int SaturatingAdd(int a, int b) {
    return static_cast<int>(std::min<std::int64_t>(std::int64_t{a} + b, std::numeric_limits<int>::max()));
}

}  // namespace

LineBreaker::LineBreaker(FontFace& font, std::string_view text, UINT format, int width)
    : m_format(format),
      m_width(width),
      m_ellipsisWidth(tavlon::win32::WidthOf(font, "...")),
      m_tabWidth(std::max(1, 8 * font.Metrics().aveCharWidth)) {
    SplitCells(font, text);
    if (m_format & DT_WORDBREAK) Classify();
}

void LineBreaker::SplitCells(FontFace& font, std::string_view text) {
    const bool prefixes = (m_format & DT_NOPREFIX) == 0;
    bool underlined = false;
    while (!text.empty()) {
        if (prefixes && !underlined && text.size() > 1 && text[0] == '&') {
            text.remove_prefix(1);
            underlined = text[0] != '&';
            if (underlined) continue;
        }
        const DecodedCharacter next = Decode936(text);
        const auto bytes = static_cast<std::size_t>(next.bytes);
        m_cells.push_back(
            {next.character, text.substr(0, bytes), font.GlyphFor(next.character).advance, underlined});
        text.remove_prefix(bytes);
        underlined = false;
    }
}

void LineBreaker::Classify() {
    for (TextCell& cell : m_cells) cell.kind = BreakClassOf(cell.character);
}

/// Whether a line that begins at `first` may end before `at`. Text before the line has no say.
bool LineBreaker::MayBreakBefore(std::size_t first, std::size_t at) const {
    if (m_cells[at].kind == BreakClass::kSpace) return false;
    std::size_t last = at;
    while (last > first && m_cells[last - 1].kind == BreakClass::kSpace) --last;
    const bool spaces = last < at;
    while (last > first && m_cells[last - 1].kind == BreakClass::kCombining) --last;
    const BreakClass before = last > first ? m_cells[last - 1].kind : BreakClass::kLetter;
    return MayBreakBetween(before, m_cells[at].kind, spaces);
}

std::size_t LineBreaker::ParagraphEnd(std::size_t first) const {
    if (m_format & DT_SINGLELINE) return m_cells.size();
    const auto begin = m_cells.begin() + static_cast<std::ptrdiff_t>(first);
    return static_cast<std::size_t>(std::find_if(begin, m_cells.end(), IsLineEnd) - m_cells.begin());
}

/// A carriage return and a line feed side by side, in either order, are one break.
std::size_t LineBreaker::AfterLineBreak(std::size_t at) const {
    if (at >= m_cells.size()) return at;
    const bool pair = at + 1 < m_cells.size() && IsLineEnd(m_cells[at + 1]) &&
                      m_cells[at + 1].character != m_cells[at].character;
    return at + (pair ? 2 : 1);
}

bool LineBreaker::IsTab(const TextCell& cell) const {
    return cell.character == U'\t' && (m_format & DT_EXPANDTABS) != 0;
}

int LineBreaker::Advance(int x, const TextCell& cell) const {
    if (IsTab(cell)) return SaturatingAdd(x / m_tabWidth * m_tabWidth, m_tabWidth);
    return SaturatingAdd(x, cell.width);
}

int LineBreaker::WidthOf(std::size_t first, std::size_t end) const {
    int x = 0;
    for (std::size_t i = first; i < end; ++i) x = Advance(x, m_cells[i]);
    return x;
}

/// The end of the longest piece from `first` that is no wider than `width`.
std::size_t LineBreaker::Fitting(std::size_t first, std::size_t end, int width) const {
    int x = 0;
    for (std::size_t i = first; i < end; ++i) {
        x = Advance(x, m_cells[i]);
        if (x > width) return i;
    }
    return end;
}

/// Backwards from what fits to the last place for a break; without one, forwards to the end of the word.
std::size_t LineBreaker::WrapPoint(std::size_t first, std::size_t fitting, std::size_t end) const {
    for (std::size_t i = fitting; i > first; --i)
        if (MayBreakBefore(first, i)) return i;
    if (m_format & DT_EDITCONTROL) return std::max(fitting, first + 1);
    std::size_t word = fitting;
    while (word < end && !IsSpace(m_cells[word])) ++word;
    return word;
}

std::size_t LineBreaker::SegmentEnd(std::size_t first, std::size_t end) const {
    while (first < end && !IsTab(m_cells[first])) ++first;
    return first;
}

/// Every piece between tab stops is wrapped for itself; one that begins beyond the edge stays whole.
void LineBreaker::Wrap(TextLine& line) const {
    const std::size_t paragraphEnd = line.end;
    std::size_t at = line.first, fitting = 0;
    for (int x = 0;;) {
        line.end = SegmentEnd(at, paragraphEnd);
        fitting = x <= m_width ? Fitting(at, line.end, m_width - x) : line.end;
        if (fitting < line.end) break;
        if (line.end == paragraphEnd) return;
        for (; at <= line.end; ++at) x = Advance(x, m_cells[at]);
    }
    line.end = WrapPoint(at, fitting, line.end);
    line.next = line.end;
    // The space at which a line was wrapped belongs to neither line.
    const bool dropsSpace = (m_format & DT_EDITCONTROL) == 0;
    if (dropsSpace && line.next < m_cells.size() && IsSpace(m_cells[line.next])) {
        ++line.next;
        return;
    }
    // One at a break counts for a line that hangs on its left edge only.
    const bool trims = (m_format & (DT_CENTER | DT_RIGHT)) != 0 && line.end > at && line.end <= fitting;
    if (trims && IsSpace(m_cells[line.end - 1]) && MayBreakBefore(at, line.end)) --line.end;
}

/// At the end of the last piece between tab stops, unless that begins beyond the edge.
void LineBreaker::AddEllipsis(TextLine& line) const {
    std::size_t at = line.end;
    while (at > line.first && !IsTab(m_cells[at - 1])) --at;
    const int room = m_width - WidthOf(line.first, at);
    if (room < 0) return;
    line.end = Fitting(at, line.end, room - m_ellipsisWidth);
    line.ellipsis = true;
}

TextLine LineBreaker::LineAt(std::size_t first, bool isLast) const {
    TextLine line{first, ParagraphEnd(first), false, 0, 0};
    const std::size_t paragraphEnd = line.end;
    line.next = AfterLineBreak(line.end);
    if (m_format & DT_WORDBREAK && !(m_format & DT_SINGLELINE) && m_width >= 0) Wrap(line);
    if ((m_format & DT_END_ELLIPSIS) && m_width >= 0) {
        const bool endsText = isLast || line.next >= m_cells.size() ||
                              (line.end == paragraphEnd && AfterLineBreak(paragraphEnd) >= m_cells.size());
        const bool tooWide = WidthOf(line.first, line.end) > m_width;
        const std::size_t left = line.end == paragraphEnd ? line.end : line.next;
        const bool cutOff = isLast && left < m_cells.size();
        if (cutOff || (endsText && tooWide)) AddEllipsis(line);
    }
    line.width = SaturatingAdd(WidthOf(line.first, line.end), line.ellipsis ? m_ellipsisWidth : 0);
    return line;
}

}  // namespace tavlon::win32
