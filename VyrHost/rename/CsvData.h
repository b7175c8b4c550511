/// @file
/// A table with values for the files of a list.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace VyrHost::Rename {

/// The first line of the table names its columns; the first column of each other line names the file that it is for:
/// by its name with the extension, or by its path. Names are compared in their composed forms.
class CsvData
{
public:
    /// @param bytes  the table (TableReader) in UTF-8.
    /// @throws UsageError for a table without lines, a column without a heading or with that of another one, a line of
    /// fewer or more fields than the first, one that names no file, and a second one for a file.
    explicit CsvData(std::string_view bytes);

    /// The number of the column with that heading, or, where none has it, of that number from 1 on; nothing where there
    /// is no such column.
    [[nodiscard]] std::optional<std::size_t> FindColumn(std::u16string_view name) const;
    [[nodiscard]] const std::vector<std::string>& Columns() const { return m_columns; }
    /// The field of the line for the file at `path` (absolute); empty where there is none.
    [[nodiscard]] CString Find(const CString& path, std::size_t column) const;

private:
    std::vector<std::string> m_columns;
    /// By name or absolute path.
    std::unordered_map<CString, std::vector<std::string>> m_lines;
};

} // namespace VyrHost::Rename
