// Any bytes as Samba's extended attribute: reading stays in bounds, and a time or attributes written into the bytes are
// read back, with all other content unchanged.
#include <VyrPlatform/linux/files/DosAttribute.h>

#include <algorithm>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto value = std::as_bytes(std::span(data, size));
    const VyrPlatform::DosAttribute parsed = VyrPlatform::ParseDosAttribute(value);
    // Attributes need a text of at least three characters, a creation time the shortest record.
    if ((parsed.attributes && size < 3) || (parsed.created && (size < 24 || *parsed.created == 0)))
        std::abort();
    constexpr VyrPlatform::FileTicks created = 0x01'DC'AA'54'2B'1A'9C'99;
    const std::vector<std::byte> changed = VyrPlatform::WithCreated(value, created);
    const VyrPlatform::DosAttribute read = VyrPlatform::ParseDosAttribute(changed);
    if (changed.empty() ? parsed.attributes || parsed.created
                        : read.created != created || read.attributes != parsed.attributes)
        std::abort();

    constexpr std::uint32_t attributes = 0x2122;
    const std::vector<std::byte> marked = VyrPlatform::WithAttributes(value, attributes);
    const VyrPlatform::DosAttribute markedRead = VyrPlatform::ParseDosAttribute(marked);
    if (marked.empty() ? parsed.attributes || parsed.created
                       : markedRead.attributes != attributes || markedRead.created != parsed.created)
        std::abort();
    // Restoring gives exactly the same bytes, except for the spelling of a text.
    if (parsed.attributes && parsed.created) {
        const std::vector<std::byte> back = VyrPlatform::WithAttributes(marked, *parsed.attributes);
        if (!std::equal(back.begin(), back.end(), value.begin(), value.end()))
            std::abort();
    }
    return 0;
}
