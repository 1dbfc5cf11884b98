/// Every device context alive, and what its making and ending share.
#pragma once

#include "gdi/device_context.h"
#include "kernel/handle_table.h"

namespace tavlon::win32 {

using DcTable = HandleTable<DeviceContext, kTagDc>;
DcTable& Dcs();

/// Puts a context with fresh attributes on a surface into the table; null when handles have run out.
DeviceContext* AddDc(SurfaceRef surface, HBITMAP bitmap);
/// Ends a context; what it held is released.
void RemoveDc(HDC hdc);

/// Counts the objects of a state as held by the context, or as no longer held.
void HoldState(const DcState& state, HDC hdc);
void DropState(const DcState& state);

/// The context draws on another surface from now on, all of it visible.
void AttachSurface(DeviceContext& dc, SurfaceRef surface);

}  // namespace tavlon::win32
