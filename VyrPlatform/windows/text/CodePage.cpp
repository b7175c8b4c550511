// Code pages through Windows's own conversions.
#include <VyrPlatform/text/CodePage.h>

#include <algorithm>
#include <limits>
#include <windows.h>

namespace VyrPlatform::CodePage {

namespace {

/// The size of `target` in the system's type. Never 0, which would request the needed size.
template <class Unit>
int SizeFor(std::span<Unit> target) noexcept
{
    return static_cast<int>(std::min<std::size_t>(target.size(), std::numeric_limits<int>::max()));
}

} // namespace

std::uint32_t GetAnsi()
{
    return GetACP();
}

std::size_t ToText(std::uint32_t codePage, const char* bytes, std::span<char16_t> target)
{
    const DWORD flags = codePage == utf8 ? 0 : MB_PRECOMPOSED;
    const int needed = MultiByteToWideChar(codePage, flags, bytes, -1, nullptr, 0);
    if (needed > 0 && needed <= SizeFor(target))
        return static_cast<std::size_t>(
            MultiByteToWideChar(codePage, flags, bytes, -1, reinterpret_cast<wchar_t*>(target.data()), needed));
    return static_cast<std::size_t>(std::max(needed, 0));
}

std::size_t ToBytes(std::uint32_t codePage, const char16_t* text, char defaultCharacter, std::span<char> target)
{
    const DWORD flags = codePage == utf8 ? 0 : WC_COMPOSITECHECK | WC_SEPCHARS;
    // In a code page of two bytes the system also reads a second byte, unless it is a NUL.
    const char character[] = {defaultCharacter, '\0'};
    const char* const replacement = codePage == utf8 ? nullptr : character;
    const auto* const wide = reinterpret_cast<const wchar_t*>(text);
    const int needed = WideCharToMultiByte(codePage, flags, wide, -1, nullptr, 0, replacement, nullptr);
    if (needed > 0 && needed <= SizeFor(target))
        return static_cast<std::size_t>(
            WideCharToMultiByte(codePage, flags, wide, -1, target.data(), needed, replacement, nullptr));
    return static_cast<std::size_t>(std::max(needed, 0));
}

} // namespace VyrPlatform::CodePage
