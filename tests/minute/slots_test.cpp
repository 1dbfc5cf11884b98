// Which minute goes into which slot, and the time that an empty slot shows.
#include <gtest/gtest.h>
#include <minute/minute_slots.h>

#include <climits>
#include <utility>

TEST(MinuteSlots, OfTimes) {
    constexpr std::pair<unsigned, int> k_cases[] = {
        {1, 0},        {93000, 0},    {93100, 0},    {93159, 0},     {93200, 2},    {95900, 29},
        {100000, 30},  {103000, 60},  {109900, 129}, {113000, 120},  {113100, 120}, {125900, 120},
        {130059, 120}, {130100, 121}, {140000, 180}, {145800, 238},  {145900, 239}, {149900, 239},
        {150000, 239}, {150100, 239}, {235959, 239}, {UINT_MAX, 239}};
    for (const auto& [nTime, nSlot] : k_cases) EXPECT_EQ(nSlot, TimeToSlot(nTime)) << nTime;
}

TEST(MinuteSlots, TimesOfEmptyOnes) {
    MinuteArray slots;
    ResetSlots(slots);
    ASSERT_EQ(240, slots.GetSize());
    constexpr std::pair<int, unsigned> k_cases[] = {{0, 93100},    {28, 95900},   {29, 100000},
                                                    {119, 113000}, {121, 113200}, {122, 130000},
                                                    {182, 140000}, {239, 145700}};
    for (const auto& [nSlot, nTime] : k_cases) EXPECT_EQ(nTime, slots[nSlot].nTime) << nSlot;
}
