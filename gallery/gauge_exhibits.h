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
#include "core/replay.h"

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

/// Follows the replayed day. A stock (six digits) that has no minutes gives way to the usual one.
class LadderExhibit {
public:
    using Control = CProxy_PrssureSupportCtrl;
    explicit LadderExhibit(const std::filesystem::path& dataDir);
    /// The levels as known after so many minutes of the day, 0 to kMinutesOfDay; no prices before the first.
    void Feed(Control& ladder, const std::string& strStock, int nMinutes) const;
    std::vector<std::string> Notes(const std::string& strStock, const Replay& replay) const;
    std::string Brief(const std::string& strStock, const Replay& replay) const;

private:
    const MinuteDay& DayOf(const std::string& strStock) const;

    std::vector<MinuteDay> m_days;
    std::size_t m_nUsual = 0;
};

/// Follows the replayed day. Its classes are numbered from 0, those without orders too.
class HistogramExhibit {
public:
    using Control = CProxy_HistogramCtrl;
    /// As many classes as the control holds bars, or half as many, twice as wide, for where there is less
    /// room.
    enum class Detail { Full, Half };
    static constexpr int kFullest =
        -1;  ///< For a class: the one with the most orders, of equal ones the first.

    explicit HistogramExhibit(const std::filesystem::path& dataDir, Detail detail = Detail::Full);
    /// The orders of the first minutes of the day, 0 to kMinutesOfDay; no bars before the first order. The
    /// class is highlighted, once it has orders.
    void Feed(Control& histogram, int nMinutes, int nClass = kFullest) const;
    std::vector<std::string> Notes(const Replay& replay, int nClass = kFullest) const;
    std::string Brief(const Replay& replay) const;

    /// The next class with orders, above or else below the given one, which stays when there is none.
    int NextClass(int nMinutes, int nClass, bool bAbove) const;

private:
    std::vector<OrderClass> ClassesAfter(int nMinutes) const;

    ClassRule m_rule;
    std::vector<Order> m_orders;
};

}  // namespace gallery
