// Logs of random steps: which messages they bring, in which order, and what these say.
#include "scenes/window_kinds.h"
#include "scenes/window_steps.h"

namespace scenes {

namespace {

void TakeSteps(WindowLog& log, Dice& dice, int count, unsigned kinds) {
    for (int i = 0; i < count && TakeStep(log, dice, kinds); ++i) {
    }
    log.Step("pump");
    log.Pump();
}

/// WM_PAINT handlers write down what they are given.
std::optional<LRESULT> PaintWith(WindowLog& log, const Told& told) {
    if (told.message != WM_PAINT) return {};
    PAINTSTRUCT paint{};
    RECT clip{};
    const HDC hdc = BeginPaint(told.hWnd, &paint);
    const int kind = GetClipBox(hdc, &clip);
    if (kind == NULLREGION)  // nothing has no place
        log.Line("paint nothing, erase %d", paint.fErase);
    else
        log.Line("paint%s erase %d clip %d%s", TextOf(paint.rcPaint).c_str(), paint.fErase, kind,
                 TextOf(clip).c_str());
    EndPaint(told.hWnd, &paint);
    return 0;
}

void WriteUpdates(WindowLog& log) {
    const HRGN region = CreateRectRgn(0, 0, 0, 0);
    for (HWND hWnd : log.Living()) {
        RECT rc{};
        const BOOL any = GetUpdateRect(hWnd, &rc, FALSE);
        GetUpdateRgn(hWnd, region, FALSE);
        log.Line("%s due %d%s%s", log.NameOf(hWnd).c_str(), any, TextOf(rc).c_str(), TextOf(region).c_str());
    }
    DeleteObject(region);
}

/// Some handlers do things of their own, a few times at most.
class Meddler {
public:
    Meddler(WindowLog& log, Dice& dice) : m_log(log), m_dice(dice) {}
    std::optional<LRESULT> operator()(const Told& told) {
        if (m_busy || m_left == 0 || !IsOccasion(told.message) || !m_dice.OneIn(5)) return {};
        m_busy = true;
        --m_left;
        // Destroying a window that is on its way out may go on for ever.
        const bool ending = told.message == WM_DESTROY || told.message == WM_SHOWWINDOW;
        const unsigned destroying = ending ? 0u : kDestroying;
        TakeStep(m_log, m_dice, kFocusing | kCapturing | kShowing | destroying);
        m_busy = false;
        return {};
    }

private:
    static bool IsOccasion(UINT message) {
        return message == WM_DESTROY || message == WM_SETFOCUS || message == WM_SIZE || message == WM_MOVE ||
               message == WM_CAPTURECHANGED || message == WM_SHOWWINDOW || message == WM_ENABLE;
    }
    WindowLog& m_log;
    Dice& m_dice;
    bool m_busy = false;
    int m_left = 3;
};

}  // namespace

void LogCreation(std::string& text, Dice& dice) {
    WindowLog log(text);
    const int failing = dice.Between(1, 12);
    const UINT failure = dice.OneIn(2) ? WM_CREATE : WM_NCCREATE;
    int seen = 0;
    log.react = [&](const Told& told) -> std::optional<LRESULT> {
        if (told.message != failure || ++seen != failing) return {};
        log.Line("refused");
        return failure == WM_CREATE ? -1 : 0;
    };
    for (int i = 0; i < 7; ++i) {
        const HWND parent = log.Any(dice);
        WindowPlan plan = dice.OneIn(3) || !parent ? AnyTop(dice, dice.OneIn(2) ? parent : nullptr)
                                                   : AnyChild(dice, parent);
        log.Step("create");
        const HWND hWnd = log.Create(plan);
        log.Settle();
        log.Line("= %s", hWnd ? log.NameOf(hWnd).c_str() : "none");
        WriteOrder(log, nullptr);
        if (dice.OneIn(2)) log.Step("pump"), log.Pump();
    }
    log.Step("pump");
    log.Pump();
}

void LogShowing(std::string& text, Dice& dice) {
    WindowLog log(text);
    MakeTree(log, dice, 2, 4);
    TakeSteps(log, dice, 10, kShowing | kPumping);
}

void LogPlacing(std::string& text, Dice& dice) {
    WindowLog log(text);
    MakeTree(log, dice, 1, 4);
    TakeSteps(log, dice, 12, kPlacing | kPumping);
}

void LogOrdering(std::string& text, Dice& dice) {
    WindowLog log(text);
    MakeTree(log, dice, 3, 4);
    TakeSteps(log, dice, 12, kOrdering | kPumping);
}

void LogStyling(std::string& text, Dice& dice) {
    WindowLog log(text);
    MakeTree(log, dice, 1, 4);
    TakeSteps(log, dice, 10, kStyling | kEnabling | kPumping);
}

void LogInvalidating(std::string& text, Dice& dice) {
    WindowLog log(text);
    MakeTree(log, dice, 1, 5);
    for (int i = 0; i < 12; ++i) {
        TakeStep(log, dice, kInvalidating);
        WriteUpdates(log);
        if (dice.OneIn(5)) log.Step("pump"), log.Pump();
    }
}

void LogPainting(std::string& text, Dice& dice) {
    WindowLog log(text);
    MakeTree(log, dice, 2, 4);
    const bool own = dice.OneIn(2);
    log.react = [&, own](const Told& told) -> std::optional<LRESULT> {
        if (own && told.message == WM_ERASEBKGND && (reinterpret_cast<ULONG_PTR>(told.hWnd) & 1)) return 0;
        return PaintWith(log, told);
    };
    TakeSteps(log, dice, 16, kInvalidating | kUpdating | kPlacing | kShowing | kPumping);
}

void LogDestroying(std::string& text, Dice& dice) {
    WindowLog log(text);
    MakeTree(log, dice, 3, 6);
    if (dice.OneIn(2)) log.react = Meddler(log, dice);
    TakeSteps(log, dice, 8, kFocusing | kCapturing | kDestroying);
}

void LogFocus(std::string& text, Dice& dice) {
    WindowLog log(text);
    MakeTree(log, dice, 3, 4);
    if (dice.OneIn(3)) log.react = Meddler(log, dice);
    TakeSteps(log, dice, 14, kFocusing | kEnabling | kShowing);
}

void LogCapture(std::string& text, Dice& dice) {
    WindowLog log(text);
    MakeTree(log, dice, 1, 4);
    TakeSteps(log, dice, 12, kCapturing | kEnabling | kShowing);
}

}  // namespace scenes
