// A tab strip's tabs and look, its picture drawn slowly from its description, and the strip in a window.
#pragma once

#include <foundation/toolkit.h>
#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "foundation/canvas.h"
#include "scatter/radar_window.h"
#include "wrappers/host.h"

struct TabModel {
    enum { Back, Font, ActiveBack, ActiveFont, NormalBack, Colours };

    tagTabCtrlStyle style = TAB_HORZ_CHAMFER;
    CSize size{100, 40};
    std::vector<std::string> captions;  ///< Of tabs with the ids 10, 11, 12 ...
    int nActive = -1, nFontSize = 12;
    bool bBold = true;
    COLORREF clr[Colours] = {0, RGB(186, 187, 182), RGB(1, 153, 255), RGB(182, 0, 0), 0};

    void ApplyTo(CProxy_TabCtrl& tabs) const {
        tabs.ClearContent();
        for (std::size_t i = 0; i < captions.size(); ++i) {
            tagTabItemData item{10 + static_cast<int>(i), ""};
            captions[i].copy(item.szText, sizeof item.szText);  // may fill it
            EXPECT_EQ(static_cast<int>(i), tabs.AddItem(item));
        }
        tabs.SelectTabById(10 + nActive);
        tabs.SetBackColor(clr[Back]), tabs.SetFontColor(clr[Font]);
        tabs.SetActiveTabBackColor(clr[ActiveBack]), tabs.SetActiveTabFontColor(clr[ActiveFont]);
        tabs.SetNormalTabBackColor(clr[NormalBack]);
        tabs.SetFontSize(nFontSize), tabs.SetFontBold(bBold);
    }
    /// Neither side is 0.
    Shot Picture() const {
        Canvas canvas(size.cx, size.cy, clr[Back]);
        for (int i = 0; i < Count(); ++i) PaintTab(canvas.dc, i);
        return ShotOf(canvas.dc, size.cx, size.cy);
    }

private:
    static constexpr COLORREF k_clrFrame = RGB(182, 0, 0);

    int Count() const { return static_cast<int>(captions.size()); }
    void PaintTab(CDC& dc, int i) const {
        const bool bStacked = style == TAB_VERT_CHAMFER || style == TAB_VERT_NONE, bLast = i == Count() - 1;
        const int w = size.cx / Count(), h = size.cy / Count();
        CRect rc = bStacked ? CRect(0, i * h, size.cx, i * h + h) : CRect(i * w, 0, i * w + w, size.cy);
        const int l = rc.left, t = rc.top, r = rc.right, b = rc.bottom;
        const COLORREF clrFill = clr[i == nActive ? ActiveBack : NormalBack];
        if (style == TAB_HORZ_BOX) {
            if (bLast) rc.right = size.cx - 1;
            dc.FillSolidRect(rc, clrFill);
            Across(dc, rc, i);
            DrawNoFillRect(&dc, rc, 1, k_clrFrame);
        } else if (style == TAB_VERT_CHAMFER) {
            const int xl = r - 10 > 5 ? l + 5 : l, k = b - 10 > 5 ? 5 : 0, yEnd = bLast ? size.cy - 1 : b;
            Shape(dc, {{r - 2, t}, {xl, t}, {l, t + k}, {l, b - k}, {xl, yEnd}, {r - 2, yEnd}}, clrFill,
                  [&] { Down(dc, rc, i); });
        } else if (style == TAB_VERT_NONE) {  // a list; the active one has a mark
            if (i == nActive) dc.FillSolidRect(CRect(0, t, std::min(3, r), b), clrFill);
            rc.left = std::min(3, r);
            rc.Width() >= 4 * nFontSize ? Across(dc, rc, i) : Down(dc, rc, i);
        } else {
            const int y = b - 10 > 5 ? b - 5 : b - 1, nCut = w - 10 > 5 ? 5 : 0,
                      xEnd = bLast ? size.cx - 1 : r;
            Shape(dc, {{l, t}, {l, y}, {l + nCut, b - 1}, {r - nCut, b - 1}, {xEnd, y}, {xEnd, t}}, clrFill,
                  [&] { Across(dc, rc, i); });
        }
    }
    static void Shape(CDC& dc, const std::vector<POINT>& points, COLORREF clrFill,
                      const std::function<void()>& caption) {
        CRgn rgn;
        CBrush brush(clrFill);
        if (rgn.CreatePolygonRgn(points.data(), 6, ALTERNATE)) dc.FillRgn(&rgn, &brush);
        caption();
        for (std::size_t i = 0; i < 6; ++i) {
            const POINT from = points[i], to = points[(i + 1) % 6];
            DrawSolidLine(&dc, 1, k_clrFrame, from.x, from.y, to.x, to.y);
        }
    }
    void Write(CDC& dc, const std::string& text, const CRect& rc, int i, bool bInBold) const {
        DrawTextInRect(&dc, text.substr(0, 254).c_str(), rc, nFontSize, clr[i == nActive ? ActiveFont : Font],
                       bInBold, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
    }
    void Across(CDC& dc, const CRect& rc, int i) const { Write(dc, captions[i], rc, i, bBold); }
    /// One character a row, always bold; the last row tells that there are more.
    void Down(CDC& dc, const CRect& rc, int i) const {
        CFont font;
        CreateTitleFont(font, 12, TRUE);
        CFont* const pOld = dc.SelectObject(&font);
        const int nPitch = dc.GetTextExtent("我").cy;
        dc.SelectObject(pOld);
        std::vector<std::string> rows;
        for (std::size_t n = 0; n < captions[i].size(); n += rows.back().size())
            rows.push_back(captions[i].substr(n, static_cast<unsigned char>(captions[i][n]) > 0x80 ? 2 : 1));
        const std::size_t nRoom = static_cast<std::size_t>(rc.Height() / nPitch);
        int y = rc.top;
        if (rows.size() > nRoom)
            rows.resize(nRoom), std::fill(rows.begin() + (nRoom > 1 ? nRoom - 1 : 0), rows.end(), ":");
        else
            y += (rc.Height() - static_cast<int>(rows.size()) * nPitch) / 2;
        for (const std::string& row : rows) {
            Write(dc, row, CRect(rc.left, y, rc.right, y + nPitch), i, true);
            y += nPitch;
        }
    }
};

/// A host that hears the commands of its controls.
class CommandHost : public HostWindow {
public:
    std::vector<std::pair<WPARAM, LPARAM>> heard;
    std::function<void()> onCommand;

protected:
    LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override {
        if (nMessage != WM_COMMAND) return HostWindow::WindowProc(nMessage, wParam, lParam);
        heard.emplace_back(wParam, lParam);
        if (onCommand) onCommand();
        return 0;
    }
};

struct StripWindow {
    explicit StripWindow(const TabModel& model) {
        host.SetWindowPos(nullptr, 0, 0, 1600, 400, SWP_NOMOVE | SWP_NOZORDER);
        EXPECT_TRUE(tabs->Create(&host, CRect({0, 0}, model.size), k_nControlId, model.style));
        hWnd = ControlIn(host);
        model.ApplyTo(*tabs);
    }
    void Click(int x, int y) { ::SendMessage(hWnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y)); }
    void ExpectShows(const TabModel& model) {
        ::UpdateWindow(hWnd);
        CClientDC dc(CWnd::FromHandle(hWnd));
        EXPECT_EQ(CPoint(-1, -1), ShotOf(dc, model.size.cx, model.size.cy).FirstDifference(model.Picture()));
    }

    CommandHost host;
    std::optional<CProxy_TabCtrl> tabs{std::in_place};
    HWND hWnd;
};
