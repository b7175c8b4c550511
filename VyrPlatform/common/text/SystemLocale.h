/// @file
/// The system's data of a locale. The names of locales are those of the system.
#pragma once

#include <VyrPlatform/text/Locale.h>

#include <cstddef>
#include <cstdint>
#include <functional>

namespace VyrPlatform::Locale {

/// What a user can choose a locale for.
enum class Category : std::uint8_t
{
    Collation,
    Dates,
    Numbers
};
inline constexpr std::size_t categoryCount = 3;

/// The user's locale for `category`; US English where none is set (the POSIX locale). On Windows one locale is for all
/// categories.
[[nodiscard]] CString UserLocaleName(Category category);
/// The system's form of a name such as "de_DE.UTF-8" or "de-DE"; US English for "C", "POSIX" and unknown names.
[[nodiscard]] CString SystemLocaleName(const CString& name);

/// The upper-case or lower-case letter of `unit` by Unicode's simple mapping; `unit` itself where the result would take
/// more than one code unit.
[[nodiscard]] char16_t SystemUpper(char16_t unit) noexcept;
[[nodiscard]] char16_t SystemLower(char16_t unit) noexcept;

using Collation = std::function<int(const CString& left, const CString& right)>;
/// The order of texts in a locale; several threads may use it at once.
[[nodiscard]] Collation MakeCollation(const CString& localeName);

/// The patterns have the letters of Unicode's date patterns.
[[nodiscard]] DateTexts ReadDateTexts(const CString& localeName);
[[nodiscard]] NumberTexts ReadNumberTexts(const CString& localeName);

} // namespace VyrPlatform::Locale
