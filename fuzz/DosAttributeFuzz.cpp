// Samba's extended attribute: no bytes lead the reader astray.
#include <VyrPlatform/linux/DosAttribute.h>

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const VyrPlatform::DosAttribute parsed = VyrPlatform::ParseDosAttribute(std::as_bytes(std::span(data, size)));
    // Attributes need a text of three characters at least, a creation time the shortest record.
    if ((parsed.attributes && size < 3) || (parsed.created && (size < 24 || *parsed.created == 0)))
        std::abort();
    return 0;
}
