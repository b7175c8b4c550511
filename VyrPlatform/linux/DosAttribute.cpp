// Reads Samba's extended attribute for DOS attributes, which may hold any bytes at all.
#include "DosAttribute.h"

#include <algorithm>
#include <charconv>
#include <string_view>
#include <system_error>

namespace VyrPlatform {

namespace {

/// Takes little-endian numbers from a value, each at a multiple of its alignment.
class Decoder
{
public:
    Decoder(std::span<const std::byte> value, std::size_t offset) noexcept : m_value(value), m_offset(offset) {}

    /// The next number; 0 when too few bytes are left.
    template <class Number>
    [[nodiscard]] Number Take(std::size_t alignment = sizeof(Number)) noexcept
    {
        Skip(0, alignment);
        const std::span<const std::byte> bytes = m_value.subspan(std::min(m_offset, m_value.size()));
        Skip(sizeof(Number), 1);
        if (bytes.size() < sizeof(Number))
            return 0;
        Number number = 0;
        for (std::size_t index = sizeof(Number); index-- > 0;)
            number = static_cast<Number>(number << 8 | std::to_integer<Number>(bytes[index]));
        return number;
    }
    void Skip(std::size_t count, std::size_t alignment) noexcept
    {
        m_offset = (m_offset + alignment - 1) / alignment * alignment + count;
    }
    /// Whether all that was taken was there.
    [[nodiscard]] bool IsGood() const noexcept { return m_offset <= m_value.size(); }

private:
    std::span<const std::byte> m_value;
    std::size_t m_offset;
};

/// "0x20" and the like.
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

DosAttribute ParseRecord(Decoder decoder)
{
    constexpr std::uint32_t hasAttributes = 0x1;
    constexpr std::uint32_t hasCreated = 0x10;
    // The 64-bit numbers stand at multiples of 4.
    constexpr std::size_t alignment = 4;
    constexpr std::size_t sizes = 3 * sizeof(std::uint32_t) + 2 * sizeof(std::uint32_t);

    const auto version = decoder.Take<std::uint16_t>();
    const auto repeated = decoder.Take<std::uint16_t>();
    if (version < 1 || version > 5 || repeated != version)
        return {};
    std::uint32_t fields = hasAttributes | hasCreated;
    if (version >= 3)
        fields = decoder.Take<std::uint32_t>();
    else if (version == 2)
        decoder.Skip(sizeof(std::uint32_t), alignment);
    decoder.Skip(0, alignment);
    const auto attributes = decoder.Take<std::uint32_t>();
    if (version <= 3)
        decoder.Skip(sizes, alignment);
    else if (version == 4)
        decoder.Skip(sizeof(FileTicks), alignment);
    const auto created = static_cast<FileTicks>(decoder.Take<std::uint64_t>(alignment));
    if (!decoder.IsGood())
        return {};
    DosAttribute result;
    if (fields & hasAttributes)
        result.attributes = attributes;
    if ((fields & hasCreated) && created != 0)
        result.created = created;
    return result;
}

} // namespace

DosAttribute ParseDosAttribute(std::span<const std::byte> value)
{
    const auto textEnd = std::find(value.begin(), value.end(), std::byte(0));
    const auto textLength = static_cast<std::size_t>(textEnd - value.begin());
    if (textLength + 1 >= value.size())
        return ParseText({reinterpret_cast<const char*>(value.data()), textLength});
    return ParseRecord(Decoder(value, textLength + 1));
}

} // namespace VyrPlatform
