#pragma once

/// @file
/// The twelve wrappers, one a control.
///
/// What they have in common: construction makes the control without a window; setters may be called at once
/// and show at the first paint. Copies and assignment targets refer to the same control, which lives until
/// the last of them is gone; destroying it destroys its window, if that still exists. When the window goes
/// first (with its parent, say), the control keeps its data and can be given another one.
///
/// Create makes a visible child window of pParent with the client rectangle rect (parent's client pixels) and
/// the control id nID. TRUE, or FALSE without a parent that has a window, when the window cannot be made, or
/// when the control already has one (which then stays as it is).
///
/// An int result is TRUE (1) or FALSE (0) unless another meaning is given. FALSE means refused: nothing has
/// changed, unless the method says otherwise. Without a control (no memory when it was made, or while the
/// wrapper is being destroyed and the control goes with it) a method that returns int returns 0, AddItem and
/// GetActiveId return -1, and a void method does nothing.
///
/// "Repaints" means that the whole client area is invalidated, so that the next WM_PAINT shows the change;
/// nothing is drawn before the call returns. "Stores" means that the value shows at the next paint that
/// something else causes. Colours are 0x00BBGGRR. Lengths are pixels. Texts are code page 936 bytes and are
/// copied; a null char pointer is an empty text. A limit in bytes may cut a two-byte character in half where
/// nothing else is said. Records are copied.
///
/// Keys, and the focus that a press on the wheel, the minute chart or a gauge takes, come by way of
/// PreTranslateMessage: a host with a message loop of its own calls AfxPreTranslateMessage in it.
///
/// Thread: use from the thread that created the window.

#include <tavlon/proxy_gauges.h>
#include <tavlon/proxy_minute.h>
#include <tavlon/proxy_pie.h>
#include <tavlon/proxy_scatter.h>
#include <tavlon/proxy_tabs.h>
#include <tavlon/proxy_wheel.h>
