#include <foundation/saturate.h>
#include <foundation/toolkit.h>
#include <gtest/gtest.h>

#include <climits>
#include <limits>

namespace {
constexpr double k_dNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double k_dInfinity = std::numeric_limits<double>::infinity();
}  // namespace

TEST(FormatBigNumber, Texts) {
    const struct {
        int nMaxLen;
        double dValue;
        const char* pszWant;  ///< Null: refused.
    } cases[] = {{8, 10000, "1.00万"},
                 {8, 12345, "1.23万"},
                 {8, 99999999, "10000万"},
                 {99, 99999999, "10000.00万"},
                 {8, 100000000, "1.00亿"},
                 {8, 123456789012.0, "1234.6亿"},
                 {8, 999999995904.0, "1.00万亿"},
                 {8, 999999995903.0, "10000亿"},
                 {8, 5e15, "5000万亿"},
                 {99, 10000000272564222.0, "10000.00万亿"},  // the longest
                 {2, 12345, "1万"},                          // never less than this
                 {INT_MIN, 12345, "1万"},
                 {8, 9999.99, nullptr},
                 {8, -5e8, nullptr},
                 {8, 10000000272564224.0, nullptr},
                 {8, k_dInfinity, nullptr},
                 {8, k_dNaN, nullptr}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.dValue);
        char szText[14] = "#############";
        const char* const pszGot = FormatBigNumber(szText, c.nMaxLen, c.dValue);
        EXPECT_EQ(c.pszWant != nullptr ? szText : nullptr, pszGot);
        EXPECT_STREQ(c.pszWant != nullptr ? c.pszWant : "#############", szText);
        EXPECT_EQ('\0', szText[13]) << "13 bytes are always enough";
    }
    EXPECT_EQ(nullptr, FormatBigNumber(nullptr, 8, 12345));
}

TEST(FormatFixed, StaysBounded) {
    EXPECT_EQ("12.3", FormatFixed(12.345, 1));
    EXPECT_EQ("13", FormatFixed(12.6, -3));
    EXPECT_EQ("inf", FormatFixed(k_dInfinity, 2));
    EXPECT_EQ("nan", FormatFixed(-k_dNaN, 2));
    EXPECT_EQ(313u, FormatFixed(-std::numeric_limits<double>::max(), 2).size());
    EXPECT_EQ(102u, FormatFixed(0.5, INT_MAX).size()) << "a hundred decimals";
}

TEST(SaturateToInt, CutsTowardZeroAndEndsAtTheLimits) {
    const std::pair<double, int> cases[] = {{0.9, 0},
                                            {-7.9, -7},
                                            {2147483646.9, INT_MAX - 1},
                                            {2147483648.0, INT_MAX},
                                            {-1e300, INT_MIN},
                                            {k_dInfinity, INT_MAX},
                                            {k_dNaN, 0}};
    for (const auto& [dValue, nWant] : cases) EXPECT_EQ(nWant, SaturateToInt(dValue)) << dValue;
    EXPECT_EQ(INT_MAX, SaturateToInt(1LL + INT_MAX));
    EXPECT_EQ(INT_MIN, SaturateToInt(-1LL + INT_MIN));
    EXPECT_EQ(-5, SaturateToInt(-5LL));
}
