#include "gdi/text_fragment.h"

// The assembler looks the file up in the compiler's include directories.
asm(R"(
    .pushsection .rodata
    .global g_tavlonFontFragment
    .hidden g_tavlonFontFragment
g_tavlonFontFragment:
    .incbin "fonts/60-tavlon.conf"
    .byte 0
    .popsection
)");

extern "C" {
extern const unsigned char g_tavlonFontFragment[] __attribute__((visibility("hidden")));
}

namespace tavlon::win32 {

const unsigned char* FontFragment() { return g_tavlonFontFragment; }

}  // namespace tavlon::win32
