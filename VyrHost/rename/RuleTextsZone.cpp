// Parses time zones.
#include <VyrHost/rename/RuleTexts.h>

#include <VyrHost/text/Errors.h>
#include <VyrHost/text/NearestWord.h>
#include <VyrHostPlatform/TimeZoneFiles.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <iterator>
#include <span>
#include <string>

namespace VyrHost::Rename {

namespace {

constexpr const char* option = "--time-zone";

[[noreturn]] void RefuseZone(const CString& text, const std::string& hint)
{
    Text::RefuseValue(
        option, text,
        "UTC, a zone such as Europe/Berlin, or hours and minutes ahead of UTC such as +02:00 or -9:30, 14 "
        "at most, are expected" +
            hint);
}

/// A hint at a similar zone, by its whole name or by that of its city.
std::string HintOf(const std::string& typed)
{
    const std::vector<std::string> names = VyrHostPlatform::TimeZoneNames();
    std::string hint = Text::Hint(typed, names);
    if (!hint.empty())
        return hint;
    std::vector<std::string> cities;
    std::ranges::transform(names, std::back_inserter(cities),
                           [](const std::string& name) { return name.substr(name.rfind('/') + 1); });
    const auto city = std::ranges::find(cities, Text::NearestWord(typed, cities));
    if (city == cities.end())
        return {};
    const std::string& name = names[static_cast<std::size_t>(city - cities.begin())];
    return Text::Hint(name, std::span(&name, 1));
}

ZoneClock ParseZoneName(const CString& text)
{
    const std::string name = VyrPlatform::Encoding::ToUtf8(text);
    if (const auto clock = ZoneClock::Read(VyrHostPlatform::TimeZoneFile(name)))
        return *clock;
    RefuseZone(text, HintOf(name));
}

} // namespace

ZoneClock ParseTimeZone(const CString& text)
{
    constexpr int secondsPerMinute = 60;
    constexpr int minutesPerHour = 60;
    constexpr int most = 14 * minutesPerHour;
    const std::u16string_view zone = text;
    if (zone == u"UTC")
        return ZoneClock(0);
    if (!zone.starts_with(u'+') && !zone.starts_with(u'-'))
        return ParseZoneName(text);
    const auto isDigit = [](char16_t unit) {
        return unit >= u'0' && unit <= u'9';
    };
    const std::size_t colon = std::min(zone.find(u':'), zone.size());
    const std::u16string_view hours = zone.substr(1, colon - 1);
    const std::u16string_view minutes = zone.substr(std::min(colon + 1, zone.size()));
    const bool areNumbers = !hours.empty() && hours.size() <= 2 && std::ranges::all_of(hours, isDigit) &&
                            (colon == zone.size() || minutes.size() == 2) && std::ranges::all_of(minutes, isDigit);
    if (!areNumbers)
        RefuseZone(text, {});
    const int rest = minutes.empty() ? 0 : ParseNumber(minutes, 0, option);
    const int ahead = ParseNumber(hours, 0, option) * minutesPerHour + rest;
    if (rest >= minutesPerHour || ahead > most)
        RefuseZone(text, {});
    return ZoneClock((zone.front() == u'-' ? -ahead : ahead) * secondsPerMinute);
}

} // namespace VyrHost::Rename
