// The gallery: every control on real market data. Written as a customer of the library would write a host.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <exception>
#include <system_error>
#include <utility>
#include <vector>

#include "capture.h"
#include "core/error.h"
#include "data_dir.h"
#include "main_window.h"
#include "message_loop.h"
#include "pages.h"
#include "player.h"

namespace gallery {

namespace {

/// Sets a variable of the environment; read when the first window is made.
void SetVariable(const std::string& assignment) {
    static std::deque<std::string> s_kept;  // the environment goes on using the text
    ::putenv(s_kept.emplace_back(assignment).data());
}

/// The largest page that is asked for.
PageSize LargestSize(const Arguments& args, const std::vector<Step>& steps) {
    PageSize largest = args.size.value_or(PageSize());
    for (const Step& step : steps) {
        if (step.action != Action::Size) continue;
        largest = {std::max(largest.cx, step.size.cx), std::max(largest.cy, step.size.cy)};
    }
    return largest;
}

/// Off the desktop, on a screen that holds the pictures: they must not depend on one. Means nothing where the
/// system itself draws.
void ChooseHeadlessDisplay(PageSize largest) {
    constexpr int kUsualWidth = 1920, kUsualHeight = 1200, kFrame = 128;
    SetVariable("TAVLON_DISPLAY=headless");
    if (largest.cx + kFrame <= kUsualWidth && largest.cy + kFrame <= kUsualHeight) return;
    SetVariable("TAVLON_SCREEN=" + std::to_string(std::max(largest.cx + kFrame, kUsualWidth)) + "x" +
                std::to_string(std::max(largest.cy + kFrame, kUsualHeight)));
}

/// Into the far corner, where no page is: a picture shows what a script's own moves point at, nothing else.
void ParkPointer() { SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1); }

void Render(MainWindow& wnd, const Arguments& args) {
    std::error_code error;
    std::filesystem::create_directories(args.target, error);
    if (error) throw Error(args.target.string() + ": cannot be made: " + error.message());
    for (const PageEntry& page : Pages()) {
        if (args.page && *args.page != page.name) continue;
        wnd.ShowPage(page);
        wnd.SetPageSize(args.size.value_or(PageSize()));
        RunPendingMessages();
        const std::filesystem::path file = args.target / (page.name + ".png");
        SaveClientArea(wnd, wnd.PageArea(), file);
        std::printf("%s\n", file.generic_string().c_str());
        std::fflush(stdout);
    }
}

void Run(const Arguments& args) {
    std::vector<Step> steps;
    if (args.mode == Arguments::Mode::Script) steps = ReadScript(args.target, PageNames());
    if (args.mode != Arguments::Mode::Window) ChooseHeadlessDisplay(LargestSize(args, steps));
    if (args.mode != Arguments::Mode::Window) ParkPointer();
    if (args.plainText) SystemParametersInfo(SPI_SETFONTSMOOTHING, FALSE, nullptr, 0);
    MainWindow wnd({.dataDir = args.data.value_or(FindDataDir()),
                    .pReplay = std::make_shared<Replay>(args.liveSpeed, ::GetTickCount())},
                   Pages());
    wnd.Open(PageSize());
    if (args.mode == Arguments::Mode::Render) return Render(wnd, args);
    wnd.ShowPage(Pages().front());
    if (args.mode == Arguments::Mode::Window) return RunMessageLoop();
    wnd.SetPageSize(PageSize());
    Player(wnd, std::move(steps), args.target.string()).Play();
}

int Main(const std::vector<std::string>& args) {
    try {
        const Arguments parsed = ParseArguments(args, PageNames());
        if (parsed.mode == Arguments::Mode::Help)
            std::fputs(Usage(PageNames()).c_str(), stdout);
        else
            Run(parsed);
        return EXIT_SUCCESS;
    } catch (const UsageError& error) {
        std::fprintf(stderr, "tavlon_gallery: %s\n%s", error.what(), Usage(PageNames()).c_str());
        return 2;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "tavlon_gallery: %s\n", error.what());
        return EXIT_FAILURE;
    } catch (CException* pError) {
        pError->Delete();
        std::fputs("tavlon_gallery: the system has no more windows, bitmaps or memory\n", stderr);
        return EXIT_FAILURE;
    }
}

}  // namespace

}  // namespace gallery

int main(int argc, char** argv) { return gallery::Main(std::vector<std::string>(argv + 1, argv + argc)); }
