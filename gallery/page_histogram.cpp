// The histogram, whose highlight the arrow keys move.
#include <algorithm>

#include "page_gauge.h"
#include "pages.h"

namespace gallery {

namespace {

class HistogramPage : public GaugePage<HistogramExhibit> {
public:
    using GaugePage::GaugePage;

private:
    bool OnKey(UINT nKey) override {
        if (nKey != VK_LEFT && nKey != VK_RIGHT) return false;
        const int nNext = m_nClass + (nKey == VK_RIGHT ? 1 : -1);
        m_nClass = std::clamp(nNext, 0, TheExhibit().ClassCount() - 1);
        TheChart().SetIndex(m_nClass);
        SetNotes(TheExhibit().Notes(m_nClass));
        return true;
    }

    int m_nClass = TheExhibit().Fullest();
};

}  // namespace

std::unique_ptr<Page> MakeHistogramPage(const PageSettings& settings) {
    return std::make_unique<HistogramPage>(settings.dataDir);
}

}  // namespace gallery
