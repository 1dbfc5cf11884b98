#include <gtest/gtest.h>

#include <vector>

#include "text_canvas.h"

namespace {

TEST(FontMetrics, OfTheNamedFaces) {
    struct Case {
        const char* pszFace;
        int nHeight, nWeight, nAscent, nDescent, nLeading, nAverage;
    };
    const char* const pszKai = kFaces[0];
    const char* const pszSans = kFaces[1];
    for (const Case& c :
         {Case{pszKai, 10, FW_NORMAL, 9, 1, 1, 4}, Case{pszKai, 12, FW_NORMAL, 11, 1, 1, 5},
          Case{pszKai, 14, FW_NORMAL, 13, 2, 1, 6}, Case{pszKai, 16, FW_NORMAL, 14, 2, 1, 7},
          Case{pszKai, 18, FW_NORMAL, 16, 2, 2, 8}, Case{pszKai, 12, FW_BOLD, 11, 1, 1, 6},
          Case{pszKai, -12, FW_NORMAL, 12, 2, 1, 6}, Case{pszKai, 0, FW_NORMAL, 14, 2, 1, 7},
          Case{pszSans, 10, FW_BOLD, 7, 2, 3, 5}, Case{pszSans, 12, FW_NORMAL, 10, 3, 3, 6},
          Case{pszSans, 13, FW_BOLD, 10, 3, 3, 6}, Case{pszSans, 16, FW_NORMAL, 13, 4, 4, 8},
          Case{pszSans, 16, FW_BOLD, 12, 3, 4, 7}, Case{pszSans, -16, FW_NORMAL, 17, 5, 6, 10}}) {
        SCOPED_TRACE(std::string(c.pszFace) + " " + std::to_string(c.nHeight) + " " +
                     std::to_string(c.nWeight));
        const TEXTMETRICA metrics = TextCanvas(c.pszFace, c.nHeight, c.nWeight).Metrics();
        EXPECT_EQ(c.nAscent, metrics.tmAscent);
        EXPECT_EQ(c.nDescent, metrics.tmDescent);
        EXPECT_EQ(c.nAscent + c.nDescent, metrics.tmHeight);
        EXPECT_EQ(c.nLeading, metrics.tmInternalLeading);
        EXPECT_EQ(0, metrics.tmExternalLeading);
        EXPECT_EQ(c.nAverage, metrics.tmAveCharWidth);
        EXPECT_EQ(c.nWeight, metrics.tmWeight);
    }
}

TEST(FontMetrics, Extents) {
    struct Case {
        const char* pszFace;
        int nHeight, nWeight;
        const char* pszText;
        int cx;
    };
    const char* const pszKai = kFaces[0];
    const char* const pszSans = kFaces[1];
    for (const Case& c :
         {Case{pszKai, 12, FW_NORMAL, "上证指数", 44}, Case{pszKai, 12, FW_BOLD, "上证指数", 48},
          Case{pszKai, 12, FW_NORMAL, "Hello, World", 64}, Case{pszKai, 12, FW_NORMAL, "12.34%", 32},
          Case{pszKai, 12, FW_NORMAL, "资金流入:1.2亿", 77}, Case{pszKai, 14, FW_NORMAL, "Hello", 34},
          Case{pszSans, 12, FW_NORMAL, "Hello, World", 51}, Case{pszSans, 12, FW_BOLD, "Hello, World", 58},
          Case{pszSans, 12, FW_NORMAL, "12.34%", 31}, Case{pszSans, 12, FW_NORMAL, "上证指数", 40},
          Case{pszSans, 12, FW_BOLD, "上证指数", 44}}) {
        SCOPED_TRACE(std::string(c.pszFace) + " " + std::to_string(c.nHeight) + " " + c.pszText);
        EXPECT_EQ(c.cx, TextCanvas(c.pszFace, c.nHeight, c.nWeight).Extent(c.pszText).cx);
    }
}

TEST(FontMetrics, ExtentsAddUp) {
    for (const char* pszFace : kFaces)
        for (int nHeight = 10; nHeight <= 18; ++nHeight) {
            const TextCanvas canvas(pszFace, nHeight);
            EXPECT_EQ(canvas.Extent("价").cx + canvas.Extent("g1").cx, canvas.Extent("价g1").cx);
            EXPECT_EQ(canvas.Metrics().tmHeight, canvas.Extent("x").cy);
            EXPECT_EQ(canvas.Metrics().tmHeight, canvas.Extent("价").cy);
        }
}

TEST(FontMetrics, FaceNames) {
    struct Case {
        const char* pszName;
        int cchBuffer, nWant;
        const char* pszWant;
    };
    const TextCanvas canvas(kFaces[1], 12);
    EXPECT_EQ(static_cast<int>(std::strlen(kFaces[1])) + 1, GetTextFaceA(canvas.hdc, 0, nullptr));
    for (const Case& c :
         {Case{"whole", 64, 28, kFaces[1]}, Case{"cut", 6, 5, "Helve"}, Case{"no room", 0, 0, "?"}}) {
        SCOPED_TRACE(c.pszName);
        char szName[64] = "?";
        EXPECT_EQ(c.nWant, GetTextFaceA(canvas.hdc, c.cchBuffer, szName));
        EXPECT_STREQ(c.pszWant, szName);
    }
    char szKai[LF_FACESIZE] = {};
    GetTextFaceA(TextCanvas(kFaces[0], 12).hdc, LF_FACESIZE, szKai);
    EXPECT_STREQ(kFaces[0], szKai);
}

TEST(FontMetrics, OddDescriptionsStillWrite) {
    for (const char* pszFace : {"", "no such face", "\xd6", "&&&", "0123456789012345678901234567890"})
        for (const int nHeight : {-1, 1, 2, 300, -300}) {
            const TextCanvas canvas(pszFace, nHeight);
            EXPECT_GT(canvas.Metrics().tmHeight, 0);
            EXPECT_GT(canvas.Extent("a价").cx, 0);
        }
}

TEST(FontMetrics, BadArguments) {
    const TextCanvas canvas(kFaces[0], 12);
    SIZE size{7, 7};
    EXPECT_TRUE(GetTextExtentPoint32A(canvas.hdc, "a", 0, &size));
    EXPECT_EQ(0, size.cx);
    EXPECT_EQ(0, size.cy);
    EXPECT_FALSE(GetTextExtentPoint32A(canvas.hdc, "a", -1, &size));
    EXPECT_FALSE(GetTextExtentPoint32A(nullptr, "a", 1, &size));
    TEXTMETRICA metrics;
    EXPECT_FALSE(GetTextMetricsA(nullptr, &metrics));
    EXPECT_FALSE(TextOutA(canvas.hdc, 0, 0, "a", -1));
    EXPECT_TRUE(TextOutA(canvas.hdc, 0, 0, "a", 0));
    EXPECT_FALSE(TextOutA(nullptr, 0, 0, "a", 1));
}

TEST(FontMetrics, SplitCharactersTakeRoom) {
    for (const char* pszFace : kFaces) {
        const TextCanvas canvas(pszFace, 14);
        EXPECT_EQ(canvas.Extent("a?").cx, canvas.Extent("a\xd6").cx);
        EXPECT_EQ(canvas.Extent("?").cx, canvas.Extent("\xd6 ").cx);
    }
}

}  // namespace
