#include <VyrPlatform/registry/RegistryValue.h>

#include <array>
#include <string_view>

namespace VyrPlatform::Registry {

std::optional<CString> ReadText(Handle key, const CString& name)
{
    std::array<char16_t, bufferCapacity> buffer{};
    const auto [error, type, byteCount] = ReadValue(key, name, std::as_writable_bytes(std::span(buffer)));
    if (error != Error::none || (type != ValueType::text && type != ValueType::expandableText))
        return std::nullopt;
    if (byteCount == 0)
        return CString();
    const std::size_t count = byteCount / sizeof(char16_t);
    if (byteCount % sizeof(char16_t) != 0 || buffer[count - 1] != u'\0')
        return std::nullopt;
    return CString(buffer.data());
}

std::optional<std::uint32_t> ReadNumber(Handle key, const CString& name)
{
    // The registry's numbers have their lowest byte first, as both systems' processors have.
    std::uint32_t number = 0;
    const ReadResult result = ReadValue(key, name, std::as_writable_bytes(std::span(&number, 1)));
    if (result.error != Error::none || result.type != ValueType::number)
        return std::nullopt;
    return number;
}

} // namespace VyrPlatform::Registry
