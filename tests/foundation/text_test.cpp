#include <foundation/text_copy.h>
#include <foundation/toolkit.h>
#include <gtest/gtest.h>

#include <vector>

#include "canvas.h"
#include "scatter/expected_text.h"

TEST(DrawTextInRect, StaysInTheRectangleAndLeavesStateAsItWas) {
    Canvas canvas(80, 40);
    canvas.dc.SetTextColor(k_clrBlue);
    canvas.dc.SetBkColor(k_clrGreen);
    const HGDIOBJ hFont = ::GetCurrentObject(canvas.dc, OBJ_FONT);
    const CRect rc(20, 10, 50, 22);
    DrawTextInRect(&canvas.dc, "价值WWWWWW", rc, 12, k_clrRed, 1, DT_SINGLELINE);
    EXPECT_EQ(hFont, ::GetCurrentObject(canvas.dc, OBJ_FONT));
    EXPECT_EQ(k_clrBlue, canvas.dc.GetTextColor());
    EXPECT_EQ(OPAQUE, canvas.dc.GetBkMode());
    EXPECT_EQ(0, canvas.Count(k_clrGreen)) << "the background shows through";
    EXPECT_LT(canvas.Count(k_clrWhite), 80 * 40) << "and the text is there";
    canvas.dc.FillSolidRect(rc, k_clrWhite);
    DrawTextInRect(&canvas.dc, nullptr, rc, 12, k_clrRed, 0, DT_SINGLELINE);
    DrawTextInRect(nullptr, "text", rc, 12, k_clrRed, 0, DT_SINGLELINE);
    EXPECT_EQ(80 * 40, canvas.Count(k_clrWhite)) << "nothing beside the rectangle, and nothing of these";
}

TEST(DrawTextInRect, TakesTheTitleFace) {
    const CRect rc(0, 0, 60, 20);
    for (const bool bBold : {false, true}) {
        Canvas canvas(60, 20, k_clrBlack);
        DrawTextInRect(&canvas.dc, "Tavlon", rc, 14, k_clrRed, bBold, DT_SINGLELINE);
        TextBoard board(60, 20);
        board.Put("Tavlon", rc, DT_SINGLELINE, {.nHeight = 14, .clr = k_clrRed, .bBold = bBold});
        EXPECT_EQ(board.Seen(), ShotOf(canvas.dc, 60, 20));
    }
}

TEST(SelectKaiTiFont, IsMadeAnewEachTimeAndGivesBackTheFontBefore) {
    Canvas canvas(10, 10);
    const HGDIOBJ hBefore = ::GetCurrentObject(canvas.dc, OBJ_FONT);
    for (const int nHeight : {14, 9}) {
        CFont* const pBefore = SelectKaiTiFont(&canvas.dc, nHeight);
        ASSERT_NE(nullptr, pBefore);
        EXPECT_EQ(hBefore, pBefore->GetSafeHandle());
        LOGFONT lf{};
        ::GetObject(::GetCurrentObject(canvas.dc, OBJ_FONT), sizeof lf, &lf);
        EXPECT_STREQ("楷体", lf.lfFaceName);
        EXPECT_EQ(nHeight, lf.lfHeight);
        EXPECT_EQ(FW_NORMAL, lf.lfWeight);
        EXPECT_EQ(DEFAULT_CHARSET, lf.lfCharSet);
        EXPECT_EQ(PROOF_QUALITY, lf.lfQuality);
        canvas.dc.SelectObject(pBefore);
        ReleaseKaiTiFont();
        ReleaseKaiTiFont();
    }
    EXPECT_EQ(nullptr, SelectKaiTiFont(nullptr, 12));
}

TEST(CopyText, KeepsWhatFits) {
    const std::pair<const char*, const char*> cases[] = {
        {"ab", "ab"},
        {nullptr, ""},
        {"abcd", "abcd"},
        {"abcde", "abcd"},
        {"abc中", "abc\xD6"}};  // a cut two-byte character keeps its first byte
    for (const auto& [pszText, pszWant] : cases) {
        char szField[5] = {'#', '#', '#', '#', '#'};
        CopyText(szField, pszText);
        EXPECT_STREQ(pszWant, szField);
        EXPECT_EQ('\0', szField[4]);
    }
    const std::vector<char> unterminated(4, 'x');  // a byte more would be beyond the allocation
    char szField[5];
    CopyText(szField, unterminated.data());
    CopyText(szField, szField);
    EXPECT_STREQ("xxxx", szField);
}

TEST(FieldText, EndsWithTheField) {
    const char szFull[3] = {'a', 'b', 'c'}, szPart[3] = {'a', '\0', 'c'};
    EXPECT_EQ("abc", FieldText(szFull));
    EXPECT_EQ("a", FieldText(szPart));
}

TEST(EqualIgnoringCase, ComparesBytes) {
    EXPECT_TRUE(EqualIgnoringCase("aB[c银", "Ab[C银"));
    EXPECT_FALSE(EqualIgnoringCase("a", "ab"));
    EXPECT_FALSE(EqualIgnoringCase("@", "`")) << "only letters have a case";
}
