/// What each control is fed for its pictures.
#pragma once

#include "scenes/control_stage.h"

namespace scenes::controls {

void ValueRadar(Stage&);
void ValueRadarHover(Stage&);
void ValueRadarOddSizes(Stage&);
void PointRadar(Stage&);
void StarChart(Stage&);
void ValueRadarWorkedOn(Stage&);
void PointRadarWorkedOn(Stage&);
void StarChartWorkedOn(Stage&);
void Wheel(Stage&);
void WheelClicked(Stage&);
void MinuteChart(Stage&);
void MinuteChartDay(Stage&);
void MinuteChartUnusual(Stage&);
void MinuteChartWorkedOn(Stage&);
void MoneyFlowPies(Stage&);
void MoneyFlowPiesClicked(Stage&);
void MoneyFlowTip(Stage&);
void PriceRadar(Stage&);
void PriceRadarDense(Stage&);
void PriceRadarUnusual(Stage&);
void Histogram(Stage&);
void HistogramOddSizes(Stage&);
void RiskBar(Stage&);
void RiskBarOddSizes(Stage&);
void PositionBar(Stage&);
void PositionBarOddSizes(Stage&);
void PressureLadder(Stage&);
void PressureLadderOddSizes(Stage&);
void TabStrip(Stage&);
void TabColumn(Stage&);
void TabStripUnusual(Stage&);

}  // namespace scenes::controls
