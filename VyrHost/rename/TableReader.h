/// @file
/// Reads tables that users write: CSV, and fields between tabs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace VyrHost::Rename {

/// Parses the lines of a table. The first line determines the separator: if it has a tab outside quoted fields, fields
/// are separated by tabs and literal; else it is CSV (RFC 4180: a field in double quotes may contain separators and
/// line ends, two double quotes in it are one) with commas or semicolons. Skips empty lines, and a byte order mark of
/// UTF-8 at the beginning.
class TableReader
{
public:
    /// How to decide between semicolons and commas.
    enum class Columns : std::uint8_t
    {
        /// Semicolons separate where only one of them makes two fields of the first line.
        Two,
        /// Semicolons separate where the first line has more of them than commas.
        Any
    };

    /// @param bytes  the table; they must outlive the reader.
    /// @param what  the description of the table in messages.
    /// @throws UsageError for text in UTF-16.
    TableReader(std::string_view bytes, const char* what, Columns columns);

    /// The fields of the next non-empty line; none at the end.
    /// @throws UsageError for an unclosed quoted field.
    [[nodiscard]] std::vector<std::string> NextLine();

    /// Throws a UsageError about the line that was read last.
    [[noreturn]] void Refuse(const std::string& what) const;

private:
    void SkipEmptyLines();
    std::string TakeField();
    std::string TakePlain();
    std::string TakeQuoted();
    bool TakeSeparator();
    void TakeLineEnd();

    std::string_view m_rest;
    const char* m_what;
    char m_separator = ',';
    std::size_t m_line = 1;
    /// The line in which the current fields begin.
    std::size_t m_firstLine = 1;
};

} // namespace VyrHost::Rename
