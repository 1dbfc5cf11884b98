// Long random walks over the scatter charts: whatever happens, repainting a part gives what repainting all
// gives.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "chart_view.h"

namespace {
constexpr int k_nMostWidth = 260, k_nMostHeight = 200;
constexpr int k_nAnewEvery = 16;  // steps between two pictures that are drawn from nothing

/// One chart, and everything that can happen to it.
template <class Chart>
class Walk {
public:
    Walk() : m_window(k_nMostWidth, k_nMostHeight) { Refill(); }

    /// Does one thing and compares; its name is for the failure.
    void Step(int nStep) {
        const Action& action = AnyAction();
        action.pfnDo(*this);
        const Shot part = m_window.Take(), whole = m_window.TakeWhole();
        ExpectSame(part, whole, nStep, action.pszName);
        if (nStep % k_nAnewEvery != 0) return;
        m_window.Send(WM_MOUSELEAVE);  // a new size would end a band as well
        const Shot kept = m_window.TakeWhole();
        m_window.Send(WM_SIZE);  // draws it anew
        if (!m_bLayerLate) ExpectSame(kept, m_window.Take(), nStep, "drawn anew");
        m_bLayerLate = false;
        m_window.Paint();
    }

private:
    struct Action {
        const char* pszName;
        int nWeight;
        void (*pfnDo)(Walk&);
    };
    static constexpr Action k_actions[] = {
        {"move", 60, [](Walk& w) { w.m_window.Mouse(WM_MOUSEMOVE, w.Somewhere()); }},
        {"press", 10, [](Walk& w) { w.m_window.Mouse(WM_LBUTTONDOWN, w.Somewhere()); }},
        {"release", 8, [](Walk& w) { w.m_window.Mouse(WM_LBUTTONUP, w.Somewhere()); }},
        {"leave", 1, [](Walk& w) { w.m_window.Send(WM_MOUSELEAVE); }},
        {"command", 6, [](Walk& w) { w.m_window.Command(100 + static_cast<UINT>(w.UpTo(6))); }},
        {"resize", 2, [](Walk& w) { w.Resize(); }},
        {"ask for a part", 4, [](Walk& w) { w.InvalidatePart(); }},
        {"put a point", 2, [](Walk& w) { w.PutPointAndPaint(); }},
        {"play", 1, [](Walk& w) { w.Play(); }},
        {"refill", 1, [](Walk& w) { w.Refill(); }},
        {"empty", 1, [](Walk& w) { w.m_window.chart.Init(); }},
        {"look above the points", 3, [](Walk& w) { w.LookAbove(); }},
        {"look below the points", 2, [](Walk& w) { w.LookBelow(); }},
        {"of its own", 3, [](Walk& w) { w.OwnThing(); }},
        {"two things at once", 6, [](Walk& w) { w.AnyAction().pfnDo(w), w.AnyAction().pfnDo(w); }},
    };

    int UpTo(int n) { return static_cast<int>(m_random() % static_cast<unsigned>(n)); }
    COLORREF Colour() { return m_random() & 0xFFFFFF; }
    CPoint Somewhere() {
        const int x = UpTo(k_nMostWidth + 40) - 20;
        return CPoint(x, UpTo(k_nMostHeight + 40) - 20);
    }
    const Action& AnyAction() {
        int nSum = 0;
        for (const Action& action : k_actions) nSum += action.nWeight;
        int nPick = UpTo(nSum);
        const Action* pAction = k_actions;
        while (nPick >= pAction->nWeight) nPick -= pAction++->nWeight;
        return *pAction;
    }
    void ExpectSame(const Shot& part, const Shot& whole, int nStep, const char* pszName) {
        const CPoint pt = part.FirstDifference(whole);
        ASSERT_EQ(CPoint(-1, -1), pt)
            << "step " << nStep << ", " << pszName << ": at " << pt.x << "," << pt.y;
    }

    void Resize() {
        const int cx = UpTo(k_nMostWidth) + 1;
        m_window.Resize(cx, UpTo(k_nMostHeight) + 1);
    }
    void InvalidatePart() {
        const CPoint pt1 = Somewhere(), pt2 = Somewhere();
        CRect rc(pt1, pt2);
        rc.NormalizeRect();
        ::InvalidateRect(m_window.Handle(), &rc, TRUE);
    }
    void PutPoint() {
        const double dX = UpTo(1100) / 10.0 - 5, dY = UpTo(240) / 10.0 - 12;
        m_window.Put(std::to_string(UpTo(200)).c_str(), dX, dY, UpTo(3) - 1);
    }
    /// The record alone repaints nothing; the next paint, of whatever part, has to show it everywhere.
    void PutPointAndPaint() {
        const CRect rcCorner(0, 0, 1, 1);
        PutPoint();
        ::InvalidateRect(m_window.Handle(), &rcCorner, TRUE);
    }
    void Play() {
        m_window.chart.Play();
        m_bLayerLate = true;  // the value radar's layer stays as it was
    }
    void Refill() {
        m_window.chart.Init();
        for (int n = UpTo(40); n > 0; --n) PutPoint();
        m_window.chart.Play();
    }
    void LookAbove() {
        CTime time(2018, 9, 21, UpTo(24), 4, 5);
        const int nWhat = UpTo(4);
        if (nWhat == 0) m_window.chart.SetFontColor(Colour());
        if (nWhat == 1) m_window.chart.SetCoordinateShaftLineColor(Colour());
        if (nWhat == 2) m_window.chart.SetCoordinateShaftFontSize(8 + UpTo(12));
        if (nWhat == 3) m_window.chart.SetUpdateTime(time);
    }
    void LookBelow() {
        m_bLayerLate = true;
        Chart& chart = m_window.chart;
        const double dX = UpTo(100), dY = UpTo(20) - 10;
        const int nWhat = UpTo(4);
        if (nWhat == 0) chart.SetGirdVisble(UpTo(2) == 0);
        if (nWhat == 1) chart.SetBorderColor(Colour());
        if constexpr (requires { chart.SetGateBkColor(0); })
            if (nWhat == 2) chart.SetGateBkColor(Colour());
        if constexpr (requires { chart.SetGate(0, 0); })
            if (nWhat == 3) chart.SetGate(dX, dY);
        if constexpr (requires { chart.SetWestGate(0, 0); })
            if (nWhat == 3) chart.SetWestGate(dX, dY);
    }
    void OwnThing() {
        if constexpr (std::is_same_v<Chart, CProxy_PointStartCtrl>) {
            m_window.Send(WM_USER + 2, static_cast<WPARAM>(UpTo(16)));
        } else {
            m_window.chart.ActiveBlockByInfo(UpTo(3) - 1, "生物制药");
            MSG msgEscape{m_window.Handle(), WM_KEYDOWN, VK_ESCAPE, 0, 0, {0, 0}};
            if (UpTo(2) == 0) AfxPreTranslateMessage(&msgEscape);
        }
    }

    std::mt19937 m_random{20180921};
    ChartWindow<Chart> m_window;
    bool m_bLayerLate = false;  ///< What lies below the points may show its new look only later.
};

template <class Chart>
class ScatterWalk : public testing::Test {};
TYPED_TEST_SUITE(ScatterWalk, ScatterCharts, ChartNames);
}  // namespace

TYPED_TEST(ScatterWalk, PartEqualsWhole) {
    Walk<TypeParam> walk;
    for (int nStep = 0; nStep < TAVLON_WALK_STEPS && !this->HasFailure(); ++nStep) walk.Step(nStep);
}
