#include "minutes.h"

#include <algorithm>

#include "error.h"
#include "listing.h"
#include "trading_day.h"

namespace gallery {

namespace {

constexpr int kHour = 60;

int Clock(int nMinutes) { return nMinutes / kHour * 100 + nMinutes % kHour; }

/// Minutes since midnight at which the given "HH:MM" starts; -1 when it is no minute of trading.
int StartOfMinute(const std::string& text) {
    const int nStart = ParseClock(text).value_or(-1);
    const bool bMorning = nStart >= 9 * kHour + 30 && nStart < 11 * kHour + 30;
    const bool bAfternoon = nStart >= 13 * kHour && nStart < 15 * kHour;
    return bMorning || bAfternoon ? nStart : -1;
}

class MinuteColumns {
public:
    explicit MinuteColumns(const CsvTable& table)
        : m_table(table),
          m_nCode(table.Column("code")),
          m_nName(table.Column("name")),
          m_nPreClose(table.Column("prev_close")),
          m_nTime(table.Column("time")),
          m_nPrice(table.Column("price")),
          m_nLots(table.Column("volume_lots")),
          m_nAmount(table.Column("amount_yuan")),
          m_nNetBuy(table.Column("large_net_yuan")) {}

    /// Adds the row to its stock, which is the last one or a new one.
    void AddRow(std::size_t nRow, std::vector<MinuteDay>& days) const {
        const std::string& code = StockCode(m_table, nRow, m_nCode);
        const Minute minute = Read(nRow);
        if (!days.empty() && days.back().code == code) {
            if (minute.nEnd <= days.back().minutes.back().nEnd)
                m_table.Refuse(nRow, m_nTime, "not later than the row above");
        } else {
            if (std::ranges::find(days, code, &MinuteDay::code) != days.end())
                m_table.Refuse(nRow, m_nCode, "the rows of a stock are not together: " + code);
            days.push_back({code, m_table.Gbk(nRow, m_nName), Positive(nRow, m_nPreClose), {}});
            if (days.back().name.empty()) m_table.Refuse(nRow, m_nName, "empty");
        }
        days.back().minutes.push_back(minute);
    }

private:
    Minute Read(std::size_t nRow) const {
        const int nStart = StartOfMinute(m_table.Field(nRow, m_nTime));
        if (nStart < 0)
            m_table.Refuse(nRow, m_nTime, "not a minute of trading: " + m_table.Field(nRow, m_nTime));
        const Minute minute{Clock(nStart + 1), Positive(nRow, m_nPrice),
                            Known(m_table, nRow, m_nLots, m_table.Integer(nRow, m_nLots)),
                            Number(nRow, m_nAmount), Number(nRow, m_nNetBuy)};
        if (minute.nLots < 0) m_table.Refuse(nRow, m_nLots, "below 0");
        return minute;
    }
    double Number(std::size_t nRow, std::size_t nColumn) const {
        return Known(m_table, nRow, nColumn, m_table.Number(nRow, nColumn));
    }
    double Positive(std::size_t nRow, std::size_t nColumn) const {
        const double dNumber = Number(nRow, nColumn);
        if (dNumber <= 0) m_table.Refuse(nRow, nColumn, "not above 0");
        return dNumber;
    }

    const CsvTable& m_table;
    std::size_t m_nCode, m_nName, m_nPreClose, m_nTime, m_nPrice, m_nLots, m_nAmount, m_nNetBuy;
};

}  // namespace

std::vector<MinuteDay> ReadMinuteDays(const std::filesystem::path& file) {
    std::vector<MinuteDay> days = MinuteDaysOf(CsvTable::Read(file));
    if (days.empty()) throw Error(file.string() + ": no minutes");
    return days;
}

std::vector<MinuteDay> MinuteDaysOf(const CsvTable& table) {
    const MinuteColumns columns(table);
    std::vector<MinuteDay> days;
    for (std::size_t n = 0; n < table.RowCount(); ++n) columns.AddRow(n, days);
    return days;
}

std::span<const Minute> FirstMinutes(const MinuteDay& day, int nMinutes) {
    const auto end = std::ranges::upper_bound(day.minutes, EndOfMinute(nMinutes), {}, &Minute::nEnd);
    return {day.minutes.begin(), end};
}

const MinuteDay* FindDay(const std::vector<MinuteDay>& days, const std::string& code) {
    const auto it = std::ranges::find(days, code, &MinuteDay::code);
    return it == days.end() ? nullptr : &*it;
}

std::vector<std::string> NamesOf(const std::vector<MinuteDay>& days) {
    std::vector<std::string> names;
    names.reserve(days.size());
    for (const MinuteDay& day : days) names.push_back(day.name);
    return names;
}

}  // namespace gallery
