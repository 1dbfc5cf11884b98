/// Controls in a window, with data of the dice.
#include "scenes/control_scenes.h"

namespace scenes {

namespace {

using namespace controls;

constexpr PictureKind kKinds[] = {
    {"control_value_radar", {300, 220}, ValueRadar},
    {"control_value_radar_hover", {300, 220}, ValueRadarHover},
    {"control_value_radar_odd_sizes", {300, 220}, ValueRadarOddSizes},
    {"control_point_radar", {300, 220}, PointRadar},
    {"control_star_chart", {300, 220}, StarChart},
    {"control_value_radar_worked_on", {300, 220}, ValueRadarWorkedOn},
    {"control_point_radar_worked_on", {300, 220}, PointRadarWorkedOn},
    {"control_star_chart_worked_on", {300, 220}, StarChartWorkedOn},
    {"control_wheel", {300, 240}, Wheel},
    {"control_wheel_clicked", {300, 240}, WheelClicked},
    {"control_minute_chart", {360, 260}, MinuteChart},
    {"control_minute_chart_day", {460, 300}, MinuteChartDay},
    {"control_minute_chart_unusual", {260, 200}, MinuteChartUnusual},
    {"control_minute_chart_worked_on", {360, 260}, MinuteChartWorkedOn},
    {"control_money_flow_pies", {300, 260}, MoneyFlowPies},
    {"control_money_flow_pies_clicked", {300, 260}, MoneyFlowPiesClicked},
    {"control_money_flow_tip", {300, 260}, MoneyFlowTip},
    {"control_price_radar", {400, 200}, PriceRadar},
    {"control_price_radar_dense", {400, 240}, PriceRadarDense},
    {"control_price_radar_unusual", {400, 240}, PriceRadarUnusual},
    {"control_histogram", {400, 260}, Histogram},
    {"control_histogram_odd_sizes", {400, 300}, HistogramOddSizes},
    {"control_risk_bar", {400, 300}, RiskBar},
    {"control_risk_bar_odd_sizes", {400, 300}, RiskBarOddSizes},
    {"control_position_bar", {360, 300}, PositionBar},
    {"control_position_bar_odd_sizes", {400, 300}, PositionBarOddSizes},
    {"control_pressure_ladder", {360, 300}, PressureLadder},
    {"control_pressure_ladder_odd_sizes", {400, 300}, PressureLadderOddSizes},
    {"control_tab_strip", {300, 160}, TabStrip},
    {"control_tab_column", {120, 260}, TabColumn},
    {"control_tab_strip_unusual", {220, 160}, TabStripUnusual},
};

}  // namespace

std::span<const PictureKind> ControlKinds() { return kKinds; }

}  // namespace scenes
