#include <gtest/gtest.h>
#include <tavlon/picture.h>

#include <fstream>
#include <string>

namespace {

Picture Pattern(int cx, int cy) {
    Picture picture{cx, cy, {}};
    for (int n = 0; n < cx * cy; ++n)
        picture.xRGB.push_back(static_cast<std::uint32_t>(n) * 0x010307u & 0xFFFFFFu);
    return picture;
}

/// With a file of the test's own.
class PictureFile : public testing::Test {
protected:
    ~PictureFile() override {
        std::error_code ignored;
        std::filesystem::remove(m_path, ignored);
    }
    std::string Read() const {
        std::ifstream in(m_path, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), {});
    }
    /// The picture is left alone when a read fails.
    static bool ReadOrLeave(const std::filesystem::path& file) {
        Picture read{1, 1, {0x123456}};
        const bool bRead = ReadPng(file, read);
        EXPECT_TRUE(read.IsValid());
        EXPECT_TRUE(bRead || (read.width == 1 && read.xRGB == std::vector<std::uint32_t>{0x123456}));
        return bRead;
    }
    bool ReadOrLeave(const std::string& bytes) const {
        std::ofstream(m_path, std::ios::binary) << bytes;
        return ReadOrLeave(m_path);
    }

    std::filesystem::path m_path =
        std::filesystem::temp_directory_path() /
        ("tavlon_picture_" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
};

}  // namespace

TEST_F(PictureFile, ReadsWhatItWrote) {
    for (const auto& [cx, cy] : {std::pair{60, 60}, std::pair{1, 1}, std::pair{1, 70}, std::pair{301, 97}}) {
        SCOPED_TRACE(cx);
        Picture written = Pattern(cx, cy), read;
        written.xRGB[0] |= 0x80000000u;  // is not written
        ASSERT_TRUE(WritePng(m_path, written));
        ASSERT_TRUE(ReadPng(m_path, read));
        written.xRGB[0] &= 0xFFFFFFu;
        EXPECT_EQ(written.width, read.width);
        EXPECT_EQ(written.height, read.height);
        EXPECT_EQ(written.xRGB, read.xRGB);
    }
}

TEST_F(PictureFile, InvalidPicturesAreNotWritten) {
    constexpr int kTooWide = Picture::kMaxSide + 1;
    for (const Picture& picture : {Picture{}, Picture{2, 2, {1, 2, 3}}, Picture{-1, -1, {1}},
                                   Picture{kTooWide, 1, std::vector<std::uint32_t>(kTooWide)}})
        EXPECT_FALSE(WritePng(m_path, picture)) << picture.width;
    EXPECT_FALSE(std::filesystem::exists(m_path));
    EXPECT_FALSE(WritePng("no_such_directory/a.png", Pattern(1, 1)));
    EXPECT_FALSE(ReadOrLeave(std::filesystem::path("no_such_directory/a.png")));
}

TEST_F(PictureFile, DamagedFilesAreRefused) {
    ASSERT_TRUE(WritePng(m_path, Pattern(40, 40)));
    const std::string good = Read();
    std::string huge = good;  // whose header says that it has a thousand million pixels
    huge.replace(16, 8, std::string("\x00\x00\x7f\xff\x00\x00\x7f\xff", 8));
    for (const std::string& bytes :
         {std::string(), std::string("no picture at all, just words"), "BM" + std::string(60, '\0'), huge,
          good.substr(0, 8), good.substr(0, 20), good.substr(0, 33), good.substr(0, good.size() / 2)})
        EXPECT_FALSE(ReadOrLeave(bytes)) << bytes.size();
}

TEST_F(PictureFile, AnyFlippedByteIsSurvived) {
    ASSERT_TRUE(WritePng(m_path, Pattern(5, 5)));
    const std::string good = Read();
    for (std::size_t n = 0; n < good.size(); ++n) {
        std::string bad = good;
        bad[n] = static_cast<char>(~bad[n]);
        ReadOrLeave(bad);
    }
}
