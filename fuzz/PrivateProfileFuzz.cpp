// Any bytes as a private-profile file: written again it is in normal form, the new value is found, and the others are
// kept.
#include <VyrPlatform/linux/documents/ProfileText.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

using VyrPlatform::ProfileText;

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

void CheckNames(std::string_view bytes, std::u16string_view section, std::u16string_view key)
{
    const ProfileText before(bytes);
    ProfileText after(bytes);
    const bool isChanged = after.Set(section, key, u"value");
    Require(isChanged == (before.Find(section, key) != CString(u"value")) || isChanged);
    Require(after.Find(section, key) == CString(u"value"));
    Require(!after.Set(section, key, u"value"));
    const std::string written = after.ToBytes();
    const ProfileText again(written);
    Require(again.ToBytes() == written);
    Require(again.Find(section, key) == CString(u"value"));
    for (const char16_t* const other : {u"o", u"p q"})
        Require(again.Find(u"T", other) == before.Find(u"T", other));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    CheckNames(bytes, u"S", u"k");
    CheckNames(bytes, u"Long name", u"a");
    return 0;
}
