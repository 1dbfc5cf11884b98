#include <gtest/gtest.h>
#include <tavlon/framework.h>

#include <string>

namespace {

std::string Bytes(const CString& str) {
    return std::string(str.GetString(), static_cast<size_t>(str.GetLength()));
}

TEST(FrameworkText, NullPointersAreEmpty) {
    const LPCSTR pszNull = nullptr;
    CString str("abc");
    str += pszNull;
    EXPECT_TRUE(str == "abc" && CString(pszNull).IsEmpty() && CString(pszNull, 5).IsEmpty());
    EXPECT_EQ(0, CString().Compare(pszNull));
    EXPECT_EQ(0, str.Find(pszNull));
    str = pszNull;
    EXPECT_TRUE(str.IsEmpty());
}

TEST(FrameworkText, PartsStayInsideTheText) {
    struct Case {
        const char* pszName;
        CString strGot;
        const char* pszWant;
    };
    const CString str("chart");
    for (const Case& c :
         {Case{"left", str.Left(2), "ch"}, Case{"left beyond", str.Left(99), "chart"},
          Case{"left negative", str.Left(-1), ""}, Case{"right", str.Right(2), "rt"},
          Case{"right beyond", str.Right(99), "chart"}, Case{"right negative", str.Right(-7), ""},
          Case{"mid", str.Mid(1, 3), "har"}, Case{"mid to the end", str.Mid(3), "rt"},
          Case{"mid beyond", str.Mid(9, 2), ""}, Case{"mid too long", str.Mid(3, INT_MAX), "rt"},
          Case{"mid negative", str.Mid(-4, 2), "ch"}, Case{"mid no length", str.Mid(1, -1), ""},
          Case{"half of a character", CString("中文").Left(1), "\xD6"},
          Case{"repeat", CString('x', 3), "xxx"}, Case{"repeat negative", CString('x', -3), ""},
          Case{"unterminated field", CString("abcdef", 4), "abcd"},
          Case{"terminated in the field", CString("a\0cdef", 4), "a"}})
        EXPECT_EQ(c.pszWant, Bytes(c.strGot)) << c.pszName;
}

TEST(FrameworkText, FormatsCodePage936Bytes) {
    CString str;
    str.Format("%.4s|%05d|%.2f万", "涨停系数", 42, 1.005e2);
    EXPECT_EQ("涨停|00042|100.50万", Bytes(str));
    str.Format("<%s>", str.GetString());  // its own text as argument
    EXPECT_EQ("<涨停|00042|100.50万>", Bytes(str));
    str.Empty();
    str.AppendFormat("%d", 7);
    str.Format("%s%s", str.GetString(), std::string(5000, 'y').c_str());
    EXPECT_EQ(5001, str.GetLength());
}

TEST(FrameworkText, SearchesAndChanges) {
    CString str("a,b,,c");
    EXPECT_EQ(3, str.Find(',', 2));
    EXPECT_EQ(-1, str.Find("z"));
    EXPECT_EQ(-1, str.Find('a', 99));
    EXPECT_EQ(4, str.ReverseFind(','));
    EXPECT_EQ(3, str.Replace(",", ",,"));
    EXPECT_EQ("a,,b,,,,c", Bytes(str));
    EXPECT_EQ(0, str.Replace("", "x"));
    EXPECT_EQ(1, str.Delete(1, 99));
    str.SetAt(0, 'Q'), str.SetAt(5, '!'), str.SetAt(-1, '!');
    EXPECT_EQ("Q", Bytes(str));
    EXPECT_EQ('\0', str.GetAt(1));
    EXPECT_EQ("b c", Bytes(CString(" \tb c\r\n").Trim()));
    EXPECT_EQ("", Bytes(CString("  ").Trim()));
}

TEST(FrameworkText, CaseChangesLeaveTwoByteCharactersAlone) {
    const char szTricky[] = "\x81\x61z";  // a character whose second byte is the letter a
    EXPECT_EQ("\x81\x61Z", Bytes(CString(szTricky).MakeUpper()));
    EXPECT_EQ(0, CString("Sh600000").CompareNoCase("sH600000"));
    EXPECT_EQ(1, CString("\xFF").Compare("a"));
    const CString a("a"), b("b");
    EXPECT_TRUE(a < b && b > a && a != b && a <= "a" && "a" == a && b != "a");
    EXPECT_TRUE(a + b == "ab" && a + "x" == "ax" && "x" + a == "xa" && a + 'c' == "ac");
    EXPECT_EQ("x\xFF", Bytes(CString("X\xFF").MakeLower()));  // a lead byte at the very end
}

TEST(FrameworkText, BufferWritesAreTakenUpToTheTerminator) {
    CString str("long text before");
    strcpy(str.GetBuffer(64), "short");
    str.ReleaseBuffer();
    EXPECT_EQ("short", Bytes(str));
    str.GetBuffer(10)[7] = 'x';
    str.ReleaseBuffer(99);  // more than there is
    EXPECT_EQ(10, str.GetLength());
    str.GetBuffer(-5);
    str.ReleaseBuffer(2);
    EXPECT_EQ("sh", Bytes(str));
}

}  // namespace
