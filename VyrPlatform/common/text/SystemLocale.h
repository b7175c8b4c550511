/// @file
/// What each system knows of a locale. A locale's name is written as the system itself writes it.
#pragma once

#include <VyrPlatform/text/Locale.h>

#include <cstddef>
#include <cstdint>
#include <functional>

namespace VyrPlatform::Locale {

/// What a user may choose a locale for.
enum class Category : std::uint8_t
{
    Collation,
    Dates,
    Numbers
};
inline constexpr std::size_t categoryCount = 3;

/// The locale that the user has chosen for `category`; US English where none is chosen (the POSIX locale). On Windows
/// one locale serves all categories.
[[nodiscard]] CString UserLocaleName(Category category);
/// The system's form of a name such as "de_DE.UTF-8" or "de-DE"; US English for "C", "POSIX" and what it does not know.
[[nodiscard]] CString SystemLocaleName(const CString& name);

/// The upper-case or lower-case letter of `unit` by Unicode's simple mapping; `unit` itself where that has none of one
/// code unit.
[[nodiscard]] char16_t SystemUpper(char16_t unit) noexcept;
[[nodiscard]] char16_t SystemLower(char16_t unit) noexcept;

using Collation = std::function<int(const CString& left, const CString& right)>;
/// The order of texts under a locale; may be used by several threads at once.
[[nodiscard]] Collation MakeCollation(const CString& localeName);

/// The patterns are already in the letters of Unicode's date patterns.
[[nodiscard]] DateTexts ReadDateTexts(const CString& localeName);
[[nodiscard]] NumberTexts ReadNumberTexts(const CString& localeName);

} // namespace VyrPlatform::Locale
