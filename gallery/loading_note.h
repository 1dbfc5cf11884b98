/// What a user reads while a page takes long to load.
#pragma once

#include <tavlon/framework.h>

#include <string>

#include "core/load_progress.h"

namespace gallery {

/// While it lives, files that take long to read are named with the part that is done, on the given part of
/// the window and over whatever is there. Nothing of it stays.
class LoadingNote {
public:
    LoadingNote(CWnd& wnd, const CRect& rc, LoadProgress::Clock clock = ::GetTickCount);
    ~LoadingNote();
    LoadingNote(const LoadingNote&) = delete;
    LoadingNote& operator=(const LoadingNote&) = delete;

private:
    void Show(const std::string& strFile, int nPercent);

    CWnd& m_wnd;
    CRect m_rc;
    bool m_bShown = false;
    LoadProgress m_progress;
};

}  // namespace gallery
