#include "gdi/scan_ellipse.h"

#include <algorithm>
#include <cmath>

#include "gdi/rectangle_math.h"

namespace tavlon::win32 {

namespace {

constexpr OutlineRow kNoPixels{0, -1};

/// Rows from the middle of an ellipse to its top, the outline followed by the sign of the ellipse's equation:
/// from every pixel the next is beside it, above it or both, whichever keeps the error between the bounds
/// that a step sideways and a step up would set.
class Walker {
public:
    Walker(std::int64_t width, std::int64_t height)
        : m_a(width - 1), m_b(height - 1), m_row((m_b + 1) / 2 - (m_b & 1)) {
        const std::int64_t odd = m_b & 1;
        m_sideways = 4 * (1 - m_a) * m_b * m_b;
        m_up = 4 * (odd + 1) * m_a * m_a;
        m_error = m_sideways + m_up + odd * m_a * m_a;
    }
    bool Done() const { return 2 * m_column > m_a || m_row < 0; }
    POINT Pixel() const { return {static_cast<int>(m_column), static_cast<int>(m_row)}; }
    void Step() {
        const std::int64_t doubled = 2 * m_error;
        if (doubled >= m_sideways) {
            ++m_column;
            m_error += m_sideways += 8 * m_b * m_b;
        }
        if (doubled <= m_up) {
            --m_row;
            m_error += m_up += 8 * m_a * m_a;
        }
    }

private:
    std::int64_t m_a, m_b, m_row, m_column = 0;
    std::int64_t m_sideways, m_up, m_error;
};

}  // namespace

std::vector<POINT> EllipseQuadrant(int width, int height) {
    std::vector<POINT> pixels;
    for (Walker walker(width, height); !walker.Done(); walker.Step()) pixels.push_back(walker.Pixel());
    return pixels;
}

EllipseRows::EllipseRows(std::int64_t width, std::int64_t height, std::int64_t firstRow, std::int64_t lastRow)
    : m_width(width), m_height(height) {
    if (firstRow < lastRow && width <= kLargestEllipseWalk && height <= kLargestEllipseWalk) Walk();
}

void EllipseRows::Walk() {
    const int middle = static_cast<int>((m_width - 1) / 2);
    m_rows.assign(static_cast<std::size_t>((m_height + 1) / 2), kNoPixels);
    if (m_width <= 1 || m_height <= 1) return m_rows.assign(m_rows.size(), {0, middle});
    for (const POINT& pixel : EllipseQuadrant(static_cast<int>(m_width), static_cast<int>(m_height))) {
        OutlineRow& row = m_rows[static_cast<std::size_t>(pixel.y)];
        if (!row.Any()) row.first = pixel.x;
        row.last = pixel.x;
    }
}

OutlineRow EllipseRows::Compute(std::int64_t row) const {
    const auto edge = [this](double y) {
        const double b = m_height / 2.0, t = std::clamp((b - y) / b, -1.0, 1.0);
        return static_cast<int>(
            std::clamp(m_width / 2.0 * (1 - std::sqrt(1 - t * t)), 0.0, (m_width - 1) / 2.0));
    };
    const double mirrored = static_cast<double>(std::min(row, m_height - 1 - row));
    return {edge(mirrored + 1), std::max(edge(mirrored + 1), edge(mirrored))};
}

OutlineRow EllipseRows::Row(std::int64_t row) const {
    if (m_rows.empty()) return Compute(row);
    return m_rows[static_cast<std::size_t>(std::min(row, m_height - 1 - row))];
}

namespace {

template <class Visit>
void ForRows(const RECT& bounds, const RECT& box, Visit visit) {
    const int top = std::max(bounds.top, box.top), bottom = std::min(bounds.bottom, box.bottom);
    if (top >= bottom || box.left >= box.right) return;
    const EllipseRows rows(std::int64_t{box.right} - box.left, std::int64_t{box.bottom} - box.top,
                           std::int64_t{top} - box.top, std::int64_t{bottom} - box.top);
    for (int y = top; y < bottom; ++y) {
        const OutlineRow row = rows.Row(std::int64_t{y} - box.top);
        if (row.Any()) visit(y, row);
    }
}

}  // namespace

void ScanEllipse(const RECT& bounds, const RECT& box, const SpanSink& sink) {
    ForRows(bounds, box,
            [&](int y, OutlineRow row) { sink(y, box.left + row.first, box.right - row.first); });
}

void ScanEllipseOutline(const RECT& bounds, const RECT& box, const SpanSink& sink) {
    const auto sides = [&](int y, int first, int last) {
        const int left = box.left + last + 1, right = box.right - last - 1;
        if (left >= right) return sink(y, box.left + first, box.right - first);
        sink(y, box.left + first, left);
        sink(y, right, box.right - first);
    };
    ForRows(bounds, box, [&](int y, OutlineRow row) {
        sides(y, row.first, row.last);
        // Both halves draw the row between them, but for its outermost pixels.
        const bool shared = std::int64_t{y} - box.top == std::int64_t{box.bottom} - 1 - y;
        if (shared && row.first < row.last) sides(y, row.first + 1, row.last);
    });
}

}  // namespace tavlon::win32
