#pragma once

/// The twelve wrappers, one a control.
///
/// What they have in common: construction makes the control without a window; setters may be called at once
/// and show at the first paint. Copies and assignment targets refer to the same control, which lives until
/// the last of them is gone; destroying it destroys its window, if that still exists.
///
/// Create makes a visible child window of pParent with the client rectangle rect (parent's client pixels) and
/// the control id nID; FALSE without a parent, when the window cannot be made, or when the control already
/// has one (which then stays as it is).
///
/// Without a control (no memory when it was made, or while the wrapper is being destroyed and the control
/// goes with it) a method that returns int returns 0, AddItem and GetActiveId return -1, and a void method
/// does nothing. A refused call changes nothing. "Repaints" means that the whole client area is invalidated;
/// "stores" means that the value shows at the next paint that something else causes. Colours are 0x00BBGGRR.
/// Texts are code page 936 bytes; a null char pointer is an empty text.
///
/// Thread: use from the thread that created the window.

#include <tavlon/proxy_gauges.h>
#include <tavlon/proxy_minute.h>
#include <tavlon/proxy_pie.h>
#include <tavlon/proxy_scatter.h>
#include <tavlon/proxy_tabs.h>
#include <tavlon/proxy_wheel.h>
