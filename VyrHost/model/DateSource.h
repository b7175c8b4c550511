/// @file
/// The dates of an entry that rules can use.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace VyrHost::Model {

/// The source of the date of an entry.
enum class DateSource : std::uint8_t
{
    /// When a picture was taken: Exif's DateTimeOriginal.
    PictureTaken,
    /// When a picture was digitized: Exif's DateTimeDigitized.
    Digitized,
    /// The creation date in XMP: in the picture, or in the sidecar beside it.
    Xmp,
    /// When a film was made.
    Video,
    /// The date in the name.
    Name,
    Modified,
    Created,
    Accessed
};

inline constexpr std::size_t dateSourceCount = static_cast<std::size_t>(DateSource::Accessed) + 1;

/// Every date source and the word for it, the same in options and in the output.
struct DateSourceWord
{
    DateSource source;
    std::u16string_view word;
};

inline constexpr DateSourceWord dateSourceWords[] = {
    {DateSource::PictureTaken, u"picture"}, {DateSource::Digitized, u"digitized"}, {DateSource::Xmp, u"xmp"},
    {DateSource::Video, u"video"},          {DateSource::Name, u"name"},           {DateSource::Modified, u"modified"},
    {DateSource::Created, u"created"},      {DateSource::Accessed, u"accessed"},
};

/// A set of date sources, in one byte.
class DateSourceSet
{
public:
    void Add(DateSource source) { m_bits = static_cast<std::uint8_t>(m_bits | BitOf(source)); }
    [[nodiscard]] bool Has(DateSource source) const { return (m_bits & BitOf(source)) != 0; }
    [[nodiscard]] bool IsEmpty() const { return m_bits == 0; }

private:
    [[nodiscard]] static unsigned BitOf(DateSource source) { return 1U << static_cast<unsigned>(source); }

    std::uint8_t m_bits = 0;
};

} // namespace VyrHost::Model
