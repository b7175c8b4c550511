/// @file
/// For Windows code, including hosts: converts between CString and the system's wide characters.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <string_view>

namespace VyrPlatform {

/// The text as the system's functions take it, without a copy. Valid as long as `text` lives unchanged.
[[nodiscard]] inline const wchar_t* ToWide(const CString& text) noexcept
{
    static_assert(sizeof(wchar_t) == sizeof(char16_t), "for Windows only");
    return reinterpret_cast<const wchar_t*>(text.GetString());
}

/// A copy of the system's text.
[[nodiscard]] inline CString FromWide(std::wstring_view text)
{
    return std::u16string_view(reinterpret_cast<const char16_t*>(text.data()), text.size());
}

} // namespace VyrPlatform
