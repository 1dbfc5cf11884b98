/// The Fontconfig fragment of the fonts folder, carried inside the library so that it needs no installation.
#pragma once

namespace tavlon::win32 {

/// The text of fonts/60-tavlon.conf, zero-terminated UTF-8.
const unsigned char* FontFragment();

}  // namespace tavlon::win32
