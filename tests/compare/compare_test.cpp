/// The comparer: what has to fail does fail.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

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
        return CompareFolders(root / "got", root / "want", root / "failures", report);
    }
    bool Passes(const Budgets& budgets = {}) { return KeepsBudgets(Run(), budgets, report); }

    fs::path root;
    std::ostringstream report;
};

TEST_F(Folders, EqualOnesPass) {
    EXPECT_TRUE(Passes());
    EXPECT_EQ("", report.str());
    EXPECT_EQ(2, Run().Scenes());
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
        {"both folders gone",
         [](const fs::path& dir) { fs::remove_all(dir / "got"), fs::remove_all(dir / "want"); },
         "nothing to compare"},
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

TEST_F(Folders, AFailureLeavesItsPictures) {
    DrawOver(3);
    Run();
    for (const char* pszWhich : {"got", "want", "diff"})
        EXPECT_TRUE(fs::exists(root / "failures" / "shapes" / (std::string("01-") + pszWhich + ".png")))
            << pszWhich;
}

TEST_F(Folders, BudgetsHoldToThePixel) {
    DrawOver(3);
    EXPECT_TRUE(Passes({{"shapes", {Budget::kExact, 3, "reason"}}}));
    EXPECT_FALSE(Passes({{"shapes", {Budget::kExact, 2, "reason"}}}));
    EXPECT_FALSE(Passes({{"shapes", {Budget::kExact, 4, "reason"}}})) << "it has to fall";
    EXPECT_FALSE(Passes({{"shapes", {Budget::kExact, 3, "reason"}}, {"log", {Budget::kExact, 1, "reason"}}}));
    EXPECT_FALSE(
        Passes({{"shapes", {Budget::kExact, 3, "reason"}}, {"gone", {Budget::kExact, 1, "reason"}}}));
    EXPECT_TRUE(Passes({{"shapes", {Budget::kMean, 128, "reason"}}}));
    EXPECT_FALSE(Passes({{"shapes", {Budget::kMean, 127.9, "reason"}}}));
}

TEST(Budgets, RefuseWhatIsNotComplete) {
    const auto parse = [](const char* pszText, Budgets& budgets) {
        std::istringstream in(pszText);
        return ReadBudgets(in, budgets);
    };
    Budgets budgets;
    EXPECT_TRUE(parse("# why\n\narcs pixels 12 rows at the tips\ntext mean 3.5 darker\n", budgets));
    EXPECT_EQ((Budgets{{"arcs", {Budget::kExact, 12, "rows at the tips"}},
                       {"text", {Budget::kMean, 3.5, "darker"}}}),
              budgets);
    for (const char* pszBad :
         {"arcs pixels 12\n", "arcs pixels\n", "arcs dots 12 why\n", "arcs pixels -1 why\n",
          "arcs pixels x why\n", "arcs mean nan why\n", "arcs pixels 1 why\narcs pixels 2 why\n"}) {
        Budgets refused;
        EXPECT_FALSE(parse(pszBad, refused)) << pszBad;
    }
}

}  // namespace
