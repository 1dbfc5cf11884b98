/// A raster to draw on, as large as a scene asks for, and the dice that decide what.
#pragma once

#include <windows.h>

#include <tavlon/picture.h>

#include <vector>

#include "scenes/dice.h"

namespace scenes {

class Stage {
public:
    Stage(SIZE size, unsigned seed);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    HDC hdc = nullptr;  ///< A context compatible with the screen, as it is when new but for its bitmap.
    const int cx, cy;
    Dice dice;

    /// A point on the raster or a little beside it.
    POINT Point(int margin = 20);
    /// An ordered rectangle with sides from `least` to the given most, anywhere Point() may be.
    RECT Box(int least, int widest, int highest);
    void SelectPen(int style, int width, COLORREF colour);
    void SelectBrush(COLORREF colour);
    void SelectNoPen();
    void SelectNoBrush();
    /// Any colour, or none at all.
    void SelectAnyBrush();
    /// Any of the sixteen raster operations.
    void SelectAnyOperation();
    /// Fills a region with any colour.
    void Fill(HRGN region);
    void SelectFont(const char* face, int height, int weight = FW_NORMAL);
    /// Keeps an object until the stage goes, and gives it back.
    template <class Object>
    Object Keep(Object object) {
        m_owned.push_back(object);
        return object;
    }
    /// Covers everything with rectangles of many colours, so that what a raster operation mixes is seen.
    void Texture();

    Picture Pixels();

private:
    HBITMAP m_bitmap = nullptr;
    std::vector<HGDIOBJ> m_owned;
};

/// A memory context with a bitmap of its own, to copy from or to.
class Sheet {
public:
    enum Depth { kMono, kColour };
    Sheet(Stage& stage, int width, int height, Depth depth = kColour);
    ~Sheet();
    Sheet(const Sheet&) = delete;
    Sheet& operator=(const Sheet&) = delete;

    HDC hdc = nullptr;
    HBITMAP bitmap = nullptr;
    const int cx, cy;
    /// Covers it with rectangles of many colours (black and white on a monochrome sheet).
    void Texture(Dice& dice);

private:
    HGDIOBJ m_old = nullptr;
};

}  // namespace scenes
