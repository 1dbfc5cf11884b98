#include "kept_picture.h"

bool KeptPicture::MakeRoom(CDC& dcSurface, CSize size) {
    m_dc.DeleteDC();  // before its bitmap, which cannot be deleted while it is selected
    m_bitmap.DeleteObject();
    m_bCurrent = false;
    m_size = size;
    if (size.cx > 0 && size.cy > 0 && m_dc.CreateCompatibleDC(&dcSurface) &&
        m_bitmap.CreateCompatibleBitmap(&dcSurface, size.cx, size.cy) &&
        m_dc.SelectObject(&m_bitmap) != nullptr)
        return true;
    m_dc.DeleteDC();
    m_bitmap.DeleteObject();
    return false;
}
