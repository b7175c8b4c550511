// Writes and reads names, and computes checksums.
#include <VyrHost/batch/JournalLines.h>

#include <VyrHost/text/SafeText.h>
#include <VyrPlatform/text/Encoding.h>
#include <VyrPlatform/text/Surrogates.h>

#include <algorithm>
#include <zlib.h>

namespace VyrHost::Batch {

namespace {

/// Whether `text` starts with a unit that is written as an escape.
bool StartsWithSpecial(std::u16string_view text) noexcept
{
    const char16_t unit = text.front();
    return unit < 0x20 || unit == 0x7F || unit == u'\\' || VyrPlatform::BeginsWithLoneSurrogate(text);
}

bool IsPlainAscii(std::u16string_view name) noexcept
{
    for (const char16_t unit : name)
        if (unit < 0x20 || unit >= 0x7F || unit == u'\\')
            return false;
    return true;
}

} // namespace

void AppendJournalName(std::string& text, std::u16string_view name)
{
    std::u16string_view rest = name;
    if (IsPlainAscii(rest)) {
        const std::size_t length = text.size();
        text.resize(length + rest.size());
        std::transform(rest.begin(), rest.end(), text.begin() + static_cast<std::ptrdiff_t>(length),
                       [](char16_t unit) { return static_cast<char>(unit); });
        return;
    }
    while (!rest.empty()) {
        if (StartsWithSpecial(rest)) {
            Text::AppendUnitEscape(text, rest.front());
            rest.remove_prefix(1);
            continue;
        }
        std::size_t length = 0;
        while (length < rest.size() && !StartsWithSpecial(rest.substr(length)))
            length += VyrPlatform::IsHighSurrogate(rest[length]) ? std::size_t{2} : std::size_t{1};
        VyrPlatform::Encoding::AppendUtf8(text, rest.substr(0, length));
        rest.remove_prefix(length);
    }
}

std::optional<CString> ReadJournalName(std::string_view text)
{
    CString name;
    while (!text.empty()) {
        const std::size_t length = std::min(text.find('\\'), text.size());
        if (length > 0) {
            name += VyrPlatform::Encoding::FromUtf8(text.substr(0, length));
            text.remove_prefix(length);
            continue;
        }
        const std::optional<char16_t> unit = Text::ReadUnitEscape(text);
        if (!unit)
            return {};
        name += *unit;
        text.remove_prefix(Text::unitEscapeLength);
    }
    return name;
}

std::uint32_t Checksum(std::uint32_t before, std::string_view bytes) noexcept
{
    // Given a null pointer, zlib would start over.
    if (bytes.empty())
        return before;
    return static_cast<std::uint32_t>(
        crc32_z(before, reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()));
}

} // namespace VyrHost::Batch
