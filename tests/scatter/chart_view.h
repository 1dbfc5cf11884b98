// A scatter chart with known points, and whether its picture shows the range that it should.
#pragma once

#include <algorithm>
#include <array>
#include <climits>
#include <optional>
#include <string>

#include "expected_text.h"
#include "foundation/toolkit.h"
#include "scatter/core/scatter_layout.h"

constexpr UINT k_nEnlarge = 100, k_nDrag = 102, k_nShowAll = 103, k_nBigPoints = 104, k_nSmallPoints = 105;

template <class Chart>
inline constexpr const ScatterStyle& k_styleOf = k_valueRadarStyle;
template <>
inline constexpr const ScatterStyle& k_styleOf<CProxy_PointRadarCtrl> = k_pointRadarStyle;
template <>
inline constexpr const ScatterStyle& k_styleOf<CProxy_PointStartCtrl> = k_starChartStyle;

/// The charts by name, in the names of typed tests.
using ScatterCharts = testing::Types<CProxy_RoePointCtrl, CProxy_PointRadarCtrl, CProxy_PointStartCtrl>;
struct ChartNames {
    template <class Chart>
    static std::string GetName(int n) {
        return std::array{"ValueRadar", "PointRadar", "StarChart"}.at(static_cast<std::size_t>(n));
    }
};

struct Ranges {
    ValueRange x{0, 100}, y{-10, 10};

    bool operator==(const Ranges&) const = default;
};

inline const Ranges k_zoomed{{25, 75}, {-5, 5}};

/// A chart whose plot rectangle is 400 x 400 pixels, so that one pixel is 0.25 in x and 0.05 in y while the
/// full range is shown. Points of the tests count from the plot rectangle's top left corner.
template <class Chart>
class ChartView : public ChartWindow<Chart> {
public:
    ChartView() : ChartWindow<Chart>(k_cx, Height()) {
        LayoutScatter(CRect(0, 0, k_cx, Height()), k_styleOf<Chart>, m_state);
        for (const Spot& spot : k_spots) this->Put(spot.pszCode, spot.dX, spot.dY);
        this->chart.Play();
        this->Paint();
    }

    const ScatterLayout& Layout() const { return m_state; }
    CPoint At(CPoint ptPlot) const { return PlotRect(m_state).TopLeft() + ptPlot; }
    CPoint At(int x, int y) const { return At(CPoint(x, y)); }
    /// Where a value pair stands in the full range.
    CPoint PixelOf(double dX, double dY) const {
        return At(static_cast<int>(dX * 4), static_cast<int>((10 - dY) * 20));
    }

    void SendAt(UINT nMouseMessage, CPoint ptPlot) { this->Mouse(nMouseMessage, At(ptPlot)); }
    void MoveTo(CPoint ptPlot) { SendAt(WM_MOUSEMOVE, ptPlot); }
    void Zoom(const CRect& rcPlot) {
        SendAt(WM_LBUTTONDOWN, rcPlot.TopLeft());
        SendAt(WM_LBUTTONUP, rcPlot.BottomRight());
    }

    /// The middle half of both ranges, with the mouse at rest at (200,350).
    void ShowZoomed() {
        Zoom({100, 100, 300, 300});
        MoveTo({200, 350});
        this->Paint();
    }

    /// By the numbers on both axes and the places of the points.
    void ExpectRanges(const Ranges& ranges) {
        m_state.m_dMinX = ranges.x.dMin, m_state.m_dMaxX = ranges.x.dMax;
        m_state.m_dMinY = ranges.y.dMin, m_state.m_dMaxY = ranges.y.dMax;
        const Shot shot = this->Take();
        TextBoard board(shot.cx, shot.cy);
        const CRect& rcShaft = m_state.m_rcShaft;
        auto numbers = Numbers(ranges.x.dMax, ranges.x.dMin);  // the chart counts them from the right as well
        std::reverse(numbers.begin(), numbers.end());
        PutBottomNumbers(board, rcShaft, numbers);
        PutLeftNumbers(board, rcShaft, Numbers(ranges.y.dMin, ranges.y.dMax));
        ExpectTexts(shot, board, CRect(2, rcShaft.bottom + 1, shot.cx - 2, shot.cy - 2));
        ExpectTexts(shot, board, CRect(2, rcShaft.top + 22, rcShaft.left - 1, rcShaft.bottom));
        for (const Spot& spot : k_spots) ExpectSpot(shot, spot);
    }

    /// By its colour over the background; counts from the plot rectangle.
    std::optional<CRect> BandIn(const Shot& shot) const {
        CRect rcBand(INT_MAX, INT_MAX, INT_MIN, INT_MIN);
        for (int y = 0; y < shot.cy; ++y)
            for (int x = 0; x < shot.cx; ++x)
                if (shot.At(x, y) == RGB(0, 255, 255))
                    rcBand = CRect(std::min<int>(rcBand.left, x), std::min<int>(rcBand.top, y),
                                   std::max<int>(rcBand.right, x + 1), std::max<int>(rcBand.bottom, y + 1));
        if (rcBand.left == INT_MAX) return std::nullopt;
        return rcBand - At(0, 0);
    }
    std::optional<CPoint> CrossIn(const Shot& shot) const {
        const CRect& rc = m_state.m_rcShaft;
        CPoint pt(rc.left + 2, rc.top + 2);
        while (pt.x < rc.right && shot.At(pt.x, rc.bottom - 2) != RGB(150, 150, 150)) ++pt.x;
        while (pt.y < rc.bottom && shot.At(rc.right - 3, pt.y) != RGB(150, 150, 150)) ++pt.y;
        if (pt.x == rc.right && pt.y == rc.bottom) return std::nullopt;
        return pt - At(0, 0);
    }

private:
    struct Spot {
        const char* pszCode;
        double dX, dY;
    };
    static constexpr Spot k_spots[] = {{"low", 0, -10},  {"high", 100, 10}, {"middle", 48, 1},
                                       {"left", 20, -4}, {"near", 2, 1.5},  {"tiny", 0.05, 0.5}};
    static constexpr int k_cx = 50 + 500;
    static constexpr int Height() {
        return k_styleOf<Chart>.nTitleHeight + k_styleOf<Chart>.nInfoHeight + 500 + 30;
    }

    /// Nine numbers along an axis, told from its first end on.
    static std::array<std::string, 9> Numbers(double dFirst, double dLast) {
        std::array<std::string, 9> numbers;
        for (int i = 0; i < 9; ++i) numbers[i] = ScaleText(ScaleStep(dFirst, dLast, i, 8), 2);
        return numbers;
    }
    void ExpectSpot(const Shot& shot, const Spot& spot) const {
        const AxisMapping x = MapX(m_state), y = MapY(m_state);
        const CPoint pt(x.ToPixel(spot.dX), y.ToPixel(spot.dY));
        const bool bShown = x.range.Contains(spot.dX) && y.range.Contains(spot.dY);
        if (!bShown && !m_state.m_rcShaft.PtInRect(CPoint(pt.x - 2, pt.y - 2))) return;
        EXPECT_EQ(bShown, DiscAt(shot, pt) != '-') << spot.pszCode;
    }

    ScatterState m_state;
};

template <class Chart>
class ChartTest : public testing::Test {
protected:
    ChartView<Chart> m_view;
};
