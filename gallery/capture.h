/// Pictures of what is on the screen.
#pragma once

#include <tavlon/framework.h>

#include <filesystem>

namespace gallery {

/// Part of the top-level window's client area with its children and with what this program shows over it (an
/// open menu, a tip), after all pending painting, as a PNG file. An Error when it cannot be copied or
/// written.
void SaveClientArea(CWnd& wnd, const CRect& rcPart, const std::filesystem::path& file);

}  // namespace gallery
