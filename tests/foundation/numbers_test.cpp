#include <foundation/saturate.h>
#include <foundation/toolkit.h>
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

namespace {
constexpr double k_dNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double k_dInfinity = std::numeric_limits<double>::infinity();
}  // namespace

TEST(FormatBigNumber, Texts) {
    struct Case {
        const char* pszName;
        int nMaxLen;
        double dValue;
        const char* pszWant;  ///< Null: refused.
    };
    for (const Case& c : {
             Case{"first of the first unit", 8, 10000, "1.00万"},
             Case{"two decimals fit", 8, 12345, "1.23万"},
             Case{"neither two nor one decimal fit", 8, 99999999, "10000万"},
             Case{"the same with room", 99, 99999999, "10000.00万"},
             Case{"first of the second unit", 8, 100000000, "1.00亿"},
             Case{"one decimal fits", 8, 123456789012.0, "1234.6亿"},
             Case{"two decimals with room", 99, 123456789012.0, "1234.57亿"},
             Case{"10^12", 8, 1e12, "1.00万亿"},
             Case{"the third unit starts below 10^12", 8, 999999995904.0, "1.00万亿"},
             Case{"just before it", 8, 999999995903.0, "10000亿"},
             Case{"no decimal fits four bytes of unit", 8, 5e15, "5000万亿"},
             Case{"longest text", 99, 10000000272564222.0, "10000.00万亿"},
             Case{"longer than asked for, but never less than this", 2, 12345, "1万"},
             Case{"no room at all", 0, 12345, "1万"},
             Case{"negative room", INT_MIN, 12345, "1万"},
             Case{"just below the first unit", 8, 9999.99, nullptr},
             Case{"zero", 8, 0, nullptr},
             Case{"negative", 8, -5e8, nullptr},
             Case{"upper end", 8, 10000000272564224.0, nullptr},
             Case{"infinity", 8, k_dInfinity, nullptr},
             Case{"not a number", 8, k_dNaN, nullptr},
         }) {
        SCOPED_TRACE(c.pszName);
        char szText[14];
        std::fill(std::begin(szText), std::end(szText), '#');
        char* pszGot = FormatBigNumber(szText, c.nMaxLen, c.dValue);
        if (c.pszWant != nullptr) {
            EXPECT_EQ(szText, pszGot);
            EXPECT_STREQ(c.pszWant, szText);
        } else {
            EXPECT_EQ(nullptr, pszGot);
            EXPECT_EQ('#', szText[0]) << "a refusal leaves the buffer untouched";
        }
        EXPECT_EQ('#', szText[13]) << "13 bytes are always enough";
    }
    EXPECT_EQ(nullptr, FormatBigNumber(nullptr, 8, 12345));
}

TEST(FormatFixed, StaysBounded) {
    struct Case {
        const char* pszName;
        double dValue;
        int nDecimals;
        std::size_t nWantLength;
        const char* pszWantStart;
    };
    for (const Case& c :
         {Case{"plain", 12.345, 1, 4, "12.3"}, Case{"negative decimals count as none", 12.6, -3, 2, "13"},
          Case{"the largest number", -std::numeric_limits<double>::max(), 2, 313, "-1797693"},
          Case{"decimals are held to 100", 0.5, INT_MAX, 102, "0.5000"},
          Case{"infinity", k_dInfinity, 2, 3, "inf"}, Case{"not a number", -k_dNaN, 2, 3, "nan"}}) {
        SCOPED_TRACE(c.pszName);
        const std::string text = FormatFixed(c.dValue, c.nDecimals);
        EXPECT_EQ(c.nWantLength, text.size());
        EXPECT_EQ(0u, text.find(c.pszWantStart)) << text;
    }
}

TEST(SaturateToInt, Doubles) {
    struct Case {
        double dValue;
        int nWant;
    };
    for (const Case& c :
         {Case{0.9, 0}, Case{-0.9, 0}, Case{-7.9, -7}, Case{2147483647.0, INT_MAX},
          Case{2147483646.9, INT_MAX - 1}, Case{2147483648.0, INT_MAX}, Case{-2147483648.0, INT_MIN},
          Case{1e300, INT_MAX}, Case{k_dInfinity, INT_MAX}, Case{-k_dInfinity, INT_MIN}, Case{k_dNaN, 0}}) {
        EXPECT_EQ(c.nWant, SaturateToInt(c.dValue)) << c.dValue;
    }
}

TEST(SaturateToInt, Integers) {
    EXPECT_EQ(INT_MAX, SaturateToInt(1LL + INT_MAX));
    EXPECT_EQ(INT_MIN, SaturateToInt(-1LL + INT_MIN));
    EXPECT_EQ(-5, SaturateToInt(-5LL));
}

TEST(FloatSqrt, RoundsOnce) {
    EXPECT_EQ(3.0f, FloatSqrt(9.0f));
    EXPECT_EQ(1.41421354f, FloatSqrt(2.0f));
    EXPECT_TRUE(std::isnan(FloatSqrt(-1.0f)));
}
