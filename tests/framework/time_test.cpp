#include <gtest/gtest.h>
#include <tavlon/framework.h>

#include <limits>

namespace {

TEST(FrameworkTime, FieldsRoundTrip) {
    const CTime time(2018, 9, 21, 14, 59, 7);
    EXPECT_EQ(2018, time.GetYear());
    EXPECT_EQ(9, time.GetMonth());
    EXPECT_EQ(21, time.GetDay());
    EXPECT_EQ(14, time.GetHour());
    EXPECT_EQ(59, time.GetMinute());
    EXPECT_EQ(7, time.GetSecond());
    EXPECT_EQ(6, time.GetDayOfWeek());  // a Friday
    EXPECT_TRUE(time.Format("%Y-%m-%d %H:%M") == "2018-09-21 14:59");
    EXPECT_EQ(time, CTime(time.GetTime()));
    EXPECT_LT(time, CTime::GetCurrentTime());
}

TEST(FrameworkTime, MomentsWithoutFieldsGiveZero) {
    for (const time_t t : {time_t{-1}, std::numeric_limits<time_t>::min(), std::numeric_limits<time_t>::max(),
                           static_cast<time_t>(32535216000LL)}) {
        const CTime time(t);
        tm fields;
        EXPECT_FALSE(time.GetLocalTm(&fields)) << t;
        EXPECT_EQ(0, time.GetYear() + time.GetMonth() + time.GetDay() + time.GetHour() + time.GetMinute())
            << t;
        EXPECT_TRUE(time.Format("%Y").IsEmpty()) << t;
        EXPECT_EQ(t, time.GetTime());
    }
    EXPECT_FALSE(CTime().GetLocalTm(nullptr));
    EXPECT_TRUE(CTime(2018, 1, 1, 0, 0, 0).Format(nullptr).IsEmpty());
}

TEST(FrameworkTime, FieldsThatNameNoMomentGiveTheMomentZero) {
    EXPECT_EQ(0, CTime().GetTime());
    struct Case {
        const char* pszName;
        CTime time;
    };
    for (const Case& c :
         {Case{"month 13", CTime(2018, 13, 1, 0, 0, 0)}, Case{"day 0", CTime(2018, 1, 0, 0, 0, 0)},
          Case{"31 April", CTime(2018, 4, 31, 0, 0, 0)}, Case{"hour 24", CTime(2018, 1, 1, 24, 0, 0)},
          Case{"year 1969", CTime(1969, 1, 1, 0, 0, 0)},
          Case{"year too large", CTime(INT_MAX, 1, 1, 0, 0, 0)}})
        EXPECT_EQ(0, c.time.GetTime()) << c.pszName;
}

}  // namespace
