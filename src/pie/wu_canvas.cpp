#include "wu_canvas.h"

WuCanvas::WuCanvas(CDC& dc, const CRect& rcBox) : m_dc(dc), m_rcBox(rcBox) {
    CRect rcClip(0, 0, 0, 0);
    dc.GetClipBox(&rcClip);
    if (!m_rcBox.IntersectRect(&rcBox, &rcClip)) return;
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = m_rcBox.Width();
    info.bmiHeader.biHeight = -m_rcBox.Height();  // the first row is the upper one
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* pPixels = nullptr;
    const HBITMAP hBitmap = ::CreateDIBSection(dc, &info, DIB_RGB_COLORS, &pPixels, nullptr, 0);
    if (hBitmap == nullptr) return;
    m_bitmap.Attach(hBitmap);
    if (!m_dcPixels.CreateCompatibleDC(&dc) || m_dcPixels.SelectObject(&m_bitmap) == nullptr) return;
    m_dcPixels.BitBlt(0, 0, m_rcBox.Width(), m_rcBox.Height(), &dc, m_rcBox.left, m_rcBox.top, SRCCOPY);
    ::GdiFlush();  // before the memory is touched
    m_pPixels = static_cast<std::uint32_t*>(pPixels);
}

WuCanvas::~WuCanvas() {
    if (m_pPixels == nullptr) return;
    m_dc.BitBlt(m_rcBox.left, m_rcBox.top, m_rcBox.Width(), m_rcBox.Height(), &m_dcPixels, 0, 0, SRCCOPY);
}

bool WuCanvas::Covers(CRect rc) const {
    rc.NormalizeRect();
    return rc.IntersectRect(CRect(rc), &m_rcBox) != FALSE;
}

std::uint32_t* WuCanvas::At(int x, int y) {
    if (m_pPixels == nullptr || !m_rcBox.PtInRect(CPoint(x, y))) return nullptr;
    return m_pPixels + static_cast<std::size_t>(y - m_rcBox.top) * m_rcBox.Width() + (x - m_rcBox.left);
}

namespace {
std::uint32_t MixChannel(std::uint32_t nOld, std::uint32_t nNew, float fWeight) {
    const int nMixed =
        static_cast<int>(nOld * (1.0f - fWeight)) + static_cast<int>(static_cast<float>(nNew) * fWeight);
    return static_cast<std::uint8_t>(nMixed);
}
}  // namespace

void WuCanvas::Set(int x, int y, COLORREF clr) {
    if (std::uint32_t* const pPixel = At(x, y))
        *pPixel = static_cast<std::uint32_t>(GetRValue(clr)) << 16 | GetGValue(clr) << 8 | GetBValue(clr);
}

void WuCanvas::Blend(int x, int y, COLORREF clr, float fWeight) {
    std::uint32_t* const pPixel = At(x, y);
    if (pPixel == nullptr) return;
    *pPixel = MixChannel(*pPixel >> 16 & 0xFF, GetRValue(clr), fWeight) << 16 |
              MixChannel(*pPixel >> 8 & 0xFF, GetGValue(clr), fWeight) << 8 |
              MixChannel(*pPixel & 0xFF, GetBValue(clr), fWeight);
}
