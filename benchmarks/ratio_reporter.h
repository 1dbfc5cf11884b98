/// Console output that remembers each benchmark's processor time.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            if (!run.error_occurred && run.iterations > 0)
                m_seconds[run.benchmark_name()] =
                    run.cpu_accumulated_time / static_cast<double>(run.iterations);
        ConsoleReporter::ReportRuns(runs);
    }

    /// One line with the quotient of two times; nothing when one of them was not measured.
    void PrintRatio(const char* pszTitle, const std::string& name, const std::string& base) const {
        const auto it = m_seconds.find(name), itBase = m_seconds.find(base);
        if (it == m_seconds.end() || itBase == m_seconds.end() || itBase->second <= 0) return;
        std::printf("%s = %.3g\n", pszTitle, it->second / itBase->second);
    }

private:
    std::map<std::string, double> m_seconds;
};
