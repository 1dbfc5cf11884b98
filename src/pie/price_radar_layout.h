#pragma once

#include <tavlon/framework.h>

#include <array>

#include "pie_geometry.h"

/// One dated column of the price radar; client pixels.
struct tagPriceRadarColumn {
    CRect rcUpPie{0, 0, 0, 0};
    CRect rcDownPie{0, 0, 0, 0};
    CRect rcTopLabel{0, 0, 0, 0};     ///< The date.
    CRect rcBottomLabel{0, 0, 0, 0};  ///< The net amount.
    CRect rcColumn{0, 0, 0, 0};       ///< All of it, below the title strip.
    int nUpRadius = 0;
    int nDownRadius = 0;
    double dUpTotal = 0;
    double dDownTotal = 0;

    PieCircle UpPie() const { return CircleIn(rcUpPie, nUpRadius); }
    PieCircle DownPie() const { return CircleIn(rcDownPie, nDownRadius); }
};

constexpr int k_nPriceColumns = 8;
using PriceRadarColumns = std::array<tagPriceRadarColumn, k_nPriceColumns>;

/// The height as it can be reckoned with: any, but for those far below zero.
int HeldHeight(int nHeight);

/// Places the columns, counted from the right, and returns their pies' common radius. The leftmost takes what
/// the division leaves over; neighbours share a pixel. False, changing nothing, when the window is too low
/// for title and labels.
bool CalcPriceRadarLayout(const CRect& rcClient, int nTitleHeight, int nLabelHeight,
                          PriceRadarColumns& columns, int& nRadius);
