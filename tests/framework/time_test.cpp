#include <gtest/gtest.h>
#include <tavlon/framework.h>

#include <limits>

namespace {

TEST(FrameworkTime, FieldsRoundTrip) {
    const CTime time(2018, 9, 21, 14, 59, 7);
    EXPECT_EQ(time, CTime(time.GetTime()));
    EXPECT_TRUE(time.Format("%Y-%m-%d %H:%M:%S") == "2018-09-21 14:59:07");
    const int fields[] = {time.GetYear(),   time.GetMonth(),  time.GetDay(),      time.GetHour(),
                          time.GetMinute(), time.GetSecond(), time.GetDayOfWeek()};
    const int want[] = {2018, 9, 21, 14, 59, 7, 6};  // a Friday
    for (int n = 0; n < 7; ++n) EXPECT_EQ(want[n], fields[n]) << n;
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
    for (const CTime& time :
         {CTime(), CTime(2018, 13, 1, 0, 0, 0), CTime(2018, 1, 0, 0, 0, 0), CTime(2018, 4, 31, 0, 0, 0),
          CTime(2018, 1, 1, 24, 0, 0), CTime(1969, 1, 1, 0, 0, 0), CTime(INT_MAX, 1, 1, 0, 0, 0)})
        EXPECT_EQ(0, time.GetTime());
}

}  // namespace
