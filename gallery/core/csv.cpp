#include "csv.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <fstream>

#include "error.h"
#include "load_progress.h"
#include "text.h"

namespace gallery {

namespace {

constexpr double kLargest = 1e15;  // no figure of a market is; every one fits a float and is far from its end

constexpr std::size_t kChunk = 65536;  // bytes that are read at a time
constexpr std::size_t kLinesAReport = 256;

// A file is half done when its bytes are there and done when they are parsed: either may take the time.

void ReportRead(const std::string& strFile, std::size_t nBytes, std::size_t nAll) {
    LoadProgress::Report(strFile, nBytes, 2 * nAll);
}

void ReportParsed(const std::string& strFile, std::size_t nBytes, std::size_t nAll) {
    LoadProgress::Report(strFile, nAll + nBytes, 2 * nAll);
}

std::string BytesOf(const std::filesystem::path& file) {
    std::error_code error;
    const std::uintmax_t nAll = std::filesystem::file_size(file, error);
    std::ifstream in(file, std::ios::binary);
    std::string bytes(error ? 0 : static_cast<std::size_t>(nAll), '\0');
    std::size_t nRead = 0;
    while (in && nRead < bytes.size()) {
        const std::size_t nChunk = std::min(kChunk, bytes.size() - nRead);
        in.read(bytes.data() + nRead, static_cast<std::streamsize>(nChunk));
        ReportRead(file.string(), nRead += static_cast<std::size_t>(in.gcount()), bytes.size());
    }
    if (nRead == 0 || nRead < bytes.size()) throw Error(file.string() + ": cannot be read, or is empty");
    return bytes;
}

std::vector<std::string> SplitFields(std::string_view line) {
    std::vector<std::string> fields;
    while (true) {
        const std::size_t nComma = line.find(',');
        fields.emplace_back(line.substr(0, nComma));
        if (nComma == std::string_view::npos) return fields;
        line.remove_prefix(nComma + 1);
    }
}

std::string AtLine(const std::string& strName, std::size_t nLine) {
    return strName + ": line " + std::to_string(nLine);
}

template <class T>
std::optional<T> ParseWhole(const std::string& text) {
    T value{};
    const char* pEnd = text.data() + text.size();
    const auto [pStop, error] = std::from_chars(text.data(), pEnd, value);
    if (error != std::errc() || pStop != pEnd) return std::nullopt;
    return value;
}

}  // namespace

CsvTable CsvTable::Read(const std::filesystem::path& file) { return Parse(BytesOf(file), file.string()); }

CsvTable CsvTable::Parse(std::string_view text, std::string strName) {
    CsvTable table;
    table.m_strName = std::move(strName);
    const std::size_t nAll = text.size();
    if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
    for (std::size_t nLine = 1; !text.empty(); ++nLine) {
        const std::size_t nEnd = text.find('\n');
        std::string_view line = text.substr(0, nEnd);
        text.remove_prefix(nEnd == std::string_view::npos ? text.size() : nEnd + 1);
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (!line.empty()) table.AddLine(nLine, line);
        if (nLine % kLinesAReport == 0) ReportParsed(table.m_strName, nAll - text.size(), nAll);
    }
    if (table.m_header.empty()) throw Error(AtLine(table.m_strName, 1) + ": no header row");
    return table;
}

void CsvTable::AddLine(std::size_t nLine, std::string_view line) {
    if (line.find('"') != std::string_view::npos)
        throw Error(AtLine(m_strName, nLine) + ": quoted fields are not understood");
    std::vector<std::string> fields = SplitFields(line);
    if (m_header.empty()) {
        m_header = std::move(fields);
        return;
    }
    if (fields.size() != m_header.size())
        throw Error(AtLine(m_strName, nLine) + ": " + std::to_string(fields.size()) + " columns instead of " +
                    std::to_string(m_header.size()));
    m_rows.push_back({nLine, std::move(fields)});
}

std::size_t CsvTable::Column(std::string_view name) const {
    for (std::size_t n = 0; n < m_header.size(); ++n)
        if (m_header[n] == name) return n;
    throw Error(AtLine(m_strName, 1) + ": no column named " + std::string(name));
}

const std::string& CsvTable::Field(std::size_t nRow, std::size_t nColumn) const {
    return m_rows.at(nRow).fields.at(nColumn);
}

std::string CsvTable::Gbk(std::size_t nRow, std::size_t nColumn) const {
    std::optional<std::string> gbk = GbkFromUtf8(Field(nRow, nColumn));
    if (!gbk) Refuse(nRow, nColumn, "not valid UTF-8");
    return *std::move(gbk);
}

std::optional<double> CsvTable::Number(std::size_t nRow, std::size_t nColumn) const {
    const std::string& text = Field(nRow, nColumn);
    if (text.empty()) return std::nullopt;
    const std::optional<double> number = ParseWhole<double>(text);
    if (!number || !std::isfinite(*number)) Refuse(nRow, nColumn, "not a number: " + text);
    if (std::abs(*number) > kLargest) Refuse(nRow, nColumn, "too large: " + text);
    return number;
}

std::optional<int> CsvTable::Integer(std::size_t nRow, std::size_t nColumn) const {
    const std::string& text = Field(nRow, nColumn);
    if (text.empty()) return std::nullopt;
    const std::optional<int> number = ParseWhole<int>(text);
    if (!number) Refuse(nRow, nColumn, "not a whole number: " + text);
    return number;
}

void CsvTable::Refuse(std::size_t nRow, std::size_t nColumn, const std::string& strWhy) const {
    throw Error(AtLine(m_strName, m_rows.at(nRow).nLine) + ", column " + std::to_string(nColumn + 1) + " (" +
                m_header.at(nColumn) + "): " + strWhy);
}

}  // namespace gallery
