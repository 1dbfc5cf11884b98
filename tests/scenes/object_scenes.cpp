#include <windows.h>

#include <iterator>

#include "scenes/context_logs.h"
#include "scenes/log_lines.h"
#include "scenes/stage.h"

namespace scenes {

namespace {

constexpr int kSystemColours[] = {
    COLOR_SCROLLBAR,
    COLOR_BACKGROUND,
    COLOR_ACTIVECAPTION,
    COLOR_INACTIVECAPTION,
    COLOR_MENU,
    COLOR_WINDOW,
    COLOR_WINDOWFRAME,
    COLOR_MENUTEXT,
    COLOR_WINDOWTEXT,
    COLOR_CAPTIONTEXT,
    COLOR_HIGHLIGHT,
    COLOR_HIGHLIGHTTEXT,
    COLOR_BTNFACE,
    COLOR_BTNSHADOW,
    COLOR_GRAYTEXT,
    COLOR_BTNTEXT,
    COLOR_BTNHIGHLIGHT,
    COLOR_3DDKSHADOW,
    COLOR_3DLIGHT,
    -1,
    31,
    1000,
};
constexpr int kMetrics[] = {SM_CXSCREEN,    SM_CYSCREEN, SM_CYCAPTION, SM_CXBORDER, SM_CYBORDER,
                            SM_CXCURSOR,    SM_CYCURSOR, SM_CXFRAME,   SM_CYFRAME,  SM_CXDOUBLECLK,
                            SM_CYDOUBLECLK, SM_CXDRAG,   SM_CYDRAG,    -1,          5000};
constexpr int kCaps[] = {DRIVERVERSION, TECHNOLOGY, HORZRES,    VERTRES, BITSPIXEL, PLANES,
                         NUMCOLORS,     LOGPIXELSX, LOGPIXELSY, -1,      999};

void SayPen(LogLines& lines, HGDIOBJ pen, int size) {
    LOGPEN record{};
    lines.Say("pen", GetObjectA(pen, size, &record));
    lines.Say("style", record.lopnStyle);
    lines.Say("width", record.lopnWidth.x);
    lines.Say("colour", record.lopnColor);
}

void SayBrush(LogLines& lines, HGDIOBJ brush, int size) {
    LOGBRUSH record{};
    lines.Say("brush", GetObjectA(brush, size, &record));
    lines.Say("style", record.lbStyle);
    lines.Say("colour", record.lbColor);
}

}  // namespace

void StockRecords(std::string& log, Dice& dice) {
    LogLines lines(log);
    for (int i = WHITE_BRUSH; i <= NULL_BRUSH; ++i) SayBrush(lines, GetStockObject(i), sizeof(LOGBRUSH));
    for (int i = WHITE_PEN; i <= NULL_PEN; ++i) SayPen(lines, GetStockObject(i), sizeof(LOGPEN));
    for (int i = -1; i <= DEFAULT_GUI_FONT; ++i) {
        lines.Say("type", GetObjectType(GetStockObject(i)));
        lines.Say("size", GetObjectA(GetStockObject(i), 0, nullptr));
        lines.Say("deleted", DeleteObject(GetStockObject(i)) != 0);
    }
    WORD entries = 0;
    lines.Say("palette", GetObjectA(GetStockObject(DEFAULT_PALETTE), sizeof entries, &entries));
    lines.Say("entries", entries);
    for (int i = 0; i < 12; ++i) {
        const int style = dice.Between(-1, 9), width = dice.Between(-3, 6);
        const HPEN pen = CreatePen(style, width, dice.Colour());
        SayPen(lines, pen, dice.OneIn(2) ? static_cast<int>(sizeof(LOGPEN)) : dice.Between(-1, 24));
        LOGPEN record{static_cast<UINT>(style), {width, 7}, 5};
        const HPEN same = CreatePenIndirect(&record);
        SayPen(lines, same, sizeof record);
        const HBRUSH brush = CreateSolidBrush(dice.Colour());
        SayBrush(lines, brush, dice.OneIn(2) ? static_cast<int>(sizeof(LOGBRUSH)) : dice.Between(-1, 40));
        const LOGBRUSH hollow{static_cast<UINT>(dice.OneIn(2) ? BS_NULL : BS_SOLID), 77, 5};
        const HBRUSH indirect = CreateBrushIndirect(&hollow);
        SayBrush(lines, indirect, sizeof hollow);
        for (const HGDIOBJ object : {HGDIOBJ(pen), HGDIOBJ(same), HGDIOBJ(brush), HGDIOBJ(indirect)})
            lines.Say("deleted", DeleteObject(object) != 0);
        lines.Say("type", GetObjectType(brush));
        SayBrush(lines, brush, sizeof(LOGBRUSH));
    }
}

/// Selecting, deleting while selected, one bitmap into two contexts.
void Selecting(std::string& log, Dice& dice) {
    LogLines lines(log);
    Stage stage({20, 20}, 1);
    const HDC other = CreateCompatibleDC(stage.hdc);
    const HRGN region = CreateRectRgn(1, 1, 9, 9);
    HGDIOBJ objects[] = {CreatePen(PS_SOLID, 1, 1),
                         CreateSolidBrush(2),
                         CreateBitmap(5, 4, 1, 1, nullptr),
                         CreateCompatibleBitmap(stage.hdc, 6, 3),
                         CreateFontA(12, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, "x"),
                         nullptr,
                         GetStockObject(NULL_PEN),
                         GetStockObject(DEFAULT_PALETTE),
                         region};
    const auto index = [&](HGDIOBJ object) {
        for (std::size_t i = 0; i < std::size(objects); ++i)
            if (object && objects[i] == object) return static_cast<int>(i) + 1;
        return object ? 100 : 0;
    };
    for (int i = 0; i < 40; ++i) {
        const HDC hdc = dice.OneIn(2) ? stage.hdc : other;
        const HGDIOBJ object = dice.Of(objects);
        const HGDIOBJ old = SelectObject(hdc, object);
        lines.Say("object", index(object));
        lines.Say("selected",
                  object == region ? static_cast<int>(reinterpret_cast<ULONG_PTR>(old)) : index(old));
        for (const UINT type : {OBJ_PEN, OBJ_BRUSH, OBJ_BITMAP, OBJ_FONT})
            lines.Say("current", index(GetCurrentObject(hdc, type)));
        if (!dice.OneIn(9)) continue;
        lines.Say("deleted", DeleteObject(object) != 0);
        lines.Say("type", GetObjectType(object));
    }
    lines.Say("deleted context", DeleteDC(other) != 0);
    lines.Say("deleted twice", DeleteDC(other) != 0);
    for (const HGDIOBJ object : objects) lines.Say("deleted", DeleteObject(object) != 0);
}

void SystemValues(std::string& log, Dice&) {
    LogLines lines(log);
    for (const int index : kSystemColours) {
        lines.Say("colour", GetSysColor(index));
        const HBRUSH brush = GetSysColorBrush(index);
        lines.Say("brush", brush != nullptr);
        SayBrush(lines, brush, sizeof(LOGBRUSH));
        lines.Say("same", brush == GetSysColorBrush(index));
        lines.Say("deleted", DeleteObject(brush) != 0);
    }
    for (const int index : kMetrics) lines.Say("metric", GetSystemMetrics(index));
    const HDC memory = CreateCompatibleDC(nullptr), screen = GetDC(nullptr);
    for (const int index : kCaps) {
        lines.Say("memory", GetDeviceCaps(memory, index));
        lines.Say("screen", GetDeviceCaps(screen, index));
        lines.Say("none", GetDeviceCaps(nullptr, index));
    }
    ReleaseDC(nullptr, screen);
    DeleteDC(memory);
}

}  // namespace scenes
