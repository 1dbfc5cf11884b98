// What the drawing library alone needs for the pixels of a full radar: fill, 3000 masked sprites, one copy.
#include <benchmark/benchmark.h>
#include <pixman.h>

#include <memory>
#include <random>
#include <utility>
#include <vector>

namespace {
constexpr int k_cx = 800, k_cy = 600, k_nSprites = 3000, k_nSpriteSize = 16;

struct ImageDeleter {
    void operator()(pixman_image_t* pImage) const { pixman_image_unref(pImage); }
};
using Image = std::unique_ptr<pixman_image_t, ImageDeleter>;

Image NewImage(pixman_format_code_t format, int cx, int cy) {
    return Image(pixman_image_create_bits(format, cx, cy, nullptr, 0));
}

/// A disc of 10 pixels in the middle of 16.
Image DiscMask() {
    Image mask = NewImage(PIXMAN_a8, k_nSpriteSize, k_nSpriteSize);
    auto* pBytes = reinterpret_cast<unsigned char*>(pixman_image_get_data(mask.get()));
    for (int y = 0; y < k_nSpriteSize; ++y)
        for (int x = 0; x < k_nSpriteSize; ++x) {
            const int dx = 2 * x - 15, dy = 2 * y - 15;
            pBytes[y * pixman_image_get_stride(mask.get()) + x] = dx * dx + dy * dy <= 100 ? 255 : 0;
        }
    return mask;
}

void Fill(const Image& image, pixman_color_t color) {
    const pixman_box32_t box{0, 0, pixman_image_get_width(image.get()), pixman_image_get_height(image.get())};
    pixman_image_fill_boxes(PIXMAN_OP_SRC, image.get(), &color, 1, &box);
}

void Picture(benchmark::State& state) {
    const Image screen = NewImage(PIXMAN_x8r8g8b8, k_cx, k_cy),
                surface = NewImage(PIXMAN_x8r8g8b8, k_cx, k_cy);
    const Image sprite = NewImage(PIXMAN_x8r8g8b8, k_nSpriteSize, k_nSpriteSize), mask = DiscMask();
    Fill(sprite, {0xFFFF, 0, 0, 0xFFFF});
    std::mt19937 random(20180921);
    std::vector<std::pair<int, int>> places(k_nSprites);
    for (auto& [x, y] : places)
        x = static_cast<int>(random() % 600) + 117, y = static_cast<int>(random() % 400) + 112;
    for (auto _ : state) {
        Fill(surface, {0, 0, 0, 0xFFFF});
        for (const auto& [x, y] : places)
            pixman_image_composite32(PIXMAN_OP_OVER, sprite.get(), mask.get(), surface.get(), 0, 0, 0, 0, x,
                                     y, k_nSpriteSize, k_nSpriteSize);
        pixman_image_composite32(PIXMAN_OP_SRC, surface.get(), nullptr, screen.get(), 0, 0, 0, 0, 0, 0, k_cx,
                                 k_cy);
        benchmark::ClobberMemory();
    }
}
}  // namespace

BENCHMARK(Picture)->Name("Floor/Picture")->Unit(benchmark::kMicrosecond);
