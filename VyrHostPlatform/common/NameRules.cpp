// Checks names. Applies the rules of Windows on both systems, since files are moved between them.
#include <VyrHostPlatform/NameRules.h>

#include <VyrHostPlatform/common/SystemNameRules.h>

#include <algorithm>
#include <array>

namespace VyrHostPlatform {

namespace {

char16_t Upper(char16_t unit)
{
    return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - (u'a' - u'A')) : unit;
}

bool EqualsWord(std::u16string_view text, std::u16string_view word)
{
    return std::equal(text.begin(), text.end(), word.begin(), word.end(),
                      [](char16_t left, char16_t right) { return Upper(left) == right; });
}

bool IsPortDigit(char16_t unit)
{
    return (unit >= u'0' && unit <= u'9') || unit == u'\u00B9' || unit == u'\u00B2' || unit == u'\u00B3';
}

bool IsReserved(std::u16string_view name)
{
    constexpr std::array<std::u16string_view, 6> words = {u"CON", u"PRN", u"AUX", u"NUL", u"CONIN$", u"CONOUT$"};
    std::u16string_view stem = name.substr(0, name.find(u'.'));
    stem = stem.substr(0, stem.find_last_not_of(u' ') + 1);
    if (stem.size() == 4 && IsPortDigit(stem[3]))
        return EqualsWord(stem.substr(0, 3), u"COM") || EqualsWord(stem.substr(0, 3), u"LPT");
    return std::any_of(words.begin(), words.end(), [stem](auto word) { return EqualsWord(stem, word); });
}

/// The characters that Windows forbids, by their code (all are ASCII).
constexpr auto windowsForbidden = [] {
    std::array<bool, 0x80> forbidden{};
    std::fill_n(forbidden.begin(), 0x20, true);
    for (const char16_t unit : std::u16string_view(u"<>:\"/\\|?*"))
        forbidden[unit] = true;
    return forbidden;
}();

bool HasForbiddenOnWindows(std::u16string_view name)
{
    return std::any_of(name.begin(), name.end(),
                       [](char16_t unit) { return unit < windowsForbidden.size() && windowsForbidden[unit]; });
}

/// The first fault for which this system refuses a name.
NameFault FindError(std::u16string_view name)
{
    if (name.empty() || name == u"." || name == u"..")
        return NameFault::NoName;
    if (std::any_of(name.begin(), name.end(), SystemNameRules::IsForbidden))
        return NameFault::ForbiddenCharacter;
    return SystemNameRules::IsTooLong(name) ? NameFault::TooLong : NameFault::None;
}

/// The first fault that a name has on Windows.
NameFault FindWindowsFault(std::u16string_view name)
{
    if (HasForbiddenOnWindows(name))
        return NameFault::ForbiddenCharacter;
    if (IsReserved(name))
        return NameFault::ReservedWord;
    if (name.back() == u'.' || name.back() == u' ')
        return NameFault::TrailingDotOrBlank;
    return NameFault::None;
}

} // namespace

NameVerdict CheckName(std::u16string_view name)
{
    if (const NameFault error = FindError(name); error != NameFault::None)
        return {error, true};
    const NameFault fault = FindWindowsFault(name);
    return {fault, fault != NameFault::None && SystemNameRules::IsError(fault)};
}

} // namespace VyrHostPlatform
