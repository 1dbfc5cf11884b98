#include <gtest/gtest.h>
#include <tavlon/picture.h>

#include <fstream>
#include <string>

namespace {

/// A file of the test's own that goes with it.
class ScratchFile {
public:
    ScratchFile()
        : m_path(std::filesystem::temp_directory_path() / ("tavlon_picture_" + TestName() + ".png")) {
        std::filesystem::remove(m_path);
    }
    ~ScratchFile() {
        std::error_code ignored;
        std::filesystem::remove(m_path, ignored);
    }
    const std::filesystem::path& Path() const { return m_path; }

    std::string Read() const {
        std::ifstream in(m_path, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), {});
    }
    void Write(const std::string& bytes) const { std::ofstream(m_path, std::ios::binary) << bytes; }

private:
    static std::string TestName() { return testing::UnitTest::GetInstance()->current_test_info()->name(); }
    std::filesystem::path m_path;
};

Picture Pattern(int cx, int cy) {
    Picture picture{cx, cy, {}};
    for (int n = 0; n < cx * cy; ++n)
        picture.xRGB.push_back(static_cast<std::uint32_t>(n) * 0x010307u & 0xFFFFFFu);
    return picture;
}

/// What is left alone when a read fails.
Picture Untouched() { return {1, 1, {0x123456}}; }

void ExpectRefused(const std::filesystem::path& file) {
    Picture picture = Untouched();
    EXPECT_FALSE(ReadPng(file, picture));
    EXPECT_EQ(1, picture.width);
    EXPECT_EQ(Untouched().xRGB, picture.xRGB);
}

/// A PNG of 3 x 3 pixels whose header says that it has a thousand million.
std::string WithHugeHeader(std::string bytes) {
    bytes.replace(16, 8, std::string("\x00\x00\x7f\xff\x00\x00\x7f\xff", 8));
    return bytes;
}

}  // namespace

TEST(Picture, ReadsWhatItWrote) {
    for (const auto& [cx, cy] : {std::pair{1, 1}, std::pair{3, 2}, std::pair{1, 70}, std::pair{301, 97}}) {
        SCOPED_TRACE(cx);
        const ScratchFile file;
        const Picture written = Pattern(cx, cy);
        ASSERT_TRUE(WritePng(file.Path(), written));
        Picture read;
        ASSERT_TRUE(ReadPng(file.Path(), read));
        EXPECT_EQ(written.width, read.width);
        EXPECT_EQ(written.height, read.height);
        EXPECT_EQ(written.xRGB, read.xRGB);
    }
}

TEST(Picture, FourthByteIsNotWritten) {
    const ScratchFile file;
    ASSERT_TRUE(WritePng(file.Path(), {2, 1, {0x80FF0001, 0x0000FF02}}));
    Picture read;
    ASSERT_TRUE(ReadPng(file.Path(), read));
    EXPECT_EQ((std::vector<std::uint32_t>{0xFF0001, 0x00FF02}), read.xRGB);
}

TEST(Picture, ReplacesAFile) {
    const ScratchFile file;
    ASSERT_TRUE(WritePng(file.Path(), Pattern(60, 60)));
    ASSERT_TRUE(WritePng(file.Path(), Pattern(2, 2)));
    Picture read;
    ASSERT_TRUE(ReadPng(file.Path(), read));
    EXPECT_EQ(2, read.width);
}

TEST(Picture, InvalidPicturesAreNotWritten) {
    const ScratchFile file;
    EXPECT_FALSE(WritePng(file.Path(), {}));
    EXPECT_FALSE(WritePng(file.Path(), {2, 2, {1, 2, 3}})) << "too few pixels";
    EXPECT_FALSE(WritePng(file.Path(), {-1, -1, {1}}));
    EXPECT_FALSE(
        WritePng(file.Path(), {Picture::kMaxSide + 1, 1, std::vector<std::uint32_t>(Picture::kMaxSide + 1)}));
    EXPECT_FALSE(std::filesystem::exists(file.Path()));
}

TEST(Picture, NoSuchPlace) {
    ExpectRefused("no_such_directory/a.png");
    EXPECT_FALSE(WritePng("no_such_directory/a.png", Pattern(1, 1)));
}

TEST(Picture, DamagedFilesAreRefused) {
    const ScratchFile file;
    ASSERT_TRUE(WritePng(file.Path(), Pattern(40, 40)));
    const std::string good = file.Read();
    struct Case {
        const char* pszName;
        std::string bytes;
    };
    for (const Case& c :
         {Case{"empty", ""}, Case{"text", "no picture at all, just words"},
          Case{"signature only", good.substr(0, 8)}, Case{"half a header", good.substr(0, 20)},
          Case{"header only", good.substr(0, 33)}, Case{"cut in the pixels", good.substr(0, good.size() / 2)},
          Case{"huge size", WithHugeHeader(good)},
          Case{"another kind of picture", std::string("BM") + std::string(60, '\0')}}) {
        SCOPED_TRACE(c.pszName);
        file.Write(c.bytes);
        ExpectRefused(file.Path());
    }
}

TEST(Picture, AnyFlippedByteIsSurvived) {
    const ScratchFile file;
    ASSERT_TRUE(WritePng(file.Path(), Pattern(5, 5)));
    const std::string good = file.Read();
    for (std::size_t n = 0; n < good.size(); ++n) {
        std::string bad = good;
        bad[n] = static_cast<char>(~bad[n]);
        file.Write(bad);
        Picture read = Untouched();
        const bool bRead = ReadPng(file.Path(), read);
        EXPECT_TRUE(read.IsValid()) << n;
        if (!bRead) {
            EXPECT_EQ(Untouched().xRGB, read.xRGB) << n;
        }
    }
}
