// The replayed day by a clock that the test sets.
#include "gallery/core/replay.h"

#include <gtest/gtest.h>

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
