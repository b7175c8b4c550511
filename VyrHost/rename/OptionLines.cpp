#include <VyrHost/rename/OptionLines.h>

#include <VyrHost/text/Errors.h>
#include <VyrHost/text/Input.h>
#include <VyrHost/text/QuotedText.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>

namespace VyrHost::Rename {

namespace {

constexpr std::size_t longestText = 1'048'576;
constexpr std::string_view blanks = " \t";

std::string_view TakeLine(std::string_view& text)
{
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

void SkipBlanks(std::string_view& line)
{
    line.remove_prefix(std::min(line.find_first_not_of(blanks), line.size()));
}

std::string TakeQuoted(std::string_view& line, std::size_t number)
{
    auto word = Text::TakeQuoted(line);
    if (!word)
        RefuseLine(number, "a double quote is not closed");
    if (!line.empty() && blanks.find(line.front()) == std::string_view::npos)
        RefuseLine(number, "a blank is missing after a double quote; two of them within quotes are one");
    return *std::move(word);
}

std::string TakeWord(std::string_view& line, std::size_t number)
{
    if (line.starts_with('"'))
        return TakeQuoted(line, number);
    const std::size_t end = std::min(line.find_first_of(blanks), line.size());
    std::string word(line.substr(0, end));
    line.remove_prefix(end);
    return word;
}

} // namespace

void RefuseLine(std::size_t number, const std::string& reason)
{
    throw Text::UsageError("line " + std::to_string(number) + ": " + reason);
}

std::vector<OptionLine> ReadOptionLines(std::string_view text)
{
    if (text.size() > longestText)
        throw Text::UsageError("it is longer than 1 MiB, so it holds no rules");
    text = Text::SkipByteOrderMark(text);
    std::vector<OptionLine> lines;
    for (std::size_t number = 1; !text.empty(); ++number) {
        std::string_view line = TakeLine(text);
        if (line.find('\0') != std::string_view::npos)
            RefuseLine(number, "it holds a NUL");
        SkipBlanks(line);
        if (line.empty() || line.starts_with('#'))
            continue;
        OptionLine& option = lines.emplace_back();
        option.number = number;
        for (; !line.empty(); SkipBlanks(line))
            option.words.push_back(VyrPlatform::Encoding::FromNameBytes(TakeWord(line, number)));
    }
    return lines;
}

std::string WriteOptionLine(const std::vector<CString>& words)
{
    std::string line;
    for (const CString& word : words) {
        const std::string bytes = VyrPlatform::Encoding::ToNameBytes(word);
        if (bytes.find_first_of(std::string_view("\n\r\0", 3)) != std::string::npos)
            throw Text::UsageError("a text with a line end or a NUL cannot be kept");
        if (!line.empty())
            line += ' ';
        // A byte order mark at the beginning of the text would not be part of the word.
        const bool hasMark = Text::SkipByteOrderMark(bytes) != bytes;
        if (!bytes.empty() && !hasMark && bytes.find_first_of(" \t\"#") == std::string::npos) {
            line += bytes;
            continue;
        }
        line += '"';
        for (const char byte : bytes)
            line.append(byte == '"' ? 2 : 1, byte);
        line += '"';
    }
    return line + "\n";
}

} // namespace VyrHost::Rename
