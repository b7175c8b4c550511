#include <VyrHost/media/PictureDates.h>

#include <VyrHost/media/Instants.h>
#include <VyrHost/media/Texts.h>
#include <VyrHost/media/Xmp.h>
#include <VyrLibraryUtils/pictures/Picture.h>
#include <VyrPlatform/time/Epochs.h>

#include <algorithm>
#include <chrono>
#include <string>

namespace VyrHost::Media {

namespace {

namespace Pictures = VyrLibraryUtils::Pictures;

/// Reads a text from its start.
class Front
{
public:
    explicit Front(std::string_view text) : m_rest(text) {}

    /// Takes a number of exactly `count` digits; -1, without taking anything, if there is none.
    int Number(std::size_t count)
    {
        const std::string_view digits = m_rest.substr(0, count);
        if (digits.size() < count || CountDigits(digits) < count)
            return -1;
        m_rest.remove_prefix(count);
        int number = 0;
        for (const char digit : digits)
            number = number * 10 + (digit - '0');
        return number;
    }
    std::string_view Digits()
    {
        const std::string_view digits = m_rest.substr(0, CountDigits(m_rest));
        m_rest.remove_prefix(digits.size());
        return digits;
    }
    /// Takes the next character if it is one of `characters`; else 0.
    char OneOf(std::string_view characters)
    {
        if (m_rest.empty() || characters.find(m_rest.front()) == std::string_view::npos)
            return 0;
        const char taken = m_rest.front();
        m_rest.remove_prefix(1);
        return taken;
    }

private:
    static std::size_t CountDigits(std::string_view text)
    {
        return std::min(text.find_first_not_of("0123456789"), text.size());
    }

    std::string_view m_rest;
};

/// "+02:00", "-0530", "Z".
std::optional<int> TakeMinutesAhead(Front& front)
{
    const char sign = front.OneOf("+-Z");
    if (sign == 0 || sign == 'Z')
        return sign == 'Z' ? std::optional(0) : std::nullopt;
    const int hours = front.Number(2);
    front.OneOf(":");
    const int minutes = front.Number(2);
    constexpr int mostHours = 15;
    if (hours < 0 || hours > mostHours || minutes < 0 || minutes > 59)
        return std::nullopt;
    return (sign == '-' ? -1 : 1) * (hours * 60 + minutes);
}

CString ToText(std::string_view digits)
{
    // The finest resolution.
    constexpr std::size_t most = 9;
    return TextOf(digits.substr(0, most));
}

/// `date` with the fraction and the offset in the tags `fraction` and `ahead`.
std::optional<PictureDate> Read(Pictures::ByteSource& picture, Pictures::PictureTag date, std::uint16_t fraction,
                                std::uint16_t ahead)
{
    std::optional<PictureDate> read = ParsePictureDate(Pictures::ReadPicture(picture, date));
    if (!read)
        return read;
    const std::string digits = Pictures::ReadPicture(picture, Pictures::ExifTag(fraction));
    if (!digits.empty())
        read->fraction = ToText(Front(digits).Digits());
    const std::string offset = Pictures::ReadPicture(picture, Pictures::ExifTag(ahead));
    Front front(offset);
    if (const auto minutes = TakeMinutesAhead(front))
        read->minutesAhead = minutes;
    return read;
}

} // namespace

std::optional<VyrPlatform::FileTicks> PictureDate::Instant() const
{
    if (!minutesAhead || dateTime.GetStatus() != COleDateTime::valid)
        return std::nullopt;
    using namespace std::chrono;
    const sys_days day = year(dateTime.GetYear()) / dateTime.GetMonth() / dateTime.GetDay();
    const auto sinceEpoch = day.time_since_epoch() + hours(dateTime.GetHour()) + minutes(dateTime.GetMinute()) +
                            seconds(dateTime.GetSecond()) - minutes(*minutesAhead);
    return InstantOf(VyrPlatform::secondsToUnixEpoch + duration_cast<seconds>(sinceEpoch).count());
}

std::optional<PictureDate> ParsePictureDate(std::string_view text)
{
    Front front(text);
    const int year = front.Number(4);
    front.OneOf(":-");
    const int month = front.Number(2);
    front.OneOf(":-");
    const int day = front.Number(2);
    PictureDate date;
    int hour = 0;
    int minute = 0;
    int second = 0;
    if (front.OneOf(" T") != 0) {
        hour = front.Number(2);
        front.OneOf(":");
        minute = front.Number(2);
        if (front.OneOf(":") != 0)
            second = front.Number(2);
        if (front.OneOf(".,") != 0)
            date.fraction = ToText(front.Digits());
        date.minutesAhead = TakeMinutesAhead(front);
    }
    date.dateTime = COleDateTime(year, month, day, hour, minute, second);
    return date.dateTime.GetStatus() == COleDateTime::valid ? std::optional(date) : std::nullopt;
}

std::optional<PictureDate> ReadTaken(Pictures::ByteSource& picture)
{
    return Read(picture, Pictures::PictureTag::DateTimeOriginal, 0x9291, 0x9011);
}

std::optional<PictureDate> ReadDigitized(Pictures::ByteSource& picture)
{
    return Read(picture, Pictures::ExifTag(0x9004), 0x9292, 0x9012);
}

std::optional<PictureDate> ReadXmpDate(std::string_view packet)
{
    const auto date = ParsePictureDate(XmpProperty(packet, XmpSpace::basic, "CreateDate"));
    return date ? date : ParsePictureDate(XmpProperty(packet, XmpSpace::photoshop, "DateCreated"));
}

} // namespace VyrHost::Media
