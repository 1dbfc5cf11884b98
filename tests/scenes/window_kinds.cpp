/// Windows moved, sized, restacked and framed: what is on them afterwards. Each scene is one popup with
/// children, read back whole through its own context.
#include <algorithm>
#include <vector>

#include "scenes/scene.h"

namespace scenes {

namespace {

constexpr SIZE kSize{240, 180};
constexpr const char* kClass = "scene.pane";

/// A child's background is a colour that follows from its identifier; the popup is white.
LRESULT CALLBACK PaneProc(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam) {
    if (nMessage != WM_ERASEBKGND) return DefWindowProcA(hWnd, nMessage, wParam, lParam);
    const bool child = (GetWindowLongA(hWnd, GWL_STYLE) & WS_CHILD) != 0;
    const auto id = static_cast<DWORD>(GetDlgCtrlID(hWnd));
    const HBRUSH hBrush =
        CreateSolidBrush(child ? RGB(id * 53 % 256, id * 97 % 256, id * 31 % 256) : 0xFFFFFF);
    RECT rc{};
    GetClientRect(hWnd, &rc);
    FillRect(reinterpret_cast<HDC>(wParam), &rc, hBrush);
    DeleteObject(hBrush);
    return 1;
}

void RegisterPane() {
    WNDCLASSA pane{};
    pane.lpfnWndProc = PaneProc;
    pane.hInstance = GetModuleHandleA(nullptr);
    pane.lpszClassName = kClass;
    RegisterClassA(&pane);
}

void Pump() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&message);
}

/// The popup of a scene and its children.
class Panes {
public:
    Panes(Stage& stage, DWORD style) : m_stage(stage) {
        RegisterPane();
        m_popup = Make(0, WS_POPUP | style, {0, 0, stage.cx, stage.cy}, nullptr, 0);
        ShowWindow(m_popup, SW_SHOWNOACTIVATE);
        UpdateWindow(m_popup);
        Pump();
    }
    ~Panes() { DestroyWindow(m_popup); }
    Panes(const Panes&) = delete;
    Panes& operator=(const Panes&) = delete;

    HWND Popup() const { return m_popup; }
    HWND Any() { return m_children[m_stage.dice.Between(0, static_cast<int>(m_children.size()) - 1)]; }
    const std::vector<HWND>& Children() const { return m_children; }

    void Add(DWORD style, DWORD exStyle = 0, int least = 20, HWND parent = nullptr) {
        const int id = static_cast<int>(m_children.size()) + 1;
        const RECT rc = m_stage.Box(least, 110, 90);
        const HWND hParent = parent ? parent : m_popup;
        m_children.push_back(Make(exStyle, WS_CHILD | WS_VISIBLE | style, rc, hParent, id));
    }
    /// Copies what the popup shows to the stage.
    void Take() const {
        const HDC hdc = GetDC(m_popup);
        BitBlt(m_stage.hdc, 0, 0, m_stage.cx, m_stage.cy, hdc, 0, 0, SRCCOPY);
        ReleaseDC(m_popup, hdc);
    }

private:
    static HWND Make(DWORD exStyle, DWORD style, const RECT& rc, HWND parent, int id) {
        const auto hMenu = reinterpret_cast<HMENU>(static_cast<INT_PTR>(id));
        return CreateWindowExA(exStyle, kClass, "", style, rc.left, rc.top, rc.right - rc.left,
                               rc.bottom - rc.top, parent, hMenu, GetModuleHandleA(nullptr), nullptr);
    }

    Stage& m_stage;
    HWND m_popup = nullptr;
    std::vector<HWND> m_children;
};

void Scribble(Stage& stage, HWND hWnd) {
    const HDC hdc = GetDC(hWnd);
    for (int i = 0; i < 4; ++i) {
        RECT rc = stage.Box(2, 50, 40);
        OffsetRect(&rc, -40, -40);
        const HBRUSH hBrush = CreateSolidBrush(stage.dice.Colour());
        FillRect(hdc, &rc, hBrush);
        DeleteObject(hBrush);
    }
    ReleaseDC(hWnd, hdc);
}

RECT InParent(HWND hWnd) {
    RECT rc{};
    GetWindowRect(hWnd, &rc);
    MapWindowPoints(nullptr, GetParent(hWnd), reinterpret_cast<POINT*>(&rc), 2);
    return rc;
}

void Move(Dice& dice, HWND hWnd, int stretch, BOOL repaint) {
    const RECT rc = InParent(hWnd);
    const int x = rc.left + dice.Between(-20, 20), y = rc.top + dice.Between(-20, 20);
    const int cx = rc.right - rc.left + dice.Between(-stretch, stretch);
    const int cy = rc.bottom - rc.top + dice.Between(-stretch, stretch);
    MoveWindow(hWnd, x, y, std::max(cx, 0), std::max(cy, 0), repaint);
}

using Step = void (*)(Stage& stage, HWND hWnd);

/// Everything is drawn on, one window changes, and again; now and then what is due is painted.
void Change(Stage& stage, Step step, int calm) {
    Dice& dice = stage.dice;
    constexpr DWORD kClips[] = {0, WS_CLIPCHILDREN};
    Panes panes(stage, dice.Of(kClips));
    const DWORD style = dice.OneIn(2) ? WS_CLIPSIBLINGS : 0;
    for (int i = 0; i < 4; ++i) panes.Add(style | dice.Of(kClips));
    panes.Add(style, 0, 20, panes.Any());
    Pump();
    for (int i = 0; i < 9; ++i) {
        for (HWND hWnd : panes.Children()) Scribble(stage, hWnd);
        step(stage, panes.Any());
        if (dice.OneIn(calm)) Pump();
    }
    Pump();
    panes.Take();
}

void MoveAlone(Stage& stage, HWND hWnd) { Move(stage.dice, hWnd, 0, TRUE); }
void MoveQuietly(Stage& stage, HWND hWnd) { Move(stage.dice, hWnd, 9, FALSE); }
void Resize(Stage& stage, HWND hWnd) { Move(stage.dice, hWnd, 15, TRUE); }

void Restack(Stage& stage, HWND hWnd) {
    constexpr UINT kInPlace = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
    switch (stage.dice.Between(0, 2)) {
        case 0:
            SetWindowPos(hWnd, HWND_TOP, 0, 0, 0, 0, kInPlace);
            break;
        case 1:
            SetWindowPos(hWnd, HWND_BOTTOM, 0, 0, 0, 0, kInPlace);
            break;
        default:
            ShowWindow(hWnd, SW_HIDE);
            ShowWindow(hWnd, SW_SHOWNA);
    }
}

void Moved(Stage& stage) { Change(stage, MoveAlone, 1); }
void MovedInHaste(Stage& stage) { Change(stage, MoveAlone, 4); }
void MovedQuietly(Stage& stage) { Change(stage, MoveQuietly, 2); }
void Resized(Stage& stage) { Change(stage, Resize, 1); }
void ResizedInHaste(Stage& stage) { Change(stage, Resize, 4); }
void Restacked(Stage& stage) { Change(stage, Restack, 2); }

void Framed(Stage& stage) {
    constexpr DWORD kFrames[] = {0,
                                 WS_BORDER,
                                 WS_DLGFRAME,
                                 WS_THICKFRAME,
                                 WS_BORDER | WS_THICKFRAME,
                                 WS_DLGFRAME | WS_THICKFRAME,
                                 WS_CAPTION,
                                 WS_CAPTION | WS_THICKFRAME};
    constexpr DWORD kEdges[] = {0, WS_EX_DLGMODALFRAME, WS_EX_STATICEDGE, WS_EX_WINDOWEDGE,
                                WS_EX_DLGMODALFRAME | WS_EX_STATICEDGE};
    Panes panes(stage, 0);
    for (int i = 0; i < 6; ++i) {
        const DWORD sunken = stage.dice.OneIn(2) ? WS_EX_CLIENTEDGE : 0, edge = stage.dice.Of(kEdges);
        panes.Add(stage.dice.Of(kFrames) | WS_CLIPSIBLINGS, edge | sunken, 3);
    }
    Pump();
    panes.Take();
}

void Band(HWND hWnd, const RECT& rc, COLORREF colour) {
    const HDC hdc = GetDC(hWnd);
    const HPEN hPen = CreatePen(PS_SOLID, 1, colour);
    const HGDIOBJ hOldPen = SelectObject(hdc, hPen),
                  hOldBrush = SelectObject(hdc, GetStockObject(NULL_BRUSH));
    SetROP2(hdc, R2_XORPEN);
    Rectangle(hdc, rc.left, rc.top, rc.right, rc.bottom);
    SelectObject(hdc, hOldBrush);
    SelectObject(hdc, hOldPen);
    DeleteObject(hPen);
    ReleaseDC(hWnd, hdc);
}

/// A band follows the mouse: drawn, removed by drawing it again, drawn anew; the last may stay.
void XorBand(Stage& stage) {
    Dice& dice = stage.dice;
    Panes panes(stage, dice.OneIn(2) ? WS_CLIPCHILDREN : 0);
    for (int i = 0; i < 4; ++i) panes.Add(dice.OneIn(2) ? WS_CLIPSIBLINGS : 0);
    Pump();
    for (HWND hWnd : panes.Children()) Scribble(stage, hWnd);
    for (int i = 0; i < 12; ++i) {
        const HWND hWnd = dice.OneIn(3) ? panes.Popup() : panes.Any();
        const COLORREF colour = dice.Colour();
        RECT rc = stage.Box(1, 90, 70);
        for (int k = dice.Between(0, 4); k >= 0; --k) {
            Band(hWnd, rc, colour);
            if (k > 0 || dice.OneIn(2)) Band(hWnd, rc, colour);
            rc.right += dice.Between(0, 9), rc.bottom += dice.Between(0, 9);
        }
    }
    panes.Take();
}

constexpr PictureKind kKinds[] = {
    {"windows_moved", kSize, Moved},
    {"windows_moved_in_haste", kSize, MovedInHaste},
    {"windows_moved_quietly", kSize, MovedQuietly},
    {"windows_resized", kSize, Resized},
    {"windows_resized_in_haste", kSize, ResizedInHaste},
    {"windows_restacked", kSize, Restacked},
    {"windows_framed", kSize, Framed},
    {"windows_xor_band", kSize, XorBand},
};

}  // namespace

std::span<const PictureKind> WindowKinds() { return kKinds; }

}  // namespace scenes
