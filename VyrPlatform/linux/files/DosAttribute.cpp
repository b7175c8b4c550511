// Samba's extended attribute for DOS attributes may contain any bytes.
#include "DosAttribute.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <system_error>
#include <utility>

namespace VyrPlatform {

namespace {

constexpr std::uint32_t hasAttributes = 0x1;
constexpr std::uint32_t hasCreated = 0x10;

/// The little-endian number at `offset`; 0 beyond the end.
template <class Number>
Number NumberAt(std::span<const std::byte> value, std::size_t offset) noexcept
{
    if (offset > value.size() || value.size() - offset < sizeof(Number))
        return 0;
    Number number = 0;
    for (std::size_t index = sizeof(Number); index-- > 0;)
        number = static_cast<Number>(number << 8 | std::to_integer<Number>(value[offset + index]));
    return number;
}

template <class Number>
void PutNumber(std::span<std::byte> value, std::size_t offset, Number number) noexcept
{
    for (std::size_t index = 0; index < sizeof(Number); ++index)
        value[offset + index] = static_cast<std::byte>(number >> 8 * index);
}

constexpr std::size_t Aligned(std::size_t offset, std::size_t alignment) noexcept
{
    return (offset + alignment - 1) / alignment * alignment;
}

/// The positions of the numbers in a record.
struct Layout
{
    /// The field that tells which of the others are valid; nothing where the version implies that all are.
    std::optional<std::size_t> fields;
    std::size_t attributes = 0;
    std::size_t created = 0;
};

/// The layout of the record at `offset`; nothing when it is incomplete.
std::optional<Layout> FindLayout(std::span<const std::byte> value, std::size_t offset) noexcept
{
    // The 64-bit numbers are at multiples of 4.
    constexpr std::size_t alignment = 4;
    constexpr std::size_t sizes = 3 * sizeof(std::uint32_t) + 2 * sizeof(std::uint32_t);

    std::size_t at = Aligned(offset, sizeof(std::uint16_t));
    const auto version = NumberAt<std::uint16_t>(value, at);
    if (version < 1 || version > 5 || NumberAt<std::uint16_t>(value, at + sizeof version) != version)
        return std::nullopt;
    at = Aligned(at + 2 * sizeof version, alignment);
    Layout layout;
    if (version >= 3)
        layout.fields = at;
    layout.attributes = version >= 2 ? at + sizeof(std::uint32_t) : at;
    layout.created = layout.attributes + sizeof(std::uint32_t);
    if (version <= 3)
        layout.created += sizes;
    else if (version == 4)
        layout.created += sizeof(FileTicks);
    if (layout.created + sizeof(FileTicks) > value.size())
        return std::nullopt;
    return layout;
}

/// Reads "0x20" and the like.
DosAttribute ParseText(std::string_view text)
{
    constexpr std::string_view prefix = "0x";
    DosAttribute result;
    std::uint32_t number = 0;
    if (!text.starts_with(prefix))
        return result;
    const char* const end = text.data() + text.size();
    const auto parsed = std::from_chars(text.data() + prefix.size(), end, number, 16);
    if (parsed.ec == std::errc() && parsed.ptr == end)
        result.attributes = number;
    return result;
}

DosAttribute ParseRecord(std::span<const std::byte> value, const Layout& layout)
{
    const std::uint32_t fields =
        layout.fields ? NumberAt<std::uint32_t>(value, *layout.fields) : hasAttributes | hasCreated;
    const auto created = static_cast<FileTicks>(NumberAt<std::uint64_t>(value, layout.created));
    DosAttribute result;
    if (fields & hasAttributes)
        result.attributes = NumberAt<std::uint32_t>(value, layout.attributes);
    if ((fields & hasCreated) && created != 0)
        result.created = created;
    return result;
}

/// A record of version 5.
std::vector<std::byte> MakeRecord(std::optional<std::uint32_t> attributes, std::optional<FileTicks> created)
{
    constexpr std::uint16_t version = 5;
    constexpr std::size_t size = 24;
    std::vector<std::byte> value(size);
    PutNumber(value, 2, version);
    PutNumber(value, 4, version);
    PutNumber(value, 8, (attributes ? hasAttributes : 0) | (created ? hasCreated : 0));
    PutNumber(value, 12, attributes.value_or(0));
    PutNumber(value, 16, static_cast<std::uint64_t>(created.value_or(0)));
    return value;
}

/// "0x20" and the like, with a NUL at its end on request.
std::vector<std::byte> MakeText(std::uint32_t attributes, bool isEnded)
{
    char text[] = "0x00000000";
    const auto written = std::to_chars(text + 2, std::end(text), attributes, 16);
    *written.ptr = '\0';
    const auto bytes = std::as_bytes(std::span(std::begin(text), written.ptr + (isEnded ? 1 : 0)));
    return {bytes.begin(), bytes.end()};
}

/// The length of the text at the beginning of a value.
std::size_t TextLength(std::span<const std::byte> value)
{
    return static_cast<std::size_t>(std::find(value.begin(), value.end(), std::byte(0)) - value.begin());
}

bool IsTextAlone(std::span<const std::byte> value)
{
    return TextLength(value) + 1 >= value.size();
}

/// `value` with `number` at that position of its record, and `field` among the valid ones; empty when it is not a
/// record.
template <class Number>
std::vector<std::byte> WithNumber(std::span<const std::byte> value, std::size_t Layout::*place, Number number,
                                  std::uint32_t field)
{
    const auto layout = FindLayout(value, TextLength(value) + 1);
    if (!layout)
        return {};
    std::vector<std::byte> changed(value.begin(), value.end());
    PutNumber(changed, (*layout).*place, number);
    if (layout->fields)
        PutNumber(changed, *layout->fields, NumberAt<std::uint32_t>(value, *layout->fields) | field);
    return changed;
}

/// `value` with `field` not valid; nothing when it is not a record.
std::optional<std::vector<std::byte>> WithoutField(std::span<const std::byte> value, std::size_t Layout::*place,
                                                   std::size_t size, std::uint32_t field)
{
    const auto layout = FindLayout(value, TextLength(value) + 1);
    if (!layout)
        return std::nullopt;
    std::vector<std::byte> changed(value.begin(), value.end());
    std::fill_n(changed.begin() + static_cast<std::ptrdiff_t>((*layout).*place), size, std::byte(0));
    if (layout->fields)
        PutNumber(changed, *layout->fields, NumberAt<std::uint32_t>(value, *layout->fields) & ~field);
    return changed;
}

bool IsEqual(std::span<const std::byte> left, std::span<const std::byte> right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end());
}

/// Nothing for an empty value, which means a failure.
std::optional<std::vector<std::byte>> UnlessEmpty(std::vector<std::byte> value)
{
    return value.empty() ? std::nullopt : std::optional(std::move(value));
}

} // namespace

DosAttribute ParseDosAttribute(std::span<const std::byte> value)
{
    const std::size_t textLength = TextLength(value);
    if (IsTextAlone(value))
        return ParseText({reinterpret_cast<const char*>(value.data()), textLength});
    const auto layout = FindLayout(value, textLength + 1);
    return layout ? ParseRecord(value, *layout) : DosAttribute();
}

std::vector<std::byte> WithCreated(std::span<const std::byte> value, FileTicks created)
{
    if (IsTextAlone(value)) {
        const DosAttribute text = ParseDosAttribute(value);
        return value.empty() || text.attributes ? MakeRecord(text.attributes, created) : std::vector<std::byte>();
    }
    return WithNumber(value, &Layout::created, static_cast<std::uint64_t>(created), hasCreated);
}

std::vector<std::byte> WithAttributes(std::span<const std::byte> value, std::uint32_t attributes)
{
    if (value.empty())
        return MakeRecord(attributes, std::nullopt);
    if (!IsTextAlone(value))
        return WithNumber(value, &Layout::attributes, attributes, hasAttributes);
    const bool isEnded = value.back() == std::byte(0);
    return ParseDosAttribute(value).attributes ? MakeText(attributes, isEnded) : std::vector<std::byte>();
}

std::optional<std::vector<std::byte>> WithCreatedOf(std::span<const std::byte> value, std::span<const std::byte> kept)
{
    const std::optional<FileTicks> now = ParseDosAttribute(value).created;
    if (IsEqual(value, kept) || (now && IsEqual(value, WithCreated(kept, *now))))
        return std::vector(kept.begin(), kept.end());
    if (const auto before = ParseDosAttribute(kept).created)
        return UnlessEmpty(WithCreated(value, *before));
    if (!now)
        return std::vector(value.begin(), value.end());
    return WithoutField(value, &Layout::created, sizeof(FileTicks), hasCreated);
}

std::optional<std::vector<std::byte>> WithAttributesOf(std::span<const std::byte> value,
                                                       std::span<const std::byte> kept)
{
    const std::optional<std::uint32_t> now = ParseDosAttribute(value).attributes;
    if (IsEqual(value, kept) || (now && IsEqual(value, WithAttributes(kept, *now))))
        return std::vector(kept.begin(), kept.end());
    if (const auto before = ParseDosAttribute(kept).attributes)
        return UnlessEmpty(WithAttributes(value, *before));
    if (!now)
        return std::vector(value.begin(), value.end());
    // A text has no other fields.
    if (IsTextAlone(value))
        return std::vector<std::byte>();
    return WithoutField(value, &Layout::attributes, sizeof(std::uint32_t), hasAttributes);
}

} // namespace VyrPlatform
