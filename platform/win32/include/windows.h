/// The Win32-shaped interface of the native layer: as much of the documented API as the controls, the
/// framework and their hosts call. Text is code page 936 bytes, coordinates are device pixels, and every
/// function belongs to the one user-interface thread.
#pragma once

#include "win32/base.h"
#include "win32/gdi.h"
#include "win32/kernel.h"
#include "win32/module.h"
#include "win32/user.h"
