#include <gtest/gtest.h>
#include <minute/minute_slots.h>

#include <limits>

TEST(MinuteSlots, TimeToSlot) {
    struct Case {
        unsigned int nTime;
        int nWant;
    };
    for (const Case& c :
         {Case{1, 0},        Case{90000, 0},    Case{93000, 0},
          Case{93100, 0},    Case{93159, 0},    Case{93200, 2},
          Case{95900, 29},   Case{100000, 30},  Case{103000, 60},
          Case{109900, 129}, Case{113000, 120}, Case{113100, 120},
          Case{125900, 120}, Case{130000, 120}, Case{130059, 120},
          Case{130100, 121}, Case{140000, 180}, Case{145800, 238},
          Case{145900, 239}, Case{149900, 239}, Case{150000, 239},
          Case{150100, 239}, Case{235959, 239}, Case{std::numeric_limits<unsigned int>::max(), 239}}) {
        EXPECT_EQ(c.nWant, TimeToSlot(c.nTime)) << c.nTime;
    }
}

TEST(MinuteSlots, EmptySlotsShowTheirTime) {
    MinuteArray slots;
    slots.SetSize(3);
    slots[0].fPrice = 5;
    ResetSlots(slots);
    ASSERT_EQ(k_nMinuteSlots, slots.GetSize());
    EXPECT_EQ(0.0f, slots[0].fPrice);
    struct Case {
        int nSlot;
        unsigned int nWant;
    };
    for (const Case& c :
         {Case{0, 93100}, Case{28, 95900}, Case{29, 100000}, Case{119, 113000}, Case{120, 113100},
          Case{121, 113200}, Case{122, 130000}, Case{182, 140000}, Case{239, 145700}}) {
        EXPECT_EQ(c.nWant, slots[c.nSlot].nTime) << c.nSlot;
    }
}

TEST(MinuteSlots, GapsRepeatThePriceBefore) {
    MinuteArray slots;
    ResetSlots(slots);
    slots[2].fPrice = 11;
    slots[5].fPrice = 12;
    slots[9].fPrice = 13;
    FillGaps(slots, 5, 10);
    const float arrWant[] = {10, 10, 11, 11, 11, 12, 12, 0, 0, 13};
    for (int i = 0; i < 10; ++i) EXPECT_EQ(arrWant[i], slots[i].fPrice) << i;
    FillGaps(slots, 239, 10);
    EXPECT_EQ(13.0f, slots[239].fPrice);
}
