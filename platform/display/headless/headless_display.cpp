#include "display/headless/headless_display.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace tavlon::display {

namespace {

constexpr Size kDefaultScreen{1920, 1200};
constexpr int kLargestSide = 16384;

class HeadlessDisplay final : public Display {
public:
    explicit HeadlessDisplay(Size screen) : m_screen(screen) {}

    Size ScreenSize() const override { return m_screen; }
    bool HasOutsideInput() const override { return false; }
    bool FramesWindows() const override { return false; }

    WindowId Open(const WindowSpec&) override { return ++m_lastWindow; }
    void Close(WindowId) override {}
    void Place(WindowId, const Rect&) override {}
    Rect PlaceOf(WindowId) const override { return {}; }
    void SetTitle(WindowId, const std::string&) override {}
    void Activate(WindowId) override {}
    bool HasFocus() const override { return true; }
    void Present(WindowId, const Picture&, const std::vector<Rect>&) override {}

    void MovePointer(int, int) override {}
    void Capture(bool) override {}
    void SetCursor(const CursorImage&) override {}

    bool Poll(Event&) override { return false; }
    void Wait(int milliseconds) override {
        // Nothing can arrive, so an unlimited wait is a sleep that the process's end interrupts.
        const auto span = milliseconds < 0 ? std::chrono::hours(1) : std::chrono::milliseconds(milliseconds);
        std::this_thread::sleep_for(span);
    }

private:
    Size m_screen;
    WindowId m_lastWindow = 0;
};

bool ValidSide(int side) { return side >= 1 && side <= kLargestSide; }

}  // namespace

Size HeadlessScreenSize(const char* setting) {
    Size size;
    char rest = 0;
    if (!setting || std::sscanf(setting, "%5dx%5d%c", &size.width, &size.height, &rest) != 2)
        return kDefaultScreen;
    return ValidSide(size.width) && ValidSide(size.height) ? size : kDefaultScreen;
}

std::unique_ptr<Display> CreateHeadlessDisplay() {
    return std::make_unique<HeadlessDisplay>(HeadlessScreenSize(std::getenv("TAVLON_SCREEN")));
}

}  // namespace tavlon::display
