// Asks a window to close as the cross in its title bar does: close_window ID. For a screen without window
// manager.
#include <X11/Xlib.h>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    const Window window = argc == 2 ? std::strtoul(argv[1], nullptr, 0) : 0;
    Display* const display = XOpenDisplay(nullptr);
    if (!window || !display) return std::fputs("usage: close_window ID, with DISPLAY set\n", stderr), 2;
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(XInternAtom(display, "WM_DELETE_WINDOW", False));
    event.xclient.data.l[1] = CurrentTime;
    const bool bSent = XSendEvent(display, window, False, NoEventMask, &event) != 0;
    XCloseDisplay(display);
    return bSent ? 0 : 1;
}
