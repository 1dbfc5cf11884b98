/// How two pictures of one scene differ.
#pragma once

#include <tavlon/picture.h>

#include <cstdint>

struct PictureDifference {
    bool bSameSize = true;              ///< Otherwise nothing else is said.
    std::size_t cPixels = 0;            ///< That differ at all.
    std::size_t cDrawn = 0;             ///< Whose colour in either picture is not the wanted one's commonest.
    int x = -1, y = -1;                 ///< The first that differs, in reading order.
    std::uint32_t xGot = 0, xWant = 0;  ///< Its colours, 0x00RRGGBB.
    double dMean = 0;                   ///< Mean difference of a channel, 0 to 255, over the drawn pixels.

    bool Any() const { return !bSameSize || cPixels != 0; }
};

/// Takes any two pictures. `pDiff`, when asked for, becomes the wanted picture darkened, with what differs in
/// red.
PictureDifference ComparePictures(const Picture& got, const Picture& want, Picture* pDiff = nullptr);
