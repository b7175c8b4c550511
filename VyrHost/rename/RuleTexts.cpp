// What the texts of all rules have in common: numbers, places, and what a name can hold.
#include <VyrHost/rename/RuleTexts.h>

#include <VyrHost/rename/LiteralText.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/text/UsageError.h>
#include <VyrPlatform/files/FileSystem.h>

#include <algorithm>
#include <charconv>
#include <limits>
#include <string>
#include <utility>

namespace VyrHost::Rename {

void RequireNameText(std::u16string_view text, const char* option)
{
    const auto isBad = [](char16_t unit) {
        return unit == 0 || VyrPlatform::FileSystem::IsSeparator(unit);
    };
    if (std::any_of(text.begin(), text.end(), isBad))
        Text::RefuseValue(option, text, "a name cannot hold a folder separator or a NUL");
}

int ParseNumber(const CString& text, int least, const char* what)
{
    std::string digits;
    for (const char16_t unit : text.View())
        digits += unit < 0x80 ? static_cast<char>(unit) : '?';
    int number = 0;
    const char* const end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, number);
    if (error != std::errc() || stop != end || number < least)
        Text::RefuseValue(what, text,
                          "a whole number from " + std::to_string(least) + " to " +
                              std::to_string(std::numeric_limits<int>::max()) + " is expected");
    return number;
}

std::vector<DateSource> ParseDateSources(const CString& text)
{
    constexpr std::pair<std::u16string_view, DateSource> Names[] = {{u"modified", DateSource::Modified},
                                                                    {u"created", DateSource::Created},
                                                                    {u"accessed", DateSource::Accessed},
                                                                    {u"picture", DateSource::Picture}};
    std::vector<DateSource> sources;
    std::u16string_view rest = text;
    for (bool more = true; more;) {
        const std::size_t end = rest.find(u',');
        const std::u16string_view word = rest.substr(0, end);
        const auto* const found =
            std::find_if(std::begin(Names), std::end(Names), [word](const auto& name) { return name.first == word; });
        if (found == std::end(Names))
            Text::RefuseValue("--date-from", text,
                              "a list of picture, modified, created and accessed is expected, parted by commas");
        if (std::find(sources.begin(), sources.end(), found->second) != sources.end())
            Text::RefuseValue("--date-from", text, Text::SafeText(word) + " is named twice");
        sources.push_back(found->second);
        more = end != std::u16string_view::npos;
        rest.remove_prefix(more ? end + 1 : rest.size());
    }
    return sources;
}

} // namespace VyrHost::Rename
