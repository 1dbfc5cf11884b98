#include "hit_grid.h"

#include <algorithm>

#include "scatter_layout.h"

namespace {
constexpr int k_nCellSize = 16;    // pixels; more than a hit box, which so touches two at most
constexpr int k_nMostCells = 256;  // in one direction
}  // namespace

int HitGrid::Cells::At(long long nPixel) const {
    return static_cast<int>(std::clamp((nPixel - nStart) / k_nCellSize, 0LL, nCount - 1LL));
}

HitGrid::Cells HitGrid::CellsFor(int nStart, int nEnd) {
    const long long nCount = (0LL + nEnd - nStart) / k_nCellSize + 1;  // the end's own cell as well
    return {nStart, static_cast<int>(std::clamp(nCount, 1LL, 0LL + k_nMostCells))};
}

std::size_t HitGrid::CellIndex(int nColumn, int nRow) const {
    return static_cast<std::size_t>(nRow) * static_cast<std::size_t>(m_columns.nCount) +
           static_cast<std::size_t>(nColumn);
}

void HitGrid::Start(const CRect& rcPlot, int nPoints) {
    m_columns = CellsFor(rcPlot.left, rcPlot.right);
    m_rows = CellsFor(rcPlot.top, rcPlot.bottom);
    m_heads.assign(CellIndex(0, m_rows.nCount), -1);
    m_points.clear();
    m_points.reserve(static_cast<std::size_t>(std::max(nPoints, 0)));
}

void HitGrid::Add(CPoint ptCentre) {
    int& nHead = m_heads[CellIndex(m_columns.At(ptCentre.x), m_rows.At(ptCentre.y))];
    m_points.push_back({ptCentre, nHead});
    nHead = static_cast<int>(m_points.size()) - 1;
}

int HitGrid::FindInCell(int nHead, CPoint ptMouse, HitOrder order) const {
    int nFound = -1;
    for (int nPoint = nHead; nPoint >= 0;) {  // the newest first
        const Point& point = m_points[static_cast<std::size_t>(nPoint)];
        if (IsOnPoint(ptMouse.x, point.ptCentre.x) && IsOnPoint(ptMouse.y, point.ptCentre.y)) {
            nFound = nPoint;
            if (order == HitOrder::LastWins) break;
        }
        nPoint = point.nNext;
    }
    return nFound;
}

int HitGrid::Find(CPoint ptMouse, HitOrder order) const {
    const int nLeft = m_columns.At(0LL + ptMouse.x - k_nHitReach),
              nTop = m_rows.At(0LL + ptMouse.y - k_nHitReach),
              nRight = m_columns.At(0LL + ptMouse.x + k_nHitReach),
              nBottom = m_rows.At(0LL + ptMouse.y + k_nHitReach);
    int nBest = -1;
    for (int nRow = nTop; nRow <= nBottom; ++nRow)
        for (int nColumn = nLeft; nColumn <= nRight; ++nColumn) {
            const int nFound = FindInCell(m_heads[CellIndex(nColumn, nRow)], ptMouse, order);
            if (nFound < 0) continue;
            const bool bFirst = nBest < 0 || (order == HitOrder::FirstWins ? nFound < nBest : nFound > nBest);
            if (bFirst) nBest = nFound;
        }
    return nBest;
}
