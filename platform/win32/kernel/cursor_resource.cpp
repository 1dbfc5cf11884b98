#include "kernel/cursor_resource.h"

#include "kernel/dib.h"
#include "kernel/module_table.h"

namespace tavlon::win32 {
namespace {

constexpr WORD kCursorGroup = 2;
constexpr int kUsualSize = 32;

/// The AND mask lies behind the colours, one bit a pixel, in the same row order.
std::optional<std::vector<std::uint32_t>> MaskBits(const Dib& dib) {
    Dib mask = dib;
    mask.bitCount = 1;
    mask.palette = {0, 1};
    mask.bits = dib.bits.subspan(DibImageBytes(dib));
    return DibPixels(mask);
}

/// One RT_CURSOR: hot spot, then a DIB of twice the height holding colours and mask.
std::optional<CursorImage> DecodeCursor(Bytes bytes) {
    ByteReader reader(bytes);
    CursorImage image;
    image.hotX = reader.Word();
    image.hotY = reader.Word();
    std::optional<Dib> dib = ParseDib(reader.Block(reader.Left()));
    if (!dib || dib->height % 2 != 0) return std::nullopt;
    dib->height /= 2;
    auto colour = DibPixels(*dib);
    if (!colour) return std::nullopt;
    const auto mask = MaskBits(*dib);
    if (!mask) return std::nullopt;
    image.width = dib->width;
    image.height = dib->height;
    image.monochrome = dib->bitCount == 1;
    image.colour = std::move(*colour);
    image.keep.assign(mask->begin(), mask->end());
    return image;
}

/// The ids of the pictures that a group names, in its order.
std::vector<WORD> PicturesOf(Bytes group) {
    ByteReader reader(group);
    std::vector<WORD> ids;
    reader.Skip(2);
    if (reader.Word() != kCursorGroup) return ids;
    const WORD count = reader.Word();
    for (WORD i = 0; i < count && reader.Ok(); ++i) {
        reader.Skip(12);
        const WORD id = reader.Word();
        if (reader.Ok()) ids.push_back(id);
    }
    return ids;
}

}  // namespace

std::optional<CursorImage> LoadCursorImage(HINSTANCE hInstance, LPCSTR pszName) {
    std::optional<CursorImage> best;
    for (const WORD id : PicturesOf(FindResourceBytes(hInstance, pszName, RT_GROUP_CURSOR))) {
        auto image = DecodeCursor(FindResourceBytes(hInstance, MAKEINTRESOURCEA(id), RT_CURSOR));
        if (!image) continue;
        if (image->width == kUsualSize && image->height == kUsualSize) return image;
        if (!best) best = std::move(image);
    }
    return best;
}

}  // namespace tavlon::win32
