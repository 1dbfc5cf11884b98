#include <gtest/gtest.h>

#include <string>

#include "text_canvas.h"

namespace {

bool Same(const RECT& a, const RECT& b) { return std::memcmp(&a, &b, sizeof a) == 0; }

TEST(TextOut, TransparentTouchesOnlyInk) {
    TextCanvas canvas(kFaces[0], 14);
    SetTextColor(canvas.hdc, RGB(255, 0, 0));
    TextOutA(canvas.hdc, 20, 20, "价", 2);
    EXPECT_FALSE(canvas.Blank());
    for (int y = 0; y < TextCanvas::kHeight; ++y)
        for (int x = 0; x < TextCanvas::kWidth; ++x) {
            const auto clr = canvas.Pixel(x, y);
            EXPECT_TRUE(clr == 0xffffff || clr == 0xff0000) << x << "," << y;
        }
}

TEST(TextOut, OutsideTheClipDrawsNothing) {
    TextCanvas canvas(kFaces[0], 14);
    IntersectClipRect(canvas.hdc, 0, 0, 30, 30);
    TextOutA(canvas.hdc, 100, 60, "Hello", 5);
    TextOutA(canvas.hdc, 2000000000, 0, "Hello", 5);
    TextOutA(canvas.hdc, 0, -2000000000, "Hello", 5);
    EXPECT_TRUE(canvas.Blank());
    TextOutA(canvas.hdc, 20, 10, "Hello Hello", 11);
    EXPECT_FALSE(canvas.Blank());
    EXPECT_LE(canvas.Ink().right, 30);
}

TEST(TextOut, GivenAdvances) {
    TextCanvas canvas(kFaces[0], 14);
    SetBkMode(canvas.hdc, OPAQUE);
    SetBkColor(canvas.hdc, RGB(0, 255, 0));
    const INT dx[] = {10, 4, 8, 20};  // one a byte: the Chinese character moves by two of them
    ExtTextOutA(canvas.hdc, 5, 5, 0, nullptr, "a价b", 4, dx);
    EXPECT_TRUE(Same({5, 5, 47, 20}, canvas.Ink()));
}

TEST(TextOut, InkStaysInItsCell) {
    // A frame's corner that the face draws taller than its cell.
    const TextCanvas canvas(kFaces[1], 24);
    TextOutA(canvas.hdc, 20, 20, "\xa9\xba", 2);
    EXPECT_EQ(20, canvas.Ink().top);
}

TEST(TextOut, PaintsTheSameTwice) {
    TextCanvas canvas(kFaces[0], 13, FW_BOLD);
    TextOutA(canvas.hdc, 3, 3, "风险12%", 7);
    const std::string first = canvas.Picture();
    canvas.Clear();
    TextOutA(canvas.hdc, 3, 3, "风险12%", 7);
    EXPECT_EQ(first, canvas.Picture());
}

}  // namespace
