// Reads tables of two columns, and writes and reads the text that is edited.
#include <VyrHost/rename/NameLists.h>

#include <VyrHost/rename/TableReader.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/Input.h>
#include <VyrHost/text/SafeText.h>
#include <VyrPlatform/text/Encoding.h>
#include <VyrPlatform/text/Surrogates.h>

#include <algorithm>
#include <charconv>
#include <string>

namespace VyrHost::Rename {

namespace {

bool IsNameless(const std::string& field)
{
    return field.empty() || field.find('\0') != std::string::npos;
}

} // namespace

std::vector<NamePair> ParsePairs(std::string_view bytes)
{
    TableReader table(bytes, "the pairs", TableReader::Columns::Two);
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

namespace {

constexpr std::string_view explanation =
    "# Change the names after the tabs and save; leave the numbers as they are.\n"
    "# An entry whose line you remove keeps its name. Save an empty text to change nothing.\n"
    "# In a name \\\\ is a backslash, \\n a line end, \\t a tab.\n";

/// Takes the escape at the start of `text`; 0 when EscapeName does not write such an escape.
char16_t TakeEscape(std::string_view& text)
{
    if (text.starts_with("\\\\") || text.starts_with("\\n") || text.starts_with("\\t")) {
        const char16_t unit = text[1] == 'n' ? u'\n' : text[1] == 't' ? u'\t' : u'\\';
        text.remove_prefix(2);
        return unit;
    }
    const char16_t unit = Text::ReadUnitEscape(text).value_or(0);
    if (unit != 0)
        text.remove_prefix(Text::unitEscapeLength);
    return unit;
}

[[noreturn]] void Refuse(std::size_t line, const std::string& what)
{
    throw Text::UsageError("line " + std::to_string(line) + " of the edited list: " + what);
}

std::string_view TakeLine(std::string_view& text)
{
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

} // namespace

std::string EscapeName(std::u16string_view name)
{
    std::string text;
    while (!name.empty()) {
        const char16_t unit = name.front();
        const std::size_t length = VyrPlatform::BeginsWithPair(name) ? 2 : 1;
        if (unit == u'\\')
            text += "\\\\";
        else if (unit == u'\n')
            text += "\\n";
        else if (unit == u'\t')
            text += "\\t";
        else if (unit < u' ' || unit == 0x7F || VyrPlatform::BeginsWithLoneSurrogate(name))
            Text::AppendUnitEscape(text, unit);
        else
            VyrPlatform::Encoding::AppendUtf8(text, name.substr(0, length));
        name.remove_prefix(length);
    }
    return text;
}

CString UnescapeName(std::string_view text)
{
    CString name;
    while (!text.empty()) {
        if (text.front() == '\\') {
            if (const char16_t unit = TakeEscape(text)) {
                name += unit;
                continue;
            }
        }
        // Literal text up to the next backslash.
        const std::size_t end = std::min(text.find('\\', 1), text.size());
        name += VyrPlatform::Encoding::FromNameBytes(text.substr(0, end));
        text.remove_prefix(end);
    }
    return name;
}

std::string TextForEditing(const std::vector<CString>& names)
{
    std::string text(explanation);
    for (std::size_t index = 0; index < names.size(); ++index)
        text.append(std::to_string(index + 1)).append("\t").append(EscapeName(names[index])).append("\n");
    return text;
}

std::unordered_map<std::uint32_t, CString> ParseEdited(std::string_view text, std::size_t count)
{
    std::unordered_map<std::uint32_t, CString> names;
    text = Text::SkipByteOrderMark(text);
    for (std::size_t number = 1; !text.empty(); ++number) {
        const std::string_view line = TakeLine(text);
        if (line.empty() || line.starts_with('#'))
            continue;
        std::uint32_t place = 0;
        const char* const end = line.data() + line.size();
        const auto [stop, error] = std::from_chars(line.data(), end, place);
        if (error != std::errc() || stop == end || *stop != '\t')
            Refuse(number, "a number and a tab are expected before the name");
        if (place == 0 || place > count)
            Refuse(number, "there is no entry of the number " + std::to_string(place));
        const CString name = UnescapeName(line.substr(static_cast<std::size_t>(stop - line.data()) + 1));
        if (name.IsEmpty())
            Refuse(number, "the name is empty; remove the line to keep the old one");
        if (!names.emplace(place - 1, name).second)
            Refuse(number, "the number " + std::to_string(place) + " is there twice");
    }
    return names;
}

} // namespace VyrHost::Rename
