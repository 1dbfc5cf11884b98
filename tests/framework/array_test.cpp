#include <gtest/gtest.h>
#include <tavlon/framework.h>

#include <functional>

namespace {

struct Record {
    int nId;
    char szText[12];
};
using Records = CArray<Record, Record&>;

template <class Exception>
bool Raises(const std::function<void()>& call) {
    try {
        call();
    } catch (CException* e) {
        const bool bRightClass = e->IsKindOf(RUNTIME_CLASS(Exception)) != FALSE;
        e->Delete();
        return bRightClass;
    }
    return false;
}

bool Refused(const std::function<void()>& call) { return Raises<CInvalidArgException>(call); }

TEST(FrameworkArray, RefusesWhatIsOutside) {
    CArray<int> a;
    a.Add(1), a.Add(2), a.Add(3);
    struct Case {
        const char* pszName;
        std::function<void()> call;
    };
    for (const Case& c :
         {Case{"read at the size", [&] { a.GetAt(3); }}, Case{"read below", [&] { a[-1]; }},
          Case{"read far away", [&] { a[PTRDIFF_MAX]; }}, Case{"write", [&] { a.SetAt(3, 0); }},
          Case{"negative size", [&] { a.SetSize(-1); }}, Case{"remove", [&] { a.RemoveAt(3); }},
          Case{"remove too many", [&] { a.RemoveAt(1, 3); }},
          Case{"remove negative", [&] { a.RemoveAt(0, -1); }},
          Case{"remove overflowing", [&] { a.RemoveAt(PTRDIFF_MAX, 2); }},
          Case{"insert below", [&] { a.InsertAt(-1, 0); }}, Case{"grow below", [&] { a.SetAtGrow(-1, 0); }}})
        EXPECT_TRUE(Refused(c.call)) << c.pszName;
    EXPECT_EQ(3, a.GetSize());
    EXPECT_FALSE(Refused([&] { a.RemoveAt(3, 0); }));
    EXPECT_TRUE(Raises<CMemoryException>([&] { a.SetSize(PTRDIFF_MAX); }));
}

TEST(FrameworkArray, NewElementsAreZero) {
    Records records;
    records.SetSize(4, 10);
    Record record = {7, "seven"};
    records.SetAtGrow(6, record);
    EXPECT_EQ(7, records.GetSize());
    EXPECT_EQ(0, records[5].nId);
    EXPECT_EQ('\0', records[5].szText[11]);
    EXPECT_STREQ("seven", records[6].szText);
    records.InsertAt(9, record);  // beyond the end
    EXPECT_EQ(10, records.GetSize());
    EXPECT_EQ(0, records[8].nId);
}

TEST(FrameworkArray, MovesElements) {
    CArray<int> a, b;
    for (int i = 0; i < 5; ++i) EXPECT_EQ(i, a.Add(i));
    a.InsertAt(1, 9, 2);
    a.RemoveAt(3, 2);
    EXPECT_EQ(3, b.Append(a) + 3);
    b.Append(b);  // itself
    const int want[] = {0, 9, 9, 3, 4, 0, 9, 9, 3, 4};
    ASSERT_EQ(10, b.GetCount());
    for (int i = 0; i < 10; ++i) EXPECT_EQ(want[i], b[i]) << i;
    EXPECT_EQ(want[3], b.GetData()[3]);
    b.RemoveAll();
    EXPECT_EQ(-1, b.GetUpperBound());
}

TEST(FrameworkArray, AnElementCanBeItsOwnArgument) {
    CArray<CString, CString&> texts;
    CString str("a text long enough to have memory of its own");
    texts.Add(str);
    for (int i = 0; i < 40; ++i) texts.Add(texts[0]);
    texts.InsertAt(0, texts[40], 3);
    texts.SetAtGrow(100, texts[1]);
    EXPECT_TRUE(texts[100] == str && texts[0] == str && texts[43] == str && texts[50].IsEmpty());
}

TEST(FrameworkArray, GrowsInFewSteps) {
    CUIntArray a;
    int nMoves = 0;
    const UINT* pData = nullptr;
    for (UINT i = 0; i < 3000; ++i) {
        a.Add(i);
        nMoves += a.GetData() != pData;
        pData = a.GetData();
    }
    EXPECT_LE(nMoves, 20);
    EXPECT_EQ(2999u, a[2999]);
}

}  // namespace
