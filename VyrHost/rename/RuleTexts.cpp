// Parses numbers and lists of dates.
#include <VyrHost/rename/RuleTexts.h>

#include <VyrHost/text/Errors.h>
#include <VyrHost/text/SafeText.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <charconv>
#include <iterator>
#include <string>

namespace VyrHost::Rename {

int ParseNumber(const CString& text, int least, const char* what, int most)
{
    std::string digits;
    for (const char16_t unit : text.View())
        digits += unit < 0x80 ? static_cast<char>(unit) : '?';
    int number = 0;
    const char* const end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, number);
    if (error != std::errc() || stop != end || number < least || number > most)
        Text::RefuseValue(what, text,
                          "a whole number from " + std::to_string(least) + " to " + std::to_string(most) +
                              " is expected");
    return number;
}

int ParseDigits(const CString& text, const char* option)
{
    return ParseNumber(text, 0, option, widestNumber);
}

namespace {

/// "picture, modified and created".
std::string ListOfSources()
{
    std::string list;
    for (const Model::DateSourceWord& known : Model::dateSourceWords) {
        const bool isLast = &known == std::end(Model::dateSourceWords) - 1;
        list += list.empty() ? "" : isLast ? " and " : ", ";
        list += VyrPlatform::Encoding::ToUtf8(known.word);
    }
    return list;
}

} // namespace

std::vector<Model::DateSource> ParseDateSources(const CString& text)
{
    std::vector<Model::DateSource> sources;
    std::u16string_view rest = text;
    for (bool more = true; more;) {
        const std::size_t end = rest.find(u',');
        const std::u16string_view word = rest.substr(0, end);
        const auto* const found =
            std::find_if(std::begin(Model::dateSourceWords), std::end(Model::dateSourceWords),
                         [word](const Model::DateSourceWord& known) { return known.word == word; });
        if (found == std::end(Model::dateSourceWords))
            Text::RefuseValue("--date-from", text,
                              "a list of " + ListOfSources() + " is expected, separated by commas");
        if (std::find(sources.begin(), sources.end(), found->source) != sources.end())
            Text::RefuseValue("--date-from", text, Text::SafeText(word) + " is named twice");
        sources.push_back(found->source);
        more = end != std::u16string_view::npos;
        rest.remove_prefix(more ? end + 1 : rest.size());
    }
    return sources;
}

} // namespace VyrHost::Rename
