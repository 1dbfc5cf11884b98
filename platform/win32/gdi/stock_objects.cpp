#include <array>
#include <cstring>

#include "gdi/objects.h"

namespace tavlon::win32 {

namespace {

constexpr int kStockBitmap = 20;  ///< Past the documented indexes.
constexpr int kStockCount = kStockBitmap + 1;
using StockTable = std::array<HGDIOBJ, kStockCount>;

template <class Kind>
HGDIOBJ AddSystem(Kind kind) {
    GdiObject object;
    object.data = std::move(kind);
    object.system = true;
    return AddObject(std::move(object));
}

HGDIOBJ AddFont(LONG height, LONG width, LONG weight, BYTE charSet, BYTE pitch, const char* face) {
    LOGFONTA font{};
    font.lfHeight = height;
    font.lfWidth = width;
    font.lfWeight = weight;
    font.lfCharSet = charSet;
    font.lfPitchAndFamily = pitch;
    std::strncpy(font.lfFaceName, face, LF_FACESIZE - 1);
    return AddSystem(font);
}

void AddBrushesAndPens(StockTable& stock) {
    stock[WHITE_BRUSH] = AddSystem(BrushObject{BS_SOLID, RGB(255, 255, 255)});
    stock[LTGRAY_BRUSH] = AddSystem(BrushObject{BS_SOLID, RGB(192, 192, 192)});
    stock[GRAY_BRUSH] = AddSystem(BrushObject{BS_SOLID, RGB(128, 128, 128)});
    stock[DKGRAY_BRUSH] = AddSystem(BrushObject{BS_SOLID, RGB(64, 64, 64)});
    stock[BLACK_BRUSH] = AddSystem(BrushObject{BS_SOLID, RGB(0, 0, 0)});
    stock[NULL_BRUSH] = AddSystem(BrushObject{BS_NULL, 0});
    stock[WHITE_PEN] = AddSystem(PenObject{PS_SOLID, 0, RGB(255, 255, 255)});
    stock[BLACK_PEN] = AddSystem(PenObject{PS_SOLID, 0, RGB(0, 0, 0)});
    stock[NULL_PEN] = AddSystem(PenObject{PS_NULL, 1, 0});
}

void AddFonts(StockTable& stock) {
    constexpr BYTE kFixed = 49, kSwiss = 34, kOemCharSet = 255;
    stock[OEM_FIXED_FONT] = AddFont(12, 0, FW_NORMAL, kOemCharSet, kFixed, "");
    stock[ANSI_FIXED_FONT] = AddFont(12, 0, FW_NORMAL, ANSI_CHARSET, kFixed, "Courier");
    stock[ANSI_VAR_FONT] = AddFont(12, 0, FW_NORMAL, ANSI_CHARSET, kSwiss, "MS Sans Serif");
    stock[SYSTEM_FONT] = AddFont(16, 7, FW_BOLD, GB2312_CHARSET, kSwiss, "System");
    stock[DEVICE_DEFAULT_FONT] = AddFont(16, 0, FW_BOLD, GB2312_CHARSET, kSwiss, "System");
    stock[SYSTEM_FIXED_FONT] = AddFont(16, 0, FW_NORMAL, GB2312_CHARSET, kFixed, "Courier");
    stock[DEFAULT_GUI_FONT] = AddFont(-12, 0, FW_NORMAL, GB2312_CHARSET, kSwiss, "MS Shell Dlg");
}

const StockTable& Stock() {
    static const StockTable stock = [] {
        StockTable made{};
        AddBrushesAndPens(made);
        AddFonts(made);
        made[DEFAULT_PALETTE] = AddSystem(PaletteObject{});
        made[kStockBitmap] = AddSystem(BitmapObject{Surface::Create(1, 1, 1), nullptr});
        return made;
    }();
    return stock;
}

}  // namespace

HBITMAP StockBitmap() { return static_cast<HBITMAP>(Stock()[kStockBitmap]); }

}  // namespace tavlon::win32

HGDIOBJ GetStockObject(int nIndex) {
    using namespace tavlon::win32;
    return nIndex >= 0 && nIndex < kStockBitmap ? Stock()[nIndex] : nullptr;
}
