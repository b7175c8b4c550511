// A property set as bytes in a document: [MS-OLEPS].
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct tagPROPVARIANT;

namespace VyrPlatform {

/// The number of a property set's format, as its 16 bytes in the stream.
using FormatId = std::string_view;

/// {F29F85E0-4FF9-1068-AB91-08002B27B3D9}
inline constexpr FormatId summaryFormat("\xE0\x85\x9F\xF2\xF9\x4F\x68\x10\xAB\x91\x08\x00\x2B\x27\xB3\xD9", 16);
/// {D5CDD502-2E9C-101B-9397-08002B2CF9AE}
inline constexpr FormatId documentFormat("\x02\xD5\xCD\xD5\x9C\x2E\x1B\x10\x93\x97\x08\x00\x2B\x2C\xF9\xAE", 16);
/// {D5CDD505-2E9C-101B-9397-08002B2CF9AE}: properties that users have defined.
inline constexpr FormatId userFormat("\x05\xD5\xCD\xD5\x9C\x2E\x1B\x10\x93\x97\x08\x00\x2B\x2C\xF9\xAE", 16);

/// Ids of properties that describe the set itself.
namespace PropertyId {
inline constexpr std::uint32_t dictionary = 0;
inline constexpr std::uint32_t codePage = 1;
inline constexpr std::uint32_t firstReserved = 0x80000000;
} // namespace PropertyId

/// UTF-16 as the code page of a set.
inline constexpr std::uint32_t utf16CodePage = 1200;
/// The code page of the texts in a set that names none.
inline constexpr std::uint32_t defaultCodePage = 1252;

struct StoredProperty
{
    std::uint32_t id;
    /// The stored value: its type, its data, and all bytes up to the next value.
    std::string bytes;
};

/// The properties of one format.
class VYR_PLATFORM_API PropertySection
{
public:
    std::string format;
    /// In the order of the section's table.
    std::vector<StoredProperty> properties;

    /// The stored value of the property `id`; a null pointer when there is none.
    [[nodiscard]] const std::string* Find(std::uint32_t id) const noexcept;
    /// The code page of its byte texts; nothing when it names none.
    [[nodiscard]] std::optional<std::uint32_t> CodePage() const noexcept;
    /// Replaces or adds a property.
    void Set(std::uint32_t id, std::string bytes);
    void Remove(std::uint32_t id);
};

/// One or two sections.
class VYR_PLATFORM_API PropertySetStream
{
public:
    /// Parses the bytes of a stream. A value extends from its offset to the next one, so that unknown types and data
    /// are kept.
    /// @return nothing when an offset or a count reaches beyond the bytes, or the header is not that of a property set.
    [[nodiscard]] static std::optional<PropertySetStream> Parse(std::string_view bytes);
    /// The inverse, with values at multiples of four bytes.
    [[nodiscard]] std::string Serialise() const;

    /// The section of this format; a null pointer when there is none.
    [[nodiscard]] PropertySection* Find(FormatId format) noexcept;
    [[nodiscard]] const PropertySection* Find(FormatId format) const noexcept;

private:
    /// Byte order, version, system and class id, unchanged.
    std::string m_head;
    std::vector<PropertySection> m_sections;
};

/// The stored form of a value in a section whose texts are in `codePage`. A byte text is in the process's ANSI code
/// page; where `codePage` lacks one of its characters, it is stored as a UTF-16 text.
/// @return nothing when the type cannot be stored.
[[nodiscard]] VYR_PLATFORM_API std::optional<std::string> StorePropertyValue(const tagPROPVARIANT& value,
                                                                             std::uint32_t codePage);

/// The stored form of a text in a section whose texts are in `codePage`: counted in bytes, in that code page if it has
/// every character, else in UTF-16.
[[nodiscard]] VYR_PLATFORM_API std::string StoreText(const CString& text, std::uint32_t codePage);

/// The stored form of a file time, in ticks since 1601.
[[nodiscard]] VYR_PLATFORM_API std::string StoreTime(std::int64_t ticks);

/// The text of a stored value, up to its first NUL; nothing when it has another type or is damaged.
[[nodiscard]] VYR_PLATFORM_API std::optional<CString> ReadStoredText(std::string_view stored, std::uint32_t codePage);
/// The integer of a stored value, also a Boolean or a flag; nothing when it has another type or is damaged.
[[nodiscard]] VYR_PLATFORM_API std::optional<std::int64_t> ReadStoredNumber(std::string_view stored);
/// The ticks since 1601 of a stored file time; nothing when it has another type or is damaged.
[[nodiscard]] VYR_PLATFORM_API std::optional<std::int64_t> ReadStoredTime(std::string_view stored);

/// Whether `codePage` has every character of `text`.
[[nodiscard]] VYR_PLATFORM_API bool CodePageHolds(std::uint32_t codePage, const CString& text);

} // namespace VyrPlatform
