#include <cmath>

#include "gdi/device_context.h"

using namespace tavlon::win32;

namespace {

constexpr int kDotsPerInch = 96;
constexpr double kMillimetresPerInch = 25.4;

int Millimetres(int pixels) {
    return static_cast<int>(std::lround(pixels * kMillimetresPerInch / kDotsPerInch));
}

}  // namespace

int GetDeviceCaps(HDC hdc, int nIndex) {
    if (!DcOf(hdc)) return 0;
    switch (nIndex) {
        case DRIVERVERSION:
            return 0x4000;
        case TECHNOLOGY:
            return DT_RASDISPLAY;
        case HORZSIZE:
            return Millimetres(GetSystemMetrics(SM_CXSCREEN));
        case VERTSIZE:
            return Millimetres(GetSystemMetrics(SM_CYSCREEN));
        case HORZRES:
            return GetSystemMetrics(SM_CXSCREEN);
        case VERTRES:
            return GetSystemMetrics(SM_CYSCREEN);
        case BITSPIXEL:
            return 32;
        case PLANES:
            return 1;
        case NUMCOLORS:
            return -1;
        case LOGPIXELSX:
        case LOGPIXELSY:
            return kDotsPerInch;
        default:
            return 0;
    }
}
