#include <gtest/gtest.h>
#include <windows.h>

#include <atomic>
#include <climits>
#include <cstring>
#include <string>
#include <thread>

namespace {

TEST(MulDiv, RoundsAndRefuses) {
    struct Case {
        const char* pszName;
        int nNumber, nNumerator, nDenominator, nWant;
    };
    for (const Case& c : {Case{"exact", 6, 4, 3, 8}, Case{"half goes up", 5, 1, 2, 3},
                          Case{"and down below zero", -5, 1, 2, -3}, Case{"negative factor", 7, -1, 2, -4},
                          Case{"negative divisor", 5, 1, -2, -3}, Case{"less than half", 4, 1, 3, 1},
                          Case{"the product may be long", INT_MAX, INT_MAX, INT_MAX, INT_MAX},
                          Case{"division by zero", 1, 1, 0, -1}, Case{"too large", INT_MAX, 2, 1, -1},
                          Case{"too large by one", INT_MIN, 1, -1, -1}}) {
        SCOPED_TRACE(c.pszName);
        EXPECT_EQ(c.nWant, MulDiv(c.nNumber, c.nNumerator, c.nDenominator));
    }
}

TEST(LastError, BelongsToTheThread) {
    std::atomic<bool> bGo = false, bDone = false;  // neither side calls the system while the errors stand
    DWORD dwOther = 99, dwOtherId = 0;
    std::thread other([&] {
        dwOtherId = GetCurrentThreadId();
        while (!bGo) continue;
        SetLastError(6);
        dwOther = GetLastError();
        bDone = true;
    });
    SetLastError(5);
    bGo = true;
    while (!bDone) continue;
    EXPECT_EQ(5u, GetLastError());
    other.join();
    EXPECT_EQ(6u, dwOther);
    EXPECT_NE(dwOtherId, GetCurrentThreadId());
}

TEST(Modules, HostProgram) {
    const HMODULE hHost = GetModuleHandleA(nullptr);
    ASSERT_NE(nullptr, hHost);
    char szHost[MAX_PATH] = {}, szCut[8];
    EXPECT_LT(8u, GetModuleFileNameA(nullptr, szHost, MAX_PATH));
    EXPECT_NE(nullptr, strstr(szHost, "tavlon_tests"));
    EXPECT_EQ(8u, GetModuleFileNameA(hHost, szCut, 8));
    EXPECT_EQ(std::string(szHost).substr(0, 7), std::string(szCut, 7));
    EXPECT_EQ(nullptr, GetModuleHandleA("no such module"));
    EXPECT_EQ(nullptr, FindResourceA(hHost, MAKEINTRESOURCEA(29999), RT_BITMAP));
}

}  // namespace
