/// @file
/// Converts bytes to UTF-16 and back.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <string>
#include <string_view>

namespace VyrPlatform::Encoding {

/// UTF-8 content as text; each byte that is not UTF-8 becomes U+FFFD.
[[nodiscard]] VYR_PLATFORM_API CString FromUtf8(std::string_view bytes);
/// Text as UTF-8 content; each lone surrogate becomes U+FFFD.
[[nodiscard]] VYR_PLATFORM_API std::string ToUtf8(std::u16string_view text);
/// Appends ToUtf8(text) to `bytes`.
VYR_PLATFORM_API void AppendUtf8(std::string& bytes, std::u16string_view text);

/// The name of a file from its bytes, reversibly: a byte that is not UTF-8 becomes the lone surrogate U+DC00 plus the
/// byte (U+DC80 to U+DCFF). Only for names and paths, never for content.
[[nodiscard]] VYR_PLATFORM_API CString FromNameBytes(std::string_view bytes);
/// The bytes of a file's name. Results of FromNameBytes give exactly the same bytes again; any other lone surrogate is
/// written as the three bytes of UTF-8's scheme.
[[nodiscard]] VYR_PLATFORM_API std::string ToNameBytes(std::u16string_view name);
/// Appends ToNameBytes(name) to `bytes`.
VYR_PLATFORM_API void AppendNameBytes(std::string& bytes, std::u16string_view name);

} // namespace VyrPlatform::Encoding
