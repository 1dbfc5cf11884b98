/// What every page of the gallery is: a child window that holds controls and says in a line or two what they
/// show.
#pragma once

#include <tavlon/framework.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "core/choice.h"
#include "core/replay.h"

namespace gallery {

class Page : public CWnd {
public:
    /// Makes the page, visible, over the given part of the parent, with its controls filled. FALSE: a window
    /// could not be made.
    BOOL CreateOn(CWnd& wndParent, const CRect& rc);
    /// A press on a control gives it the keyboard; controls do not all take it themselves.
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    /// Makes the controls and gives them their data. Called once, when the page's window exists.
    virtual BOOL CreateControls() = 0;
    /// Puts the controls into the page's area above the notes. Called after CreateControls and at every new
    /// size.
    virtual void PlaceControls(const CRect& rcContent) = 0;

    /// A key was pressed while the page or one of its controls had the keyboard. True: the page used it, the
    /// control does not get it.
    virtual bool OnKey(UINT /*nKey*/) { return false; }

    /// The lines under the controls, code page 936. As many lines as before leave the controls alone.
    void SetNotes(std::vector<std::string> notes);
    CRect ContentRect() const;

    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    DECLARE_MESSAGE_MAP()

private:
    int NotesHeight() const;
    CRect NotesRect() const;

    std::vector<std::string> m_notes;
    bool m_bReady = false;  ///< The controls exist.
};

/// What every page is made with.
struct PageSettings {
    std::filesystem::path dataDir;
    // For all pages of the program, whichever is shown; there always is one of each.
    std::shared_ptr<Replay> pReplay = std::make_shared<Replay>();
    std::shared_ptr<Choice> pChoice = std::make_shared<Choice>();
};

/// One line of the list of pages.
struct PageEntry {
    std::string name;        ///< For the command line, scripts and file names.
    std::string title;       ///< For people, code page 936.
    std::string shortTitle;  ///< Two characters, for a narrow tab.
    /// Reads what the page needs from the data directory; throws Error when that fails.
    std::unique_ptr<Page> (*pfnMake)(const PageSettings& settings);
};

}  // namespace gallery
