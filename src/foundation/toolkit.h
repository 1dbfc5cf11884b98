#pragma once

/// Drawing and number helpers that every chart uses. The drawing functions leave what is selected into the
/// device context as they found it, except SelectKaiTiFont and DrawValueScale. Coordinates are logical units;
/// a null device context draws nothing.

#include <tavlon/framework.h>

#include <string>

/// Writes the value in units of 10^4, 10^8 or 10^12 with as many of two, one or no decimals as fit into
/// maxLen bytes (no decimals even when that is longer). Returns the buffer; null, leaving it untouched, for
/// values below 10000, from 10^16 up, and NaN.
/// @param buffer holds at least 13 bytes whatever maxLen is.
char* FormatBigNumber(char* buffer, int maxLen, double value);

/// The value with that many decimals, which are held to 0 to 100. NaN gives "nan".
std::string FormatFixed(double dValue, int nDecimals);

/// The value of label nStep on a scale of nSteps equal steps from dFirst (label 0) to dLast (label nSteps).
/// Between finite ends it is finite, however far apart they are. nSteps is not 0.
double ScaleStep(double dFirst, double dLast, int nStep, int nSteps);

/// The text of a scale label: with that many decimals, from 1000000 on in big units of at most 8 bytes, and
/// empty where FormatBigNumber gives null.
std::string ScaleText(double dValue, int nDecimals);

/// Selects the library's shared label font at that cell height and returns the font before it, which the
/// caller selects back before the next call: the shared font is made anew each time.
CFont* SelectKaiTiFont(CDC* pDC, int height);

/// Frees the shared label font when the library is unloaded.
void ReleaseKaiTiFont();

/// A solid line; its end point is not painted.
void DrawSolidLine(CDC* pDC, int width, COLORREF colour, int x1, int y1, int x2, int y2);

/// Three-unit dashes with three-unit gaps, for horizontal and vertical lines toward larger coordinates;
/// nothing when the first point is at or beyond the second.
void DrawDashLine(CDC* pDC, int width, COLORREF colour, int x1, int y1, int x2, int y2);

/// divisions + 1 labels at x = left + 1, minValue at the bottom; from 1000000 on in big units. The first and
/// the last label can be left out. `right` is not used. Leaves the text colour set.
void DrawValueScale(CDC* pDC, COLORREF textColour, int divisions, int left, int top, int right, int bottom,
                    double minValue, double maxValue, BOOL drawFirst, BOOL drawLast, int decimals);

/// divisions + 1 labels in the current font, each ending one pixel left of x1, firstValue at y2, lastValue at
/// y1. The first and the last label can be left out. `x2` is not used.
void DrawAxisNumberLeft(CDC* pDC, COLORREF textColour, int divisions, int x1, int y1, int x2, int y2,
                        double firstValue, double lastValue, int drawFirst, int drawLast, int decimals);

/// Makes the title face in that cell height, in pixels when nothing is scaled.
BOOL CreateTitleFont(CFont& font, int height, int bold);

/// Text in the title face on a transparent background; `format` are DrawText flags. A null text draws
/// nothing.
void DrawTextInRect(CDC* pDC, const char* text, CRect rect, int height, COLORREF colour, int bold,
                    UINT format);

/// Outline of the rectangle, one pixel wide whatever `width` says; the inside is left as it is.
void DrawNoFillRect(CDC* pDC, CRect rect, int width, COLORREF colour);

/// Draws the bitmap with its top left corner at (x, y), leaving out every pixel of the transparent colour.
/// The bitmap keeps its contents. Draws nothing while it is selected into a device context.
void DrawTransparentBitmap(HDC hdc, int x, int y, HBITMAP bitmap, COLORREF transparent);

/// Square root worked out in double precision and rounded to float.
float FloatSqrt(float x);
