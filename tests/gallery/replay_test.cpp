// The replayed day by a clock that the test sets.
#include "gallery/core/replay.h"

#include <gtest/gtest.h>

#include "gallery/core/pace.h"

using namespace gallery;
using State = Replay::State;

TEST(Replay, GoesThroughTheDay) {
    enum Do { Nothing, Space, Next, Wait };  // the last: a second, four minutes of the day
    struct Case {
        const char* pszName;
        Do what;
        int nTimes;
        State state;
        int nMinutes, nUntil;
    };
    Replay replay;
    DWORD dwNow = 1000;
    for (const Case& c :
         {Case{"the day at once", Nothing, 1, State::Whole, 240, 1500},
          Case{"time means nothing to it", Wait, 1, State::Whole, 240, 1500},
          Case{"from the start", Space, 1, State::Running, 0, 0},
          Case{"runs", Wait, 1, State::Running, 4, 934}, Case{"pauses", Space, 1, State::Paused, 4, 934},
          Case{"stands still", Wait, 3, State::Paused, 4, 934},
          Case{"a minute", Next, 1, State::Paused, 5, 935}, Case{"goes on", Space, 1, State::Running, 5, 935},
          Case{"the pause did not count", Wait, 1, State::Running, 9, 939},
          Case{"a minute, and pauses", Next, 1, State::Paused, 10, 940},
          Case{"to noon", Next, 110, State::Paused, 120, 1130},
          Case{"after noon", Next, 1, State::Paused, 121, 1301},
          Case{"to the last minute", Next, 118, State::Paused, 239, 1459},
          Case{"ends", Next, 1, State::Ended, 240, 1500},
          Case{"no further", Next, 1, State::Ended, 240, 1500},
          Case{"once more", Space, 1, State::Running, 0, 0},
          Case{"runs to the end", Wait, 100, State::Ended, 240, 1500}}) {
        SCOPED_TRACE(c.pszName);
        for (int n = 0; n < c.nTimes; ++n) {
            if (c.what == Space) replay.PauseOrGoOn(dwNow);
            if (c.what == Next) replay.Step();
            if (c.what == Wait) replay.Tick(dwNow += 1000);
        }
        EXPECT_EQ(c.state, replay.Now());
        EXPECT_EQ(c.nMinutes, replay.Minutes());
        EXPECT_EQ(c.nUntil, replay.Until());
    }
    Replay stepped;
    stepped.Step();
    EXPECT_EQ(1, stepped.Minutes()) << "the whole day gives way to its first minute";
}

TEST(Replay, TheDayWaitsForTheFirstPage) {
    Replay live(4, 1000);
    live.Open(100000);
    EXPECT_FALSE(live.Tick(100249));
    EXPECT_TRUE(live.Tick(100250));
    EXPECT_EQ(1, live.Minutes());
    live.Open(200000);
    EXPECT_TRUE(live.Tick(200000));
    EXPECT_EQ(5, live.Minutes()) << "from page to page at most a second counts";
}

TEST(Pace, MinutesFallDueWithTheTime) {
    struct Case {
        const char* pszName;
        int nSpeed;
        DWORD dwStart;
        std::vector<DWORD> calls;  // milliseconds after the start
        std::vector<int> want;
    };
    for (const Case& c : {Case{"slowest", 1, 0, {999, 1000, 1500, 2000}, {0, 1, 0, 1}},
                          Case{"fractions are kept", 60, 5, {20, 40, 60, 100}, {1, 1, 1, 3}},
                          Case{"fastest", 240, 0, {20, 40, 1040}, {4, 5, 240}},
                          Case{"a long sleep counts as a second", 4, 0, {100000, 100250}, {4, 1}},
                          Case{"no time", 240, 7, {0, 0}, {0, 0}},
                          Case{"the count starts again", 4, 0xFFFFFF00u, {250, 500}, {1, 1}}}) {
        SCOPED_TRACE(c.pszName);
        Pace pace(c.nSpeed);
        pace.Start(c.dwStart);
        std::vector<int> got;
        for (const DWORD dwAfter : c.calls) got.push_back(pace.Due(c.dwStart + dwAfter));
        EXPECT_EQ(c.want, got);
    }
}
