#include <VyrPlatform/common/documents/PropertySetStream.h>

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/text/CodePage.h>

#include <algorithm>
#include <bit>
#include <cstring>
#include <set>

namespace VyrPlatform {

namespace {

static_assert(std::endian::native == std::endian::little, "numbers are copied as they stand");

constexpr std::size_t headSize = 24;
constexpr std::size_t sectionHeadSize = 8;
constexpr std::size_t entrySize = 8;
constexpr std::size_t formatSize = 16;
constexpr std::uint16_t byteOrderMark = 0xFFFE;

template <class Number>
std::optional<Number> NumberAt(std::string_view bytes, std::size_t at) noexcept
{
    Number number;
    if (at > bytes.size() || bytes.size() - at < sizeof number)
        return std::nullopt;
    std::memcpy(&number, bytes.data() + at, sizeof number);
    return number;
}

template <class Number>
void Append(std::string& bytes, Number number)
{
    bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
}

/// Appends zeros up to a multiple of four.
void Pad(std::string& bytes)
{
    bytes.append((4 - bytes.size() % 4) % 4, '\0');
}

/// The section that begins at `start`.
std::optional<PropertySection> ParseSection(std::string_view format, std::string_view bytes, std::size_t start)
{
    const auto size = NumberAt<std::uint32_t>(bytes, start);
    const auto count = NumberAt<std::uint32_t>(bytes, start + 4);
    if (!size || !count)
        return std::nullopt;
    // Some writers give a size that reaches beyond the stream.
    const std::string_view section = bytes.substr(start, *size);
    if (section.size() < sectionHeadSize || *count > (section.size() - sectionHeadSize) / entrySize)
        return std::nullopt;

    std::set<std::size_t> ends{section.size()};
    std::vector<std::pair<std::uint32_t, std::size_t>> table;
    for (std::uint32_t index = 0; index < *count; ++index) {
        const std::size_t entry = sectionHeadSize + entrySize * index;
        const std::size_t offset = *NumberAt<std::uint32_t>(section, entry + 4);
        if (offset < sectionHeadSize + entrySize * *count || offset > section.size())
            return std::nullopt;
        table.emplace_back(*NumberAt<std::uint32_t>(section, entry), offset);
        ends.insert(offset);
    }
    PropertySection parsed{std::string(format), {}};
    std::set<std::size_t> starts;
    for (const auto& [id, offset] : table) {
        // Values that share bytes could let a small section grow without bound.
        if (!starts.insert(offset).second && offset != section.size())
            return std::nullopt;
        const auto end = ends.upper_bound(offset);
        const std::size_t length = end == ends.end() ? 0 : *end - offset;
        parsed.properties.push_back({id, std::string(section.substr(offset, length))});
    }
    return parsed;
}

std::string SerialiseSection(const PropertySection& section)
{
    std::string table;
    std::string values;
    const std::size_t first = sectionHeadSize + entrySize * section.properties.size();
    for (const StoredProperty& property : section.properties) {
        Append(table, property.id);
        Append(table, static_cast<std::uint32_t>(first + values.size()));
        // A value without bytes would have the offset of the next one; the type VT_EMPTY means the same.
        values += property.bytes.empty() ? std::string(4, '\0') : property.bytes;
        Pad(values);
    }
    std::string bytes;
    Append(bytes, static_cast<std::uint32_t>(first + values.size()));
    Append(bytes, static_cast<std::uint32_t>(section.properties.size()));
    return bytes + table + values;
}

CString DecodeBytes(std::uint32_t codePage, std::string_view bytes)
{
    const std::string ended(bytes.substr(0, bytes.find('\0')));
    std::u16string text(ended.size() + 1, u'\0');
    const std::size_t length = CodePage::ToText(codePage, ended.c_str(), text);
    // An unknown code page is read as the most common one.
    if (length == 0)
        return codePage == defaultCodePage ? CString() : DecodeBytes(defaultCodePage, bytes);
    return std::u16string_view(text).substr(0, length - 1);
}

CString DecodeUnits(std::string_view bytes)
{
    std::u16string units(bytes.size() / 2, u'\0');
    if (!units.empty())
        std::memcpy(units.data(), bytes.data(), units.size() * 2);
    return std::u16string_view(units).substr(0, units.find(u'\0'));
}

/// The bytes of `text` without a NUL; nothing when the code page is unknown.
std::optional<std::string> EncodeBytes(std::uint32_t codePage, const CString& text)
{
    std::string bytes(static_cast<std::size_t>(text.GetLength()) * 4 + 1, '\0');
    const std::size_t length = CodePage::ToBytes(codePage, text.GetString(), '?', bytes);
    if (length == 0 || length > bytes.size())
        return std::nullopt;
    bytes.resize(length - 1);
    return bytes;
}

std::string UnitsOf(std::u16string_view text)
{
    std::string bytes(text.size() * 2, '\0');
    if (!text.empty())
        std::memcpy(bytes.data(), text.data(), bytes.size());
    return bytes;
}

std::string StoreUtf16(std::u16string_view text)
{
    std::string stored;
    Append(stored, std::uint32_t{VT_LPWSTR});
    Append(stored, static_cast<std::uint32_t>(text.size() + 1));
    stored += UnitsOf(text) + std::string(2, '\0');
    return stored;
}

/// A text with its length in bytes: in the set's code page, also where that is UTF-16.
std::string StoreBytes(std::uint32_t type, const CString& text, std::uint32_t codePage)
{
    std::string bytes;
    if (codePage == utf16CodePage)
        bytes = UnitsOf(text) + std::string(2, '\0');
    else if (CodePageHolds(codePage, text))
        bytes = EncodeBytes(codePage, text).value_or(std::string()) + '\0';
    else
        return StoreUtf16(text);
    std::string stored;
    Append(stored, type);
    Append(stored, static_cast<std::uint32_t>(bytes.size()));
    return stored + bytes;
}

/// Bytes with their count; nothing when there is only a count.
std::optional<std::string> StoreBlob(const BLOB& blob)
{
    if (blob.cbSize > 0 && !blob.pBlobData)
        return std::nullopt;
    std::string stored;
    Append(stored, std::uint32_t{VT_BLOB});
    Append(stored, static_cast<std::uint32_t>(blob.cbSize));
    stored.append(blob.pBlobData, blob.pBlobData + blob.cbSize);
    return stored;
}

template <class Unit>
CString FromUnits(const Unit* text)
{
    static_assert(sizeof(Unit) == sizeof(char16_t));
    return reinterpret_cast<const char16_t*>(text);
}

/// The data of a value of fixed size; nothing for other types.
std::optional<std::string> FixedData(const PROPVARIANT& value)
{
    std::string data;
    switch (value.vt) {
    case VT_NULL:
        break;
    case VT_I1:
    case VT_UI1:
        Append(data, value.bVal);
        break;
    case VT_I2:
    case VT_UI2:
    case VT_BOOL:
        Append(data, value.uiVal);
        break;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_R4:
    case VT_ERROR:
        Append(data, value.ulVal);
        break;
    case VT_I8:
    case VT_UI8:
    case VT_R8:
    case VT_CY:
    case VT_DATE:
    case VT_FILETIME:
        Append(data, value.uhVal.QuadPart);
        break;
    case VT_CLSID:
        if (!value.puuid)
            return std::nullopt;
        Append(data, *value.puuid);
        break;
    default:
        return std::nullopt;
    }
    return data;
}

} // namespace

const std::string* PropertySection::Find(std::uint32_t id) const noexcept
{
    const auto found = std::find_if(properties.begin(), properties.end(),
                                    [id](const StoredProperty& property) { return property.id == id; });
    return found == properties.end() ? nullptr : &found->bytes;
}

std::optional<std::uint32_t> PropertySection::CodePage() const noexcept
{
    const std::string* const stored = Find(PropertyId::codePage);
    if (!stored || NumberAt<std::uint16_t>(*stored, 0) != VT_I2)
        return std::nullopt;
    const auto number = NumberAt<std::uint16_t>(*stored, 4);
    return number && *number != 0 ? std::optional<std::uint32_t>(*number) : std::nullopt;
}

void PropertySection::Set(std::uint32_t id, std::string bytes)
{
    const auto found = std::find_if(properties.begin(), properties.end(),
                                    [id](const StoredProperty& property) { return property.id == id; });
    if (found == properties.end()) {
        properties.push_back({id, std::move(bytes)});
        return;
    }
    found->bytes = std::move(bytes);
    properties.erase(
        std::remove_if(found + 1, properties.end(), [id](const StoredProperty& property) { return property.id == id; }),
        properties.end());
}

void PropertySection::Remove(std::uint32_t id)
{
    std::erase_if(properties, [id](const StoredProperty& property) { return property.id == id; });
}

std::optional<PropertySetStream> PropertySetStream::Parse(std::string_view bytes)
{
    const auto count = NumberAt<std::uint32_t>(bytes, headSize);
    if (!count || *count < 1 || *count > 2 || NumberAt<std::uint16_t>(bytes, 0) != byteOrderMark)
        return std::nullopt;
    PropertySetStream set;
    set.m_head = bytes.substr(0, headSize);
    for (std::uint32_t index = 0; index < *count; ++index) {
        const std::size_t entry = headSize + 4 + index * (formatSize + 4);
        const auto offset = NumberAt<std::uint32_t>(bytes, entry + formatSize);
        if (!offset || *offset < headSize + 4 + *count * (formatSize + 4) || *offset > bytes.size())
            return std::nullopt;
        auto section = ParseSection(bytes.substr(entry, formatSize), bytes, *offset);
        if (!section)
            return std::nullopt;
        set.m_sections.push_back(std::move(*section));
    }
    return set;
}

std::string PropertySetStream::Serialise() const
{
    std::string bytes = m_head;
    Append(bytes, static_cast<std::uint32_t>(m_sections.size()));
    std::string sections;
    const std::size_t first = bytes.size() + m_sections.size() * (formatSize + 4);
    for (const PropertySection& section : m_sections) {
        bytes += section.format;
        Append(bytes, static_cast<std::uint32_t>(first + sections.size()));
        sections += SerialiseSection(section);
    }
    return bytes + sections;
}

const PropertySection* PropertySetStream::Find(FormatId format) const noexcept
{
    const auto found = std::find_if(m_sections.begin(), m_sections.end(),
                                    [format](const PropertySection& section) { return section.format == format; });
    return found == m_sections.end() ? nullptr : &*found;
}

PropertySection* PropertySetStream::Find(FormatId format) noexcept
{
    return const_cast<PropertySection*>(static_cast<const PropertySetStream*>(this)->Find(format));
}

std::optional<std::string> StorePropertyValue(const PROPVARIANT& value, std::uint32_t codePage)
{
    switch (value.vt) {
    case VT_LPSTR:
        return value.pszVal
                   ? std::optional(StoreBytes(VT_LPSTR, DecodeBytes(CodePage::GetAnsi(), value.pszVal), codePage))
                   : std::nullopt;
    case VT_BSTR:
        return value.bstrVal ? std::optional(StoreBytes(VT_BSTR, FromUnits(value.bstrVal), codePage)) : std::nullopt;
    case VT_LPWSTR:
        return value.pwszVal ? std::optional(StoreUtf16(FromUnits(value.pwszVal))) : std::nullopt;
    case VT_BLOB:
        return StoreBlob(value.blob);
    default:
        break;
    }
    const auto data = FixedData(value);
    if (!data)
        return std::nullopt;
    std::string stored;
    Append(stored, std::uint32_t{value.vt});
    return stored + *data;
}

std::string StoreText(const CString& text, std::uint32_t codePage)
{
    return StoreBytes(VT_LPSTR, text, codePage);
}

std::string StoreTime(std::int64_t ticks)
{
    std::string data;
    Append(data, std::uint32_t{VT_FILETIME});
    Append(data, ticks);
    return data;
}

std::optional<CString> ReadStoredText(std::string_view stored, std::uint32_t codePage)
{
    const auto type = NumberAt<std::uint16_t>(stored, 0);
    const auto count = NumberAt<std::uint32_t>(stored, 4);
    if (!type || !count || (*type != VT_LPSTR && *type != VT_LPWSTR && *type != VT_BSTR))
        return std::nullopt;
    const std::string_view data = stored.substr(8);
    const std::uint64_t size = *type == VT_LPWSTR ? std::uint64_t{*count} * 2 : *count;
    if (size > data.size())
        return std::nullopt;
    const std::string_view text = data.substr(0, static_cast<std::size_t>(size));
    return *type == VT_LPWSTR || codePage == utf16CodePage ? DecodeUnits(text) : DecodeBytes(codePage, text);
}

std::optional<std::int64_t> ReadStoredNumber(std::string_view stored)
{
    const auto widen = [stored]<class Number>(Number) -> std::optional<std::int64_t> {
        const auto number = NumberAt<Number>(stored, 4);
        return number ? std::optional(static_cast<std::int64_t>(*number)) : std::nullopt;
    };
    switch (NumberAt<std::uint16_t>(stored, 0).value_or(VT_EMPTY)) {
    case VT_I1:
        return widen(std::int8_t());
    case VT_UI1:
        return widen(std::uint8_t());
    case VT_I2:
    case VT_BOOL:
        return widen(std::int16_t());
    case VT_UI2:
        return widen(std::uint16_t());
    case VT_I4:
    case VT_INT:
        return widen(std::int32_t());
    case VT_UI4:
    case VT_UINT:
        return widen(std::uint32_t());
    case VT_I8:
        return widen(std::int64_t());
    default:
        return std::nullopt;
    }
}

std::optional<std::int64_t> ReadStoredTime(std::string_view stored)
{
    return NumberAt<std::uint16_t>(stored, 0) == VT_FILETIME ? NumberAt<std::int64_t>(stored, 4) : std::nullopt;
}

bool CodePageHolds(std::uint32_t codePage, const CString& text)
{
    if (codePage == utf16CodePage)
        return true;
    const auto bytes = EncodeBytes(codePage, text);
    return bytes && DecodeBytes(codePage, *bytes) == text;
}

} // namespace VyrPlatform
