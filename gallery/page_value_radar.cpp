// The value radar, on which a stock can be picked for the other pages.
#include "core/minutes.h"
#include "page_day.h"
#include "pages.h"

namespace gallery {

namespace {

class ValueRadarPage : public DayPage<ValueRadarExhibit> {
public:
    explicit ValueRadarPage(const PageSettings& settings)
        : DayPage(settings), m_minuteFile(settings.dataDir / kMinuteFile) {}

protected:
    afx_msg LRESULT OnStockPicked(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    std::filesystem::path m_minuteFile;
};

BEGIN_MESSAGE_MAP(ValueRadarPage, DayPage<ValueRadarExhibit>)
ON_MESSAGE(kStockPicked, OnStockPicked)
END_MESSAGE_MAP()

LRESULT ValueRadarPage::OnStockPicked(WPARAM, LPARAM) {
    const std::string& code = TheChart().PickedCode();
    const bool bMinutes = FindDay(ReadMinuteDays(m_minuteFile), code) != nullptr;
    TheChoice().Pick(code, bMinutes);
    std::vector<std::string> notes = TheExhibit().Notes();
    notes.front() = "已选" + code + "：资金饼图页显示其行业个股" +
                    (bMinutes ? "，分时页显示该股" : "，没有该股的分时数据");
    SetNotes(std::move(notes));
    return 0;
}

}  // namespace

std::unique_ptr<Page> MakeValueRadarPage(const PageSettings& settings) {
    return std::make_unique<ValueRadarPage>(settings);
}

}  // namespace gallery
