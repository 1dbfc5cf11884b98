#include <array>

#include "gdi/objects.h"

using namespace tavlon::win32;

namespace {

// By COLOR_ index, 0x00BBGGRR.
constexpr COLORREF kColours[] = {
    0xffffff, 0x956f25, 0xfa9632, 0x808080, 0xffffff, 0xffffff, 0x9e9e9e, 0x000000,
    0x000000, 0x000000, 0xffffff, 0xffffff, 0x808080, 0xfa9630, 0xffffff, 0xf5f5f5,
    0xa6a6a6, 0xa6a6a6, 0x000000, 0xc8c8c8, 0xffffff, 0x6a6a6a, 0xe3e3e3, 0x000000,
    0xffffff, 0xffffff, 0xe0e0e0, 0xfa9632, 0x808080, 0xfa9630, 0xffffff,
};
constexpr int kCount = static_cast<int>(std::size(kColours));

HBRUSH AddBrush(COLORREF colour) {
    GdiObject object;
    object.data = BrushObject{BS_SOLID, colour};
    object.system = true;
    return static_cast<HBRUSH>(AddObject(std::move(object)));
}

}  // namespace

DWORD GetSysColor(int nIndex) { return nIndex >= 0 && nIndex < kCount ? kColours[nIndex] : 0; }

HBRUSH GetSysColorBrush(int nIndex) {
    static std::array<HBRUSH, kCount> brushes{};
    if (nIndex < 0 || nIndex >= kCount) return nullptr;
    HBRUSH& brush = brushes[static_cast<std::size_t>(nIndex)];
    if (!brush) brush = AddBrush(kColours[nIndex]);
    return brush;
}
