/// The program's message loop.
#pragma once

#include <tavlon/framework.h>

namespace gallery {

void RunMessageLoop();      ///< Until the program is told to quit.
void RunPendingMessages();  ///< Until nothing is left to do.

}  // namespace gallery
