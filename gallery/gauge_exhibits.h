/// The gauges with the figures that they show, in one place for every page that shows them. All texts are
/// code page 936.
#pragma once

#include <tavlon/tavlon.h>

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "core/gauge_figures.h"
#include "core/orders.h"

namespace gallery {

// Each reads what it needs from the data directory and throws Error when that fails. Notes() says what is
// shown and by which rule it was worked out, a page's lines; Brief() says it in one line for a page with
// several gauges.

class RiskExhibit {
public:
    using Control = CProxy_RiskBarCtrl;
    explicit RiskExhibit(const std::filesystem::path& dataDir);
    void Feed(Control& gauge) const;
    std::vector<std::string> Notes() const;
    std::string Brief() const;

private:
    RiskReading m_longTerm, m_shortTerm;
};

class PositionExhibit {
public:
    using Control = CProxy_PositionBarCtrl;
    explicit PositionExhibit(const std::filesystem::path& dataDir);
    void Feed(Control& bar) const;
    std::vector<std::string> Notes() const;
    std::string Brief() const;

private:
    std::array<RiseCount, 3> m_camps;  ///< Aggressive, steady, conservative.
};

class LadderExhibit {
public:
    using Control = CProxy_PrssureSupportCtrl;
    explicit LadderExhibit(const std::filesystem::path& dataDir);
    void Feed(Control& ladder) const;
    std::vector<std::string> Notes() const;
    std::string Brief() const;

private:
    std::string m_strStock;
    PriceLevels m_levels;
};

class HistogramExhibit {
public:
    using Control = CProxy_HistogramCtrl;
    /// As many classes as the control holds bars, or half as many, twice as wide, for where there is less
    /// room.
    enum class Detail { Full, Half };
    explicit HistogramExhibit(const std::filesystem::path& dataDir, Detail detail = Detail::Full);
    void Feed(Control& histogram) const;  ///< The class with the most orders is highlighted.
    std::vector<std::string> Notes() const { return Notes(Fullest()); }
    std::vector<std::string> Notes(int nClass) const;  ///< With what is known of that class.
    std::string Brief() const;

    /// The classes with orders, by their ids.
    int ClassCount() const { return static_cast<int>(m_classes.size()); }
    int Fullest() const;  ///< Of equal ones the first.

private:
    ClassRule m_rule;
    std::vector<OrderClass> m_classes;
};

}  // namespace gallery
