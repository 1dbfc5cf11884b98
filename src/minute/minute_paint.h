/// The parts of the intraday flow chart's picture. Each leaves the device context as it found it, except for
/// the text colour. Texts take the font that is selected and are opaque, on black.
#pragma once

#include <tavlon/framework.h>
#include <tavlon/records.h>

#include "minute_layout.h"
#include "minute_scale.h"

void DrawTimeAxis(CDC& dc, const MinuteLayout& layout);

/// Code and name of the stock; nothing without both.
void DrawTitle(CDC& dc, const MinuteLayout& layout, const tagStockItem& stock);

/// Time, price, main-force net buying and volume of one minute.
void DrawMinuteInfo(CDC& dc, const MinuteLayout& layout, const tagmyMinuteData& minute, int nDecimal);

/// Frame, grid and scales, for which the range is made symmetric. Draws nothing and leaves the range as it is
/// when a pane is empty or nDecimal is negative.
void DrawMinuteFrame(CDC& dc, const MinuteLayout& layout, MinuteRange& range, int nDecimal);

/// Price line with its marks, mean line and volume bars, up to slot nLastIndex; slot 239 is never drawn.
void DrawMinuteLines(CDC& dc, const MinuteLayout& layout, const MinuteRange& range, MinuteArray& arrMinute,
                     int nLastIndex, HBITMAP hMark);

/// Inverts one column and one row through the point.
void DrawCrossHair(CDC& dc, const MinuteLayout& layout, CPoint point);
