#include <VyrHost/media/ExifNumbers.h>

#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace VyrHost::Media {

namespace {

CString ToText(std::string_view ascii)
{
    return VyrPlatform::Encoding::FromUtf8(ascii);
}

double WholeOf(std::string_view digits)
{
    std::int64_t number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return static_cast<double>(number);
}

/// A fraction over 0 is infinite; 0/0 is not a number.
double NumberOf(std::string_view word)
{
    const std::size_t bar = word.find('/');
    if (bar == std::string_view::npos)
        return WholeOf(word);
    const double above = WholeOf(word.substr(0, bar));
    const double below = WholeOf(word.substr(bar + 1));
    if (below == 0)
        return above == 0 ? std::numeric_limits<double>::quiet_NaN() : std::numeric_limits<double>::infinity();
    return above / below;
}

std::vector<double> NumbersOf(std::string_view value)
{
    std::vector<double> numbers;
    while (!value.empty()) {
        const std::size_t end = std::min(value.find(' '), value.size());
        numbers.push_back(NumberOf(value.substr(0, end)));
        value.remove_prefix(std::min(end + 1, value.size()));
    }
    return numbers;
}

/// The first word, if it is a number.
std::optional<double> FirstOf(std::string_view value)
{
    const std::vector<double> numbers = NumbersOf(value);
    return !numbers.empty() && std::isfinite(numbers.front()) ? std::optional(numbers.front()) : std::nullopt;
}

/// With exactly `places` decimal places.
std::string Fixed(double number, int places)
{
    char text[512];
    const auto end = std::to_chars(std::begin(text), std::end(text), number, std::chars_format::fixed, places).ptr;
    return std::string(text, end);
}

/// With at most `digits` significant digits, and no zeros after the last other digit.
std::string Shortest(double number, int digits)
{
    char text[64];
    const auto end = std::to_chars(std::begin(text), std::end(text), number, std::chars_format::general, digits).ptr;
    return std::string(text, end);
}

/// As precise as a fraction of Exif.
std::string Plain(double number)
{
    constexpr int digits = 10;
    if (std::isnan(number))
        return "undef";
    return std::isinf(number) ? "inf" : Shortest(number, digits);
}

std::string Seconds(double seconds)
{
    constexpr double longestFraction = 0.25001;
    if (seconds > 0 && seconds < longestFraction)
        return "1/" + Fixed(std::floor(0.5 + 1 / seconds), 0);
    std::string text = Fixed(seconds, 1);
    if (text.ends_with(".0"))
        text.resize(text.size() - 2);
    return text;
}

/// "+1/3" for a third, if `number` is a multiple of 1/`parts`.
std::optional<std::string> Multiple(double number, int parts)
{
    // Fractions such as 33/100 stand for thirds.
    constexpr double close = 0.999;
    const double many = number * parts;
    const double whole = std::trunc(many);
    if (whole == 0 || whole / many <= close)
        return std::nullopt;
    const std::string sign = whole > 0 ? "+" : "";
    return sign + Fixed(whole, 0) + (parts == 1 ? "" : "/" + std::to_string(parts));
}

CString WithUnit(std::string_view value, int places, std::string_view unit)
{
    const auto number = FirstOf(value);
    return number ? ToText(Fixed(*number, places).append(unit)) : CString();
}

/// The word at the index `value`.
CString WordFor(std::string_view value, std::span<const std::u16string_view> words)
{
    const auto number = FirstOf(value);
    const bool isKnown = number && *number >= 0 && *number < static_cast<double>(words.size());
    return isKnown ? CString(words[static_cast<std::size_t>(*number)]) : CString();
}

/// "24-70": the second number only if it differs.
std::string Range(double from, double to)
{
    const auto show = [](double number) {
        return std::isfinite(number) ? Plain(number) : "?";
    };
    const std::string first = show(from);
    const std::string second = show(to);
    return second == first || second == "0" ? first : first + "-" + second;
}

} // namespace

CString ShowNumbers(std::string_view value)
{
    std::string text;
    for (const double number : NumbersOf(value))
        text += (text.empty() ? "" : ", ") + Plain(number);
    return ToText(text);
}

CString ShowExposureTime(std::string_view value)
{
    const auto seconds = FirstOf(value);
    return seconds ? ToText(Seconds(*seconds)) : CString();
}

CString ShowShutterSpeed(std::string_view value)
{
    constexpr double most = 100;
    const auto speed = FirstOf(value);
    return speed && std::abs(*speed) < most ? ToText(Seconds(std::exp2(-*speed))) : CString();
}

CString ShowFNumber(std::string_view value)
{
    const auto number = FirstOf(value);
    return number && *number > 0 ? ToText(Fixed(*number, *number < 1 ? 2 : 1)) : CString();
}

CString ShowAperture(std::string_view value)
{
    constexpr double most = 100;
    const auto aperture = FirstOf(value);
    return aperture && std::abs(*aperture) < most ? ToText(Fixed(std::exp2(*aperture / 2), 1)) : CString();
}

CString ShowCompensation(std::string_view value)
{
    // Keeps a multiple from being rounded down to the one before.
    constexpr double upwards = 1.00001;
    const auto number = FirstOf(value);
    if (!number)
        return {};
    if (*number == 0)
        return u"0";
    for (const int parts : {1, 2, 3})
        if (const auto text = Multiple(*number * upwards, parts))
            return ToText(*text);
    return ToText((*number > 0 ? "+" : "") + Shortest(*number * upwards, 3));
}

CString ShowFocalLength(std::string_view value)
{
    return WithUnit(value, 1, " mm");
}

CString ShowMillimetres(std::string_view value)
{
    return WithUnit(value, 0, " mm");
}

CString ShowMetres(std::string_view value)
{
    const auto number = FirstOf(value);
    return number ? ToText(Plain(*number) + " m") : CString();
}

CString ShowLens(std::string_view value)
{
    const std::vector<double> numbers = NumbersOf(value);
    constexpr std::size_t count = 4;
    return numbers.size() == count ? ToText(Range(numbers[0], numbers[1]) + "mm f/" + Range(numbers[2], numbers[3]))
                                   : CString();
}

CString ShowTime(std::string_view value)
{
    const std::vector<double> numbers = NumbersOf(value);
    constexpr std::size_t count = 3;
    std::string text;
    if (numbers.size() != count)
        return {};
    for (const double number : numbers) {
        if (!(number >= 0 && number < 100))
            return {};
        const std::string digits = Plain(number);
        text += (text.empty() ? "" : ":") + std::string(number < 10 ? "0" : "") + digits;
    }
    return ToText(text);
}

CString ShowDegrees(std::string_view value, std::string_view side)
{
    constexpr int places = 6;
    double degrees = 0;
    double unit = 1;
    for (const double number : NumbersOf(value)) {
        degrees += number / unit;
        unit *= 60;
    }
    if (unit == 1 || !std::isfinite(degrees))
        return {};
    const bool isNegative = side.starts_with('S') || side.starts_with('W');
    return ToText((isNegative ? "-" : "+") + Fixed(degrees, places));
}

CString ShowAltitude(std::string_view value, std::string_view side)
{
    const auto metres = FirstOf(value);
    if (!metres)
        return {};
    const std::string number = Plain(std::trunc(*metres * 10) / 10);
    return ToText(number + (side == "1" ? " m Below Sea Level" : " m Above Sea Level"));
}

CString ShowOrientation(std::string_view value)
{
    constexpr std::u16string_view words[] = {u"",
                                             u"Horizontal (normal)",
                                             u"Mirror horizontal",
                                             u"Rotate 180",
                                             u"Mirror vertical",
                                             u"Mirror horizontal and rotate 270 CW",
                                             u"Rotate 90 CW",
                                             u"Mirror horizontal and rotate 90 CW",
                                             u"Rotate 270 CW"};
    return WordFor(value, words);
}

CString ShowExposureProgram(std::string_view value)
{
    constexpr std::u16string_view words[] = {u"Not Defined",
                                             u"Manual",
                                             u"Program AE",
                                             u"Aperture-priority AE",
                                             u"Shutter speed priority AE",
                                             u"Creative (Slow speed)",
                                             u"Action (High speed)",
                                             u"Portrait",
                                             u"Landscape",
                                             u"Bulb"};
    return WordFor(value, words);
}

CString ShowMeteringMode(std::string_view value)
{
    constexpr std::u16string_view words[] = {
        u"Unknown", u"Average", u"Center-weighted average", u"Spot", u"Multi-spot", u"Multi-segment", u"Partial"};
    return value == "255" ? CString(u"Other") : WordFor(value, words);
}

CString ShowExposureMode(std::string_view value)
{
    constexpr std::u16string_view words[] = {u"Auto", u"Manual", u"Auto bracket"};
    return WordFor(value, words);
}

CString ShowWhiteBalance(std::string_view value)
{
    constexpr std::u16string_view words[] = {u"Auto", u"Manual"};
    return WordFor(value, words);
}

CString ShowSceneCaptureType(std::string_view value)
{
    constexpr std::u16string_view words[] = {u"Standard", u"Landscape", u"Portrait", u"Night", u"Other"};
    return WordFor(value, words);
}

} // namespace VyrHost::Media
