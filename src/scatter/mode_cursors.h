/// The cursors that a scatter chart shows over its plot rectangle: one for each of its two mouse modes.
#pragma once

#include <tavlon/scatter_cursor.h>

/// A magnifier, 22 x 22 with the hot spot in the middle of its lens, for picking a rectangle. Nothing is to
/// be seen of its making; a window without device context leaves the cursor empty.
void DrawEnlargeCursor(CWnd& wnd, COLORREF clrCursor, CScatterCursor& cursor);

/// A hand, 20 x 20 with the hot spot at the tip of its finger, for dragging: clrCursor around clrBack. Else
/// as above.
void DrawDragCursor(CWnd& wnd, COLORREF clrBack, COLORREF clrCursor, CScatterCursor& cursor);

/// A copy of the upper left corner of what the context shows, which the caller deletes; null after a failure.
HBITMAP GetHBitmapFromHDC(HDC hdc, DWORD dwWidth, DWORD dwHeight);

/// The outline of an ellipse, one pixel wide; the inside is left as it is.
void DrawNoFillCircle(CDC* pDC, int x1, int y1, int x2, int y2, COLORREF colour);

/// The part of the rectangle's ellipse from one ray to the other, counter-clockwise, one pixel wide.
void DrawArc(CDC* pDC, CRect rect, CPoint ptStart, CPoint ptEnd, COLORREF colour);
