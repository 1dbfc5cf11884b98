/// A page with one gauge.
#pragma once

#include <filesystem>

#include "gauge_exhibits.h"
#include "page_chart.h"

namespace gallery {

template <class Exhibit>
class GaugePage : public ChartPage<typename Exhibit::Control> {
public:
    explicit GaugePage(const std::filesystem::path& dataDir) : m_exhibit(dataDir) {
        this->SetNotes(m_exhibit.Notes());
    }

protected:
    const Exhibit& TheExhibit() const { return m_exhibit; }

private:
    void Feed(typename Exhibit::Control& gauge) override { m_exhibit.Feed(gauge); }

    Exhibit m_exhibit;
};

}  // namespace gallery
