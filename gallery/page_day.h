/// A page with a radar on the stocks of 2018-09-21, those of the industry chosen last marked.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "page_chart.h"
#include "radar_exhibits.h"

namespace gallery {

template <class Exhibit>
class DayPage : public ChartPage<typename Exhibit::Control> {
public:
    explicit DayPage(const PageSettings& settings)
        : m_exhibit(ReadRadarDay(settings.dataDir)), m_pChoice(settings.pChoice) {
        this->SetNotes(m_exhibit.Notes());
    }

protected:
    const Exhibit& TheExhibit() const { return m_exhibit; }
    Choice& TheChoice() { return *m_pChoice; }

private:
    void Feed(typename Exhibit::Control& radar) override { m_exhibit.Feed(radar, m_pChoice->strIndustry); }

    Exhibit m_exhibit;
    std::shared_ptr<Choice> m_pChoice;
};

}  // namespace gallery
