// Converts any bytes and any code units: names are converted back exactly, contents lose only malformed sequences, and
// a second conversion changes nothing.
#include <VyrPlatform/text/Encoding.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

using namespace VyrPlatform;

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

void CheckBytes(std::string_view bytes)
{
    const CString name = Encoding::FromNameBytes(bytes);
    Require(Encoding::ToNameBytes(name) == bytes);

    const CString text = Encoding::FromUtf8(bytes);
    Require(text.GetLength() == name.GetLength());
    const std::string repaired = Encoding::ToUtf8(text);
    Require(Encoding::FromUtf8(repaired) == text);
    Require((repaired == bytes) == (text == name));
}

void CheckUnits(std::u16string_view units)
{
    const std::string bytes = Encoding::ToUtf8(units);
    const CString repaired = Encoding::FromUtf8(bytes);
    Require(repaired.View().size() == units.size());
    Require(Encoding::ToUtf8(repaired) == bytes);
    Require(Encoding::FromNameBytes(bytes) == repaired);

    const std::string nameBytes = Encoding::ToNameBytes(units);
    Require(Encoding::ToNameBytes(Encoding::FromNameBytes(nameBytes)) == nameBytes);
    if (repaired.View() == units)
        Require(nameBytes == bytes);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(data, data + size);
    CheckBytes(bytes);
    std::u16string units;
    for (std::size_t i = 1; i < size; i += 2)
        units += static_cast<char16_t>(data[i - 1] | data[i] << 8);
    CheckUnits(units);
    return 0;
}
