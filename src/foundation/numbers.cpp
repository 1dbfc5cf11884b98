#include <cmath>
#include <cstdio>

#include "toolkit.h"

namespace {
/// The two upper bounds are the single-precision neighbours of 10^12 and 10^16.
constexpr double k_dTrillion = 999999995904.0;
constexpr double k_dTooLarge = 10000000272564224.0;
constexpr std::size_t k_nLongestText = sizeof("10000.00万亿");

struct Unit {
    double dFrom;  ///< Also the divisor.
    const char* pszFormat;
};

/// Largest first.
constexpr Unit k_units[] = {{k_dTrillion, "%.*f万亿"}, {100000000.0, "%.*f亿"}, {10000.0, "%.*f万"}};

const Unit* UnitOf(double dValue) {
    if (!(dValue < k_dTooLarge)) return nullptr;
    for (const Unit& unit : k_units) {
        if (dValue >= unit.dFrom) return &unit;
    }
    return nullptr;
}
}  // namespace

char* FormatBigNumber(char* buffer, int maxLen, double value) {
    const Unit* pUnit = UnitOf(value);
    if (pUnit == nullptr || buffer == nullptr) return nullptr;
    for (int nDecimals = 2; nDecimals >= 0; --nDecimals) {
        const int nLength =
            std::snprintf(buffer, k_nLongestText, pUnit->pszFormat, nDecimals, value / pUnit->dFrom);
        if (nLength <= maxLen) break;
    }
    return buffer;
}

std::string FormatFixed(double dValue, int nDecimals) {
    if (std::isnan(dValue)) return "nan";  // the run-times differ in how they write its sign
    constexpr int k_nMaxDecimals = 100;
    char szText[512];  // 309 digits, sign, point, decimals
    const int nPrecision = nDecimals < 0 ? 0 : nDecimals > k_nMaxDecimals ? k_nMaxDecimals : nDecimals;
    std::snprintf(szText, sizeof szText, "%.*f", nPrecision, dValue);
    return szText;
}

float FloatSqrt(float x) { return static_cast<float>(std::sqrt(static_cast<double>(x))); }
