#include <gtest/gtest.h>
#include <tavlon/framework.h>

#include <functional>
#include <vector>

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
        return e->Delete(), bRightClass;
    }
    return false;
}

TEST(FrameworkArray, RefusesWhatIsOutside) {
    CArray<int> a;
    a.Add(1), a.Add(2), a.Add(3);
    using Call = std::function<void()>;
    for (const Call& call : std::vector<Call>{[&] { a.GetAt(3); }, [&] { a[-1]; }, [&] { a[PTRDIFF_MAX]; },
                                              [&] { a.SetAt(3, 0); }, [&] { a.SetSize(-1); },
                                              [&] { a.RemoveAt(3); }, [&] { a.RemoveAt(1, 3); },
                                              [&] { a.RemoveAt(0, -1); }, [&] { a.RemoveAt(PTRDIFF_MAX, 2); },
                                              [&] { a.InsertAt(-1, 0); }, [&] { a.SetAtGrow(-1, 0); }})
        EXPECT_TRUE(Raises<CInvalidArgException>(call));
    EXPECT_EQ(3, a.GetSize());
    a.RemoveAt(3, 0);
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
    EXPECT_EQ(0, b.Append(a));
    b.Append(b);  // itself
    EXPECT_EQ((std::vector<int>{0, 9, 9, 3, 4, 0, 9, 9, 3, 4}),
              std::vector<int>(b.GetData(), b.GetData() + 10));
    EXPECT_EQ(9, b.GetUpperBound());
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

}  // namespace
