// Stores the lines of a table by their files.
#include <VyrHost/rename/CsvData.h>

#include <VyrHost/model/FolderSet.h>
#include <VyrHost/rename/TableReader.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/NormalForm.h>
#include <VyrPlatform/files/FullPath.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <utility>

namespace VyrHost::Rename {

namespace {

using VyrPlatform::Encoding::FromNameBytes;

/// The key of a line's file.
CString KeyOf(const std::string& field)
{
    const CString name = FromNameBytes(field);
    return Text::Composed(Model::FolderPart(name).empty() ? name : VyrPlatform::GetFullPath(name));
}

} // namespace

CsvData::CsvData(std::string_view bytes)
{
    TableReader table(bytes, "the CSV data", TableReader::Columns::Any);
    m_columns = table.NextLine();
    if (m_columns.empty())
        throw Text::UsageError("the CSV data are empty");
    for (auto column = m_columns.begin(); column != m_columns.end(); ++column)
        if (column->empty() || std::find(m_columns.begin(), column, *column) != column)
            table.Refuse("it names the columns, and each needs a name of its own");
    for (std::vector<std::string> fields = table.NextLine(); !fields.empty(); fields = table.NextLine()) {
        if (fields.size() != m_columns.size())
            table.Refuse("it has " + std::to_string(fields.size()) + " fields, the first line " +
                         std::to_string(m_columns.size()));
        if (fields.front().empty())
            table.Refuse("its first field, the name of a file, is empty");
        if (!m_lines.try_emplace(KeyOf(fields.front()), std::move(fields)).second)
            table.Refuse("there is a line for that file already");
    }
}

std::optional<std::size_t> CsvData::FindColumn(std::u16string_view name) const
{
    const std::string bytes = VyrPlatform::Encoding::ToNameBytes(name);
    const auto named = std::find(m_columns.begin(), m_columns.end(), bytes);
    if (named != m_columns.end())
        return static_cast<std::size_t>(named - m_columns.begin());
    for (std::size_t column = 0; column < m_columns.size(); ++column)
        if (bytes == std::to_string(column + 1))
            return column;
    return std::nullopt;
}

CString CsvData::Find(const CString& path, std::size_t column) const
{
    auto line = m_lines.find(Text::Composed(path));
    if (line == m_lines.end())
        line = m_lines.find(Text::Composed(Model::NamePart(path)));
    return line == m_lines.end() ? CString() : FromNameBytes(line->second[column]);
}

} // namespace VyrHost::Rename
