/// @file
/// Reads tables that users write: CSV, and fields between tabs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace VyrHost::Rename {

/// Reads the lines of a table. The first line decides what separates the fields: a tab where it has one outside quoted
/// fields, then everything stands as it is; else it is CSV (RFC 4180: a field in double quotes may hold separators and
/// line ends, two double quotes in it are one) with commas or with semicolons. Empty lines are skipped, a mark of UTF-8
/// in front too.
class TableReader
{
public:
    /// What tells a semicolon from a comma.
    enum class Columns : std::uint8_t
    {
        /// Semicolons separate where only one of them makes two fields of the first line.
        Two,
        /// Semicolons separate where the first line has more of them than commas.
        Any
    };

    /// @param bytes  the table; they must outlive the reader.
    /// @param what   what the table is, for errors.
    /// @throws UsageError for text in UTF-16.
    TableReader(std::string_view bytes, const char* what, Columns columns);

    /// The fields of the next line that is not empty; none at the end.
    /// @throws UsageError for a quoted field without its end.
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
