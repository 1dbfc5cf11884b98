// The point radar.
#include "page_day.h"
#include "pages.h"

namespace gallery {

std::unique_ptr<Page> MakePointsPage(const PageSettings& settings) {
    return std::make_unique<DayPage<PointRadarExhibit>>(settings);
}

}  // namespace gallery
