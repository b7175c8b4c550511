// Reads tables of two columns.
#include <VyrHost/rename/Pairs.h>

#include <VyrHost/text/ByteOrderMark.h>
#include <VyrHost/text/UsageError.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <string>

namespace VyrHost::Rename {

namespace {

class TableReader
{
public:
    explicit TableReader(std::string_view bytes) : m_rest(Text::SkipByteOrderMark(bytes))
    {
        SkipEmptyLines();
        m_separator = SeparatorOf(m_rest);
    }

    /// The fields of the next line that has any; none at the end.
    std::vector<std::string> NextLine()
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

    [[noreturn]] void Refuse(const std::string& what) const
    {
        throw Text::UsageError("line " + std::to_string(m_firstLine) + " of the pairs: " + what);
    }

private:
    /// What separates the fields of the first line of `rest`: a tab where it has one, else a comma, unless only a
    /// semicolon makes two fields of it.
    static char SeparatorOf(std::string_view rest)
    {
        const FirstLine line = CountSeparators(rest);
        if (line.tabs > 0)
            return '\t';
        return line.semicolons == 1 && line.commas != 1 ? ';' : ',';
    }

    /// How often each separator stands in a line outside the quoted fields of CSV.
    struct FirstLine
    {
        std::size_t tabs = 0;
        std::size_t commas = 0;
        std::size_t semicolons = 0;
    };

    static FirstLine CountSeparators(std::string_view rest)
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

    /// How long the quoted field that `rest` begins with is; 0 where it does not end with the field.
    static std::size_t QuotedLength(std::string_view rest)
    {
        std::size_t end = rest.find('"', 1);
        while (end != std::string_view::npos && rest.substr(end + 1).starts_with('"'))
            end = rest.find('"', end + 2);
        const bool isWhole = end != std::string_view::npos &&
                             (end + 1 == rest.size() || rest.find_first_of(",;\t\r\n", end + 1) == end + 1);
        return isWhole ? end + 1 : 0;
    }

    void SkipEmptyLines()
    {
        while (m_rest.starts_with('\n') || m_rest.starts_with("\r\n"))
            TakeLineEnd();
    }

    std::string TakeField() { return m_separator != '\t' && m_rest.starts_with('"') ? TakeQuoted() : TakePlain(); }

    std::string TakePlain()
    {
        const std::size_t end = std::min(m_rest.find_first_of(std::string{m_separator, '\n'}), m_rest.size());
        std::string_view field = m_rest.substr(0, end);
        m_rest.remove_prefix(end);
        if (m_rest.empty() || m_rest.front() == '\n')
            field.remove_suffix(field.ends_with('\r') ? 1 : 0);
        return std::string(field);
    }

    std::string TakeQuoted()
    {
        m_rest.remove_prefix(1);
        std::string field;
        for (;;) {
            const std::size_t quote = m_rest.find('"');
            if (quote == std::string_view::npos)
                Refuse("a field in double quotes has no end");
            field += m_rest.substr(0, quote);
            m_line += static_cast<std::size_t>(
                std::count(m_rest.begin(), m_rest.begin() + static_cast<std::ptrdiff_t>(quote), '\n'));
            m_rest.remove_prefix(quote + 1);
            if (!m_rest.starts_with('"'))
                break;
            field += '"';
            m_rest.remove_prefix(1);
        }
        if (!m_rest.empty() && m_rest.find_first_of(std::string{m_separator, '\r', '\n'}) != 0)
            Refuse("something follows the end of a field in double quotes");
        return field;
    }

    bool TakeSeparator()
    {
        const bool isThere = m_rest.starts_with(m_separator);
        m_rest.remove_prefix(isThere ? 1 : 0);
        return isThere;
    }

    void TakeLineEnd()
    {
        m_rest.remove_prefix(m_rest.starts_with('\r') ? 1 : 0);
        m_rest.remove_prefix(m_rest.starts_with('\n') ? 1 : 0);
        ++m_line;
    }

    std::string_view m_rest;
    char m_separator = ',';
    std::size_t m_line = 1;
    /// The line that the fields in hand began in.
    std::size_t m_firstLine = 1;
};

bool IsNameless(const std::string& field)
{
    return field.empty() || field.find('\0') != std::string::npos;
}

/// Names may begin with the bytes of its mark, but hold no NUL, which every ASCII character has in UTF-16.
bool IsUtf16(std::string_view bytes)
{
    const bool hasMark = bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
    return hasMark && bytes.find('\0') != std::string_view::npos;
}

} // namespace

std::vector<NamePair> ParsePairs(std::string_view bytes)
{
    if (IsUtf16(bytes))
        throw Text::UsageError("the pairs are in UTF-16, as some spreadsheets write them; save them in UTF-8");
    TableReader table(bytes);
    std::vector<NamePair> pairs;
    for (std::vector<std::string> fields = table.NextLine(); !fields.empty(); fields = table.NextLine()) {
        if (fields.size() != 2)
            table.Refuse(
                "two fields are expected, the old and the new name, separated by a comma, a semicolon or a tab; " +
                std::string("the first line decides which"));
        if (std::any_of(fields.begin(), fields.end(), IsNameless))
            table.Refuse("a name is empty or holds a NUL");
        pairs.push_back(
            {VyrPlatform::Encoding::FromNameBytes(fields[0]), VyrPlatform::Encoding::FromNameBytes(fields[1])});
    }
    return pairs;
}

} // namespace VyrHost::Rename
