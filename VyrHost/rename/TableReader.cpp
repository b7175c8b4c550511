// Splits lines into fields.
#include <VyrHost/rename/TableReader.h>

#include <VyrHost/text/Errors.h>
#include <VyrHost/text/Input.h>
#include <VyrHost/text/QuotedText.h>

#include <algorithm>

namespace VyrHost::Rename {

namespace {

/// Names may begin with the bytes of its byte order mark, but do not contain NUL, as every ASCII character in UTF-16
/// does.
bool IsUtf16(std::string_view bytes)
{
    const bool hasMark = bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
    return hasMark && bytes.find('\0') != std::string_view::npos;
}

/// The length of the quoted field at the start of `rest`; 0 if its quotes do not end with the field.
std::size_t QuotedLength(std::string_view rest)
{
    std::size_t end = rest.find('"', 1);
    while (end != std::string_view::npos && rest.substr(end + 1).starts_with('"'))
        end = rest.find('"', end + 2);
    const bool isWhole =
        end != std::string_view::npos && (end + 1 == rest.size() || rest.find_first_of(",;\t\r\n", end + 1) == end + 1);
    return isWhole ? end + 1 : 0;
}

/// The number of each separator in a line, outside quoted fields.
struct FirstLine
{
    std::size_t tabs = 0;
    std::size_t commas = 0;
    std::size_t semicolons = 0;
};

FirstLine CountSeparators(std::string_view rest)
{
    FirstLine line;
    bool isFieldStart = true;
    while (!rest.empty() && rest.front() != '\n') {
        const std::size_t closed = isFieldStart && rest.starts_with('"') ? QuotedLength(rest) : 0;
        if (closed > 0) {
            rest.remove_prefix(closed);
            isFieldStart = false;
            continue;
        }
        const char byte = rest.front();
        line.tabs += byte == '\t';
        line.commas += byte == ',';
        line.semicolons += byte == ';';
        isFieldStart = byte == '\t' || byte == ',' || byte == ';';
        rest.remove_prefix(1);
    }
    return line;
}

char SeparatorOf(std::string_view rest, TableReader::Columns columns)
{
    const FirstLine line = CountSeparators(rest);
    if (line.tabs > 0)
        return '\t';
    const bool areSemicolons =
        columns == TableReader::Columns::Two ? line.semicolons == 1 && line.commas != 1 : line.semicolons > line.commas;
    return areSemicolons ? ';' : ',';
}

} // namespace

TableReader::TableReader(std::string_view bytes, const char* what, Columns columns)
    : m_rest(Text::SkipByteOrderMark(bytes)), m_what(what)
{
    if (IsUtf16(bytes))
        throw Text::UsageError(std::string(what) +
                               " are in UTF-16, as some spreadsheets write them; save them in UTF-8");
    SkipEmptyLines();
    m_separator = SeparatorOf(m_rest, columns);
}

std::vector<std::string> TableReader::NextLine()
{
    SkipEmptyLines();
    std::vector<std::string> fields;
    m_firstLine = m_line;
    if (m_rest.empty())
        return fields;
    do
        fields.push_back(TakeField());
    while (TakeSeparator());
    TakeLineEnd();
    return fields;
}

void TableReader::Refuse(const std::string& what) const
{
    throw Text::UsageError("line " + std::to_string(m_firstLine) + " of " + m_what + ": " + what);
}

void TableReader::SkipEmptyLines()
{
    while (m_rest.starts_with('\n') || m_rest.starts_with("\r\n"))
        TakeLineEnd();
}

std::string TableReader::TakeField()
{
    return m_separator != '\t' && m_rest.starts_with('"') ? TakeQuoted() : TakePlain();
}

std::string TableReader::TakePlain()
{
    const std::size_t end = std::min(m_rest.find_first_of(std::string{m_separator, '\n'}), m_rest.size());
    std::string_view field = m_rest.substr(0, end);
    m_rest.remove_prefix(end);
    if (m_rest.empty() || m_rest.front() == '\n')
        field.remove_suffix(field.ends_with('\r') ? 1 : 0);
    return std::string(field);
}

std::string TableReader::TakeQuoted()
{
    const std::string_view before = m_rest;
    auto field = Text::TakeQuoted(m_rest);
    if (!field)
        Refuse("a field in double quotes has no end");
    const auto taken = static_cast<std::ptrdiff_t>(before.size() - m_rest.size());
    m_line += static_cast<std::size_t>(std::count(before.begin(), before.begin() + taken, '\n'));
    if (!m_rest.empty() && m_rest.find_first_of(std::string{m_separator, '\r', '\n'}) != 0)
        Refuse("something follows the end of a field in double quotes");
    return *std::move(field);
}

bool TableReader::TakeSeparator()
{
    const bool isThere = m_rest.starts_with(m_separator);
    m_rest.remove_prefix(isThere ? 1 : 0);
    return isThere;
}

void TableReader::TakeLineEnd()
{
    m_rest.remove_prefix(m_rest.starts_with('\r') ? 1 : 0);
    m_rest.remove_prefix(m_rest.starts_with('\n') ? 1 : 0);
    ++m_line;
}

} // namespace VyrHost::Rename
