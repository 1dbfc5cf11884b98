// The layer that caches a scatter chart's points, and what happens when there is no memory for it.
#include <gtest/gtest.h>

#include "foundation/canvas.h"
#include "scatter/points_layer.h"

namespace {
/// Paints one blue pixel at (3, 3); tells onto which context, null for none.
const CDC* PaintOnce(CDC& dcSurface, ScatterState& state) {
    const CDC* pDrawnOn = nullptr;
    PaintThroughLayer(dcSurface, state, [&](CDC& dc) {
        dc.SetPixel(3, 3, k_clrBlue);
        pDrawnOn = &dc;
    });
    return pDrawnOn;
}

class PointsLayer : public testing::Test {
protected:
    PointsLayer() : m_canvas(20, 10, k_clrRed) {
        m_state.m_rcClient = CRect(0, 0, 20, 10);
        m_state.m_bLayerStale = true;
    }
    Canvas m_canvas;
    ScatterState m_state;
};
}  // namespace

TEST_F(PointsLayer, IsDrawnOnceAndThenCopied) {
    EXPECT_EQ(&m_state.m_dcLayer, PaintOnce(m_canvas.dc, m_state));
    EXPECT_TRUE(IsLayerCurrent(m_state));
    EXPECT_EQ(k_clrBlue, m_canvas.dc.GetPixel(3, 3));
    EXPECT_EQ(k_clrRed, m_canvas.dc.GetPixel(19, 9)) << "what the surface showed is below the points";
    m_canvas.Fill(k_clrGreen);
    EXPECT_EQ(nullptr, PaintOnce(m_canvas.dc, m_state));
    EXPECT_EQ(k_clrBlue, m_canvas.dc.GetPixel(3, 3));
    EXPECT_EQ(0, m_canvas.Count(k_clrGreen)) << "the layer covers the surface";
}

TEST_F(PointsLayer, WithoutOneTheSurfaceTakesThePoints) {
    ASSERT_NE(nullptr, PaintOnce(m_canvas.dc, m_state));
    m_state.m_bLayerStale = true;
    m_canvas.Fill(k_clrGreen);
    CDC& dc = m_canvas.dc;
    const HDC hdc = dc.m_hAttribDC;
    dc.m_hAttribDC = nullptr;  // drawn on as before, but it cannot tell how large the layer has to be
    EXPECT_EQ(&dc, PaintOnce(dc, m_state));
    dc.m_hAttribDC = hdc;
    EXPECT_TRUE(m_state.m_bLayerStale);
    EXPECT_FALSE(IsLayerCurrent(m_state));
    EXPECT_EQ(CSize(0, 0), m_state.m_szLayer);
    EXPECT_EQ(nullptr, m_state.m_dcLayer.GetSafeHdc()) << "nothing is left of the one before";
    EXPECT_EQ(k_clrBlue, dc.GetPixel(3, 3));
    EXPECT_EQ(20 * 10 - 1, m_canvas.Count(k_clrGreen)) << "no empty layer over the background";
    EXPECT_EQ(&m_state.m_dcLayer, PaintOnce(dc, m_state)) << "made as soon as it can be";
    EXPECT_TRUE(IsLayerCurrent(m_state));
}

TEST_F(PointsLayer, WhatCannotBeMadeLeavesNothing) {
    struct Case {
        const char* pszName;
        HDC hDC, hAttribDC;
    };
    CDC& dc = m_canvas.dc;
    const HDC hdc = dc.m_hDC;
    for (const Case& c : {Case{"no surface", nullptr, nullptr}, Case{"no size", hdc, nullptr},
                          Case{"a context but no bitmap", nullptr, hdc}}) {
        SCOPED_TRACE(c.pszName);
        dc.m_hDC = c.hDC, dc.m_hAttribDC = c.hAttribDC;
        EXPECT_FALSE(StartPointsLayer(dc, m_state));
        EXPECT_EQ(nullptr, m_state.m_dcLayer.GetSafeHdc());
        EXPECT_EQ(nullptr, m_state.m_bmpLayer.GetSafeHandle());
        EXPECT_EQ(CSize(0, 0), m_state.m_szLayer);
    }
    dc.m_hDC = dc.m_hAttribDC = hdc;
    EXPECT_TRUE(StartPointsLayer(dc, m_state));
}
