// A long random walk over the minute chart: after every step it shows what a chart drawn from nothing shows.
#include <algorithm>
#include <cstdlib>
#include <random>

#include "minute/minute_window.h"

namespace {
/// One chart, the day that it should show, and everything that can happen to both.
class Walk {
public:
    Walk() { m_window.Show(m_day); }

    void Step(int nStep) {
        const Action& action = k_actions[UpTo(std::size(k_actions))];
        (this->*action.pfnDo)();
        SCOPED_TRACE(testing::Message() << action.pszName << ", step " << nStep);
        if (UpTo(4) == 0) return;
        EXPECT_EQ(m_day.Picture(m_size.cx, m_size.cy), m_window.TakeWhole());
    }

private:
    struct Action {
        const char* pszName;
        void (Walk::*pfnDo)();
    };
    static const Action k_actions[13];

    int UpTo(std::size_t n) { return static_cast<int>(m_random() % n); }
    CPoint AnyPoint() { return CPoint(UpTo(m_size.cx + 20) - 10, UpTo(m_size.cy + 20) - 10); }
    int BandBottom() const { return m_size.cy - 19; }
    CRect PricePane() const { return CRect(50, 25, m_size.cx - 50, (m_size.cy - 44) * 8 / 10); }

    void Hit(CPoint pt) {
        const CRect rc = PricePane();
        if (!CRect(rc.left, rc.top, rc.right, BandBottom()).PtInRect(pt)) return;
        for (int i = 0; i < 240; ++i) {
            const int x = rc.left + rc.Width() * (i + 1) / 240;
            if (pt.x != x && pt.x != x + 1) continue;
            m_day.nCursor = i;
            return;
        }
    }
    void Move() {
        const CPoint pt = AnyPoint();
        m_window.Mouse(WM_MOUSEMOVE, pt);
        m_day.ptMouse = pt;
        if (CRect({0, 0}, m_size).PtInRect(pt)) Hit(pt);
    }
    void Press() {
        const CPoint pt = AnyPoint();
        m_window.Mouse(WM_LBUTTONDOWN, pt);
        Hit(pt);
    }
    void DoubleClick() {
        const CPoint pt = AnyPoint();
        m_window.Mouse(WM_LBUTTONDBLCLK, pt);
        if (PricePane().PtInRect(pt)) m_day.bCross = !m_day.bCross;
    }
    void Key() {
        const bool bRight = UpTo(2) == 0;
        for (int n = UpTo(3) == 0 ? UpTo(300) : 1; n > 0; --n) {
            m_window.Key(bRight ? VK_RIGHT : VK_LEFT);
            m_day.nCursor = std::clamp(m_day.nCursor + (bRight ? 1 : -1), 0, 239);
            m_day.ptMouse.x = 50 + (m_size.cx - 100) * m_day.nCursor / 240;
        }
    }
    void StoreAMinute() {
        tagmyMinuteData data =
            Minute(static_cast<unsigned>(85000 + UpTo(66000)), 10 + static_cast<float>(UpTo(200) - 100) / 300,
                   static_cast<float>(UpTo(1000000)), static_cast<float>(UpTo(9) - 4));
        EXPECT_TRUE(m_window.chart->SetData(data));
        m_day.Put(data);
    }
    void Play() {
        m_window.chart->Play();
        m_day.Play();
    }
    void StoreAndPlay() {
        StoreAMinute();
        Play();
    }
    void Refuse() {
        tagmyMinuteData data = Minute(140000, UpTo(2) == 0 ? 0.0f : 10.0f, -1, 5);
        EXPECT_FALSE(m_window.chart->SetData(data));
    }
    void Renew(const MinuteDay& day) {
        const CPoint ptMouse = m_day.ptMouse;
        m_day = day;
        m_day.ptMouse = ptMouse;
    }
    void Init() {
        if (UpTo(4) != 0) return;
        Renew(MinuteDay(static_cast<float>(5 + UpTo(10)), UpTo(4)));
        m_window.Store(m_day);
    }
    void NewDay() {
        if (UpTo(4) != 0) return;
        Renew(WholeDay());
        m_window.Show(m_day);
    }
    void Resize() {
        m_size = CSize(1 + UpTo(500), 1 + UpTo(300));
        m_window.Resize(m_size.cx, m_size.cy);
    }
    void PaintAPart() {
        const CPoint pt = AnyPoint();
        ::ValidateRect(m_window.Handle(), nullptr);
        ::InvalidateRect(m_window.Handle(), CRect(pt, CSize(50, 50)), FALSE);
        m_window.Take();
    }

    std::mt19937 m_random{20180921};
    CSize m_size{600, 300};
    MinuteWindow m_window{600, 300};
    MinuteDay m_day;
};

const Walk::Action Walk::k_actions[13] = {
    {"move", &Walk::Move},
    {"move again", &Walk::Move},
    {"press", &Walk::Press},
    {"double click", &Walk::DoubleClick},
    {"key", &Walk::Key},
    {"store", &Walk::StoreAMinute},
    {"play", &Walk::Play},
    {"store and play", &Walk::StoreAndPlay},
    {"refuse", &Walk::Refuse},
    {"init", &Walk::Init},
    {"new day", &Walk::NewDay},
    {"resize", &Walk::Resize},
    {"paint a part", &Walk::PaintAPart},
};
}  // namespace

TEST(MinuteWalk, AlwaysTheWholePicture) {
    Walk walk;
    for (int i = 0; i < TAVLON_WALK_STEPS / 20 && !testing::Test::HasFailure(); ++i) walk.Step(i);
}
