// Where top-level windows come to stand that own one another or are top-most.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "recorder.h"

namespace {

constexpr UINT kOrderAlone = SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE;

/// Windows A, B, C ..., each with its owner; '-' for none.
class Stack {
public:
    explicit Stack(const std::string& owners) {
        for (const char chOwner : owners)
            m_hWnds.push_back(m_recorder.Create("window", WS_POPUP, chOwner == '-' ? nullptr : At(chOwner),
                                                {0, 0, 20, 20}));
    }

    /// Puts it behind a window, or on "top", "topmost", "nottopmost".
    BOOL Move(char chName, const std::string& after) const {
        const HWND hAfter = after == "top"          ? HWND_TOP
                            : after == "topmost"    ? HWND_TOPMOST
                            : after == "nottopmost" ? HWND_NOTOPMOST
                                                    : At(after[0]);
        return SetWindowPos(At(chName), hAfter, 0, 0, 0, 0, kOrderAlone);
    }
    /// Topmost first; '!' follows a top-most window. Each goes to the top of its kind, the lowest first.
    void Stand(const std::string& order) const {
        for (std::size_t n = order.size(); n-- > 0;)
            if (order[n] != '!')
                Move(order[n], n + 1 < order.size() && order[n + 1] == '!' ? "topmost" : "top");
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

private:
    HWND At(char chName) const { return m_hWnds.at(static_cast<std::size_t>(chName - 'A')); }

    user_test::Recorder m_recorder;
    std::vector<HWND> m_hWnds;
};

TEST(OwnerOrder, After) {
    struct Case {
        const char *pszName, *pszOwners, *pszBefore;
        char chMoved;
        const char *pszAfter, *pszOrder;
    };
    for (const Case& c : {Case{"owned come along to the top", "-A-", "CBA", 'A', "top", "BAC"},
                          Case{"owned come along behind another", "-A--", "DCBA", 'A', "D", "DBAC"},
                          Case{"owned above that place stay", "-A--", "BDCA", 'A', "C", "BDCA"},
                          Case{"an owned one stays above its owner", "-A-", "BAC", 'B', "C", "BAC"},
                          Case{"owned of owned come along", "-AB-", "DCBA", 'A', "top", "CBAD"},
                          Case{"behind itself changes nothing", "-A-", "CBA", 'C', "C", "CBA"},
                          Case{"top-most is above the rest", "---", "C!BA", 'A', "top", "C!AB"},
                          Case{"owned come along top-most", "-A-", "C!BA", 'A', "topmost", "B!A!C!"},
                          Case{"behind an ordinary one is ordinary", "---", "C!BA", 'C', "B", "BCA"},
                          Case{"among top-most is top-most", "----", "D!C!BA", 'B', "D", "D!B!C!A"},
                          Case{"behind the last top-most is ordinary", "---", "C!BA", 'A', "C", "C!AB"},
                          Case{"no longer top-most", "---", "C!B!A", 'C', "nottopmost", "B!CA"}}) {
        SCOPED_TRACE(c.pszName);
        const Stack stack(c.pszOwners);
        stack.Stand(c.pszBefore);
        ASSERT_EQ(c.pszBefore, stack.Order());
        EXPECT_TRUE(stack.Move(c.chMoved, c.pszAfter));
        EXPECT_EQ(c.pszOrder, stack.Order());
    }
}

}  // namespace
