/// The comparer: what has to fail does fail.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "compare/checksums.h"
#include "compare/folders.h"
#include "compare/picture_difference.h"

namespace {

namespace fs = std::filesystem;

Picture Grey(int cx, int cy) {
    return {cx, cy, std::vector<std::uint32_t>(Picture::PixelCount(cx, cy), 0x808080)};
}

TEST(Compare, FindsOnePixel) {
    const Picture want = Grey(5, 4);
    Picture got = want, diff;
    EXPECT_FALSE(ComparePictures(got, want).Any());
    got.xRGB[13] = 0x808082;
    const PictureDifference found = ComparePictures(got, want, &diff);
    EXPECT_EQ(1u, found.cPixels);
    EXPECT_EQ(1u, found.cDrawn);
    EXPECT_EQ(3, found.x);
    EXPECT_EQ(2, found.y);
    EXPECT_EQ(0x808082u, found.xGot);
    EXPECT_EQ(0x808080u, found.xWant);
    EXPECT_NEAR(2 / 3.0, found.dMean, 1e-9);
    EXPECT_EQ(0xff0000u, diff.xRGB[13]);
    EXPECT_EQ(0x202020u, diff.xRGB[12]);
}

TEST(Compare, PicturesOfOtherSizesOrNoneDiffer) {
    EXPECT_TRUE(ComparePictures(Grey(4, 5), Grey(5, 4)).Any());
    EXPECT_TRUE(ComparePictures(Picture{}, Grey(5, 4)).Any());
    EXPECT_TRUE(ComparePictures(Picture{}, Picture{}).Any()) << "no picture equals nothing";
    Picture cut = Grey(5, 4);
    cut.xRGB.pop_back();
    EXPECT_TRUE(ComparePictures(cut, Grey(5, 4)).Any());
}

/// Two folders that hold the same picture and the same text, until a case changes something.
class Folders : public testing::Test {
protected:
    void SetUp() override {
        root =
            fs::temp_directory_path() /
            ("tavlon_compare_" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
        fs::remove_all(root);
        for (const char* pszSide : {"got", "want"}) {
            fs::create_directories(root / pszSide / "shapes");
            fs::create_directories(root / pszSide / "log");
            WritePng(root / pszSide / "shapes" / "01.png", Grey(6, 6));
            Write(root / pszSide / "log" / "01.txt", "one\ntwo\n");
        }
        expected = {"log/01.txt", "shapes/01.png"};
    }
    void TearDown() override { fs::remove_all(root); }

    static void Write(const fs::path& file, const char* pszText) {
        std::ofstream(file, std::ios::binary) << pszText;
    }
    void DrawOver(int cPixels) {
        Picture picture = Grey(6, 6);
        for (int i = 0; i < cPixels; ++i) picture.xRGB[static_cast<std::size_t>(i)] = 0;
        WritePng(root / "got" / "shapes" / "01.png", picture);
    }
    FolderResult Run() {
        report.str("");
        return CompareFolders(root / "got", root / "want", root / "failures", expected, report);
    }
    bool Passes(const Budgets& budgets = {}) { return KeepsBudgets(Run(), budgets, report); }

    fs::path root;
    std::set<std::string> expected;
    std::ostringstream report;
};

TEST_F(Folders, EqualOnesPass) {
    EXPECT_TRUE(Passes());
    EXPECT_EQ("", report.str());
    EXPECT_EQ(2u, Run().scenes.size());
}

TEST_F(Folders, EveryDifferenceFails) {
    struct Case {
        const char* pszName;
        void (*change)(const fs::path& dir);
        const char* pszReport;
    };
    const Case cases[] = {
        {"a pixel",
         [](const fs::path& dir) {
             Picture picture = Grey(6, 6);
             picture.xRGB[7] = 0xff8080;
             WritePng(dir / "got" / "shapes" / "01.png", picture);
         },
         "shapes/01.png: 1 of 1 pixels drawn differ, first at (1,1): ff8080 against 808080"},
        {"a size", [](const fs::path& dir) { WritePng(dir / "got" / "shapes" / "01.png", Grey(6, 7)); },
         "shapes/01.png: another size"},
        {"a missing picture", [](const fs::path& dir) { fs::remove(dir / "got" / "shapes" / "01.png"); },
         "shapes/01.png: missing\n"},
        {"a picture too many",
         [](const fs::path& dir) {
             WritePng(dir / "got" / "more" / "01.png", Grey(6, 7)),
                 fs::remove(dir / "want" / "shapes" / "01.png");
         },
         "shapes/01.png: missing where"},
        {"a damaged picture", [](const fs::path& dir) { Write(dir / "got" / "shapes" / "01.png", "none"); },
         "shapes/01.png: no picture"},
        {"a line", [](const fs::path& dir) { Write(dir / "got" / "log" / "01.txt", "one\n2\n"); },
         "log/01.txt: 1 of 2 lines differ, first line 2: \"2\" against \"two\""},
        {"a line too few", [](const fs::path& dir) { Write(dir / "got" / "log" / "01.txt", "one\n"); },
         "log/01.txt: 1 of 2 lines differ, first line 2: the end against \"two\""},
        {"an end of line", [](const fs::path& dir) { Write(dir / "got" / "log" / "01.txt", "one\ntwo"); },
         "log/01.txt: 1 of 2 lines differ, first line 2"},
        {"logs that say nothing",
         [](const fs::path& dir) {
             for (const char* pszSide : {"got", "want"}) Write(dir / pszSide / "log" / "01.txt", "");
         },
         "log/01.txt: empty"},
        {"a kind that neither has",
         [](const fs::path& dir) {
             for (const char* pszSide : {"got", "want"}) fs::remove_all(dir / pszSide / "log");
         },
         "log/01.txt: missing"},
        {"both folders gone",
         [](const fs::path& dir) { fs::remove_all(dir / "got"), fs::remove_all(dir / "want"); },
         "shapes/01.png: missing\n"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.pszName);
        TearDown();
        SetUp();
        c.change(root);
        EXPECT_FALSE(Passes());
        EXPECT_NE(std::string::npos, report.str().find(c.pszReport)) << report.str();
    }
}

TEST_F(Folders, NothingToCompareFails) {
    fs::remove_all(root / "got"), fs::remove_all(root / "want");
    expected.clear();
    EXPECT_FALSE(Passes());
}

TEST_F(Folders, AFailureLeavesItsPictures) {
    DrawOver(3);
    Run();
    for (const char* pszWhich : {"got", "want", "diff"})
        EXPECT_TRUE(fs::exists(root / "failures" / "shapes" / (std::string("01-") + pszWhich + ".png")))
            << pszWhich;
}

TEST_F(Folders, BudgetsHoldToThePixel) {
    DrawOver(3);
    EXPECT_TRUE(Passes({{"shapes/01", {3, "reason"}}}));
    EXPECT_FALSE(Passes({{"shapes/01", {2, "reason"}}}));
    EXPECT_FALSE(Passes({{"shapes/01", {4, "reason"}}})) << "it has to fall";
    EXPECT_FALSE(Passes({{"shapes/02", {3, "reason"}}})) << "it is another scene's";
    EXPECT_FALSE(Passes({{"shapes/01", {3, "reason"}}, {"log/01", {1, "reason"}}}));
    EXPECT_FALSE(Passes({{"shapes/01", {3, "reason"}}, {"gone/01", {1, "reason"}}}));
}

TEST(Budgets, RefuseWhatIsNotComplete) {
    const auto parse = [](const char* pszText, Budgets& budgets) {
        std::istringstream in(pszText);
        return ReadBudgets(in, budgets);
    };
    Budgets budgets;
    EXPECT_TRUE(parse("# why\n\narcs/07 12 rows at the tips\n", budgets));
    EXPECT_EQ((Budgets{{"arcs/07", {12, "rows at the tips"}}}), budgets);
    for (const char* pszBad : {"arcs/07 12\n", "arcs/07\n", "arcs/07 -1 why\n", "arcs/07 0 why\n",
                               "arcs/07 x why\n", "arcs/07 1.5 why\n", "arcs/07 1 why\narcs/07 2 why\n"}) {
        Budgets refused;
        EXPECT_FALSE(parse(pszBad, refused)) << pszBad;
    }
}

TEST(Checksums, EveryDifferenceCounts) {
    const Checksums want = {{"arcs", {"00000001", "00000002"}}, {"text", {"00000003"}}};
    struct Case {
        const char* pszName;
        Checksums got;
        int nWant;
    };
    const Case cases[] = {
        {"equal", want, 0},
        {"another sum", {{"arcs", {"00000001", "0000000f"}}, {"text", {"00000003"}}}, 1},
        {"a kind less", {{"arcs", {"00000001", "00000002"}}}, 1},
        {"a kind more",
         {{"arcs", {"00000001", "00000002"}}, {"pies", {"00000001"}}, {"text", {"00000003"}}},
         1},
        {"a seed less", {{"arcs", {"00000001"}}, {"text", {"00000003"}}}, 1},
    };
    for (const Case& c : cases) {
        std::ostringstream report;
        EXPECT_EQ(c.nWant, CompareChecksums(c.got, want, report)) << c.pszName << "\n" << report.str();
    }
}

TEST(Checksums, AreReadWholeOrNotAtAll) {
    const auto parse = [](const char* pszText, Checksums& sums) {
        std::istringstream in(pszText);
        return ReadChecksums(in, sums);
    };
    Checksums sums;
    EXPECT_TRUE(parse("arcs 00000001 00000002\ntext 00000003\n", sums));
    EXPECT_EQ((Checksums{{"arcs", {"00000001", "00000002"}}, {"text", {"00000003"}}}), sums);
    for (const char* pszBad : {"", "arcs\n", "arcs 1 2\ntext\n", "arcs 1\narcs 2\n", "arcs 1\n\n"}) {
        Checksums refused;
        EXPECT_FALSE(parse(pszBad, refused)) << pszBad;
    }
}

}  // namespace
