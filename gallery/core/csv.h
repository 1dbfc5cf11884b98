/// Comma-separated tables: UTF-8, one header row, no quoting, empty field = not known.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace gallery {

/// A table read whole. Every refusal is an Error that names the file, the line and, where one is at fault,
/// the column.
class CsvTable {
public:
    static CsvTable Read(const std::filesystem::path& file);
    /// The table in the given bytes; strName stands for the file in errors.
    static CsvTable Parse(std::string_view text, std::string strName);

    std::size_t RowCount() const { return m_rows.size(); }
    std::size_t Column(
        std::string_view name) const;  ///< Position of the named column; an Error when there is none.

    /// Fields by row (0 = first after the header) and by position as Column gave it.
    const std::string& Field(std::size_t nRow, std::size_t nColumn) const;
    std::string Gbk(std::size_t nRow, std::size_t nColumn) const;
    std::optional<double> Number(std::size_t nRow,
                                 std::size_t nColumn) const;  ///< At most 1e15; nothing when empty.
    std::optional<int> Integer(std::size_t nRow, std::size_t nColumn) const;

    /// Ends in an Error about this field.
    [[noreturn]] void Refuse(std::size_t nRow, std::size_t nColumn, const std::string& strWhy) const;

private:
    struct Row {
        std::size_t nLine;
        std::vector<std::string> fields;
    };
    void AddLine(std::size_t nLine, std::string_view line);

    std::string m_strName;
    std::vector<std::string> m_header;
    std::vector<Row> m_rows;
};

/// The value; an Error about the field it was in when it is not known.
template <class T>
T Known(const CsvTable& table, std::size_t nRow, std::size_t nColumn, std::optional<T> value) {
    if (!value) table.Refuse(nRow, nColumn, "empty");
    return *value;
}

}  // namespace gallery
