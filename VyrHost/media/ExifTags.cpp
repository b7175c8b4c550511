// The table of tags, and the texts that exiftool gives their values.
#include <VyrHost/media/ExifTags.h>

#include <VyrHost/media/ExifNumbers.h>
#include <VyrHost/media/Texts.h>
#include <VyrHost/media/Xmp.h>
#include <VyrLibraryUtils/pictures/Picture.h>

#include <algorithm>
#include <array>

namespace VyrHost::Media {

namespace {

namespace Pictures = VyrLibraryUtils::Pictures;
using Pictures::PictureTag;

CString Wide(std::string_view bytes)
{
    return WideTextOf(bytes);
}

/// A comment begins with eight bytes that name its character set.
CString Comment(std::string_view bytes)
{
    constexpr std::size_t nameSize = 8;
    const std::string_view content = bytes.substr(std::min(nameSize, bytes.size()));
    return bytes.starts_with("UNICODE") ? WideTextOf(content) : TextOf(content);
}

struct Row
{
    std::u16string_view name;
    PictureTag tag;
    /// Formats the value from the picture readers.
    CString (*show)(std::string_view value);
};

constexpr PictureTag ImageNumbers(std::uint16_t number)
{
    return AsNumbers(Pictures::ImageTag(number));
}
constexpr PictureTag ExifNumbers(std::uint16_t number)
{
    return AsNumbers(Pictures::ExifTag(number));
}
constexpr PictureTag PlaceNumbers(std::uint16_t number)
{
    return AsNumbers(Pictures::PlaceTag(number));
}

/// Sources: Exif 2.32, sections 4.6.4 to 4.6.6, and the names and texts of ExifTool 12.57
/// (lib/Image/ExifTool/TagNames).
constexpr Row exifRows[] = {
    {u"ImageDescription", Pictures::ImageTag(0x010E), TextOf},
    {u"Make", PictureTag::Make, TextOf},
    {u"Model", PictureTag::Model, TextOf},
    {u"Orientation", ImageNumbers(0x0112), ShowOrientation},
    {u"Software", Pictures::ImageTag(0x0131), TextOf},
    {u"ModifyDate", Pictures::ImageTag(0x0132), TextOf},
    {u"Artist", Pictures::ImageTag(0x013B), TextOf},
    {u"HostComputer", Pictures::ImageTag(0x013C), TextOf},
    {u"Rating", ImageNumbers(0x4746), ShowNumbers},
    {u"Copyright", Pictures::ImageTag(0x8298), TextOf},
    {u"XPTitle", AsBytes(Pictures::ImageTag(0x9C9B)), Wide},
    {u"XPComment", AsBytes(Pictures::ImageTag(0x9C9C)), Wide},
    {u"XPAuthor", AsBytes(Pictures::ImageTag(0x9C9D)), Wide},
    {u"XPKeywords", AsBytes(Pictures::ImageTag(0x9C9E)), Wide},
    {u"XPSubject", AsBytes(Pictures::ImageTag(0x9C9F)), Wide},
    {u"ExposureTime", ExifNumbers(0x829A), ShowExposureTime},
    {u"FNumber", ExifNumbers(0x829D), ShowFNumber},
    {u"ExposureProgram", ExifNumbers(0x8822), ShowExposureProgram},
    {u"ISO", ExifNumbers(0x8827), ShowNumbers},
    {u"DateTimeOriginal", PictureTag::DateTimeOriginal, TextOf},
    {u"CreateDate", Pictures::ExifTag(0x9004), TextOf},
    {u"OffsetTimeOriginal", Pictures::ExifTag(0x9011), TextOf},
    {u"ShutterSpeedValue", ExifNumbers(0x9201), ShowShutterSpeed},
    {u"ApertureValue", ExifNumbers(0x9202), ShowAperture},
    {u"BrightnessValue", ExifNumbers(0x9203), ShowNumbers},
    {u"ExposureCompensation", ExifNumbers(0x9204), ShowCompensation},
    {u"MaxApertureValue", ExifNumbers(0x9205), ShowAperture},
    {u"SubjectDistance", ExifNumbers(0x9206), ShowMetres},
    {u"MeteringMode", ExifNumbers(0x9207), ShowMeteringMode},
    {u"FocalLength", ExifNumbers(0x920A), ShowFocalLength},
    {u"UserComment", AsBytes(Pictures::ExifTag(0x9286)), Comment},
    {u"SubSecTime", Pictures::ExifTag(0x9290), TextOf},
    {u"SubSecTimeOriginal", Pictures::ExifTag(0x9291), TextOf},
    {u"SubSecTimeDigitized", Pictures::ExifTag(0x9292), TextOf},
    {u"ExifImageWidth", ExifNumbers(0xA002), ShowNumbers},
    {u"ExifImageHeight", ExifNumbers(0xA003), ShowNumbers},
    {u"ExposureMode", ExifNumbers(0xA402), ShowExposureMode},
    {u"WhiteBalance", ExifNumbers(0xA403), ShowWhiteBalance},
    {u"DigitalZoomRatio", ExifNumbers(0xA404), ShowNumbers},
    {u"FocalLengthIn35mmFormat", ExifNumbers(0xA405), ShowMillimetres},
    {u"SceneCaptureType", ExifNumbers(0xA406), ShowSceneCaptureType},
    {u"ImageUniqueID", Pictures::ExifTag(0xA420), TextOf},
    {u"OwnerName", Pictures::ExifTag(0xA430), TextOf},
    {u"SerialNumber", Pictures::ExifTag(0xA431), TextOf},
    {u"LensInfo", ExifNumbers(0xA432), ShowLens},
    {u"LensMake", Pictures::ExifTag(0xA433), TextOf},
    {u"LensModel", Pictures::ExifTag(0xA434), TextOf},
    {u"LensSerialNumber", Pictures::ExifTag(0xA435), TextOf},
    {u"GPSTimeStamp", PlaceNumbers(0x0007), ShowTime},
    {u"GPSImgDirection", PlaceNumbers(0x0011), ShowNumbers},
    {u"GPSDateStamp", Pictures::PlaceTag(0x001D), TextOf},
};

/// A value whose sign or side is in another tag.
struct PlaceRow
{
    std::u16string_view name;
    PictureTag tag;
    PictureTag side;
    CString (*show)(std::string_view value, std::string_view side);
};

constexpr PlaceRow placeRows[] = {
    {u"GPSLatitude", PlaceNumbers(0x0002), Pictures::PlaceTag(0x0001), ShowDegrees},
    {u"GPSLongitude", PlaceNumbers(0x0004), Pictures::PlaceTag(0x0003), ShowDegrees},
    {u"GPSAltitude", PlaceNumbers(0x0006), PlaceNumbers(0x0005), ShowAltitude},
};

struct XmpRow
{
    std::u16string_view name;
    std::string_view space;
    std::string_view property;
};

/// Sources: ISO 16684-1, sections 8.3 and 8.4; Adobe, XMP additional properties; the IPTC Photo Metadata Standard.
constexpr XmpRow xmpRows[] = {
    {u"Title", XmpSpace::dublinCore, "title"},      {u"Description", XmpSpace::dublinCore, "description"},
    {u"Creator", XmpSpace::dublinCore, "creator"},  {u"Subject", XmpSpace::dublinCore, "subject"},
    {u"Headline", XmpSpace::photoshop, "Headline"}, {u"City", XmpSpace::photoshop, "City"},
    {u"State", XmpSpace::photoshop, "State"},       {u"Country", XmpSpace::photoshop, "Country"},
    {u"Location", XmpSpace::iptcCore, "Location"},  {u"Label", XmpSpace::basic, "Label"},
    {u"Lens", XmpSpace::auxiliary, "Lens"},
};

constexpr std::size_t firstPlaceRow = std::size(exifRows);
constexpr std::size_t firstXmpRow = firstPlaceRow + std::size(placeRows);
static_assert(firstXmpRow + std::size(xmpRows) == exifTagCount);

constexpr auto tagNames = [] {
    std::array<std::u16string_view, exifTagCount> names;
    auto* next = names.data();
    for (const Row& row : exifRows)
        *next++ = row.name;
    for (const PlaceRow& row : placeRows)
        *next++ = row.name;
    for (const XmpRow& row : xmpRows)
        *next++ = row.name;
    return names;
}();

bool IsSameLetter(char16_t left, char16_t right)
{
    const auto small = [](char16_t unit) {
        return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + (u'a' - u'A')) : unit;
    };
    return small(left) == small(right);
}

} // namespace

std::span<const std::u16string_view> ExifTagNames()
{
    return tagNames;
}

std::optional<ExifTag> FindExifTag(std::u16string_view name)
{
    const auto* const found = std::find_if(tagNames.begin(), tagNames.end(), [name](std::u16string_view known) {
        return std::equal(known.begin(), known.end(), name.begin(), name.end(), IsSameLetter);
    });
    return found == tagNames.end() ? std::nullopt : std::optional(static_cast<ExifTag>(found - tagNames.begin()));
}

bool ExifTagReader::AsksForXmp(const ExifTagSet& tags)
{
    return (tags >> firstXmpRow).any();
}

CString ExifTagReader::Read(ExifTag tag)
{
    const auto place = static_cast<std::size_t>(tag);
    if (place >= firstXmpRow) {
        const XmpRow& row = xmpRows[place - firstXmpRow];
        return TextOf(XmpProperty(m_packet, row.space, row.property));
    }
    if (place >= firstPlaceRow) {
        const PlaceRow& row = placeRows[place - firstPlaceRow];
        const std::string side = Pictures::ReadPicture(m_source, row.side);
        return row.show(Pictures::ReadPicture(m_source, row.tag), side);
    }
    const Row& row = exifRows[place];
    const std::string value = Pictures::ReadPicture(m_source, row.tag);
    return value.empty() ? CString() : row.show(value);
}

} // namespace VyrHost::Media
