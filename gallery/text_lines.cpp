#include "text_lines.h"

namespace gallery {

namespace {
constexpr COLORREF kBackground = RGB(0, 0, 0);
constexpr COLORREF kColour = RGB(192, 192, 192);
constexpr char kFace[] = "楷体";
constexpr int kFontHeight = 14;
}  // namespace

void DrawLines(CDC& dc, const CRect& rc, const std::vector<std::string>& lines) {
    dc.FillSolidRect(&rc, kBackground);
    CFont font;
    font.CreateFont(kFontHeight, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, GB2312_CHARSET, OUT_DEFAULT_PRECIS,
                    CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, kFace);
    CFont* const pOldFont = dc.SelectObject(&font);
    dc.SetTextColor(kColour);
    dc.SetBkMode(TRANSPARENT);
    CRect rcLine(rc.left + kLineMargin, rc.top + kLineMargin, rc.right - kLineMargin, 0);
    for (const std::string& line : lines) {
        if (rcLine.top >= rc.bottom) break;
        rcLine.bottom = rcLine.top + kLineHeight;
        dc.DrawText(line.c_str(), static_cast<int>(line.size()), &rcLine,
                    DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
        rcLine.top = rcLine.bottom;
    }
    dc.SelectObject(pOldFont);
}

}  // namespace gallery
