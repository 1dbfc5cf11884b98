// PNG through libpng's one-call interface, which reports every damage as a plain failure.
#include <png.h>

#include <tavlon/picture.h>

namespace {

/// An image of libpng that is freed on every way out.
struct PngImage : png_image {
    PngImage() : png_image{} { version = PNG_IMAGE_VERSION; }
    ~PngImage() { png_image_free(this); }
    PngImage(const PngImage&) = delete;
    PngImage& operator=(const PngImage&) = delete;
};

constexpr std::size_t kChannels = 3;

std::vector<png_byte> BytesOf(const std::vector<std::uint32_t>& pixels) {
    std::vector<png_byte> bytes;
    bytes.reserve(pixels.size() * kChannels);
    for (const std::uint32_t pixel : pixels)
        for (const int nShift : {16, 8, 0}) bytes.push_back(static_cast<png_byte>(pixel >> nShift));
    return bytes;
}

/// Drops the fourth channel, so that a pixel's colour does not depend on how see-through it is.
std::vector<std::uint32_t> PixelsOf(const std::vector<png_byte>& rgba) {
    std::vector<std::uint32_t> pixels(rgba.size() / 4);
    for (std::size_t n = 0; n < pixels.size(); ++n)
        pixels[n] = static_cast<std::uint32_t>(rgba[4 * n] << 16 | rgba[4 * n + 1] << 8 | rgba[4 * n + 2]);
    return pixels;
}

}  // namespace

bool WritePng(const std::filesystem::path& file, const Picture& picture) {
    if (!picture.IsValid()) return false;
    PngImage image;
    image.width = static_cast<png_uint_32>(picture.width);
    image.height = static_cast<png_uint_32>(picture.height);
    image.format = PNG_FORMAT_RGB;
    const std::vector<png_byte> bytes = BytesOf(picture.xRGB);
    return png_image_write_to_file(&image, file.c_str(), 0, bytes.data(), 0, nullptr) != 0;
}

bool ReadPng(const std::filesystem::path& file, Picture& picture) {
    PngImage image;
    if (!png_image_begin_read_from_file(&image, file.c_str())) return false;
    if (!Picture::AreSidesValid(image.width, image.height)) return false;
    image.format = PNG_FORMAT_RGBA;
    std::vector<png_byte> rgba(PNG_IMAGE_SIZE(image));
    if (!png_image_finish_read(&image, nullptr, rgba.data(), 0, nullptr)) return false;
    if (PNG_IMAGE_FAILED(image)) return false;
    picture = {static_cast<int>(image.width), static_cast<int>(image.height), PixelsOf(rgba)};
    return true;
}
