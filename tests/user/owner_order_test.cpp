// Where top-level windows come to stand that own one another or are top-most.
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

constexpr const char* kClass = "owner_order";
constexpr UINT kOrderAlone = SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE;

struct OrderCase {
    const char* pszName;
    const char* pszOwners;  ///< Of A, B, C ...; '-' for none.
    const char* pszBefore;  ///< Topmost first.
    char chMoved;
    const char* pszAfter;  ///< A window, "top", "topmost" or "nottopmost".
    const char* pszOrder;  ///< '!' follows a top-most window.
};

class OwnerOrder : public testing::TestWithParam<OrderCase> {
protected:
    OwnerOrder() {
        WNDCLASS wc{};
        wc.lpfnWndProc = DefWindowProc;
        wc.hInstance = GetModuleHandle(nullptr);
        wc.lpszClassName = kClass;
        RegisterClass(&wc);
    }
    ~OwnerOrder() override {
        for (HWND hWnd : m_hWnds) DestroyWindow(hWnd);
        UnregisterClass(kClass, GetModuleHandle(nullptr));
    }
    void Make(char chOwner) {
        const HWND hOwner = chOwner == '-' ? nullptr : At(chOwner);
        m_hWnds.push_back(CreateWindow(kClass, "", WS_POPUP, 0, 0, 20, 20, hOwner, nullptr,
                                       GetModuleHandle(nullptr), nullptr));
    }
    HWND At(char chName) const { return m_hWnds.at(static_cast<std::size_t>(chName - 'A')); }
    /// From the lowest to the topmost, each to the top of its kind.
    void Stand(const std::string& order) {
        bool bTopMost = false;
        for (auto at = order.rbegin(); at != order.rend(); ++at) {
            if (*at != '!')
                SetWindowPos(At(*at), bTopMost ? HWND_TOPMOST : HWND_TOP, 0, 0, 0, 0, kOrderAlone);
            bTopMost = *at == '!';
        }
    }
    HWND Place(const std::string& after) const {
        if (after == "top") return HWND_TOP;
        if (after == "topmost") return HWND_TOPMOST;
        return after == "nottopmost" ? HWND_NOTOPMOST : At(after[0]);
    }
    /// Other windows of the desktop are left out.
    std::string Order() const {
        std::string order;
        for (HWND hWnd = GetTopWindow(nullptr); hWnd; hWnd = GetWindow(hWnd, GW_HWNDNEXT)) {
            const auto found = std::find(m_hWnds.begin(), m_hWnds.end(), hWnd);
            if (found == m_hWnds.end()) continue;
            order += static_cast<char>('A' + (found - m_hWnds.begin()));
            if (GetWindowLong(hWnd, GWL_EXSTYLE) & WS_EX_TOPMOST) order += '!';
        }
        return order;
    }

    std::vector<HWND> m_hWnds;
};

TEST_P(OwnerOrder, After) {
    const OrderCase& c = GetParam();
    for (const char* psz = c.pszOwners; *psz; ++psz) Make(*psz);
    Stand(c.pszBefore);
    ASSERT_EQ(c.pszBefore, Order());
    EXPECT_TRUE(SetWindowPos(At(c.chMoved), Place(c.pszAfter), 0, 0, 0, 0, kOrderAlone));
    EXPECT_EQ(c.pszOrder, Order());
}

constexpr OrderCase kCases[] = {
    {"OwnedComeAlongToTheTop", "-A-", "CBA", 'A', "top", "BAC"},
    {"OwnedComeAlongBehindAnother", "-A--", "DCBA", 'A', "D", "DBAC"},
    {"OwnedAboveThatPlaceStay", "-A--", "BDCA", 'A', "C", "BDCA"},
    {"AnOwnedOneStaysAboveItsOwner", "-A-", "BAC", 'B', "C", "BAC"},
    {"OwnedOfOwnedComeAlong", "-AB-", "DCBA", 'A', "top", "CBAD"},
    {"BehindItselfChangesNothing", "-A-", "CBA", 'C', "C", "CBA"},
    {"TopmostIsAboveTheRest", "---", "C!BA", 'A', "top", "C!AB"},
    {"OwnedComeAlongTopmost", "-A-", "C!BA", 'A', "topmost", "B!A!C!"},
    {"BehindAnOrdinaryOneIsOrdinary", "---", "C!BA", 'C', "B", "BCA"},
    {"AmongTopmostIsTopmost", "----", "D!C!BA", 'B', "D", "D!B!C!A"},
    {"BehindTheLastTopmostIsOrdinary", "---", "C!BA", 'A', "C", "C!AB"},
    {"NoLongerTopmost", "---", "C!B!A", 'C', "nottopmost", "B!CA"},
};

INSTANTIATE_TEST_SUITE_P(User, OwnerOrder, testing::ValuesIn(kCases),
                         [](const auto& test) { return std::string(test.param.pszName); });

}  // namespace
