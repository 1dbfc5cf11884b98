#include <windows.h>

#include <algorithm>
#include <iterator>

#include "gdi/surface.h"
#include "gdi/text_engine.h"
#include "user/cursor.h"
#include "user/menu.h"
#include "user/screen.h"
#include "user/window.h"

using namespace tavlon::win32;

namespace {

constexpr UINT kDoubleClickMilliseconds = 500;

struct Metric {
    int index, value;
};

constexpr Metric kMetrics[] = {
    {2, 17},
    {3, 17},
    {SM_CYCAPTION, 19},
    {SM_CXBORDER, 1},
    {SM_CYBORDER, 1},
    {7, 3},
    {8, 3},
    {9, 17},
    {10, 17},
    {11, 32},
    {12, 32},
    {SM_CXCURSOR, 32},
    {SM_CYCURSOR, 32},
    {SM_CYMENU, 19},
    {19, 1},
    {20, 17},
    {21, 17},
    {28, 116},
    {29, 27},
    {30, 18},
    {31, 18},
    {SM_CXFRAME, 4},
    {SM_CYFRAME, 4},
    {34, 116},
    {35, 27},
    {SM_CXDOUBLECLK, 4},
    {SM_CYDOUBLECLK, 4},
    {38, 75},
    {39, 75},
    {43, 3},
    {45, 2},
    {46, 2},
    {47, 160},
    {48, 24},
    {49, 16},
    {50, 16},
    {51, 17},
    {52, 15},
    {53, 16},
    {SM_CXMENUSIZE, 18},
    {SM_CYMENUSIZE, 18},
    {56, 8},
    {57, 160},
    {58, 24},
    {63, 3},
    {SM_CXDRAG, 4},
    {SM_CYDRAG, 4},
    {SM_CXMENUCHECK, 13},
    {SM_CYMENUCHECK, 13},
    {75, 1},
    {80, 1},
    {81, 1},
    {83, 1},
    {84, 1},
};

BOOL GetWorkArea(LPVOID out) {
    if (!out) return FALSE;
    *static_cast<RECT*>(out) = ScreenRect();
    return TRUE;
}

BOOL GetSmoothing(LPVOID out) {
    if (!out) return FALSE;
    *static_cast<BOOL*>(out) = FontSmoothing();
    return TRUE;
}

}  // namespace

int GetSystemMetrics(int nIndex) {
    constexpr int kVirtualWidth = 78, kVirtualHeight = 79;
    if (nIndex == SM_CXSCREEN || nIndex == kVirtualWidth) return ScreenRect().right;
    if (nIndex == SM_CYSCREEN || nIndex == kVirtualHeight) return ScreenRect().bottom;
    const auto* found = std::find_if(std::begin(kMetrics), std::end(kMetrics),
                                     [nIndex](const Metric& metric) { return metric.index == nIndex; });
    return found == std::end(kMetrics) ? 0 : found->value;
}

BOOL SystemParametersInfoA(UINT nAction, UINT nParam, LPVOID pParam, UINT) {
    switch (nAction) {
        case SPI_GETWORKAREA:
            return GetWorkArea(pParam);
        case SPI_GETFONTSMOOTHING:
            return GetSmoothing(pParam);
        case SPI_SETFONTSMOOTHING:
            SetFontSmoothing(nParam != 0);
            return TRUE;
        default:
            SetLastError(ERROR_INVALID_PARAMETER);
            return FALSE;
    }
}

DWORD GetGuiResources(HANDLE, DWORD dwFlags) {
    if (dwFlags == GR_GDIOBJECTS) return CountGdiObjects();
    if (dwFlags == GR_USEROBJECTS) return static_cast<DWORD>(LiveWindows() + LiveMenus() + LiveCursors());
    return 0;
}

UINT GetDoubleClickTime() { return kDoubleClickMilliseconds; }
