/// Which point the mouse is on, without asking every one of them.
#pragma once

#include <tavlon/framework.h>

#include <cstddef>
#include <vector>

enum class HitOrder { FirstWins, LastWins };  ///< Of several points under the mouse.

/// Points by the screen cell they lie in. The answer is that of a search through all of them.
class HitGrid {
public:
    /// Forgets everything. Points are then expected in `rcPlot`, about `nPoints` of them: both only for
    /// speed.
    void Start(const CRect& rcPlot, int nPoints);
    void Add(CPoint ptCentre);                       ///< The next point of the list.
    int Find(CPoint ptMouse, HitOrder order) const;  ///< Its place in the list; -1: the mouse is on none.

private:
    /// One direction of the grid. The outermost cells hold whatever lies beyond them as well.
    struct Cells {
        int nStart = 0;  ///< First pixel of cell 0.
        int nCount = 1;

        int At(long long nPixel) const;
    };
    struct Point {
        CPoint ptCentre;
        int nNext;  ///< The one before it in its cell, -1 at the end.
    };

    static Cells CellsFor(int nStart, int nEnd);
    std::size_t CellIndex(int nColumn, int nRow) const;
    int FindInCell(int nHead, CPoint ptMouse, HitOrder order) const;

    Cells m_columns, m_rows;
    std::vector<int> m_heads{-1};  ///< The newest point of each cell, row by row; -1: none.
    std::vector<Point> m_points;
};
