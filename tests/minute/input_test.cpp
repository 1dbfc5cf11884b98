// Mouse and keys in the minute chart.
#include <algorithm>
#include <functional>
#include <random>

#include "minute/day.h"
#include "wrappers/host.h"

/// Strips are two pixels wide: in a wide pane some pixels are in none, in a narrow one the first slot wins.
TEST(MinuteInput, MouseFindsSlots) {
    constexpr int k_nStays = 100;
    const struct {
        int cx;
        CPoint pt;
        int nWant;
    } cases[] = {{600, {51, 100}, k_nStays},  {600, {52, 100}, 0},         {600, {53, 100}, 0},
                 {600, {54, 100}, 1},         {600, {73, 100}, 10},        {600, {74, 100}, k_nStays},
                 {600, {300, 25}, 119},       {600, {300, 24}, k_nStays},  {600, {300, 205}, 119},
                 {600, {300, 280}, 119},      {600, {300, 281}, k_nStays}, {600, {548, 100}, 238},
                 {600, {549, 100}, k_nStays}, {600, {550, 100}, k_nStays}, {200, {50, 100}, 0},
                 {200, {52, 100}, 2},         {200, {149, 100}, 235},      {60, {50, 40}, k_nStays}};
    for (const UINT nMessage : {WM_MOUSEMOVE, WM_LBUTTONDOWN})
        for (const auto& c : cases) {
            SCOPED_TRACE(testing::Message() << c.pt.x << "," << c.pt.y << " of " << c.cx);
            MinuteDay day;
            MinuteWindow window(c.cx, 300);
            window.Show(day);
            window.Key(VK_RIGHT, k_nStays);
            window.Mouse(nMessage, c.pt);
            window.Resize(600, 300);
            day.nCursor = c.nWant;
            window.ExpectShows(day);
        }
}

TEST(MinuteInput, TheCursorIsAnArrow) {
    const HCURSOR hArrow = ::LoadCursor(nullptr, IDC_ARROW);
    const auto shown = [](auto act) {
        ::SetCursor(::LoadCursor(nullptr, IDC_CROSS));
        act();
        return ::GetCursor();
    };
    HostWindow host;
    CProxy_ChartOL chart;
    EXPECT_NE(hArrow, shown([&] { EXPECT_FALSE(CreateIn(chart, nullptr)); }));
    EXPECT_EQ(hArrow, shown([&] { EXPECT_TRUE(CreateIn(chart, &host)); }));
    EXPECT_EQ(hArrow, shown([&] { ::SendMessage(ControlIn(host), WM_MOUSEMOVE, 0, MAKELPARAM(-5, 900)); }));
}

namespace {
/// One chart, the day that it should show, and everything that can happen to both.
class Walk {
public:
    Walk() { m_window.Show(m_day); }

    void Step() {
        const auto& [pszName, act] = k_actions[UpTo(std::size(k_actions))];
        SCOPED_TRACE(pszName);
        const bool bWaited = m_window.IsInvalid(), bAsks = (this->*act)();
        EXPECT_EQ(bWaited || bAsks, m_window.IsInvalid());
        if (UpTo(4) == 0) return;
        ::InvalidateRect(m_window.Handle(), CRect(0, 0, 1, 1), TRUE);
        if (UpTo(2) == 0) ::InvalidateRect(m_window.Handle(), nullptr, TRUE);
        m_window.ExpectShows(m_day);
    }

private:
    int UpTo(std::size_t n) { return static_cast<int>(m_random() % n); }
    CPoint AnyPoint() { return CPoint(UpTo(m_size.cx + 20) - 10, UpTo(m_size.cy + 20) - 10); }
    CRect PricePane() const { return CRect(50, 25, m_size.cx - 50, (m_size.cy - 44) * 8 / 10); }

    /// Whether another slot is found.
    bool Hit(CPoint pt) {
        const CRect rc = PricePane();
        if (!CRect(rc.left, rc.top, rc.right, m_size.cy - 19).PtInRect(pt)) return false;
        for (int i = 0; i < 240; ++i) {
            const int x = rc.left + rc.Width() * (i + 1) / 240;
            if (pt.x == x || pt.x == x + 1) return std::exchange(m_day.nCursor, i) != i;
        }
        return false;
    }

    // Each tells whether the chart asks for a repaint.
    bool Move() {
        m_window.Mouse(WM_MOUSEMOVE, m_day.ptMouse = AnyPoint());
        return CRect({0, 0}, m_size).PtInRect(m_day.ptMouse) && Hit(m_day.ptMouse);
    }
    bool Press() {
        const CPoint pt = AnyPoint();
        m_window.Mouse(WM_LBUTTONDOWN, pt);
        return Hit(pt);
    }
    bool DoubleClick() {
        const CPoint pt = AnyPoint();
        m_window.Mouse(WM_LBUTTONDBLCLK, pt);
        const bool bIn = PricePane().PtInRect(pt);
        m_day.bCross ^= bIn;
        return bIn;
    }
    bool Key() {
        const bool bRight = UpTo(2) == 0;
        const int nTimes = UpTo(3) == 0 ? 1 + UpTo(300) : 1;
        m_window.Key(bRight ? VK_RIGHT : VK_LEFT, nTimes);
        m_day.nCursor = std::clamp(m_day.nCursor + (bRight ? nTimes : -nTimes), 0, 239);
        m_day.ptMouse.x = 50 + (m_size.cx - 100) * m_day.nCursor / 240;
        return true;
    }
    bool NothingForIt() {
        CWnd* const pControl = CWnd::FromHandlePermanent(m_window.Handle());
        MSG msg{::GetParent(m_window.Handle()), WM_KEYDOWN, VK_RIGHT, 0, 0, {0, 0}};
        EXPECT_FALSE(pControl->PreTranslateMessage(&msg));
        m_window.Key(VK_UP);
        for (const UINT nMessage : {WM_KEYDOWN, WM_KEYUP}) m_window.Send(nMessage, VK_RIGHT);
        for (const UINT nMessage : {WM_LBUTTONUP, WM_RBUTTONDOWN}) m_window.Mouse(nMessage, AnyPoint());
        tagmyMinuteData refused{1, 140000, 0, 0, 0, 10, -1, 0, 5};
        EXPECT_FALSE(m_window.chart.SetData(refused));
        return false;
    }
    bool Store() {
        m_day.Put(static_cast<unsigned>(85000 + UpTo(66000)), 10 + static_cast<float>(UpTo(200) - 100) / 300,
                  static_cast<float>(UpTo(1000000)), static_cast<float>(UpTo(9) - 4));
        EXPECT_TRUE(m_window.chart.SetData(m_day.fed.back()));
        return false;
    }
    bool Play() {
        m_window.chart.Play();
        m_day.Play();
        return true;
    }
    bool Init() {
        MinuteDay day = UpTo(2) == 0 ? WholeDay() : MinuteDay(static_cast<float>(5 + UpTo(10)), UpTo(4));
        day.ptMouse = m_day.ptMouse;
        m_window.Store(m_day = day);
        return false;
    }
    bool Resize() {
        const CSize size = std::exchange(m_size, CSize(1 + UpTo(500), 1 + UpTo(300)));
        m_window.Resize(m_size.cx, m_size.cy);
        return size != m_size;
    }

    static constexpr std::pair<const char*, bool (Walk::*)()> k_actions[] = {
        {"move", &Walk::Move},     {"move again", &Walk::Move},          {"press", &Walk::Press},
        {"key", &Walk::Key},       {"double click", &Walk::DoubleClick}, {"store", &Walk::Store},
        {"play", &Walk::Play},     {"nothing", &Walk::NothingForIt},     {"init", &Walk::Init},
        {"resize", &Walk::Resize}, {"play again", &Walk::Play}};

    std::mt19937 m_random{20180921};
    CSize m_size{600, 300};
    MinuteWindow m_window{600, 300};
    MinuteDay m_day;
};
}  // namespace

/// A long random walk: after every step it shows what a chart drawn from nothing shows.
TEST(MinuteWalk, AlwaysTheWholePicture) {
    Walk walk;
    for (int i = 0; i < TAVLON_WALK_STEPS / 20 && !testing::Test::HasFailure(); ++i) walk.Step();
}
