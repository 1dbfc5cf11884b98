/// Block transfers.
#pragma once

#include <windows.h>

#include "gdi/device_context.h"

namespace tavlon::win32 {

/// The result table of a ternary raster operation, bit (pattern * 4 + source * 2 + destination).
inline unsigned TableOf(DWORD rop) { return rop >> 16 & 0xff; }
/// Whether the operation's result depends on the source, or on the brush.
inline bool UsesSource(DWORD rop) { return ((TableOf(rop) >> 2) & 0x33) != (TableOf(rop) & 0x33); }
inline bool UsesPattern(DWORD rop) { return (TableOf(rop) >> 4) != (TableOf(rop) & 0xf); }
/// What is left of the table when the source does not matter: bit (pattern * 2 + destination).
inline unsigned PatternTable(DWORD rop) { return (TableOf(rop) & 3) | (TableOf(rop) >> 2 & 0xc); }

/// Combines a rectangle with source pixels, `from` meeting its corner; all in surface pixels of either side.
/// What the source does not have stays unchanged.
void Transfer(DeviceContext& dst, const RECT& wanted, DeviceContext& src, POINT from, DWORD rop);

/// A part of the source's surface (inside it) in the depth of the destination: single bits become the
/// destination's text and background colour, colours become single bits by the source's background colour.
SurfaceRef ConvertedSource(const DeviceContext& dst, const DeviceContext& src, const RECT& part);

}  // namespace tavlon::win32
