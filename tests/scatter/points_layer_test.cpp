// The layer that caches a scatter chart's points, when there is no memory for it.
#include <gtest/gtest.h>

#include "foundation/canvas.h"
#include "scatter/points_layer.h"

TEST(PointsLayer, WithoutMemoryTheSurfaceTakesThePoints) {
    Canvas canvas(20, 10, k_clrRed);
    CDC& dc = canvas.dc;
    ScatterState state;
    state.m_rcClient = CRect(0, 0, 20, 10);
    const auto paint = [&] {  // one blue pixel; tells onto which context, null for none
        const CDC* pDrawnOn = nullptr;
        PaintThroughLayer(dc, state, [&](CDC& dcPoints) {
            dcPoints.SetPixel(3, 3, k_clrBlue);
            pDrawnOn = &dcPoints;
        });
        return pDrawnOn;
    };
    state.m_bLayerStale = true;
    EXPECT_EQ(&state.m_dcLayer, paint());
    EXPECT_TRUE(IsLayerCurrent(state));
    canvas.Fill(k_clrGreen);
    EXPECT_EQ(nullptr, paint()) << "the layer is copied";
    EXPECT_EQ(20 * 10 - 1, canvas.Count(k_clrRed));

    const HDC hdc = dc.m_hDC;
    struct Case {
        const char* pszName;
        HDC hDC, hAttribDC;
    };
    for (const Case& c : {Case{"no surface", nullptr, nullptr}, Case{"no size", hdc, nullptr},
                          Case{"a context but no bitmap", nullptr, hdc}}) {
        SCOPED_TRACE(c.pszName);
        state.m_bLayerStale = true;
        canvas.Fill(k_clrGreen);
        dc.m_hDC = c.hDC, dc.m_hAttribDC = c.hAttribDC;
        EXPECT_EQ(&dc, paint());
        EXPECT_FALSE(IsLayerCurrent(state));
        EXPECT_EQ(nullptr, state.m_dcLayer.GetSafeHdc()) << "nothing is left of the one before";
        EXPECT_EQ(nullptr, state.m_bmpLayer.GetSafeHandle());
        EXPECT_EQ(CSize(0, 0), state.m_szLayer);
        dc.m_hDC = dc.m_hAttribDC = hdc;
        EXPECT_EQ(c.hDC != nullptr ? 1 : 0, canvas.Count(k_clrBlue)) << "no empty layer over the background";
        EXPECT_EQ(&state.m_dcLayer, paint()) << "made as soon as it can be";
        EXPECT_TRUE(IsLayerCurrent(state));
    }
}
