#include "scenes/region_logs.h"

#include <windows.h>

#include <climits>

#include "scenes/region_log_tools.h"

namespace scenes {

namespace {

constexpr int kFar[] = {
    INT_MIN, INT_MIN + 1, -1 << 28, -(1 << 27) - 1, -1 << 27, -70000,        -32769,      -1,     0, 1,
    32768,   70000,       1 << 26,  (1 << 27) - 1,  1 << 27,  (1 << 27) + 1, INT_MAX - 1, INT_MAX};

/// All pixels of the region as one number.
void SayPixels(LogLines& lines, HRGN region) {
    unsigned long long sum = 0;
    for (int y = -25; y < 45; ++y)
        for (int x = -25; x < 45; ++x) sum = sum * 31 + static_cast<unsigned>(PtInRegion(region, x, y) != 0);
    lines.Say("pixels", static_cast<long long>(sum));
}

RECT FarRect(Dice& dice) {
    const int left = dice.Of(kFar), top = dice.Of(kFar), right = dice.Of(kFar);
    return {left, top, right, dice.Of(kFar)};
}

}  // namespace

void RegionAnswers(std::string& log, Dice& dice) {
    LogLines lines(log);
    Regions regions;
    const HRGN result = regions.Keep(CreateRectRgn(0, 0, 0, 0));
    SayBox(lines, result);
    // The rows of an ellipse stay single rectangles until it is combined, so that it does not equal its own
    // copy.
    const bool round = dice.OneIn(2);
    for (int i = 0; i < 20; ++i) {
        const HRGN first = dice.OneIn(4) ? result : regions.Any(dice, round),
                   second = regions.Any(dice, round);
        lines.Say("combine", CombineRgn(result, first, second, dice.Between(RGN_AND, RGN_COPY)));
        SayBox(lines, result);
        SayPixels(lines, result);
        RECT rc = AnyRect(dice, 40);
        // Lines without area depend on how a system cuts the region into rectangles.
        if (rc.left == rc.right) ++rc.right;
        if (rc.top == rc.bottom) ++rc.bottom;
        lines.Say("touches", RectInRegion(result, &rc) != 0);
        if (!round) lines.Say("same", EqualRgn(result, first) != 0);
        const int dx = dice.Between(-9, 9);
        lines.Say("moved", OffsetRgn(result, dx, dice.Between(-9, 9)));
        SayBox(lines, result);
    }
}

void OddRegionAnswers(std::string& log, Dice& dice) {
    LogLines lines(log);
    Regions regions;
    const HRGN dead = CreateRectRgn(0, 0, 1, 1);
    DeleteObject(dead);
    const HRGN handles[] = {nullptr,
                            dead,
                            static_cast<HRGN>(GetStockObject(BLACK_PEN)),
                            regions.Keep(CreateRectRgn(1, 2, 3, 4)),
                            regions.Keep(CreateRectRgn(2, 2, 9, 9)),
                            regions.Keep(CreateRectRgn(-5, 3, 30, 4))};
    for (int i = 0; i < 25; ++i) {
        const HRGN target = dice.Of(handles), first = dice.Of(handles), second = dice.Of(handles);
        lines.Say("combine", CombineRgn(target, first, second, dice.Between(RGN_AND - 1, RGN_COPY + 1)));
        SayBox(lines, target);
        lines.Say("same", EqualRgn(first, second) != 0);
        lines.Say("inside", PtInRegion(first, 2, 3) != 0);
        const RECT rc = FarRect(dice);
        lines.Say("touches", RectInRegion(second, &rc) != 0);
        const HRGN huge = regions.Keep(CreateRectRgnIndirect(&rc));
        lines.Say("made", huge != nullptr);
        SayBox(lines, huge);
        // Nothing is pushed over the ends of the coordinates: the result of that is of no use on either side.
        const RECT modest = AnyRect(dice, 1 << 20);
        const HRGN moved = regions.Keep(CreateRectRgnIndirect(&modest));
        const int dx = dice.Between(-(1 << 29), 1 << 29);
        lines.Say("moved", OffsetRgn(moved, dx, dice.Between(-(1 << 29), 1 << 29)));
        SayBox(lines, moved);
        const RECT other = FarRect(dice);
        lines.Say("set", SetRectRgn(target, other.left, other.top, other.right, other.bottom) != 0);
        SayBox(lines, target);
    }
    POINT points[] = {{0, 0}, {5, 0}, {0, 5}};
    for (int count = -1; count <= 3; ++count) {
        const HRGN made = regions.Keep(CreatePolygonRgn(points, count, dice.Between(0, 3)));
        lines.Say("polygon", made != nullptr);
        SayBox(lines, made);
    }
}

}  // namespace scenes
