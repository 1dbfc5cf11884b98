#include "mem_dc.h"

CMemDC::CMemDC(CDC* pDC, const CRect* pRect)
    : m_targetDC(pDC), m_area(0, 0, 0, 0), m_offscreen(!pDC->IsPrinting()) {
    if (pRect != nullptr) {
        m_area = *pRect;
    } else {
        pDC->GetClipBox(&m_area);
    }
    if (m_offscreen) {
        CreateCompatibleDC(pDC);
        m_surfaceBitmap.CreateCompatibleBitmap(pDC, m_area.Width(), m_area.Height());
        m_previousBitmap = SelectObject(&m_surfaceBitmap);
    } else {
        m_hDC = pDC->m_hDC;
        m_hAttribDC = pDC->m_hAttribDC;
        m_bPrinting = pDC->m_bPrinting;
    }
}

CMemDC::~CMemDC() {
    if (!m_offscreen) {
        m_hDC = m_hAttribDC = nullptr;  // the target's, not ours to delete
        return;
    }
    if (m_previousBitmap == nullptr) return;  // there was no surface to draw on
    m_targetDC->BitBlt(m_area.left, m_area.top, m_area.Width(), m_area.Height(), this, m_area.left,
                       m_area.top, SRCCOPY);
    SelectObject(m_previousBitmap);
}

void CMemDC::ClipTo(CRgn& rgn) {
    if (m_offscreen) SelectClipRgn(&rgn);
}
