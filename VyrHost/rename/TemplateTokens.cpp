// Refuses letters and tokens without a meaning, and characters that no name can contain.
#include <VyrHost/rename/TemplateTokens.h>

#include <VyrHost/text/Errors.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/text/Template.h>
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrPlatform/files/FileSystem.h>

#include <algorithm>
#include <initializer_list>
#include <span>
#include <string>
#include <variant>

namespace VyrHost::Rename {

namespace {

using VyrLibraryUtils::DateTimeUtils;

constexpr std::u16string_view dateTokens[] = {Token::name, Token::make, Token::model, Token::folder};
constexpr std::u16string_view numberTokens[] = {Token::name, Token::number};
constexpr std::u16string_view millisecondLetters = u"SSS";
constexpr auto none = std::u16string_view::npos;
constexpr const char* dateLetters =
    "yyyy-MM-dd HH.mm.ss is a date with its time, and \"vyr help dates\" has all letters";

bool IsLetter(char16_t unit)
{
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z');
}

bool IsKnown(std::u16string_view token, std::span<const std::u16string_view> known)
{
    return std::find(known.begin(), known.end(), token) != known.end();
}

std::string ListOf(std::span<const std::u16string_view> tokens)
{
    std::string list;
    for (const std::u16string_view token : tokens)
        list.append(list.empty() ? "" : ", ").append(Text::SafeText(token));
    return list;
}

/// Checks a date format from its start to its end.
class DateFormatCheck
{
public:
    /// @param shown  the text to show in messages.
    DateFormatCheck(std::u16string_view format, const char* option, std::u16string_view shown)
        : m_option(option), m_shown(shown), m_rest(format)
    {}

    void Run()
    {
        while (!m_rest.empty()) {
            if (m_rest.front() == u'\'')
                CheckQuoted();
            else if (m_rest.front() == u'<')
                CheckToken();
            else
                CheckPlain(Take(std::min(m_rest.find_first_of(u"'<"), m_rest.size())));
        }
    }

private:
    [[noreturn]] void Refuse(std::initializer_list<std::string_view> parts) const
    {
        std::string reason;
        for (const std::string_view part : parts)
            reason += part;
        Text::RefuseValue(m_option, m_shown, reason);
    }

    std::u16string_view Take(std::size_t length)
    {
        const std::u16string_view taken = m_rest.substr(0, length);
        m_rest.remove_prefix(taken.size());
        return taken;
    }

    /// Two apostrophes mean one, so they do not enclose a text that could contain a token.
    void CheckQuoted()
    {
        const std::size_t end = m_rest.find(u'\'', 1);
        const std::u16string_view quoted = Take(end == none ? m_rest.size() : end + 1);
        for (const std::u16string_view token : dateTokens)
            if (quoted.find(token) != none)
                Refuse({"the apostrophes make text of ", Text::SafeText(token), "; end them before it"});
    }

    void CheckToken()
    {
        const std::size_t end = m_hasEnd ? m_rest.find(u'>') : none;
        // Then no later "<" has an end either.
        m_hasEnd = end != none;
        const std::u16string_view token = Take(m_hasEnd ? end + 1 : 1);
        if (m_hasEnd && !IsKnown(token, dateTokens))
            Refuse({"it knows no ", Text::SafeText(token), ", only ", ListOf(dateTokens),
                    "; --name knows others; text goes in apostrophes, such as '", Text::SafeText(token), "'"});
    }

    void CheckPlain(std::u16string_view text) const
    {
        for (const std::u16string_view piece : CutAtMilliseconds(text))
            CheckLetters(piece);
    }

    void CheckLetters(std::u16string_view text) const
    {
        for (std::size_t sign = text.find(u'%'); sign != none; sign = text.find(u'%', sign + 1))
            if (sign + 1 < text.size() && IsLetter(text[sign + 1]))
                Refuse({"a percent sign is text here; ", dateLetters});
        // In the pattern that the library makes of it, a percent sign precedes each letter with a meaning.
        const CString pattern = DateTimeUtils::GetDateTimeFormat(text, {});
        std::u16string_view rest = pattern;
        while (!rest.empty()) {
            if (rest.front() == u'%') {
                rest.remove_prefix(rest.starts_with(u"%-") ? 3 : 2);
                continue;
            }
            if (IsLetter(rest.front())) {
                const char letter = static_cast<char>(rest.front());
                Refuse({"no part of a date is called ", {&letter, 1}, "; ", dateLetters, "; text goes in apostrophes"});
            }
            rest.remove_prefix(1);
        }
    }

    const char* const m_option;
    const std::u16string_view m_shown;
    std::u16string_view m_rest;
    bool m_hasEnd = true;
};

} // namespace

void RequireDateFormat(std::u16string_view format)
{
    DateFormatCheck(format, "--date", format).Run();
}

void RequireDateOption(std::u16string_view format, const char* option, std::u16string_view shown)
{
    DateFormatCheck(format, option, shown).Run();
}

std::vector<std::u16string_view> CutAtMilliseconds(std::u16string_view format)
{
    std::vector<std::u16string_view> pieces;
    bool isQuoted = false;
    std::size_t begin = 0;
    for (std::size_t at = 0; at < format.size();) {
        isQuoted = isQuoted != (format[at] == u'\'');
        if (!isQuoted && format.substr(at).starts_with(millisecondLetters)) {
            pieces.push_back(format.substr(begin, at - begin));
            at += millisecondLetters.size();
            begin = at;
        } else {
            ++at;
        }
    }
    pieces.push_back(format.substr(begin));
    return pieces;
}

void RequireNumberTokens(std::u16string_view text)
{
    for (const Text::TemplatePart& part : Text::CutTemplate(text)) {
        const auto* const token = std::get_if<Text::Token>(&part);
        if (!token)
            continue;
        const bool isMeant = token->IsBareWord() || token->option || token->otherwise || !token->changes.empty();
        if (isMeant && !IsKnown(token->whole, numberTokens))
            Text::RefuseValue("--number", text,
                              "it knows no " + Text::SafeText(token->whole) + ", only " + ListOf(numberTokens) +
                                  "; --name knows others, \"vyr help tokens\" has them");
    }
}

void RequireNameText(std::u16string_view text, const char* option)
{
    const auto isBad = [](char16_t unit) {
        return unit == 0 || VyrPlatform::FileSystem::IsSeparator(unit);
    };
    if (std::any_of(text.begin(), text.end(), isBad))
        Text::RefuseValue(
            option, text,
            "a name cannot hold a folder separator or a NUL; in --date and --name, <Folder> ends the name of "
            "a folder to move into");
}

} // namespace VyrHost::Rename
