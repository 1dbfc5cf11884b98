#include "compare/picture_difference.h"

#include <algorithm>
#include <cstdlib>
#include <unordered_map>

namespace {

std::uint32_t CommonestColour(const Picture& picture) {
    std::unordered_map<std::uint32_t, std::size_t> counts;
    for (const std::uint32_t pixel : picture.xRGB) ++counts[pixel & 0xffffff];
    const auto most = std::ranges::max_element(counts, [](const auto& a, const auto& b) {
        return std::pair(a.second, a.first) < std::pair(b.second, b.first);
    });
    return most == counts.end() ? 0 : most->first;
}

int ChannelSum(std::uint32_t a, std::uint32_t b) {
    int sum = 0;
    for (int shift = 0; shift < 24; shift += 8)
        sum += std::abs(static_cast<int>(a >> shift & 255) - static_cast<int>(b >> shift & 255));
    return sum;
}

}  // namespace

PictureDifference ComparePictures(const Picture& got, const Picture& want, Picture* pDiff) {
    PictureDifference result;
    result.bSameSize =
        got.width == want.width && got.height == want.height && got.IsValid() && want.IsValid();
    if (!result.bSameSize) return result;
    if (pDiff) *pDiff = want;
    const std::uint32_t xPaper = CommonestColour(want);
    double dSum = 0;
    for (std::size_t i = 0; i < want.xRGB.size(); ++i) {
        const std::uint32_t xGot = got.xRGB[i] & 0xffffff, xWant = want.xRGB[i] & 0xffffff;
        if (xGot != xPaper || xWant != xPaper) ++result.cDrawn;
        if (pDiff) pDiff->xRGB[i] = xGot == xWant ? (xWant >> 2 & 0x3f3f3f) : 0xff0000;
        if (xGot == xWant) continue;
        dSum += ChannelSum(xGot, xWant) / 3.0;
        if (result.cPixels++ != 0) continue;
        result.x = static_cast<int>(i % static_cast<std::size_t>(want.width));
        result.y = static_cast<int>(i / static_cast<std::size_t>(want.width));
        result.xGot = xGot, result.xWant = xWant;
    }
    if (result.cDrawn) result.dMean = dSum / static_cast<double>(result.cDrawn);
    return result;
}
