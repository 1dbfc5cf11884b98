// close_window TITLE: waits until another program shows a window of that title, and closes it as a user does.
#include <windows.h>

int main(int argc, char** argv) {
    for (int n = 0; argc == 2 && n < 200; ++n) {
        const HWND hWnd = ::FindWindowA(nullptr, argv[1]);
        if (hWnd && ::IsWindowVisible(hWnd)) return ::PostMessageA(hWnd, WM_CLOSE, 0, 0) ? 0 : 1;
        ::Sleep(100);
    }
    return 1;
}
