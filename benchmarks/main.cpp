// Runs the benchmarks and relates them to one another: quote the ratios, machines are noisy.
#include <benchmark/benchmark.h>

#include <cstdlib>

#include "ratio_reporter.h"

int main(int argc, char** argv) {
    static char display[] = "TAVLON_DISPLAY=headless";
    putenv(display);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.PrintRatio("value radar, full repaint : floor", "ValueRadar/FullRepaint", "Floor/Picture");
    reporter.PrintRatio("value radar, hover move : full repaint", "ValueRadar/HoverMove",
                        "ValueRadar/FullRepaint");
    reporter.PrintRatio("value radar, drag move : full repaint", "ValueRadar/DragMove",
                        "ValueRadar/FullRepaint");
    reporter.PrintRatio("value radar, band move : full repaint", "ValueRadar/BandMove",
                        "ValueRadar/FullRepaint");
    reporter.PrintRatio("hit grid, find : hover move", "HitGrid/Find", "ValueRadar/HoverMove");
    reporter.PrintRatio("hit grid, rebuild : full repaint", "HitGrid/Rebuild3000", "ValueRadar/FullRepaint");
    reporter.PrintRatio("hit grid, find : linear search", "HitGrid/Find", "HitGrid/LinearSearch");
    reporter.PrintRatio("hit grid, rebuild : linear search", "HitGrid/Rebuild3000", "HitGrid/LinearSearch");
    reporter.PrintRatio("minute chart, full repaint : copy of one frame", "MinuteChart/FullRepaint",
                        "MinuteChart/CopyOfOneFrame");
    reporter.PrintRatio("minute chart, cross-hair move : copy of one frame", "MinuteChart/CrossHairMove",
                        "MinuteChart/CopyOfOneFrame");
    reporter.PrintRatio("minute chart, cross-hair move : full repaint", "MinuteChart/CrossHairMove",
                        "MinuteChart/FullRepaint");
    reporter.PrintRatio("pies, full repaint : copy of one frame", "Pies/FullRepaint", "Pies/CopyOfOneFrame");
    reporter.PrintRatio("price radar, full repaint : copy of one frame", "PriceRadar/FullRepaint",
                        "Pies/CopyOfOneFrame");
    reporter.PrintRatio("anti-aliased outline : copy of one frame", "Pies/Outline", "Pies/CopyOfOneFrame");
    reporter.PrintRatio("risk gauge, full repaint : copy of one frame", "RiskGauge/FullRepaint",
                        "Gauges/CopyOfOneFrame");
    reporter.PrintRatio("position bar, full repaint : copy of one frame", "PositionBar/FullRepaint",
                        "Gauges/CopyOfOneFrame");
    reporter.PrintRatio("ladder, full repaint : copy of one frame", "Ladder/FullRepaint",
                        "Gauges/CopyOfOneFrame");
    reporter.PrintRatio("histogram, full repaint : copy of one frame", "Histogram/FullRepaint",
                        "Gauges/CopyOfOneFrame");
    return 0;
}
