/// Cases of shapes drawn on a small picture, compared as text.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "gdi/picture.h"

namespace gdi_test {

struct Shape {
    const char* name;
    void (*draw)(HDC);
    const char* want;
};

inline void Line(HDC hdc, int x1, int y1, int x2, int y2) {
    MoveToEx(hdc, x1, y1, nullptr);
    LineTo(hdc, x2, y2);
}

template <std::size_t N>
void Check(const Shape (&shapes)[N]) {
    for (const Shape& shape : shapes) {
        SCOPED_TRACE(shape.name);
        Picture picture(12, 8);
        Selected brush(picture.Dc(), CreateSolidBrush(RGB(255, 0, 0)));
        shape.draw(picture.Dc());
        EXPECT_EQ(std::string("\n") + shape.want, "\n" + picture.Text());
    }
}

constexpr POINT kStar[] = {{5, 0}, {9, 7}, {0, 2}, {11, 2}, {2, 7}};

}  // namespace gdi_test
