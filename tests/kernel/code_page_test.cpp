#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

namespace {

/// Converted with room to spare; the return value is checked against what was stored.
std::vector<unsigned> Wide(UINT nCodePage, const std::string& text, DWORD dwFlags = 0) {
    WCHAR wide[64] = {};
    const int count =
        MultiByteToWideChar(nCodePage, dwFlags, text.data(), static_cast<int>(text.size()), wide, 64);
    return {wide, wide + count};
}

std::string Bytes(UINT nCodePage, const std::wstring& text) {
    char bytes[64] = {};
    const int count = WideCharToMultiByte(nCodePage, 0, text.data(), static_cast<int>(text.size()), bytes, 64,
                                          nullptr, nullptr);
    return {bytes, bytes + count};
}

TEST(CodePage, ToWide) {
    struct Case {
        const char* pszName;
        std::string text;
        std::vector<unsigned> want;
    };
    for (const Case& c : std::vector<Case>{
             {"plain", "ab", {'a', 'b'}},
             {"the terminator is a character like others", std::string("a\0b", 3), {'a', 0, 'b'}},
             {"two bytes", "\xd6\xd0\xb9\xfa", {0x4e2d, 0x56fd}},
             {"second byte in the ASCII range", "\x81\x40", {0x4e02}},
             {"euro sign in one byte", "\x80", {0x20ac}},
             {"the last byte has a private character", "\xff", {0xf8f5}},
             {"middle dot and dash", "\xa1\xa4\xa1\xaa", {0x00b7, 0x2014}},
             {"first user-defined block", "\xaa\xa1\xaf\xfe", {0xe000, 0xe233}},
             {"second user-defined block", "\xf8\xa1\xfe\xfe", {0xe234, 0xe4c5}},
             {"third user-defined block", "\xa1\x40\xa7\xa0", {0xe4c6, 0xe765}},
             {"free pairs follow one another", "\xa2\xab\xd7\xfa\xfe\xa0", {0xe766, 0xe810, 0xe864}},
             {"split character at the end", "a\xd6", {'a', '?'}},
             {"bad second byte is swallowed", "a\xd6 z", {'a', '?', 'z'}},
             {"a terminator is not", std::string("\xd6\0z", 3), {'?', 0, 'z'}}}) {
        SCOPED_TRACE(c.pszName);
        EXPECT_EQ(c.want, Wide(936, c.text));
    }
}

TEST(CodePage, FromUtf8) {
    struct Case {
        const char* pszName;
        std::string text;
        std::vector<unsigned> want;
    };
    for (const Case& c :
         std::vector<Case>{{"one, two and three bytes", "a\xc2\xa5\xe4\xb8\xad", {'a', 0xa5, 0x4e2d}},
                           {"cut off", "\xe4\xb8", {0xfffd}},
                           {"cut off inside the text", "\xe4\xb8z", {0xfffd, 'z'}},
                           {"never a first byte", "\xffy", {0xfffd, 'y'}},
                           {"needlessly long", "\xc0\x80", {0xfffd, 0xfffd}}}) {
        SCOPED_TRACE(c.pszName);
        EXPECT_EQ(c.want, Wide(CP_UTF8, c.text));
    }
}

TEST(CodePage, EveryPairComesBack) {
    int nValid = 0;
    for (int lead = 0; lead < 256; ++lead) {
        EXPECT_EQ(lead >= 0x81 && lead <= 0xfe, IsDBCSLeadByte(static_cast<BYTE>(lead)) != FALSE) << lead;
        for (int trail = 0x40; trail <= 0xfe && IsDBCSLeadByte(static_cast<BYTE>(lead)); ++trail) {
            const std::string pair{static_cast<char>(lead), static_cast<char>(trail)};
            const std::vector<unsigned> wide = Wide(CP_ACP, pair, MB_ERR_INVALID_CHARS);
            if (wide.size() != 1) continue;
            ++nValid;
            EXPECT_EQ(pair, Bytes(936, std::wstring(1, static_cast<wchar_t>(wide[0]))))
                << lead << " " << trail;
        }
    }
    EXPECT_EQ(126 * 190, nValid);  // every second byte but 0x7F
    EXPECT_EQ(936u, GetACP());
}

TEST(CodePage, Buffers) {
    WCHAR wide[4] = {7, 7, 7, 7};
    EXPECT_EQ(3, MultiByteToWideChar(936, 0, "a\xd6\xd0", -1, nullptr, 0));
    EXPECT_EQ(2, MultiByteToWideChar(936, 0, "a\xd6\xd0", 3, wide, 2));
    EXPECT_EQ(7, wide[2]);
    SetLastError(0);
    EXPECT_EQ(0, MultiByteToWideChar(936, 0, "abc", 3, wide, 2));
    EXPECT_EQ(static_cast<DWORD>(ERROR_INSUFFICIENT_BUFFER), GetLastError());
    EXPECT_EQ(7, wide[2]);

    char bytes[4] = {7, 7, 7, 7};
    EXPECT_EQ(4, WideCharToMultiByte(936, 0, L"a\x4e2d", -1, nullptr, 0, nullptr, nullptr));
    EXPECT_EQ(0, WideCharToMultiByte(936, 0, L"a\x4e2d", 2, bytes, 2, nullptr, nullptr));
    EXPECT_EQ(static_cast<DWORD>(ERROR_INSUFFICIENT_BUFFER), GetLastError());
    EXPECT_EQ(7, bytes[2]);
}

TEST(CodePage, Refusals) {
    WCHAR wide[4];
    char bytes[4];
    const auto refused = [](int nResult, DWORD dwError) { return nResult == 0 && GetLastError() == dwError; };
    for (const char* pszText : {"\xd6", "\xd6 ", "\xff"})
        EXPECT_TRUE(refused(static_cast<int>(Wide(936, pszText, MB_ERR_INVALID_CHARS).size()),
                            ERROR_NO_UNICODE_TRANSLATION));
    EXPECT_TRUE(refused(MultiByteToWideChar(936, 0, nullptr, 2, wide, 4), ERROR_INVALID_PARAMETER));
    EXPECT_TRUE(refused(MultiByteToWideChar(936, 0, "a", 0, wide, 4), ERROR_INVALID_PARAMETER));
    EXPECT_TRUE(refused(MultiByteToWideChar(936, 0, "a", 1, wide, -1), ERROR_INVALID_PARAMETER));
    EXPECT_TRUE(refused(MultiByteToWideChar(12345, 0, "a", 1, wide, 4), ERROR_INVALID_PARAMETER));
    EXPECT_TRUE(refused(WideCharToMultiByte(936, 0, nullptr, 2, bytes, 4, nullptr, nullptr),
                        ERROR_INVALID_PARAMETER));
    EXPECT_TRUE(
        refused(WideCharToMultiByte(936, 0, L"a", 0, bytes, 4, nullptr, nullptr), ERROR_INVALID_PARAMETER));
}

TEST(CodePage, DefaultCharacter) {
    char bytes[8] = {};
    BOOL bUsed = 7;
    EXPECT_EQ(3, WideCharToMultiByte(936, 0, L"a\x0e01z", 3, bytes, 8, nullptr, &bUsed));
    EXPECT_STREQ("a?z", bytes);
    EXPECT_TRUE(bUsed);
    EXPECT_EQ(3, WideCharToMultiByte(936, 0, L"a\x0e01z", 3, bytes, 8, "#", nullptr));
    EXPECT_STREQ("a#z", bytes);
    EXPECT_EQ(2, WideCharToMultiByte(936, 0, L"az", 2, bytes, 8, nullptr, &bUsed));
    EXPECT_FALSE(bUsed);
}

}  // namespace
