#include "industry_days.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "error.h"

namespace gallery {

namespace {

constexpr double kHundredMillion = 1e8;

/// Reads exactly the given digits, without a sign.
bool ReadDigits(const std::string& text, std::size_t nFrom, std::size_t nCount, int& nValue) {
    const char *const pStart = text.data() + nFrom, *const pEnd = pStart + nCount;
    return *pStart != '-' && std::from_chars(pStart, pEnd, nValue).ptr == pEnd;
}

/// "YYYY-MM-DD" as YYYYMMDD; 0 when it is no date.
int DateOf(const std::string& text) {
    int nYear = 0, nMonth = 0, nDay = 0;
    const bool bRead = text.size() == 10 && text[4] == '-' && text[7] == '-' &&
                       ReadDigits(text, 0, 4, nYear) && ReadDigits(text, 5, 2, nMonth) &&
                       ReadDigits(text, 8, 2, nDay);
    const bool bDate = bRead && nMonth >= 1 && nMonth <= 12 && nDay >= 1 && nDay <= 31;
    return bDate ? nYear * 10000 + nMonth * 100 + nDay : 0;
}

class FlowColumns {
public:
    explicit FlowColumns(const CsvTable& table)
        : m_table(table),
          m_nDate(table.Column("date")),
          m_nName(table.Column("industry")),
          m_nInflow(table.Column("inflow_100m_yuan")),
          m_nOutflow(table.Column("outflow_100m_yuan")) {}

    /// Adds the row to its day, which is the last one or a new one.
    void AddRow(std::size_t nRow, std::vector<IndustryDay>& days) const {
        const int nDate = DateOf(m_table.Field(nRow, m_nDate));
        if (nDate == 0) m_table.Refuse(nRow, m_nDate, "not a date: " + m_table.Field(nRow, m_nDate));
        MoneyFlow flow{m_table.Gbk(nRow, m_nName), Amount(nRow, m_nInflow), Amount(nRow, m_nOutflow)};
        if (flow.name.empty()) m_table.Refuse(nRow, m_nName, "empty");
        if (!days.empty() && nDate < days.back().nDate)
            m_table.Refuse(nRow, m_nDate, "earlier than the row above");
        if (days.empty() || nDate != days.back().nDate) days.push_back({nDate, {}});
        if (days.back().Find(flow.name))
            m_table.Refuse(nRow, m_nName, "twice on a day: " + m_table.Field(nRow, m_nName));
        days.back().flows.push_back(std::move(flow));
    }

private:
    double Amount(std::size_t nRow, std::size_t nColumn) const {
        const double dAmount = Known(m_table, nRow, nColumn, m_table.Number(nRow, nColumn));
        if (dAmount <= 0) m_table.Refuse(nRow, nColumn, "not above 0");
        return dAmount * kHundredMillion;
    }

    const CsvTable& m_table;
    std::size_t m_nDate, m_nName, m_nInflow, m_nOutflow;
};

}  // namespace

const MoneyFlow* IndustryDay::Find(const std::string& name) const {
    const auto it = std::ranges::find(flows, name, &MoneyFlow::name);
    return it == flows.end() ? nullptr : &*it;
}

std::vector<IndustryDay> ReadIndustryDays(const std::filesystem::path& file) {
    std::vector<IndustryDay> days = IndustryDaysOf(CsvTable::Read(file));
    if (days.empty()) throw Error(file.string() + ": no days");
    return days;
}

std::vector<IndustryDay> IndustryDaysOf(const CsvTable& table) {
    const FlowColumns columns(table);
    std::vector<IndustryDay> days;
    for (std::size_t n = 0; n < table.RowCount(); ++n) columns.AddRow(n, days);
    return days;
}

std::string DateInWords(int nDate) {
    return std::to_string(nDate / 10000) + "年" + std::to_string(nDate / 100 % 100) + "月" +
           std::to_string(nDate % 100) + "日";
}

}  // namespace gallery
