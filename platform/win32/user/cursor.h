/// Cursors and their pictures.
#pragma once

#include <windows.h>

#include <cstddef>

#include "display/display.h"
#include "kernel/cursor_resource.h"

namespace tavlon::win32 {

/// A cursor or icon alive. System and resource cursors are shared: loaded once, never destroyed.
struct Cursor {
    CursorImage picture;
    display::StockCursor stock = display::StockCursor::None;  ///< Set for system cursors.
    bool icon = false, shared = false;
};

Cursor* CursorOf(HCURSOR hCursor);
std::size_t LiveCursors();  ///< Shared ones left out.
HCURSOR KeepCursor(Cursor cursor);
/// The picture of a system cursor, 32 by 32.
CursorImage DrawSystemCursor(display::StockCursor stock);

}  // namespace tavlon::win32
