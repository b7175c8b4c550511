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

/// The first line of the table has the names of its columns; the first field of each other line is the file that it is
/// for: its name with the extension, or its path. Names are compared in their composed forms.
class CsvData
{
public:
    /// @param bytes  the table (TableReader) in UTF-8.
    /// @throws UsageError for a table without lines, a missing or duplicate heading, a line with another number of
    /// fields than the first one, a line without a file, and a second line for a file.
    explicit CsvData(std::string_view bytes);

    /// The index of the column with that heading, else of the column with that number, from 1; nothing if there is no
    /// such column.
    [[nodiscard]] std::optional<std::size_t> FindColumn(std::u16string_view name) const;
    [[nodiscard]] const std::vector<std::string>& Columns() const { return m_columns; }
    /// The field in the line of the file at `path` (absolute); empty if there is none.
    [[nodiscard]] CString Find(const CString& path, std::size_t column) const;

private:
    std::vector<std::string> m_columns;
    /// By name or absolute path.
    std::unordered_map<CString, std::vector<std::string>> m_lines;
};

} // namespace VyrHost::Rename
