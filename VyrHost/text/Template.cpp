// Finds tokens and splits them into their parts.
#include <VyrHost/text/Template.h>

#include <VyrHost/text/NearestWord.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <cstddef>

namespace VyrHost::Text {

namespace {

constexpr auto none = std::u16string_view::npos;

bool IsLetter(char16_t unit)
{
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z');
}

bool IsWordUnit(char16_t unit)
{
    return IsLetter(unit) || (unit >= u'0' && unit <= u'9') || unit == u'_';
}

bool IsWord(std::u16string_view text)
{
    return !text.empty() && (std::all_of(text.begin(), text.end(), IsWordUnit) || text.find_first_not_of(u'#') == none);
}

/// Cuts off what is before the first of `marks`.
std::u16string_view TakeBefore(std::u16string_view& text, std::u16string_view marks)
{
    const std::u16string_view taken = text.substr(0, text.find_first_of(marks));
    text.remove_prefix(taken.size());
    return taken;
}

/// Cuts off `mark` and what is after it up to the first of `marks`; nothing where `text` begins with another.
std::optional<CString> TakeBehind(std::u16string_view& text, char16_t mark, std::u16string_view marks)
{
    if (!text.starts_with(mark))
        return std::nullopt;
    text.remove_prefix(1);
    return CString(TakeBefore(text, marks));
}

/// The token that `text` begins with.
std::optional<Token> ReadToken(std::u16string_view text)
{
    const std::size_t end = text.find_first_of(u"<>", 1);
    if (end == none || text[end] != u'>')
        return std::nullopt;
    std::u16string_view inside = text.substr(1, end - 1);
    const std::u16string_view word = TakeBefore(inside, u":?|");
    if (!IsWord(word))
        return std::nullopt;
    Token token{text.substr(0, end + 1), word};
    token.option = TakeBehind(inside, u':', u"?|");
    token.otherwise = TakeBehind(inside, u'?', u"|");
    while (auto change = TakeBehind(inside, u'|', u"|"))
        token.changes.push_back(std::move(*change));
    return token;
}

void AppendText(std::vector<TemplatePart>& parts, std::u16string_view text)
{
    if (parts.empty() || !std::holds_alternative<CString>(parts.back()))
        parts.emplace_back(CString());
    std::get<CString>(parts.back()) += text;
}

} // namespace

bool Token::IsBareWord() const
{
    const std::u16string_view letters = word;
    return !option && !otherwise && changes.empty() && std::all_of(letters.begin(), letters.end(), IsLetter);
}

std::vector<TemplatePart> CutTemplate(std::u16string_view text)
{
    std::vector<TemplatePart> parts;
    while (!text.empty()) {
        auto token = text.front() == u'<' ? ReadToken(text) : std::nullopt;
        if (token) {
            text.remove_prefix(token->whole.View().size());
            parts.emplace_back(std::move(*token));
            continue;
        }
        const std::size_t length = std::min(text.find(u'<', 1), text.size());
        AppendText(parts, text.substr(0, length));
        text.remove_prefix(length);
    }
    return parts;
}

std::string TokenHint(const Token& token, const std::vector<std::string>& words)
{
    return Hint(VyrPlatform::Encoding::ToUtf8(token.word), words, "<", ">");
}

} // namespace VyrHost::Text
