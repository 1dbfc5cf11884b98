/// Names of the keys that a script can press.
#pragma once

#include <optional>
#include <string_view>

namespace gallery {

/// The virtual key code: Left, Right, Up, Down, Escape, Enter, Tab, Space, Home, End, PageUp, PageDown,
/// Delete, F1 to F12, a letter or a digit. Upper and lower case are the same.
std::optional<unsigned char> KeyFromName(std::string_view name);

}  // namespace gallery
