// The value radar, on which a stock can be picked for the other pages.
#include "page_day.h"
#include "pages.h"

namespace gallery {

namespace {

class ValueRadarPage : public DayPage<ValueRadarExhibit> {
public:
    using DayPage::DayPage;

protected:
    afx_msg LRESULT OnStockPicked(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ValueRadarPage, DayPage<ValueRadarExhibit>)
ON_MESSAGE(kStockPicked, OnStockPicked)
END_MESSAGE_MAP()

LRESULT ValueRadarPage::OnStockPicked(WPARAM, LPARAM) {
    TheChoice().strStock = TheChart().PickedCode();
    std::vector<std::string> notes = TheExhibit().Notes();
    notes.front() = "已选" + TheChoice().strStock + "：资金饼图页与同行业个股并列，分时页有其数据时显示";
    SetNotes(std::move(notes));
    return 0;
}

}  // namespace

std::unique_ptr<Page> MakeValueRadarPage(const PageSettings& settings) {
    return std::make_unique<ValueRadarPage>(settings);
}

}  // namespace gallery
