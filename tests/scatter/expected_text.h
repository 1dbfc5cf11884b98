// Pictures of texts as a chart should show them, for comparison with what it does show.
#pragma once

#include <gtest/gtest.h>

#include "radar_window.h"

constexpr UINT k_nStripFormat = DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS;
constexpr UINT k_nAxisTitleFormat = DT_RIGHT | DT_SINGLELINE | DT_END_ELLIPSIS;

struct TextLook {
    int nHeight = 12;
    COLORREF clr = RGB(192, 192, 192);
    bool bBold = false;
    const char* pszFace = "HelveticaNeueLT Pro 55 Roman";
};

/// A black surface with the texts that are drawn on it.
class TextBoard {
public:
    TextBoard(int cx, int cy) : m_cx(cx), m_cy(cy) {
        CClientDC dcScreen(nullptr);
        m_dc.CreateCompatibleDC(&dcScreen);
        m_bitmap.CreateCompatibleBitmap(&dcScreen, cx, cy);
        m_pOld = m_dc.SelectObject(&m_bitmap);
        m_dc.FillSolidRect(CRect(0, 0, cx, cy), RGB(0, 0, 0));
        m_dc.SetBkMode(TRANSPARENT);
    }
    ~TextBoard() { m_dc.SelectObject(m_pOld); }

    void Put(const char* pszText, CRect rc, UINT nFormat, const TextLook& look = {}) {
        With(look, [&] { m_dc.DrawText(pszText, -1, &rc, nFormat); });
    }
    /// Ending at x; y is the top.
    void PutLeftOf(int x, int y, const char* pszText, const TextLook& look) {
        With(look, [&] { m_dc.TextOut(x - m_dc.GetTextExtent(pszText).cx, y, pszText); });
    }
    int LineHeight(const TextLook& look) {
        int nHeight = 0;
        With(look, [&] { nHeight = m_dc.GetTextExtent("A").cy; });
        return nHeight;
    }
    Shot Seen() { return ShotOf(m_dc, m_cx, m_cy); }

private:
    template <class Draw>
    void With(const TextLook& look, Draw draw) {
        CFont font;
        font.CreateFont(look.nHeight, 0, 0, 0, look.bBold ? FW_BOLD : FW_NORMAL, FALSE, FALSE, FALSE,
                        DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, PROOF_QUALITY,
                        DEFAULT_PITCH, look.pszFace);
        CFont* pOld = m_dc.SelectObject(&font);
        m_dc.SetTextColor(look.clr);
        draw();
        m_dc.SelectObject(pOld);
    }

    int m_cx, m_cy;
    CDC m_dc;
    CBitmap m_bitmap;
    CBitmap* m_pOld;
};

inline const TextLook k_numbers{.clr = RGB(192, 192, 0), .pszFace = "楷体"};

/// Nine numbers under the x axis, from the left.
template <class Texts>
void PutBottomNumbers(TextBoard& board, const CRect& rcShaft, const Texts& texts) {
    const int nMargin = rcShaft.Width() / 10, nWidth = rcShaft.Width() - 2 * nMargin, nCell = nWidth / 8;
    const int nTop = rcShaft.bottom + 3, nBottom = nTop + board.LineHeight(k_numbers);
    for (int i = 0; i < 9; ++i) {
        const int nLeft = rcShaft.left + nMargin + i * nWidth / 8 - nCell / 2;
        board.Put(&texts[i][0], CRect(nLeft, nTop, nLeft + nCell - 3, nBottom),
                  DT_CENTER | DT_SINGLELINE | DT_END_ELLIPSIS, k_numbers);
    }
}

/// Nine numbers beside the y axis, from the bottom.
template <class Texts>
void PutLeftNumbers(TextBoard& board, const CRect& rcShaft, const Texts& texts) {
    const int nMargin = rcShaft.Height() / 10, nHeight = rcShaft.Height() - 2 * nMargin;
    for (int i = 0; i < 9; ++i)
        board.PutLeftOf(rcShaft.left - 6, rcShaft.top + nMargin + (8 - i) * nHeight / 8 - 7, &texts[i][0],
                        k_numbers);
}

/// Nothing but texts in the rectangle: the same pixels as on the board.
inline void ExpectTexts(const Shot& shot, TextBoard& board, const CRect& rc) {
    const CPoint pt = shot.FirstDifference(board.Seen(), rc);
    EXPECT_EQ(CPoint(-1, -1), pt) << "at " << pt.x << "," << pt.y;
}
