// Compares pictures of one name in two folders: compare_pictures GOT WANT NAME... ; a missing picture,
// another size or a differing pixel is a failure. Prints one line a picture that differs, then the totals,
// and leaves difference pictures (NAME-diff.png in GOT: grey where equal, red where not).

#include <picture.h>

#include <cstdio>
#include <filesystem>
#include <string>

namespace {

struct Difference {
    std::size_t cPixels = 0;
    int x = -1, y = -1;  ///< The first one, in reading order.
};

Difference Compare(const Picture& got, const Picture& want, Picture& diff) {
    Difference result;
    diff = want;
    for (std::size_t i = 0; i < want.xRGB.size(); ++i) {
        const bool bSame = (got.xRGB[i] & 0xffffff) == (want.xRGB[i] & 0xffffff);
        diff.xRGB[i] = bSame ? (want.xRGB[i] >> 2 & 0x3f3f3f) : 0xff0000;
        if (bSame) continue;
        if (result.cPixels++ == 0) {
            result.x = static_cast<int>(i % static_cast<std::size_t>(want.width));
            result.y = static_cast<int>(i / static_cast<std::size_t>(want.width));
        }
    }
    return result;
}

/// The number of differing pixels, or -1 when the pictures cannot be compared.
long CompareFiles(const std::filesystem::path& got, const std::filesystem::path& want,
                  const std::string& name) {
    Picture pictureGot, pictureWant, diff;
    if (!ReadPng(got / name, pictureGot) || !ReadPng(want / name, pictureWant)) {
        std::printf("%s: missing or no picture\n", name.c_str());
        return -1;
    }
    if (pictureGot.width != pictureWant.width || pictureGot.height != pictureWant.height) {
        std::printf("%s: %dx%d against %dx%d\n", name.c_str(), pictureGot.width, pictureGot.height,
                    pictureWant.width, pictureWant.height);
        return -1;
    }
    const Difference found = Compare(pictureGot, pictureWant, diff);
    if (found.cPixels == 0) return 0;
    const std::size_t at = static_cast<std::size_t>(found.y) * static_cast<std::size_t>(pictureWant.width) +
                           static_cast<std::size_t>(found.x);
    std::printf("%s: %zu of %zu pixels differ, first at (%d,%d): %06x against %06x\n", name.c_str(),
                found.cPixels, pictureWant.xRGB.size(), found.x, found.y, pictureGot.xRGB[at] & 0xffffff,
                pictureWant.xRGB[at] & 0xffffff);
    WritePng(got / (std::filesystem::path(name).stem().string() + "-diff.png"), diff);
    return static_cast<long>(found.cPixels);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        std::fprintf(stderr, "usage: compare_pictures GOT WANT NAME...\n");
        return 2;
    }
    int cFailed = 0;
    long cPixels = 0;
    for (int i = 3; i < argc; ++i) {
        const long cDiffer = CompareFiles(argv[1], argv[2], argv[i]);
        if (cDiffer != 0) ++cFailed;
        if (cDiffer > 0) cPixels += cDiffer;
    }
    std::printf("pictures: %d compared, %d differ, %ld pixels in all\n", argc - 3, cFailed, cPixels);
    return cFailed == 0 ? 0 : 1;
}
