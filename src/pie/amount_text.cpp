#include "amount_text.h"

#include "foundation/toolkit.h"

std::string AmountText(double dAmount) {
    constexpr double k_dLeastBigNumber = 10000;
    if (dAmount < k_dLeastBigNumber) return FormatFixed(dAmount, 2);
    char szText[64] = "";
    FormatBigNumber(szText, sizeof szText - 1, dAmount);
    return szText;
}
