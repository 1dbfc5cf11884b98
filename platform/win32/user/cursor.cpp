#include "user/cursor.h"

#include <map>
#include <optional>
#include <tuple>

#include "kernel/handle_table.h"
#include "user/desktop.h"

namespace tavlon::win32 {

namespace {

using CursorTable = HandleTable<Cursor, kTagCursor>;

CursorTable& Table() {
    static CursorTable table;
    return table;
}

std::size_t g_sharedCursors = 0;
HCURSOR g_current = nullptr;

HCURSOR AddCursor(Cursor cursor) {
    g_sharedCursors += cursor.shared;
    return static_cast<HCURSOR>(Table().Add(std::make_unique<Cursor>(std::move(cursor))));
}

display::StockCursor StockOf(LPCSTR name) {
    if (name == IDC_ARROW) return display::StockCursor::Arrow;
    if (name == IDC_IBEAM) return display::StockCursor::IBeam;
    if (name == IDC_WAIT) return display::StockCursor::Wait;
    if (name == IDC_CROSS) return display::StockCursor::Cross;
    if (name == IDC_SIZEALL) return display::StockCursor::SizeAll;
    if (name == IDC_HAND) return display::StockCursor::Hand;
    return display::StockCursor::None;
}

HCURSOR LoadSystemCursor(LPCSTR name) {
    static std::map<LPCSTR, HCURSOR> loaded;
    const display::StockCursor stock = StockOf(name);
    if (stock == display::StockCursor::None) {
        SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
        return nullptr;
    }
    HCURSOR& hCursor = loaded[name];
    if (!hCursor) hCursor = AddCursor({DrawSystemCursor(stock), stock, false, true});
    return hCursor;
}

HCURSOR LoadResourceCursor(HINSTANCE hInstance, LPCSTR name) {
    static std::map<std::tuple<HINSTANCE, ULONG_PTR, std::string>, HCURSOR> loaded;
    const bool numbered = IS_INTRESOURCE(name);
    const ULONG_PTR number = numbered ? reinterpret_cast<ULONG_PTR>(name) : 0;
    const std::tuple key(hInstance, number, numbered ? std::string() : std::string(name));
    if (const auto found = loaded.find(key); found != loaded.end()) return found->second;
    auto picture = LoadCursorImage(hInstance, name);
    if (!picture) return nullptr;
    const HCURSOR hCursor = AddCursor({std::move(*picture), display::StockCursor::None, false, true});
    if (hCursor) loaded.emplace(key, hCursor);
    return hCursor;
}

/// Opaque where the picture covers the screen; an inverting pixel shows black, which every desktop can.
std::uint32_t DisplayPixel(std::uint32_t colour, bool keep) {
    if (!keep) return 0xff000000u | colour;
    return colour ? 0xff000000u : 0;
}

display::CursorImage DisplayImage(const Cursor& cursor) {
    if (cursor.stock != display::StockCursor::None) return {cursor.stock, 0, 0, 0, 0, {}};
    const CursorImage& picture = cursor.picture;
    display::CursorImage image{
        display::StockCursor::None, picture.width, picture.height, picture.hotX, picture.hotY, {}};
    for (std::size_t i = 0; i < picture.colour.size(); ++i)
        image.pixels.push_back(DisplayPixel(picture.colour[i], picture.keep[i] != 0));
    return image;
}

void ShowOnDisplay(HCURSOR hCursor) {
    const Cursor* cursor = Table().Get(hCursor);
    TheDisplay().SetCursor(cursor ? DisplayImage(*cursor)
                                  : display::CursorImage{display::StockCursor::None, 0, 0, 0, 0, {}});
}

BOOL Destroy(HCURSOR hCursor) {
    const Cursor* cursor = Table().Get(hCursor);
    if (!cursor) {
        SetLastError(ERROR_INVALID_HANDLE);
        return FALSE;
    }
    if (cursor->shared) return TRUE;
    Table().Remove(hCursor);
    return TRUE;
}

}  // namespace

Cursor* CursorOf(HCURSOR hCursor) { return Table().Get(hCursor); }

std::size_t LiveCursors() { return Table().Live() - g_sharedCursors; }

HCURSOR KeepCursor(Cursor cursor) { return AddCursor(std::move(cursor)); }

}  // namespace tavlon::win32

using namespace tavlon::win32;

HCURSOR LoadCursorA(HINSTANCE hInstance, LPCSTR pszName) {
    if (!pszName) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    return hInstance ? LoadResourceCursor(hInstance, pszName) : LoadSystemCursor(pszName);
}

HCURSOR SetCursor(HCURSOR hCursor) {
    const HCURSOR hOld = g_current;
    if (hCursor && !CursorOf(hCursor)) return nullptr;
    g_current = hCursor;
    if (hCursor != hOld) ShowOnDisplay(hCursor);
    return hOld;
}

HCURSOR GetCursor() { return g_current; }
BOOL DestroyCursor(HCURSOR hCursor) { return Destroy(hCursor); }
BOOL DestroyIcon(HICON hIcon) { return Destroy(hIcon); }
