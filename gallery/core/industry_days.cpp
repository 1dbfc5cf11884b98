#include "industry_days.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <functional>
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
        IndustryFlow flow{m_table.Gbk(nRow, m_nName), Amount(nRow, m_nInflow), Amount(nRow, m_nOutflow)};
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

const IndustryFlow* IndustryDay::Find(const std::string& name) const {
    const auto it = std::ranges::find(flows, name, &IndustryFlow::name);
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

std::vector<IndustryFlow> LargestFlows(std::vector<IndustryFlow> flows, std::size_t nMost) {
    std::ranges::stable_sort(flows, std::ranges::greater(),
                             [](const IndustryFlow& flow) { return flow.dInflow + flow.dOutflow; });
    flows.resize(std::min(nMost, flows.size()));
    return flows;
}

std::string DateInWords(int nDate) {
    return std::to_string(nDate / 10000) + "年" + std::to_string(nDate / 100 % 100) + "月" +
           std::to_string(nDate % 100) + "日";
}

std::string Describe(const IndustryFlow& flow) {
    const double dNet = flow.dInflow - flow.dOutflow;
    char szFigures[128];
    std::snprintf(szFigures, sizeof szFigures, "流入%.2f亿元，流出%.2f亿元，净流%s%.2f亿元",
                  flow.dInflow / kHundredMillion, flow.dOutflow / kHundredMillion, dNet < 0 ? "出" : "入",
                  std::abs(dNet) / kHundredMillion);
    return flow.name + "：" + szFigures;
}

}  // namespace gallery
