// Money of the industries by day: its file, the choice of the largest and what is said of them.
#include "gallery/core/industry_days.h"

#include <gtest/gtest.h>

#include "error_of.h"

using namespace gallery;

namespace {

std::vector<IndustryDay> Days(const std::string& rows) {
    return IndustryDaysOf(
        CsvTable::Parse("date,industry,inflow_100m_yuan,outflow_100m_yuan\n" + rows, "d.csv"));
}

}  // namespace

TEST(IndustryDays, ReadsTheDays) {
    const std::vector<IndustryDay> days = Days(
        "2026-08-20,\xE9\x93\xB6\xE8\xA1\x8C,1.5,0.25\n"
        "2026-08-20,b,3,4\n"
        "2026-09-01,b,5,6\n");
    ASSERT_EQ(2u, days.size());
    EXPECT_EQ(20260820, days[0].nDate);
    EXPECT_EQ(20260901, days[1].nDate);
    const MoneyFlow* const pBank = days[0].Find("银行");
    ASSERT_TRUE(pBank);
    EXPECT_EQ(1.5e8, pBank->dInflow);
    EXPECT_EQ(0.25e8, pBank->dOutflow);
    EXPECT_FALSE(days[1].Find("银行"));
}

TEST(IndustryDays, MalformedRowsAreRefused) {
    const std::string strNoDate = "d.csv: line 3, column 1 (date): not a date: ";
    struct Case {
        const char* pszName;
        std::string row, want;
    };
    for (const Case& c :
         {Case{"no date", ",b,1,1", strNoDate}, Case{"month 0", "2026-00-20,b,1,1", strNoDate + "2026-00-20"},
          Case{"month 13", "2026-13-20,b,1,1", strNoDate + "2026-13-20"},
          Case{"day 0", "2026-08-00,b,1,1", strNoDate + "2026-08-00"},
          Case{"day 32", "2026-08-32,b,1,1", strNoDate + "2026-08-32"},
          Case{"a letter", "2026-08-2a,b,1,1", strNoDate + "2026-08-2a"},
          Case{"a sign", "2026-08--2,b,1,1", strNoDate + "2026-08--2"},
          Case{"other separators", "2026/08/21,b,1,1", strNoDate + "2026/08/21"},
          Case{"going back", "2026-08-19,b,1,1",
               "d.csv: line 3, column 1 (date): earlier than the row above"},
          Case{"no name", "2026-08-20,,1,1", "d.csv: line 3, column 2 (industry): empty"},
          Case{"twice", "2026-08-20,a,1,1", "d.csv: line 3, column 2 (industry): twice on a day: a"},
          Case{"no inflow", "2026-08-20,b,,1", "d.csv: line 3, column 3 (inflow_100m_yuan): empty"},
          Case{"inflow 0", "2026-08-20,b,0,1", "d.csv: line 3, column 3 (inflow_100m_yuan): not above 0"},
          Case{"outflow below 0", "2026-08-20,b,1,-1",
               "d.csv: line 3, column 4 (outflow_100m_yuan): not above 0"}}) {
        SCOPED_TRACE(c.pszName);
        EXPECT_EQ(c.want, ErrorOf([&] { Days("2026-08-20,a,1,1\n" + c.row + "\n"); }));
    }
}

TEST(IndustryDays, TheLargestComeFirst) {
    const std::vector<MoneyFlow> flows{{"a", 1, 4}, {"b", 8, 1}, {"c", 5, 0}, {"d", 0, 7}};
    struct Case {
        std::size_t nMost;
        const char* pszWant;
    };
    for (const Case& c : {Case{2, "bd"}, Case{3, "bda"}, Case{9, "bdac"}, Case{0, ""}}) {
        SCOPED_TRACE(c.nMost);
        std::string names;
        for (const MoneyFlow& flow : LargestFlows(flows, c.nMost)) names += flow.name;
        EXPECT_EQ(c.pszWant, names);
    }
}

TEST(IndustryDays, InWords) {
    EXPECT_EQ("2026年8月1日", DateInWords(20260801));
    EXPECT_EQ("a：流入1.25亿元，流出3.00亿元，净流出1.75亿元", Describe({"a", 1.25e8, 3e8}));
    EXPECT_EQ("b：流入3.00亿元，流出3.00亿元，净流入0.00亿元", Describe({"b", 3e8, 3e8}));
}
