#include "caption_paint.h"

#include "foundation/select_scope.h"
#include "foundation/toolkit.h"
#include "my_string.h"
#include "tab_layout.h"

namespace {
constexpr UINT k_nFormat = DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS;
constexpr int k_nRowFontHeight = 12;
constexpr char k_szCutSign[] = ":";
}  // namespace

void WriteAcross(CDC& dc, const CRect& rc, const Caption& caption) {
    DrawTextInRect(&dc, caption.pszText, rc, caption.nHeight, caption.clr, caption.bBold, k_nFormat);
}

void WriteDown(CDC& dc, const CRect& rc, const Caption& caption, int nPitch) {
    CMyString strText(caption.pszText);
    const CaptionColumn column = LayOutColumn(rc.Height(), nPitch, strText.GetLength());
    for (int i = 0; i < column.nRows; ++i) {
        const char* const pszRow = i < column.nShown ? strText.GetAt(i) : k_szCutSign;
        DrawTextInRect(&dc, pszRow, column.Row(rc, i), caption.nHeight, caption.clr, TRUE, k_nFormat);
    }
}

int RowPitch(CDC& dc) {
    CFont font;
    if (!font.CreateFont(k_nRowFontHeight, 0, 0, 0, FW_BOLD, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                         OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, PROOF_QUALITY, DEFAULT_PITCH,
                         "HelveticaNeueLT Pro 55 Roman"))
        return k_nRowFontHeight;
    const SelectScope scope(dc, font);
    return dc.GetTextExtent("我").cy;
}
