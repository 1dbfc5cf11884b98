#include "loading_note.h"

#include <filesystem>
#include <utility>

#include "text_lines.h"

namespace gallery {

namespace {
/// The thread is busy and takes no messages; where the system shows what was drawn only when they are looked
/// at, this does it. It asks for one that nobody sends and takes none.
void ShowNow(CWnd& wnd) {
    constexpr UINT kNobodys = 0xBFFF;
    MSG msg;
    ::PeekMessage(&msg, wnd.m_hWnd, kNobodys, kNobodys, PM_NOREMOVE);
}
}  // namespace

LoadingNote::LoadingNote(CWnd& wnd, const CRect& rc, LoadProgress::Clock clock)
    : m_wnd(wnd),
      m_rc(rc),
      m_progress([this](const std::string& strFile, int nPercent) { Show(strFile, nPercent); },
                 std::move(clock)) {}

LoadingNote::~LoadingNote() {
    if (m_bShown) m_wnd.RedrawWindow(&m_rc, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

void LoadingNote::Show(const std::string& strFile, int nPercent) {
    const std::string strName = std::filesystem::path(strFile).filename().string();
    {
        CClientDC dc(&m_wnd);
        DrawLines(dc, m_rc, {"正在读取 " + strName + "：" + std::to_string(nPercent) + "%"});
    }
    m_bShown = true;
    ShowNow(m_wnd);
}

}  // namespace gallery
